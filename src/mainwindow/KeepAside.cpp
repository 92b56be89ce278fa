#include "mainwindow/KeepAside.h"

#include <vector>

#include "core/FileBackup.h"
#include "core/KeptFiles.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::size_t kMostStandIns = 20;  // of one event

bool Note(Context& context, const KeepResult& result) {
    std::vector<std::string>& kept = context.session.kept.Notes.Kept;
    kept.insert(kept.end(), result.paths.begin(), result.paths.end());
    return result.outcome != Keeping::Failed;
}

}  // namespace

bool KeepAside(Context& context, std::string_view reason, std::span<const std::string> paths,
               std::string_view spared) {
    return Note(context, KeepFiles(context.services.files, context.session.StateFolder,
                                   context.services.clock.Now(), reason, paths, spared));
}

bool KeepAside(Context& context, std::string_view reason, const std::string& path) {
    return KeepAside(context, reason, std::span(&path, 1));
}

bool KeepWhatGoes(Context& context, const KnownFiles& known, std::string_view reason,
                  std::span<const std::string> paths) {
    std::vector<std::string> going;
    for (const std::string& path : paths) {
        if (!known.MayGo(context.services.files, path)) going.push_back(path);
    }
    return going.empty() || KeepAside(context, reason, going);
}

bool KeepWhatGoes(Context& context, const KnownFiles& known, std::string_view reason,
                  const std::string& path) {
    return KeepWhatGoes(context, known, reason, std::span(&path, 1));
}

bool BackUpOrKeep(Context& context, std::string_view reason, const std::string& path) {
    if (BackUpOnce(context.services.files, path)) return true;
    // More would push each other out of the store.
    return context.session.kept.Notes.Kept.size() < kMostStandIns && KeepAside(context, reason, path);
}

bool ReplaceAndKeep(Context& context, std::string_view reason, const std::string& path,
                    std::string_view text) {
    FileSystem& files = context.services.files;
    KnownFiles& known = context.session.known;
    return KeepWhatGoes(context, known, reason, path) && known.Replace(files, path, text);
}

bool KeepAside(Context& context, std::string_view reason, std::span<const KeptText> texts) {
    return Note(context, KeepTexts(context.services.files, context.session.StateFolder,
                                   context.services.clock.Now(), reason, texts));
}

}  // namespace orlo

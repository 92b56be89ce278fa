#include "core/KeptFiles.h"

#include <algorithm>
#include <set>
#include <utility>

#include "core/ClockTime.h"
#include "core/KeptContent.h"
#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::uint64_t kLargestEntryFile = 1024 * 1024;
// A content that no entry names is what a kill left behind, or another program is about to name it. It goes
// when so many numbers were given since.
constexpr std::int64_t kNumbersUntilLost = 20;

// What stands in the folder of the store.
struct StoreNames {
    std::vector<std::string> entries;  // the newest first
    std::vector<std::string> contents;
    std::int64_t highest = 0;  // number
};

StoreNames ListStore(FileSystem& files, const std::string& folder) {
    StoreNames names;
    std::vector<std::pair<std::int64_t, std::string>> entries;
    for (const FolderEntry& found : files.ListFolder(folder)) {
        if (found.isFolder) continue;
        const auto entry = KeptNumber(found.name, KeptKind::Entry);
        const auto content = KeptNumber(found.name, KeptKind::Content);
        if (entry) entries.emplace_back(*entry, found.name);
        if (content) names.contents.push_back(found.name);
        names.highest = std::max({names.highest, entry.value_or(0), content.value_or(0)});
    }
    std::sort(entries.rbegin(), entries.rend());
    for (auto& [number, name] : entries) names.entries.push_back(std::move(name));
    return names;
}

// Nothing where the file can't be opened. One that is too large is no entry of ours and names nothing.
std::optional<KeptEntry> ReadEntry(FileSystem& files, const std::string& folder, const std::string& name) {
    const std::string path = JoinPath(folder, name);
    const bool tooLarge = files.FileSize(path).value_or(0) > kLargestEntryFile;
    const auto text = tooLarge ? std::string() : ReadWholeFile(files, path);
    if (!text) return std::nullopt;
    KeptEntry entry = ParseKeptEntry(*text);
    entry.Name = name;
    return entry;
}

// Deletes those of the contents that no entry names, by the list as it is now. Where an entry can't be read,
// none.
void DeleteUnnamed(FileSystem& files, const std::string& folder, const std::set<std::string>& contents) {
    if (contents.empty()) return;
    std::set<std::string> unnamed = contents;
    for (const std::string& name : ListStore(files, folder).entries) {
        const auto entry = ReadEntry(files, folder, name);
        if (!entry && files.FileExists(JoinPath(folder, name))) return;
        if (!entry) continue;
        for (const KeptFile& file : entry->Files) unnamed.erase(file.Content);
    }
    for (const std::string& name : unnamed) files.DeleteFile(JoinPath(folder, name));
}

// What is kept: a file, or a text that is to be one.
struct Source {
    std::string path;
    std::optional<std::string_view> text = {};
};

std::optional<ContentFacts> FactsOf(FileSystem& files, const Source& source) {
    if (!source.text) return ContentFactsOf(files, source.path);
    return ContentFactsOf(*source.text);
}

bool Holds(FileSystem& files, const std::string& stored, const Source& source) {
    if (!source.text) return SameContent(files, stored, source.path);
    return SameText(files, stored, *source.text);
}

bool Store(FileSystem& files, const Source& source, const std::string& stored) {
    return source.text ? ReplaceWholeFile(files, stored, *source.text) : files.CopyFile(source.path, stored);
}

// Makes one entry.
class Keeper {
  public:
    Keeper(FileSystem& files, const std::string& folder)
        : files_(files), folder_(folder), names_(ListStore(files, folder)) {}

    // Copies the source into the store, or finds its content there.
    bool Add(const Source& source) {
        const auto facts = FactsOf(files_, source);
        if (!facts || names_.highest >= kLastKeptNumber) return false;
        std::string content = FindContent(source, *facts);
        if (content.empty()) {
            content = FreeName(facts->hash, source.path);
            if (!Store(files_, source, JoinPath(folder_, content))) return false;
            names_.contents.push_back(content);
            made_.insert(content);
        }
        entry_.Files.push_back({source.path, std::move(content)});
        sources_.push_back(source);
        return true;
    }

    // The entry's file shows when all its contents are there.
    bool Write(std::int64_t now, std::string_view reason) {
        entry_.When = FormatDateTime(now);
        entry_.Reason = reason;
        const std::string text = FormatKeptEntry(entry_);
        entry_.Name = KeptName(names_.highest + 1, ContentFactsOf(text).hash, KeptKind::Entry, text);
        return ReplaceWholeFile(files_, JoinPath(folder_, entry_.Name), text) && AllStand();
    }

    void GiveUp() {
        if (!entry_.Name.empty()) files_.DeleteFile(JoinPath(folder_, entry_.Name));
        DeleteUnnamed(files_, folder_, made_);
    }

    const KeptEntry& Entry() const { return entry_; }

  private:
    std::string FindContent(const Source& source, const ContentFacts& facts) const {
        const std::string name = KeptName(0, facts.hash, KeptKind::Content);
        for (const std::string& stored : names_.contents) {
            const std::string path = JoinPath(folder_, stored);
            if (KeptHash(stored) == KeptHash(name) && files_.FileSize(path) == facts.size &&
                Holds(files_, path, source))
                return stored;
        }
        return {};
    }

    // A higher number where another content of that hash has the name.
    std::string FreeName(std::uint64_t hash, const std::string& path) const {
        std::int64_t number = names_.highest;
        std::string name;
        do {
            name = KeptName(++number, hash, KeptKind::Content, path);
        } while (files_.FileExists(JoinPath(folder_, name)));
        return name;
    }

    // Another program may have deleted a content, which no entry named before this one, while it was found
    // here.
    bool AllStand() const {
        for (std::size_t i = 0; i < sources_.size(); ++i) {
            const std::string stored = KeptContentPath(folder_, entry_.Files[i]);
            if (!files_.FileExists(stored) && !Store(files_, sources_[i], stored)) return false;
        }
        return true;
    }

    FileSystem& files_;
    const std::string& folder_;
    StoreNames names_;
    KeptEntry entry_;
    std::vector<Source> sources_;  // of its files
    std::set<std::string> made_;   // contents
};

// Deletes what is beyond the limits, from the oldest entry on, and contents that a kill left behind.
void Prune(FileSystem& files, const std::string& folder, const std::string& newest, std::string_view spared) {
    const StoreNames names = ListStore(files, folder);
    std::set<std::string> counted;
    std::set<std::string> dropped;
    std::uint64_t bytes = 0;
    std::size_t count = 0;
    for (const std::string& name : names.entries) {
        const auto entry = ReadEntry(files, folder, name).value_or(KeptEntry());
        for (const KeptFile& file : entry.Files) {
            if (counted.insert(file.Content).second)
                bytes += files.FileSize(KeptContentPath(folder, file)).value_or(0);
        }
        const bool fits = ++count <= kMostKeptEntries && bytes <= kMostKeptBytes;
        if (fits || name == newest || name == spared) continue;
        files.DeleteFile(JoinPath(folder, name));
        for (const KeptFile& file : entry.Files) dropped.insert(file.Content);
    }
    for (const std::string& name : names.contents) {
        if (KeptNumber(name, KeptKind::Content).value_or(0) + kNumbersUntilLost < names.highest)
            dropped.insert(name);
    }
    DeleteUnnamed(files, folder, dropped);
}

KeepResult Keep(FileSystem& files, const std::string& folder, std::int64_t now, std::string_view reason,
                const std::vector<Source>& sources, std::string_view spared) {
    if (sources.empty()) return {Keeping::Nothing, {}};
    if (folder.empty() || !files.CreatePrivateFolders(folder)) return {};
    Keeper keeper(files, folder);
    const bool stored =
        std::all_of(sources.begin(), sources.end(), [&](const Source& source) { return keeper.Add(source); });
    if (!stored || !keeper.Write(now, reason)) {
        keeper.GiveUp();
        return {};
    }
    Prune(files, folder, keeper.Entry().Name, spared);
    KeepResult result{Keeping::Kept, {}};
    for (const Source& source : sources) result.paths.push_back(source.path);
    return result;
}

}  // namespace

KeepResult KeepFiles(FileSystem& files, const std::string& folder, std::int64_t now, std::string_view reason,
                     std::span<const std::string> paths, std::string_view spared) {
    std::vector<Source> sources;
    for (const std::string& path : paths) {
        if (files.FileExists(path)) sources.push_back({files.Resolve(files.FullPath(path))});
    }
    return Keep(files, folder, now, reason, sources, spared);
}

KeepResult KeepTexts(FileSystem& files, const std::string& folder, std::int64_t now, std::string_view reason,
                     std::span<const KeptText> texts) {
    std::vector<Source> sources;
    for (const KeptText& text : texts) sources.push_back({text.path, text.text});
    return Keep(files, folder, now, reason, sources, {});
}

std::vector<KeptEntry> ReadKeptEntries(FileSystem& files, const std::string& folder) {
    std::vector<KeptEntry> entries;
    for (const std::string& name : ListStore(files, folder).entries) {
        auto entry = ReadEntry(files, folder, name);
        if (entry && !entry->Files.empty()) entries.push_back(std::move(*entry));
    }
    return entries;
}

std::string KeptContentPath(const std::string& folder, const KeptFile& file) {
    return JoinPath(folder, file.Content);
}

bool RestoreKept(FileSystem& files, const std::string& folder, const KeptFile& file,
                 const std::string& target) {
    return KeptNumber(file.Content, KeptKind::Content) &&
           files.CopyFile(KeptContentPath(folder, file), target);
}

bool DeleteKept(FileSystem& files, const std::string& folder, const KeptEntry& entry,
                std::span<const KeptFile> gone) {
    if (!KeptNumber(entry.Name, KeptKind::Entry)) return false;
    KeptEntry left = entry;
    std::erase_if(left.Files, [&](const KeptFile& file) {
        return std::find(gone.begin(), gone.end(), file) != gone.end();
    });
    const std::string path = JoinPath(folder, entry.Name);
    const bool done =
        left.Files.empty() ? files.DeleteFile(path) : ReplaceWholeFile(files, path, FormatKeptEntry(left));
    if (!done) return false;
    std::set<std::string> contents;
    for (const KeptFile& file : gone) {
        if (KeptNumber(file.Content, KeptKind::Content)) contents.insert(file.Content);
    }
    DeleteUnnamed(files, folder, contents);
    return true;
}

}  // namespace orlo

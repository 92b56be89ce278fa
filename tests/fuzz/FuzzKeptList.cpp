#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/KeptFiles.h"
#include "core/Path.h"
#include "support/MemoryFileSystem.h"

// An entry of any bytes reads back as it is written, and nothing outside the folder of the store changes when
// it is shown, restored, deleted and pruned.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace orlo;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const KeptEntry parsed = ParseKeptEntry(text);
    if (ParseKeptEntry(FormatKeptEntry(parsed)) != parsed) std::abort();

    const std::string folder = "/state";
    test::MemoryFileSystem files;
    files.files = {{"/w/plan.txt", "flights"}, {"/settings.txt", "settings"}, {"/state/mine.txt", "mine"}};
    const auto before = files.files;
    files.files[JoinPath(folder, KeptName(1, 0, KeptKind::Content))] = "old";
    files.files[JoinPath(folder, KeptName(2, 0, KeptKind::Entry))] = text;
    const std::string plan = "/w/plan.txt";
    if (KeepFiles(files, folder, 0, "", std::span(&plan, 1)).outcome != Keeping::Kept) std::abort();
    for (const KeptEntry& entry : ReadKeptEntries(files, folder)) {
        for (const KeptFile& file : entry.Files) RestoreKept(files, folder, file, "/w/restored.txt");
        DeleteKept(files, folder, entry, entry.Files);
    }
    for (const auto& [path, content] : before) {
        if (files.files.at(path) != content) std::abort();
    }
    if (!ReadKeptEntries(files, folder).empty()) std::abort();
    return 0;
}

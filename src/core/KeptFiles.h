#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/KeptEntry.h"
#include "services/FileSystem.h"

namespace orlo {

// The store of kept files: copies of the user's files, made before a step that would lose them. It is one
// folder, `folder` below, of which only files with the store's own names are touched; several programs may
// use it at the same time. An empty `folder` counts as one that can't be written.

inline constexpr std::size_t kMostKeptEntries = 50;
inline constexpr std::uint64_t kMostKeptBytes = std::uint64_t{2} * 1024 * 1024 * 1024;

enum class Keeping {
    Kept,
    Nothing,  // none of the paths is a file
    Failed,   // no entry and no copy is left behind
};

struct KeepResult {
    Keeping outcome = Keeping::Failed;
    std::vector<std::string> paths;  // what was kept, full
};

// Keeps a copy of each file, all as one entry. `now` is local time in seconds since 1970. A path where no
// file stands is passed over, a folder too; what can't be read, such as a device, fails. The folder is made
// when the first file is kept. A content that is there already is not stored again.
//
// Afterwards the newest kMostKeptEntries entries stay, with no more than kMostKeptBytes of contents; older
// ones are deleted. The new entry stays whatever its size, and so does the one with the name `spared`.
KeepResult KeepFiles(FileSystem& files, const std::string& folder, std::int64_t now, std::string_view reason,
                     std::span<const std::string> paths, std::string_view spared = {});

// A file that stands in memory alone, such as a plan that could not be saved.
struct KeptText {
    std::string path;  // where it would stand, full
    std::string_view text;
};

// The same for such files. Without any the outcome is Nothing.
KeepResult KeepTexts(FileSystem& files, const std::string& folder, std::int64_t now, std::string_view reason,
                     std::span<const KeptText> texts);

// The newest first. What can't be read, and an entry without files, is left out.
std::vector<KeptEntry> ReadKeptEntries(FileSystem& files, const std::string& folder);

// Full path of the copy.
std::string KeptContentPath(const std::string& folder, const KeptFile& file);

// Copies a kept file to `target`, which is replaced whole. False, with the target as it was, where that
// fails.
bool RestoreKept(FileSystem& files, const std::string& folder, const KeptFile& file,
                 const std::string& target);

// Takes `gone` out of the entry, and deletes the entry when no file is left in it. A content goes when no
// entry names it any more. False, with the entry as it was, where that can't be written.
bool DeleteKept(FileSystem& files, const std::string& folder, const KeptEntry& entry,
                std::span<const KeptFile> gone);

}  // namespace orlo

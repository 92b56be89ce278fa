#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// The records of the store of kept files (KeptFiles.h), the names of its files and the text of an entry's
// file (docs/kept-files.md).

struct KeptFile {
    std::string Path;     // where it stood, full
    std::string Content;  // name of its copy in the folder of the store

    bool operator==(const KeptFile&) const = default;
};

// What was kept together.
struct KeptEntry {
    std::string Name;    // of the entry's own file in the folder of the store
    std::string When;    // local time, as "2026-11-25 18:34:44"
    std::string Reason;  // what was about to be done, as "Merge"
    std::vector<KeptFile> Files;

    bool operator==(const KeptEntry&) const = default;
};

enum class KeptKind { Entry, Content };

// The number in a name of the store, as 42 in "000042-0123456789abcdef.kept"; nothing for any other name, so
// none with a path.
std::optional<std::int64_t> KeptNumber(std::string_view name, KeptKind kind);
// The digits of the name that equal contents share.
std::string_view KeptHash(std::string_view name);
// `number` is 0 to kLastKeptNumber. Of `hash` the upper 48 bits count. The path goes into the rest, so that
// two programs that keep two similar files at the same moment don't take one name.
std::string KeptName(std::int64_t number, std::uint64_t hash, KeptKind kind, std::string_view path = {});
inline constexpr std::int64_t kLastKeptNumber = 999'999'999'999'999;

// The text of an entry's file, without the entry's name. Parsing takes any text: lines that it doesn't know
// are passed over, and so is a file whose content has no name of the store.
std::string FormatKeptEntry(const KeptEntry& entry);
KeptEntry ParseKeptEntry(std::string_view text);

}  // namespace orlo

#include "platform/common/FileNames.h"

#include <algorithm>
#include <tuple>

#include "core/Path.h"
#include "core/Text.h"

namespace orlo {
namespace {

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string FoldedFileName(std::string_view name) {
    if (IsAscii(name)) return UpperText(name);
    std::string single = FromScreen(name);
    const bool isUtf8 = ToScreen(name) == name;
    if (!isUtf8 || single != name) return UpperText(single);
    // The bytes of a longer character are no letters.
    for (char& character : single) {
        if (static_cast<unsigned char>(character) < 0x80) character = UpperChar(character);
    }
    return single;
}

void SortByName(std::vector<FolderEntry>& entries) {
    struct Keyed {
        std::string key;
        FolderEntry entry;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(entries.size());
    for (FolderEntry& entry : entries) {
        std::string key = FoldedFileName(entry.name);
        keyed.push_back({std::move(key), std::move(entry)});
    }
    std::sort(keyed.begin(), keyed.end(), [](const Keyed& a, const Keyed& b) {
        return std::tie(a.key, a.entry.name) < std::tie(b.key, b.entry.name);
    });
    for (std::size_t i = 0; i < keyed.size(); ++i) entries[i] = std::move(keyed[i].entry);
}

bool MakeFolders(FileSystem& files, const std::string& path,
                 const std::function<bool(const std::string&)>& make,
                 const std::function<void(const std::string&)>& remove) {
    std::vector<std::string> missing;
    std::string folder(WithoutTrailingSeparator(path));
    while (!folder.empty() && !files.FolderExists(folder)) {
        missing.push_back(folder);
        std::string parent(WithoutTrailingSeparator(ParentFolder(folder)));
        if (parent == folder) return false;  // a root that isn't there
        folder = std::move(parent);
    }
    std::vector<std::string> made;
    for (auto next = missing.rbegin(); next != missing.rend(); ++next) {
        if (make(*next)) {
            made.push_back(*next);
        } else if (!files.FolderExists(*next)) {
            for (auto last = made.rbegin(); last != made.rend(); ++last) remove(*last);
            return false;
        }
    }
    return true;
}

}  // namespace orlo

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orlo {

// Looks a text value up in a registry file of Wine ("system.reg" of a prefix, keys relative to the machine's
// hive) as a 32-bit program sees it: the part of a 64-bit prefix for 32-bit programs comes first. `keyPath`
// has single "\" between its parts; it and `name` compare without regard to case. Gives values of the kinds
// text and expandable text, also where they are written as hexadecimal bytes, and passes all others over.
// Characters beyond ASCII come out as UTF-8. Wrong lines are skipped.
std::optional<std::string> FindWineRegistryValue(std::string_view text, std::string_view keyPath,
                                                 std::string_view name);

// The parts of a path in the Windows form, "C:\folder\file".
struct DrivePath {
    char drive = 'c';  // lower case
    std::string rest;  // behind the colon and its separators, with the system's separators
};
// Nothing for a text that names no drive.
std::optional<DrivePath> SplitDrivePath(std::string_view path);

}  // namespace orlo

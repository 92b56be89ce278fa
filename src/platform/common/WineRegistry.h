#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orlo {

// Looks a text value up in a registry file of Wine ("system.reg" of a prefix, keys relative to the machine's
// hive) as a 32-bit program sees it: what a 64-bit prefix keeps apart for those comes first. `keyPath` has
// single "\" between its parts; it and `name` compare without regard to case. Values of the kinds text and
// expandable text are given, also where they stand as hexadecimal bytes; all others are passed over.
// Characters beyond ASCII come out as UTF-8. Wrong lines are skipped.
std::optional<std::string> FindWineRegistryValue(std::string_view text, std::string_view keyPath,
                                                 std::string_view name);

// A path in the Windows form, "C:\folder\file", in its parts.
struct DrivePath {
    char drive = 'c';  // lower case
    std::string rest;  // behind the colon and its separators, with the system's separators
};
// Nothing for a text that names no drive.
std::optional<DrivePath> SplitDrivePath(std::string_view path);

}  // namespace orlo

#pragma once

#include <string>
#include <string_view>

namespace orlo {

// The system's UTF-16 of a text. Each part between separators is taken as UTF-8, or as code page 1252 where
// it isn't that: a path can join a folder from the system with a name from a file of the simulator.
std::wstring WideText(std::string_view text);

// UTF-16 as UTF-8. A character that is no valid UTF-16 becomes U+FFFD.
std::string NarrowText(std::wstring_view text);

// A path from the system as the program writes it: without the mark of long paths.
std::string PlainPath(std::wstring_view path);

// The full path; empty when it is no path of a disk (see IsDiskPath).
std::string FullPath(const std::string& path);

// The full path in the form that the system takes at any length and never as a device; empty when it is no
// path of a disk.
std::wstring SystemPath(const std::string& path);

}  // namespace orlo

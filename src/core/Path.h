#pragma once

#include <string>
#include <string_view>

namespace orlo {

// Paths are the system's bytes with its separators ("/" here, "\" on Windows, where "/" separates too).

#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
#else
inline constexpr char kPathSeparator = '/';
#endif

bool IsPathSeparator(char character);

// `folder` and `name` with one separator between them; an empty folder gives the name alone.
std::string JoinPath(std::string_view folder, std::string_view name);

// The path with every "\" made the system's separator: the simulator's files write paths with "\".
std::string NativePath(std::string_view path);

// The text before the last separator; empty where there is none, and "/" for a file in the root.
std::string ParentFolder(std::string_view path);

// The text behind the last separator.
std::string FileName(std::string_view path);

// The same path without separators at its end.
std::string_view WithoutTrailingSeparator(std::string_view path);

}  // namespace orlo

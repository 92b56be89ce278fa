#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "services/FileSystem.h"

namespace orlo {

// What tells contents apart. Files of any size are read in pieces.

// What two equal contents have in common, and most others not. It is read from the front alone, so that
// keeping a file costs one copy of it.
struct ContentFacts {
    std::uint64_t size = 0;  // in bytes
    std::uint64_t hash = 0;  // of the size and the first bytes
};

// Nothing where the path names no readable file.
std::optional<ContentFacts> ContentFactsOf(FileSystem& files, const std::string& path);
ContentFacts ContentFactsOf(std::string_view text);

// False also where a file can't be read.
bool SameContent(FileSystem& files, const std::string& one, const std::string& other);
bool SameText(FileSystem& files, const std::string& path, std::string_view text);

}  // namespace orlo

#pragma once

#include <cstdint>
#include <string>

namespace orlo {

// Appends the number's lowest `size` bytes, the lowest first. simulator/ByteReader.h reads them.
inline void AppendLittleEndian(std::string& out, std::uint64_t number, int size) {
    for (int i = 0; i < size; ++i) out.push_back(static_cast<char>(number >> (8 * i) & 0xFF));
}

}  // namespace orlo

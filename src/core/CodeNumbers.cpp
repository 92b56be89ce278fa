#include "core/CodeNumbers.h"

#include <cstring>
#include <functional>

namespace orlo {

std::uint64_t CodeNumbers::KeyOf(std::string_view text) {
    if (text.size() >= sizeof(std::uint64_t)) return std::hash<std::string_view>{}(text) | kLongText;
    std::uint64_t key = 0;
    if (!text.empty()) std::memcpy(&key, text.data(), text.size());
    return key ^ (static_cast<std::uint64_t>(text.size()) << 56);
}

}  // namespace orlo

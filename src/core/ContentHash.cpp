#include "core/ContentHash.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace orlo {
namespace {

constexpr std::uint64_t kPrime = 0x9E3779B185EBCA87;
constexpr int kTurn = 31;

// A multiplication carries upwards only, so the high bits are turned down to the low ones.
std::uint64_t Mixed(std::uint64_t lane, std::uint64_t word) {
    return std::rotl((lane ^ word) * kPrime, kTurn);
}

}  // namespace

void ContentHash::Add(std::string_view bytes) {
    size_ += bytes.size();
    if (restSize_ > 0) {
        const std::size_t count = std::min(bytes.size(), kBlock - restSize_);
        std::copy_n(bytes.data(), count, rest_.data() + restSize_);
        restSize_ += count;
        bytes.remove_prefix(count);
        if (restSize_ < kBlock) return;
        Mix(rest_.data());
        restSize_ = 0;
    }
    for (; bytes.size() >= kBlock; bytes.remove_prefix(kBlock)) Mix(bytes.data());
    std::copy_n(bytes.data(), bytes.size(), rest_.data());
    restSize_ = bytes.size();
}

void ContentHash::Mix(const char* block) {
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        std::uint64_t word = 0;
        std::memcpy(&word, block + i * sizeof(word), sizeof(word));
        lanes_[i] = Mixed(lanes_[i], word);
    }
}

std::uint64_t ContentHash::Value() const {
    std::uint64_t value = size_;
    for (const std::uint64_t lane : lanes_) value = Mixed(value, lane);
    for (std::size_t i = 0; i < restSize_; ++i) value = Mixed(value, static_cast<unsigned char>(rest_[i]));
    return value;
}

std::uint64_t HashOf(std::string_view bytes) {
    ContentHash hash;
    hash.Add(bytes);
    return hash.Value();
}

}  // namespace orlo

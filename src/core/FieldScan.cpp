#include "core/FieldScan.h"

#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace orlo {
namespace {

// Bit i of each mask: byte i of the block is that character.
struct BlockMasks {
    std::uint32_t commas = 0;
    std::uint32_t semicolons = 0;
    std::uint32_t slashes = 0;
    std::uint32_t blanks = 0;
};

constexpr std::size_t kBlock = 32;

#ifdef __SSE2__
std::uint32_t EqualMask(__m128i low, __m128i high, char character) {
    const __m128i wanted = _mm_set1_epi8(character);
    const auto lowMask = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(low, wanted)));
    const auto highMask = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(high, wanted)));
    return lowMask | highMask << 16;
}

BlockMasks MasksOf(const char* bytes) {
    const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + 16));
    return {EqualMask(low, high, ','), EqualMask(low, high, ';'), EqualMask(low, high, '/'),
            EqualMask(low, high, ' ')};
}
#else
BlockMasks MasksOf(const char* bytes) {
    BlockMasks masks;
    for (std::size_t i = 0; i < kBlock; ++i) {
        const std::uint32_t bit = std::uint32_t{1} << i;
        if (bytes[i] == ',') masks.commas |= bit;
        if (bytes[i] == ';') masks.semicolons |= bit;
        if (bytes[i] == '/') masks.slashes |= bit;
        if (bytes[i] == ' ') masks.blanks |= bit;
    }
    return masks;
}
#endif

// Masks of the last `left` bytes of a line, fewer than a block: taken from the block that ends with the line,
// and moved down. A line shorter than a block is filled up in front.
BlockMasks MasksOfTail(std::string_view line, std::size_t left) {
    char filled[kBlock] = {};
    const char* block = line.data() + line.size() - kBlock;
    if (line.size() < kBlock) {
        std::memcpy(filled + kBlock - line.size(), line.data(), line.size());
        block = filled;
    }
    const BlockMasks masks = MasksOf(block);
    const std::size_t shift = kBlock - left;
    return {masks.commas >> shift, masks.semicolons >> shift, masks.slashes >> shift, masks.blanks >> shift};
}

}  // namespace

void FieldScan::Scan(std::string_view line) {
    count_ = 0;
    length_ = line.size();
    std::uint32_t blanks = 0;
    std::uint32_t slashBefore = 0;  // 1 when the byte in front of the block is a slash
    for (std::size_t at = 0; at < length_; at += kBlock) {
        const std::size_t left = line.size() - at;
        const BlockMasks masks = left >= kBlock ? MasksOf(line.data() + at) : MasksOfTail(line, left);
        blanks |= masks.blanks;
        std::uint32_t found = masks.commas;
        std::uint32_t doubled = masks.slashes & (masks.slashes << 1 | slashBefore);
        slashBefore = masks.slashes >> (kBlock - 1);
        if (masks.semicolons != 0) {
            const std::uint32_t before = (masks.semicolons & (~masks.semicolons + 1)) - 1;
            length_ = at + static_cast<std::size_t>(std::countr_zero(masks.semicolons));
            found &= before;
            doubled &= before;
        }
        if (doubled != 0) {
            const auto second = static_cast<std::size_t>(std::countr_zero(doubled));
            length_ = at + second - 1;  // the cut stands in front of the first slash of the pair
            found &= (std::uint32_t{1} << second) - 1;
        }
        if (commas_.size() < count_ + kBlock) commas_.resize(2 * count_ + kBlock);
        std::uint32_t* next = commas_.data() + count_;
        for (; found != 0; found &= found - 1) {
            *next++ = static_cast<std::uint32_t>(at) + static_cast<std::uint32_t>(std::countr_zero(found));
        }
        count_ = static_cast<std::size_t>(next - commas_.data());
    }
    hasBlanks_ = blanks != 0;
}

}  // namespace orlo

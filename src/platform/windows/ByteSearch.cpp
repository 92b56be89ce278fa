// The system's C library looks for a byte one by one, and a plan is read by looking for the ends of its lines
// and fields: with this in its place a million flights open in three quarters of the time. The linker is told
// to take it (CMakeLists.txt).

#include <emmintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>

namespace {

constexpr std::size_t kBlock = sizeof(__m128i);

// One bit for each byte of the block.
unsigned PlacesOf(__m128i wanted, const __m128i* block) {
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(_mm_load_si128(block), wanted)));
}

}  // namespace

// A block on its own boundary lies within one page, so that no byte is touched which isn't there.
extern "C" void* memchr(const void* text, int byte, std::size_t count) {
    if (count == 0) return nullptr;
    const auto address = reinterpret_cast<std::uintptr_t>(text);
    const std::size_t before = address % kBlock;
    const auto* block = reinterpret_cast<const __m128i*>(address - before);
    const __m128i wanted = _mm_set1_epi8(static_cast<char>(byte));
    unsigned found = PlacesOf(wanted, block) >> before;
    for (std::size_t seen = 0, size = kBlock - before;;) {
        if (found != 0) {
            const std::size_t place = seen + static_cast<std::size_t>(std::countr_zero(found));
            return place < count ? reinterpret_cast<void*>(address + place) : nullptr;
        }
        seen += size;
        if (seen >= count) return nullptr;
        size = kBlock;
        found = PlacesOf(wanted, ++block);
    }
}

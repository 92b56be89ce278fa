#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace orlo {
namespace {

// The program brings a search of its own, which takes whole blocks: no byte outside the text may count.
TEST(ByteSearch, FindsTheFirstOfItsBytesAtEveryPlaceAndInNoOther) {
    for (std::size_t start = 0; start < 40; ++start) {
        for (std::size_t count = 0; count < 40; ++count) {
            std::string bytes(100, 'x');
            const void* found = std::memchr(bytes.data() + start, 'x' + 0x100, count);
            EXPECT_EQ(found, count == 0 ? nullptr : bytes.data() + start);
            for (std::size_t place = 0; place < 60; ++place) {
                bytes.assign(100, 'x');
                bytes[place] = bytes[99] = '\xFE';
                found = std::memchr(bytes.data() + start, 0xFE, count);
                const bool inside = place >= start && place < start + count;
                ASSERT_EQ(found, inside ? bytes.data() + place : nullptr)
                    << start << ' ' << count << ' ' << place;
            }
        }
    }
}

}  // namespace
}  // namespace orlo

#include "platform/common/SystemRandom.h"

#include <gtest/gtest.h>

namespace orlo {
namespace {

TEST(SystemRandom, AFixedSeedRepeatsItsValuesAtEverySeeding) {
    SystemRandom random(5489);
    // The generator's first two numbers for this seed, 14514284786278117030 and 4620546740167642908, in 53
    // bits.
    const double first = random.Next();
    const double second = random.Next();
    EXPECT_EQ(first, static_cast<double>(14514284786278117030ull >> 11) / 9007199254740992.0);
    EXPECT_EQ(second, static_cast<double>(4620546740167642908ull >> 11) / 9007199254740992.0);
    random.SeedFromClock();
    EXPECT_EQ(random.Next(), first);
    SystemRandom other(5490);
    EXPECT_NE(other.Next(), first);
}

}  // namespace
}  // namespace orlo

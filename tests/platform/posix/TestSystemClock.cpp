#include "platform/posix/SystemClock.h"

#include <gtest/gtest.h>

#include <ctime>

#include "platform/posix/ChildProcess.h"

namespace orlo {
namespace {

TEST(SystemClock, TellsLocalTime) {
    EXPECT_EQ(test::RunInChild([] {
                  setenv("TZ", "XXX-5:30", 1);  // five and a half hours ahead
                  tzset();
                  const std::int64_t ahead = SystemClock().Now() - std::time(nullptr);
                  return ahead >= 19799 && ahead <= 19801 ? 0 : 1;
              }),
              0);
}

}  // namespace
}  // namespace orlo

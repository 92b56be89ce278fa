#include <gtest/gtest.h>

#include "desktop/DesktopApplication.h"

int main(int count, char** words) {
    testing::InitGoogleTest(&count, words);
    orlo::DesktopApplication application(count, words);
    return RUN_ALL_TESTS();
}

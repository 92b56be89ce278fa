#include <gtest/gtest.h>

#include <QApplication>

int main(int count, char** words) {
    testing::InitGoogleTest(&count, words);
    QApplication application(count, words);
    return RUN_ALL_TESTS();
}

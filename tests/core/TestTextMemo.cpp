#include "core/TextMemo.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace orlo {
namespace {

// Far more texts than it has room for, each asked twice.
TEST(TextMemo, EachTextGetsItsOwnAnswerAndKeepsItWhileThereIsRoom) {
    TextMemo memo(10);
    std::map<std::string, int> asked;
    const auto answer = [](const std::string& text) {
        auto value = static_cast<std::uint32_t>(text.size());
        for (char character : text) value = value * 31 + static_cast<unsigned char>(character);
        return static_cast<std::int32_t>(value);
    };
    const auto find = [&](std::string_view text) {
        ++asked[std::string(text)];
        return answer(std::string(text));
    };
    std::vector<std::string> texts = {"A", std::string("A\0", 2), "a", "", "ABCDEFGH", "ABCDEFGHI", "KSEA"};
    for (int i = 0; i < 1000; ++i) texts.push_back("AC#" + std::to_string(i));
    for (int round = 0; round < 2; ++round) {
        for (const std::string& text : texts) EXPECT_EQ(memo.Get(text, find), answer(text)) << text;
    }
    EXPECT_EQ(asked["KSEA"], 1);
    EXPECT_EQ(asked["ABCDEFGH"], 1);
    EXPECT_EQ(asked["AC#0"], 1);
    EXPECT_EQ(asked["AC#999"], 2);
}

}  // namespace
}  // namespace orlo

#include "core/CodeNumbers.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace orlo {
namespace {

TEST(CodeNumbers, EachTextIsNumberedOnceAndAskedOnce) {
    std::vector<std::string> texts = {"A",        std::string("A\0", 2), "a",   "", "ABCDEFG",
                                      "ABCDEFGH", "ABCDEFGHI",           "KSEA"};
    for (int i = 0; i < 1000; ++i) texts.push_back("AC#" + std::to_string(i));
    CodeNumbers numbers;
    CodeMemo memo;
    std::map<std::string_view, std::int32_t> asked;
    const auto find = [&](std::string_view text) {
        return 2 * asked.try_emplace(text, asked.size()).first->second;
    };
    for (int round = 0; round < 2; ++round) {
        std::int32_t expected = 0;
        for (const std::string& text : texts) {
            EXPECT_EQ(numbers.Number(text), expected) << text;
            EXPECT_EQ(numbers.Text(expected), text);
            EXPECT_EQ(memo.Get(text, find), 2 * expected++) << text;
        }
    }
    EXPECT_EQ(numbers.Count(), static_cast<std::int32_t>(texts.size()));
    EXPECT_EQ(memo.Get("KSEA", [](std::string_view) { return -1; }), 14) << "known by its bytes";
}

}  // namespace
}  // namespace orlo

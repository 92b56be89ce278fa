#include "console/ScriptText.h"

#include <gtest/gtest.h>

#include "console/Options.h"

namespace orlo {
namespace {

TEST(ScriptText, WordsAreSplitAtBlanksAndQuotesHoldThem) {
    struct Case {
        const char* line;
        std::optional<std::vector<std::string>> words;
    };
    using Words = std::vector<std::string>;
    const std::vector<Case> cases = {
        {"", Words{}},
        {"  \t ", Words{}},
        {"click  cmdShuffle\t", Words{"click", "cmdShuffle"}},
        {"set txt \"two words\"", Words{"set", "txt", "two words"}},
        {"set txt \"\"", Words{"set", "txt", ""}},
        {"echo \"say \"\"hi\"\"\" x", Words{"echo", "say \"hi\"", "x"}},
        {"echo a\"b", Words{"echo", "a\"b"}},
        {"echo \"open", std::nullopt},
        {"echo \"open\"\"", std::nullopt},
    };
    for (const Case& c : cases) EXPECT_EQ(SplitScriptLine(c.line), c.words) << c.line;
}

TEST(ScriptText, ALineEndAndABackslashAreTypedIntoAFieldOfSeveralLines) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {R"(one\ntwo\n)", "one\r\ntwo\r\n"},
        {R"(C:\\new)", R"(C:\new)"},
        {R"(\\n\\\n)", "\\n\\\r\n"},
        {R"(\t\)", R"(\t\)"},
    };
    for (const auto& [word, typed] : cases) EXPECT_EQ(TypedLines(word), typed) << word;
}

TEST(ScriptText, WhatWouldBreakALineIsEscaped) {
    EXPECT_EQ(Printed("a\tb\r\nc\nd\re\\f\xE9"), "a\\tb\\nc\\nd\\ne\\f\xC3\xA9");
    EXPECT_EQ(PrintedMessage("C:\\new\nline"), "C:\\\\new\\nline");
}

TEST(ConsoleOptions, FaultsOfTheCommandLineAreNamed) {
    struct Case {
        std::vector<std::string> arguments;
        const char* fault;
    };
    const std::vector<Case> cases = {
        {{"--seed", "x"}, "option --seed: 'x' is no number"},
        {{"--seed"}, "option --seed needs a value"},
        {{"--program"}, "option --program needs a value"},
        {{"--what"}, "unknown option --what"},
        {{"a", "b"}, "more than one script"},
        {{"--seed", "7", "--strict", "--trace", "script"}, ""},
    };
    for (const Case& c : cases) EXPECT_EQ(ParseConsoleOptions(c.arguments).fault, c.fault);
    EXPECT_EQ(ParseConsoleOptions({"--seed", "7"}).seed, 7u);
}

}  // namespace
}  // namespace orlo

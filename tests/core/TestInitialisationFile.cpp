#include "core/InitialisationFile.h"

#include <gtest/gtest.h>

namespace orlo {
namespace {

TEST(InitialisationFile, ValuesAreFoundBySectionAndKeyWithoutRegardToCase) {
    const InitialisationFile file = ParseInitialisationFile(
        "stray=1\r\n"
        "[ fltsim.0 ] behind\r\n"
        "title = Boeing 747-400 \r\n"
        "\ttexture\t=\t\"world, blue\"\t\r\n"
        "quoted='a;b'\r\n"
        "open=\"a\r\n"
        "single=\"\r\n"
        ";title=comment\r\n"
        "  ; title=comment\r\n"
        "no value here\r\n"
        "empty=\r\n"
        "=nameless\r\n"
        "twice=1=2\r\n"
        "TITLE=second\r\n"
        "[broken\r\n"
        "atc_id=N1\r\n"
        "[General]\rmodel=a\n[GENERAL]\nmodel=b");
    struct Case {
        std::string_view section, key, value;
    };
    const Case cases[] = {
        {"FLTSIM.0", "Title", "Boeing 747-400"},
        {"fltsim.0", "texture", "world, blue"},
        {"fltsim.0", "quoted", "a;b"},
        {"fltsim.0", "open", "\"a"},
        {"fltsim.0", "single", "\""},
        {"fltsim.0", "empty", ""},
        {"fltsim.0", "", "nameless"},
        {"fltsim.0", "twice", "1=2"},
        {"fltsim.0", "atc_id", "N1"},  // a section line without its end is no line
        {"general", "model", "a"},
        {"fltsim.0", "stray", ""},
        {"fltsim.1", "title", ""},
    };
    for (const Case& c : cases) EXPECT_EQ(file.Value(c.section, c.key), c.value) << c.section << c.key;
    EXPECT_EQ(file.sections.size(), 3u);
    EXPECT_EQ(file.Section("fltsim"), nullptr);
}

}  // namespace
}  // namespace orlo

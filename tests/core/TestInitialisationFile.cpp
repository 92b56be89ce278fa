#include "core/InitialisationFile.h"

#include <gtest/gtest.h>

namespace orlo {
namespace {

TEST(InitialisationFile, ValuesAreFoundBySectionAndKeyWithoutRegardToCase) {
    const InitialisationFile file(
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
    const struct {
        std::string_view section, key, value;
    } cases[] = {
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
    };
    for (const auto& c : cases) EXPECT_EQ(file.Get(c.section, c.key), c.value) << c.section << c.key;
    EXPECT_EQ(file.Get("fltsim.0", "stray"), std::nullopt);
    EXPECT_EQ(file.Get("fltsim.1", "title"), std::nullopt);
    EXPECT_EQ(file.SectionCount(), 3u);
    EXPECT_EQ(file.FindSection("fltsim"), std::nullopt);
    EXPECT_EQ(file.ValueCount(1), 1u);
    EXPECT_EQ(file.ValueAt(2, 0).text, "b");
}

TEST(InitialisationFile, AChangedValueTouchesItsOwnLineAlone) {
    constexpr std::string_view kText =
        "\xEF\xBB\xBF; by hand\n"
        "[fltsim.0]\r\n"
        "\tTitle = \"Jet\" \r"
        "title=second\n"
        "panel =  \n"
        "texture= 1\t\r\n"
        "\n"
        "[ General ] ; all\n"
        "; nothing\n"
        "[Fltsim.0]\n"
        "sim=b";
    const struct {
        std::string_view section, key, value;
        std::string_view before, after;  // what the change replaces
    } cases[] = {
        {"FLTSIM.0", "title", "Jet", "", ""},
        {"FLTSIM.0", "title", "Jumbo", "\tTitle = \"Jet\" \r", "\tTitle = \"Jumbo\" \r"},
        {"fltsim.0", "title", " 'a", "\tTitle = \"Jet\" \r", "\tTitle = \" 'a\" \r"},
        {"fltsim.0", "Title", "'a'", "\tTitle = \"Jet\" \r", "\tTitle = \"'a'\" \r"},
        {"fltsim.0", "sim", "c", "texture= 1\t\r\n", "texture= 1\t\r\nsim=c\n"},
        {"general", "atc_model", "A;B", "; all\n", "; all\natc_model=A;B\n"},
        {"fltsim.0", "panel", "", "panel =  \n", "panel =  \n"},
        {"fltsim.0", "panel", "1", "panel =  \n", "panel =  1\n"},
        {"fltsim.0", "texture", " 2", "texture= 1\t\r\n", "texture= \" 2\"\t\r\n"},
        {"models", "normal", "", "sim=b", "sim=b\n[models]\nnormal=\n"},
    };
    for (const auto& c : cases) {
        InitialisationFile file((std::string(kText)));
        EXPECT_TRUE(file.Set(c.section, c.key, c.value));
        std::string expected(kText);
        expected.replace(expected.find(c.before), c.before.size(), c.after);
        EXPECT_EQ(file.Text(), expected) << c.key << "=" << c.value;
        EXPECT_EQ(file.Get(c.section, c.key), c.value);
    }
    InitialisationFile file((std::string(kText)));
    EXPECT_FALSE(file.Set("fltsim.0", "title", "a\nb"));
    for (std::string_view key : {"a=b", ";a", "[a", " a"})
        EXPECT_FALSE(file.Set("fltsim.0", key, "1")) << key;
    for (std::string_view section : {"a]b", " a", "a\r"})
        EXPECT_FALSE(file.Set(section, "a", "1")) << section;
    EXPECT_EQ(file.Text(), kText);
}

TEST(InitialisationFile, ALineEndIsThatOfTheFileAndNeverJoinsTheOneBehind) {
    InitialisationFile made("");
    EXPECT_TRUE(made.Set("a", "b", "1"));
    EXPECT_EQ(made.Text(), "[a]\r\nb=1\r\n");
    InitialisationFile mixed("[a]\r\n[b]\r");
    EXPECT_TRUE(mixed.Set("b", "c", "1"));
    EXPECT_EQ(mixed.Text(), "[a]\r\n[b]\rc=1\r\n");
    InitialisationFile returns("[a]\r\r[b]\rc=1\r\n\n");
    EXPECT_TRUE(returns.Set("b", "d", "2"));
    EXPECT_EQ(returns.Text(), "[a]\r\r[b]\rc=1\r\nd=2\r\n\n");
}

}  // namespace
}  // namespace orlo

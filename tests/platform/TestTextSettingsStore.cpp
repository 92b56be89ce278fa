#include "platform/common/TextSettingsStore.h"

#include <gtest/gtest.h>

#include "core/Text.h"
#include "support/MemoryFileSystem.h"

namespace orlo {
namespace {

constexpr std::string_view kKey = "SOFTWARE\\Brantel Data Service\\Orlo\\1.0\\Settings";
const std::string kPath = "/home/settings.txt";

TEST(TextSettingsStore, EveryValueNameAndKeyPathSurvivesWritingAndReadingButForThoseWithALineEnd) {
    std::string all;
    for (int i = 0; i < 256; ++i) all.push_back(static_cast<char>(i));
    std::vector<std::string> texts = {all, std::string("\0", 1), std::string(100000, 'v'), "line\r\nend"};
    for (const std::string_view text : SplitText(
             "|30| |  both  |\ttab\t|\"|\"quoted\"|\"open|a\"b|a=b|=|[x]|;c|#c|\\|C:\\new\\0|\\n\"|line\nend|"
             "\xEF\xBB\xBF|\xE4\xFF|x\\|]",
             '|')) {
        texts.emplace_back(text);
    }
    test::MemoryFileSystem files;
    TextSettingsStore written(files, kPath);
    for (const std::string& text : texts) {
        EXPECT_TRUE(written.Set(kKey, "value of " + text, text));
        EXPECT_TRUE(written.Set("names", text, "name " + text));
    }
    const std::string paths[] = {"a]b", "[a]", " a ", "", "\xE4\"", "a\\"};
    for (const std::string& path : paths) EXPECT_TRUE(written.Set(path, "name", "in " + path));
    for (const std::string& path : {std::string("a\nb"), std::string("a\r"), std::string("\0", 1)})
        EXPECT_FALSE(written.Set(path, "name", "x"));
    ASSERT_TRUE(written.Flush());
    TextSettingsStore read(files, kPath);
    for (const std::string& path : paths) EXPECT_EQ(read.Get(path, "name"), "in " + path);
    for (const std::string& text : texts) {
        EXPECT_EQ(read.Get(kKey, "value of " + text), text);
        EXPECT_EQ(read.Get("names", text), "name " + text);
    }
}

TEST(TextSettingsStore, WhatTheProgramDoesNotKnowStaysWhereItStands) {
    test::MemoryFileSystem files;
    const std::string head = R"(; my settings
lost=1
[Other\Program]
b=2
[software\BRANTEL data service\orlo\1.0\settings]
)";
    const std::string tail = "# a remark\nno value\n\n[Last]\nTATime=1";
    files.files[kPath] = head + "TATime = 45 \nUnknown=\"kept \n" + tail;
    TextSettingsStore store(files, kPath);
    EXPECT_EQ(store.Get(kKey, "tatime"), "45");
    EXPECT_EQ(store.Get(kKey, "Unknown"), "\"kept");
    EXPECT_EQ(store.Get(kKey, "lost"), std::nullopt);
    EXPECT_EQ(store.Get("Missing", "TATime"), std::nullopt);
    store.Set(kKey, "TATIME", "60");
    store.Set(kKey, "Undo", "-1");
    store.Set("New", "a", " 1");
    ASSERT_TRUE(store.Flush());
    const std::string expected =
        head + "TATime=60\nUnknown=\"kept \nUndo=-1\n" + tail + "\n[New]\na=\" 1\"\n";
    EXPECT_EQ(files.files[kPath], ReplaceAll(expected, "\n", "\r\n"));
}

TEST(TextSettingsStore, NothingIsWrittenBeforeTheFlushNorWithoutAChange) {
    test::MemoryFileSystem files;
    TextSettingsStore store(files, kPath);
    EXPECT_TRUE(store.Flush());
    EXPECT_TRUE(files.files.empty());
    store.Set(kKey, "a", "1");
    EXPECT_TRUE(files.files.empty());
    files.failAfterBytes = 10;
    EXPECT_FALSE(store.Flush());
    EXPECT_TRUE(files.files.empty());
    files.failAfterBytes = -1;
    EXPECT_TRUE(store.Flush());
    files.files[kPath] = "changed by hand";
    EXPECT_TRUE(store.Set(kKey, "A", "1"));
    EXPECT_TRUE(store.Flush());
    EXPECT_EQ(files.files[kPath], "changed by hand");
}

}  // namespace
}  // namespace orlo

#include "projects/ProjectFile.h"

#include <gtest/gtest.h>

#include "support/MemoryFileSystem.h"

namespace orlo {
namespace {

using namespace std::string_literals;

// Field by field, as the format's page tells them.
const std::string kTwoEntries =
    "\3\0"s
    "1.1"
    "\2\0\0\0"s
    "\7\0"s
    "One.txt"
    "\5\0"s
    "A.txt"
    "\4\0"s
    "Fj\xF8r"
    "\1\0"s
    "\7\0"s
    "Two.txt"
    "\0\0"s
    "\0\0"s
    "\xFF\xFF";

const std::vector<ProjectEntry> kEntries = {{"One.txt", "A.txt", "Fj\xF8r", 1}, {"Two.txt", "", "", -1}};

TEST(ProjectFile, IsReadAndWrittenByteForByte) {
    EXPECT_EQ(ParseProject(kTwoEntries), kEntries);
    EXPECT_EQ(FormatProject(kEntries), kTwoEntries);
    EXPECT_EQ(FormatProject({}),
              "\3\0"s
              "1.1"
              "\0\0\0\0"s);
    const std::string longText(70'000, 'x');
    EXPECT_EQ(ParseProject(FormatProject({{"P", "", longText, 0}}))[0].Description,
              longText.substr(0, 65'535));
}

TEST(ProjectFile, OldAndDamagedFilesGiveTheirWholeEntries) {
    const std::string entry =
        "\1\0"s
        "P"
        "\1\0"s
        "D"
        "\7\0"s;
    EXPECT_EQ(ParseProject("\3\0"s
                           "1.0"
                           "\1\0\0\0"s +
                           entry),
              (std::vector<ProjectEntry>{{"P", "", "D", 7}}));
    EXPECT_EQ(ParseProject("\2\0"s
                           "xy"
                           "\1\0\0\0"s
                           "\1\0"s
                           "P" +
                           entry)
                  .size(),
              1u)
        << "any other version is 1.1";
    EXPECT_EQ(ParseProject("\3\0"s
                           "1.0"
                           "\xFF\xFF\xFF\x7F" +
                           entry)
                  .size(),
              1u)
        << "a count of two billion";
    EXPECT_TRUE(ParseProject("\3\0"s
                             "1.0"
                             "\xFF\xFF\xFF\xFF" +
                             entry)
                    .empty())
        << "a count of -1";
    EXPECT_TRUE(ParseProject("\3\0"s
                             "1.0"
                             "\1\0\0\0"s
                             "\xFF\xFF" +
                             entry)
                    .empty())
        << "a length past the end";
    const std::size_t firstEnd = kTwoEntries.size() - 15;
    for (std::size_t size = 0; size < kTwoEntries.size(); ++size) {
        EXPECT_EQ(ParseProject(kTwoEntries.substr(0, size)).size(), size < firstEnd ? 0u : 1u) << size;
    }
}

TEST(ProjectFile, PathsOfAnotherSystemAreFound) {
    struct Wine : test::MemoryFileSystem {
        std::string FromDrivePath(const std::string& path) override {
            return path.starts_with("C:\\") ? "/drive/" + path.substr(3) : path;
        }
    } files;
    files.files["/drive/One.txt"] = "";
    files.files["/drive/Fj\xC3\xB8r.txt"] = "";
    EXPECT_EQ(UsablePath(files, "C:\\One.txt"), "/drive/One.txt");
    EXPECT_EQ(UsablePath(files, "C:\\Fj\xF8r.txt"), "/drive/Fj\xC3\xB8r.txt");
    EXPECT_EQ(UsablePath(files, "/drive/One.txt"), "/drive/One.txt");
    EXPECT_EQ(UsablePath(files, "D:\\Two.txt"), "D:\\Two.txt") << "stays where nothing is found";
}

}  // namespace
}  // namespace orlo

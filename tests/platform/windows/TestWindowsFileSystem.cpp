#include "platform/windows/WindowsFileSystem.h"

#include <gtest/gtest.h>

#include "core/TextLines.h"
#include "platform/TemporaryFolder.h"
#include "platform/windows/WindowsHandle.h"

namespace orlo {
namespace {

using test::Replace;
using test::TemporaryFolder;

TEST(WindowsFileSystem, ANewNameIsReadInTheSimulatorsCodePage) {
    const TemporaryFolder folder;
    EXPECT_EQ(Replace(folder.Path("new\xE9.txt"), "new"), 0);
    EXPECT_EQ(folder.Content("new\xC3\xA9.txt"), "new");
}

TEST(WindowsFileSystem, DevicesAndStreamsAreNoFiles) {
    const TemporaryFolder folder;
    folder.Put("a.txt", "a");
    WindowsFileSystem files;
    for (const std::string& path :
         {std::string("NUL"), std::string("con.txt"), std::string("\\\\.\\pipe\\orlo"),
          folder.Path("aux\\a.txt"), folder.Path("a.txt:more"), folder.Path("a.txt\\")}) {
        EXPECT_FALSE(files.FileExists(path)) << path;
        EXPECT_FALSE(files.FileSize(path)) << path;
        EXPECT_FALSE(files.OpenForReading(path)) << path;
        EXPECT_FALSE(files.CreateReplacing(path)) << path;
        EXPECT_FALSE(files.CreateInPlace(path)) << path;
        EXPECT_FALSE(files.DeleteFile(path)) << path;
    }
    for (const std::string& path : {folder.Path("x\\nul"), std::string("1:\\x")})
        EXPECT_FALSE(files.CreateFolders(path)) << path;
    EXPECT_EQ(folder.Entries(), 1u);
    EXPECT_EQ(files.FullPath("NUL"), "NUL");
}

TEST(WindowsFileSystem, PathsMayHaveAnyLength) {
    const TemporaryFolder folder;
    WindowsFileSystem files;
    std::string deep = "Sub";
    for (char name = 'a'; name < 'm'; ++name) deep += '\\' + std::string(40, name);
    ASSERT_TRUE(files.CreateFolders(folder.Path(deep)));
    EXPECT_EQ(Replace(folder.Path(deep + "\\Deep.txt"), "deep"), 0);
    EXPECT_EQ(ReadWholeFile(files, folder.Path(deep + "\\DEEP.txt")), "deep");
    EXPECT_EQ(files.Resolve(folder.Path(deep + "\\deep.TXT")), folder.Path(deep + "\\Deep.txt"));
    EXPECT_TRUE(files.DeleteFile(folder.Path(deep + "\\Deep.txt")));
    EXPECT_TRUE(files.ListFolder(folder.Path(deep)).empty());
}

TEST(WindowsFileSystem, AFileThatGrowsInPlaceTakesItsRoomFirst) {
    const TemporaryFolder folder;
    const WindowsHandle file = OpenOnDisk(folder.Put("a.txt", "old"), OpenFor::Writing);
    ASSERT_TRUE(TakeRoom(file, 3, 100));
    EXPECT_EQ(SizeOf(file), 100u);
    EXPECT_TRUE(WriteAll(file, "newer") && SetSize(file, 5));
    EXPECT_EQ(folder.Content("a.txt"), "newer");
    EXPECT_EQ(FinalPath(file).substr(1, 2), ":\\");
}

}  // namespace
}  // namespace orlo

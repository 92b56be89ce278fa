#include "platform/windows/WindowsFileSystem.h"

#include <gtest/gtest.h>

#include <thread>

#include "core/TextLines.h"
#include "platform/TemporaryFolder.h"
#include "platform/windows/WideText.h"
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

// A file of the name that another program has open.
WindowsHandle Hold(const std::string& path, DWORD access, DWORD share) {
    return WindowsHandle(CreateFileW(WideText(path).c_str(), access, share, nullptr, OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr));
}

TEST(WindowsFileSystem, AFileThatAnotherProgramHoldsIsToldApartFromOneThatMayNotBeWritten) {
    const TemporaryFolder folder;
    WindowsFileSystem files;
    const std::string path = folder.Put("a.txt", "old"), other = folder.Put("b.txt", "new");
    const struct {
        DWORD access, share;
        bool readable, held;
    } cases[] = {{GENERIC_READ, 0, false, true},
                 {GENERIC_READ, FILE_SHARE_READ, true, true},
                 {GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, true, true},
                 {GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, true, false}};
    for (const auto& c : cases) {
        const WindowsHandle holder = Hold(path, c.access, c.share);
        ASSERT_TRUE(holder.IsOpen());
        EXPECT_TRUE(files.FileExists(path));
        EXPECT_EQ(files.OpenForReading(path) != nullptr, c.readable) << c.share;
        EXPECT_EQ(files.IsHeld(path), c.held) << c.share;
        if (!c.held) continue;
        EXPECT_NE(Replace(path, "new"), 0) << c.share;
        EXPECT_FALSE(files.CopyFile(other, path)) << c.share;
        EXPECT_FALSE(files.DeleteFile(path)) << c.share;
    }
    EXPECT_EQ(folder.Content("a.txt"), "old");
    EXPECT_EQ(folder.Entries(), 2u);
    std::filesystem::permissions(folder.Place("a.txt"), std::filesystem::perms(0444));
    EXPECT_NE(Replace(path, "new"), 0);
    EXPECT_FALSE(files.IsHeld(path));
    EXPECT_FALSE(files.IsHeld(folder.Path("missing.txt")));
    std::filesystem::permissions(folder.Place("a.txt"), std::filesystem::perms(0644));

    // A scanner lets go soon.
    WindowsHandle scanner = Hold(path, GENERIC_READ, FILE_SHARE_READ);
    std::thread soon([&scanner] {
        Sleep(50);
        scanner.Close();
    });
    EXPECT_EQ(Replace(path, "new"), 0);
    soon.join();
    EXPECT_EQ(folder.Content("a.txt"), "new");
}

}  // namespace
}  // namespace orlo

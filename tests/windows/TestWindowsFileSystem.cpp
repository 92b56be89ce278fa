#include "platform/windows/WindowsFileSystem.h"

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "core/TextLines.h"
#include "platform/windows/WindowsHandle.h"

namespace orlo {
namespace {

using test::TemporaryFolder;

// Writes a file whole; 0 on success, else the step that failed.
int Replace(const std::string& path, const std::string& content) {
    WindowsFileSystem files;
    const auto file = files.CreateReplacing(path);
    if (!file) return 1;
    if (!file->Write(content)) return 2;
    return file->Commit() ? 0 : 3;
}

std::string ContentOf(const std::string& path) {
    WindowsFileSystem files;
    return ReadWholeFile(files, path).value_or("(missing)");
}

TEST(WindowsFileSystem, NamesAreFoundInUtf8AndInTheSimulatorsCodePage) {
    const TemporaryFolder folder;
    WindowsFileSystem files;
    std::filesystem::create_directory(folder.Wide(L"Caf\u00E9"));
    folder.Put(L"Caf\u00E9\\\u0416.txt", "text");
    EXPECT_EQ(ContentOf(folder.Path("caf\xC3\xA9/\xD0\x96.TXT")), "text");
    EXPECT_EQ(ContentOf(folder.Path("CAF\xC9\\\xD0\x96.txt")), "text");
    EXPECT_EQ(files.Resolve(folder.Path("CAF\xC9\\\xD0\x96.TXT\\x")),
              folder.Path("Caf\xC3\xA9\\\xD0\x96.txt\\x"));
    EXPECT_EQ(files.FileSize(folder.Path("Caf\xE9\\\xD0\x96.txt")), 4u);
    EXPECT_EQ(Replace(folder.Path("new\xE9.txt"), "new"), 0);
    EXPECT_EQ(folder.Content(L"new\u00E9.txt"), "new");

    const auto entries = files.ListFolder(folder.Path());
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].name, "Caf\xC3\xA9");
    EXPECT_TRUE(entries[0].isFolder);
    EXPECT_EQ(entries[1].name, "new\xC3\xA9.txt");
    EXPECT_FALSE(entries[1].isFolder);
}

TEST(WindowsFileSystem, AReplacedFileIsSeenOnCommitAndNotBeforeAndKeepsItsSpelling) {
    const TemporaryFolder folder;
    folder.Put(L"Plan.txt", "old");
    WindowsFileSystem files;
    {
        const auto file = files.CreateReplacing(folder.Path("PLAN.TXT"));
        ASSERT_TRUE(file);
        EXPECT_TRUE(file->Write("new" + std::string(200000, 'x')));
        EXPECT_EQ(folder.Content(L"Plan.txt"), "old");
        EXPECT_TRUE(file->Commit());
        EXPECT_TRUE(file->Commit());
        EXPECT_FALSE(file->Write("late"));
    }
    EXPECT_EQ(folder.Content(L"Plan.txt"), "new" + std::string(200000, 'x'));
    EXPECT_EQ(files.ListFolder(folder.Path()).at(0).name, "Plan.txt");
    { files.CreateReplacing(folder.Path("Plan.txt"))->Write("dropped"); }
    EXPECT_EQ(folder.Content(L"Plan.txt").substr(0, 3), "new");
    EXPECT_EQ(folder.Entries(), 1u);
}

TEST(WindowsFileSystem, AFileThatIsBeingReadCanBeReplaced) {
    const TemporaryFolder folder;
    folder.Put(L"a.txt", "old");
    WindowsFileSystem files;
    const auto reader = files.OpenForReading(folder.Path("a.txt"));
    ASSERT_TRUE(reader);
    EXPECT_EQ(Replace(folder.Path("a.txt"), "longer"), 0);
    char buffer[16];
    EXPECT_EQ(reader->Read(buffer), 3u);
    EXPECT_EQ(folder.Content(L"a.txt"), "longer");
}

TEST(WindowsFileSystem, ReadOnlyFilesStayAsTheyAre) {
    const TemporaryFolder folder;
    folder.Put(L"a.txt", "old");
    folder.Put(L"b.txt", "new");
    SetFileAttributesW(folder.Wide(L"a.txt").c_str(), FILE_ATTRIBUTE_READONLY);
    WindowsFileSystem files;
    EXPECT_FALSE(files.CreateReplacing(folder.Path("a.txt")));
    EXPECT_FALSE(files.CreateInPlace(folder.Path("a.txt")));
    EXPECT_FALSE(files.CopyFile(folder.Path("b.txt"), folder.Path("a.txt")));
    EXPECT_EQ(folder.Content(L"a.txt"), "old");
    EXPECT_EQ(folder.Entries(), 2u);
    SetFileAttributesW(folder.Wide(L"a.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(files.CopyFile(folder.Path("b.txt"), folder.Path("a.txt")));
    EXPECT_EQ(folder.Content(L"a.txt"), "new");
}

TEST(WindowsFileSystem, DevicesFoldersAndPathsBehindFilesAreNoFiles) {
    const TemporaryFolder folder;
    folder.Put(L"a.txt", "a");
    WindowsFileSystem files;
    for (const std::string& path :
         {std::string("NUL"), std::string("con.txt"), std::string("\\\\.\\pipe\\orlo"), std::string(),
          folder.Path(), folder.Path("aux\\a.txt"), folder.Path("a.txt:more"), folder.Path("a.txt\\"),
          folder.Path("a.txt\\b")}) {
        EXPECT_FALSE(files.FileExists(path)) << path;
        EXPECT_FALSE(files.FileSize(path)) << path;
        EXPECT_FALSE(files.OpenForReading(path)) << path;
        EXPECT_FALSE(files.CreateReplacing(path)) << path;
        EXPECT_FALSE(files.CreateInPlace(path)) << path;
        EXPECT_FALSE(files.DeleteFile(path)) << path;
    }
    EXPECT_EQ(folder.Entries(), 1u);
}

TEST(WindowsFileSystem, FoldersAreMadeWithTheirParentsAtAnyLength) {
    const TemporaryFolder folder;
    WindowsFileSystem files;
    std::string deep = "Sub";
    for (char name = 'a'; name < 'm'; ++name) deep += '\\' + std::string(40, name);
    ASSERT_TRUE(files.CreateFolders(folder.Path(deep)));
    EXPECT_TRUE(files.CreateFolders(folder.Path(deep) + "\\"));
    EXPECT_EQ(Replace(folder.Path(deep + "\\Deep.txt"), "deep"), 0);
    EXPECT_EQ(ContentOf(folder.Path(deep + "\\DEEP.txt")), "deep");
    EXPECT_EQ(files.Resolve(folder.Path(deep + "\\deep.TXT")), folder.Path(deep + "\\Deep.txt"));
    EXPECT_TRUE(files.DeleteFile(folder.Path(deep + "\\Deep.txt")));
    EXPECT_TRUE(files.ListFolder(folder.Path(deep)).empty());

    folder.Put(L"file", "");
    for (const std::string& path : {folder.Path("file\\x"), folder.Path("x\\nul"), std::string("1:\\x")})
        EXPECT_FALSE(files.CreateFolders(path)) << path;
    EXPECT_EQ(folder.Entries(), 2u);
}

TEST(WindowsFileSystem, AFileThatGrowsInPlaceTakesItsRoomFirst) {
    const TemporaryFolder folder;
    folder.Put(L"a.txt", "old");
    const WindowsHandle file = OpenOnDisk(folder.Path("a.txt"), OpenFor::Writing);
    ASSERT_TRUE(TakeRoom(file, 3, 100));
    EXPECT_EQ(SizeOf(file), 100u);
    EXPECT_TRUE(WriteAll(file, "newer") && SetSize(file, 5));
    EXPECT_EQ(folder.Content(L"a.txt"), "newer");
    EXPECT_EQ(FinalPath(file).substr(1, 2), ":\\");
}

TEST(WindowsFileSystem, ARelativePathStandsInTheWorkingFolder) {
    const TemporaryFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Wide(L""));
    WindowsFileSystem files;
    EXPECT_EQ(files.FullPath("Plan/a.txt"), folder.Path("Plan\\a.txt"));
    EXPECT_EQ(files.FullPath(folder.Path("a.txt")), folder.Path("a.txt"));
    EXPECT_EQ(files.FullPath("NUL"), "NUL");
    std::filesystem::current_path(before);
}

}  // namespace
}  // namespace orlo

// What the file systems of all platforms promise alike; built for each of them.

#include <gtest/gtest.h>

#include <array>

#include "platform/TemporaryFolder.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;
using test::Replace;
using test::TemporaryFolder;

struct SystemFiles : testing::Test {
    const TemporaryFolder folder;
    test::SystemFileSystem files;
};

TEST_F(SystemFiles, NamesAreFoundWithoutRegardToCaseInUtf8AndInTheSimulatorsCodePage) {
    folder.Put("Caf\xC3\xA9/\xD0\x96.txt", "text");
    for (const std::string name : {"Caf\xC3\xA9/\xD0\x96.txt", "CAF\xC3\x89/\xD0\x96.TXT",
                                   "caf\xE9/\xD0\x96.txt", "CAF\xC9/\xD0\x96.Txt"}) {
        EXPECT_EQ(files.Resolve(folder.Path(name + "/x")), folder.Path("Caf\xC3\xA9/\xD0\x96.txt/x")) << name;
        EXPECT_TRUE(files.FileExists(folder.Path(name))) << name;
        EXPECT_EQ(files.FileSize(folder.Path(name)), 4u) << name;
        EXPECT_TRUE(files.OpenForReading(folder.Path(name))) << name;
    }
    EXPECT_TRUE(files.FolderExists(folder.Path("CAF\xC9/")));
    EXPECT_FALSE(files.DeleteFile(folder.Path("caf\xE9")));
    EXPECT_TRUE(files.DeleteFile(folder.Path("caf\xE9/\xD0\x96.TXT")));
    EXPECT_EQ(folder.Entries("Caf\xC3\xA9"), 0u);
    EXPECT_FALSE(files.DeleteFile(folder.Path("caf\xE9/\xD0\x96.TXT")));
}

TEST_F(SystemFiles, AFileIsReadInPiecesToItsEndAndCanBeReplacedMeanwhile) {
    folder.Put("data.bin", std::string("\0\r\n\xFF", 4));
    const auto file = files.OpenForReading(folder.Path("DATA.bin"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->Size(), 4u);
    std::array<char, 3> buffer{};
    EXPECT_EQ(file->Read(buffer), 3u);
    EXPECT_EQ(buffer[2], '\n');
    EXPECT_EQ(Replace(folder.Path("data.bin"), "longer"), 0);
    EXPECT_EQ(file->Read(buffer), 1u);
    EXPECT_EQ(buffer[0], '\xFF');
    EXPECT_EQ(file->Read(buffer), 0u);
    EXPECT_EQ(folder.Content("data.bin"), "longer");
}

TEST_F(SystemFiles, PatchesChangeTheirBytesInPlaceOrNothing) {
    folder.Put("Model.mdl", "0123456789");
    const std::vector<FilePatch> inside = {{8, "xy"}, {0, "ab"}};
    EXPECT_TRUE(files.PatchFile(folder.Path("MODEL.MDL"), inside));
    EXPECT_EQ(folder.Content("Model.mdl"), "ab234567xy");
    const std::vector<FilePatch> beyond = {{0, "??"}, {9, "zz"}};
    EXPECT_FALSE(files.PatchFile(folder.Path("Model.mdl"), beyond));
    EXPECT_EQ(folder.Content("Model.mdl"), "ab234567xy");
    EXPECT_FALSE(files.PatchFile(folder.Path("missing.mdl"), inside));
    fs::permissions(folder.Place("Model.mdl"), fs::perms::owner_read);
    EXPECT_FALSE(files.PatchFile(folder.Path("Model.mdl"), inside));
    EXPECT_EQ(folder.Content("Model.mdl"), "ab234567xy");
}

TEST_F(SystemFiles, AReplacedFileIsSeenOnCommitAndNotBeforeAndKeepsItsSpelling) {
    folder.Put("Plan.txt", "old");
    const std::string large(200000, 'x');
    {
        const auto file = files.CreateReplacing(folder.Path("PLAN.TXT"));
        ASSERT_TRUE(file);
        for (const std::string& part : {std::string("new"), large, std::string("end")}) {
            EXPECT_TRUE(file->Write(part));
            EXPECT_EQ(folder.Content("Plan.txt"), "old");
        }
        EXPECT_TRUE(file->Commit());
        EXPECT_TRUE(file->Commit());
        EXPECT_FALSE(file->Write("late"));
    }
    { files.CreateReplacing(folder.Path("Plan.txt"))->Write("dropped"); }
    EXPECT_EQ(folder.Content("Plan.txt"), "new" + large + "end");
    EXPECT_EQ(files.ListFolder(folder.Path()).at(0).name, "Plan.txt");
    EXPECT_EQ(folder.Entries(), 1u);
}

TEST_F(SystemFiles, AFileInPlaceIsEmptiedAtOnceAndKeepsWhatItGot) {
    const std::string path = folder.Put("Shuffle.log", "old");
    {
        const auto file = files.CreateInPlace(path);
        ASSERT_TRUE(file);
        EXPECT_EQ(folder.Content("Shuffle.log"), "");
        EXPECT_TRUE(file->Write("kept"));
    }
    EXPECT_EQ(folder.Content("Shuffle.log"), "kept");
    const auto file = files.CreateInPlace(path);
    EXPECT_TRUE(file->Write("new"));
    EXPECT_TRUE(file->Commit());
    EXPECT_FALSE(file->Write("late"));
    EXPECT_EQ(folder.Content("Shuffle.log"), "new");
}

TEST_F(SystemFiles, CopiesReplaceWhole) {
    const std::string large(700000, 't');
    const std::string tool = folder.Put("tool", large), plan = folder.Put("plan.txt", "plan");
    EXPECT_TRUE(files.CopyFile(tool, folder.Path("copy")));
    EXPECT_EQ(folder.Content("copy"), large);
    EXPECT_TRUE(files.CopyFile(plan, folder.Path("copy")));
    EXPECT_TRUE(files.CopyFile(plan, plan));
    EXPECT_EQ(folder.Content("plan.txt"), "plan");
    EXPECT_FALSE(files.CopyFile(folder.Path("missing"), folder.Path("copy")));
    EXPECT_FALSE(files.CopyFile(folder.Path(), folder.Path("copy")));
    EXPECT_EQ(folder.Content("copy"), "plan");
    EXPECT_EQ(folder.Entries(), 3u);
}

TEST_F(SystemFiles, ReadOnlyFilesStayAsTheyAre) {
    const std::string path = folder.Put("a.txt", "old"), other = folder.Put("b.txt", "new");
    fs::permissions(folder.Place("a.txt"), fs::perms(0444));
    EXPECT_FALSE(files.CreateReplacing(path));
    EXPECT_FALSE(files.CreateInPlace(path));
    EXPECT_FALSE(files.CopyFile(other, path));
    EXPECT_EQ(folder.Content("a.txt"), "old");
    EXPECT_EQ(folder.Entries(), 2u);
    fs::permissions(folder.Place("a.txt"), fs::perms(0644));
    EXPECT_TRUE(files.CopyFile(other, path));
    EXPECT_EQ(folder.Content("a.txt"), "new");
}

TEST_F(SystemFiles, FoldersAndPathsBehindFilesAreNoFiles) {
    folder.Put("a.txt", "a");
    fs::create_directory(folder.Place("sub"));
    for (const std::string& path :
         {std::string(), folder.Path(), folder.Path("sub"), folder.Path("sub/"), folder.Path("a.txt/"),
          folder.Path("a.txt/b"), folder.Path("missing/b"), folder.Path(std::string("cut\0.txt", 8))}) {
        EXPECT_FALSE(files.FileExists(path)) << path;
        EXPECT_FALSE(files.FileSize(path)) << path;
        EXPECT_FALSE(files.OpenForReading(path)) << path;
        EXPECT_FALSE(files.CreateReplacing(path)) << path;
        EXPECT_FALSE(files.CreateInPlace(path)) << path;
        EXPECT_FALSE(files.DeleteFile(path)) << path;
    }
    EXPECT_EQ(folder.Entries(), 2u);
    EXPECT_EQ(folder.Entries("sub"), 0u);
}

TEST_F(SystemFiles, FoldersListTheirEntriesByFoldedName) {
    for (const char* name : {"b.txt", "A.txt", "_x", "Zz", "\xC3\xA9", "Sub/below"}) folder.Put(name, "");
    EXPECT_EQ(test::Listed(files, folder.Path()), "A.txt b.txt Sub/ Zz _x \xC3\xA9 ");
    for (const std::string& path : {folder.Path("A.txt"), folder.Path("missing"), std::string()})
        EXPECT_TRUE(files.ListFolder(path).empty()) << path;
}

TEST_F(SystemFiles, FoldersAreMadeWithTheirParentsOrNotAtAll) {
    folder.Put("file", "");
    EXPECT_TRUE(files.CreateFolders(folder.Path("One/two/three/")));
    EXPECT_TRUE(files.CreateFolders(folder.Path("ONE/Two/four")));
    EXPECT_TRUE(fs::is_directory(folder.Place("One/two/four")));
    EXPECT_TRUE(files.CreateFolders(folder.Path()));
    for (const std::string& path : {folder.Path("file"), folder.Path("file/below"), std::string(),
                                    folder.Path("five/" + std::string(300, 'n') + "/six")})
        EXPECT_FALSE(files.CreateFolders(path)) << path;
    EXPECT_EQ(folder.Entries(), 2u);
}

TEST_F(SystemFiles, ARelativePathStandsInTheWorkingFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.Place());
    EXPECT_EQ(files.FullPath("Plan/a.txt"), folder.Path(JoinPath("Plan", "a.txt")));
    EXPECT_EQ(files.FullPath(folder.Path("a.txt")), folder.Path("a.txt"));
    fs::current_path(before);
}

}  // namespace
}  // namespace orlo

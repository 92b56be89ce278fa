#include "platform/posix/PosixFileSystem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/TemporaryFolder.h"

#include "core/TextLines.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

TEST(PosixFileSystem, NamesAreFoundWithoutRegardToCase) {
    const TemporaryFolder folder;
    folder.Put("Aircraft/Boeing 747/Aircraft.cfg", "747");
    folder.Put("plan.txt", "exact");
    folder.Put("Plan.txt", "other");
    folder.Put("PLAN.TXT", "upper");
    folder.Put("Z\xC3\x9Crich.txt", "utf8");
    folder.Put("\xC4\x9A.txt", "E caron");
    PosixFileSystem files;
    struct Case {
        std::string path, resolved;
        std::optional<std::string> content;
    };
    const std::string caron = "\xC4\x9A.txt";
    const Case cases[] = {
        {"AIRCRAFT/boeing 747/aircraft.CFG", "Aircraft/Boeing 747/Aircraft.cfg", "747"},
        {"aircraft//boeing 747/./AIRCRAFT.cfg", "Aircraft//Boeing 747/./Aircraft.cfg", "747"},
        {"AIRCRAFT/../aircraft/BOEING 747/aircraft.cfg", "Aircraft/../Aircraft/Boeing 747/Aircraft.cfg",
         "747"},
        {"plan.txt", "plan.txt", "exact"},
        {"Plan.txt", "Plan.txt", "other"},
        {"pLaN.tXt", "PLAN.TXT", "upper"},                   // the first of several in byte order
        {"z\xC3\xBCRICH.TXT", "Z\xC3\x9Crich.txt", "utf8"},  // as UTF-8
        {"z\xFCrich.txt", "Z\xC3\x9Crich.txt", "utf8"},      // as the simulator's files spell it
        {"\xC4\x8A.txt", "\xC4\x8A.txt", std::nullopt},      // another letter, though 9A folds to 8A
        {"aircraft/Airbus/New.cfg", "Aircraft/Airbus/New.cfg", std::nullopt},
        {"PLAN.TXT/x", "PLAN.TXT/x", std::nullopt},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(files.Resolve(folder.Path(c.path)), folder.Path(c.resolved));
        EXPECT_EQ(ReadWholeFile(files, folder.Path(c.path)), c.content) << c.path;
        EXPECT_EQ(files.FileExists(folder.Path(c.path)), c.content.has_value()) << c.path;
    }
    // The file that is written is the one that stands there.
    const auto file = files.CreateReplacing(folder.Path("aircraft/BOEING 747/aircraft.cfg"));
    EXPECT_TRUE(file && file->Write("new") && file->Commit());
    EXPECT_EQ(folder.Content("Aircraft/Boeing 747/Aircraft.cfg"), "new");
    EXPECT_EQ(folder.Entries("Aircraft/Boeing 747"), 1u);
    EXPECT_TRUE(files.DeleteFile(folder.Path("aircraft/BOEING 747/aircraft.cfg")));
    EXPECT_FALSE(files.DeleteFile(folder.Path("aircraft/BOEING 747/aircraft.cfg")));
    EXPECT_FALSE(files.DeleteFile(folder.Path("aircraft/BOEING 747")));
    EXPECT_TRUE(files.FolderExists(folder.Path("AIRCRAFT/boeing 747/")));
}

TEST(PosixFileSystem, OnlyRegularFilesAreReadAndNothingIsWaitedFor) {
    const TemporaryFolder folder;
    folder.Put("data.bin", std::string("\0\r\n\xFF", 4));
    mkfifo(folder.Path("fifo").c_str(), 0666);
    fs::create_symlink("fifo", folder.Path("link"));
    fs::create_symlink("nowhere", folder.Path("dangling"));
    PosixFileSystem files;
    const std::string refused[] = {folder.Path(),
                                   folder.Path("fifo"),
                                   folder.Path("link"),
                                   folder.Path("dangling"),
                                   "/dev/zero",
                                   "",
                                   folder.Path(std::string("data.bin\0", 9))};
    for (const std::string& path : refused) EXPECT_FALSE(files.OpenForReading(path)) << path;
    EXPECT_FALSE(files.FileExists(folder.Path()));
    EXPECT_FALSE(files.FileSize(folder.Path()));
    EXPECT_EQ(files.FileSize(folder.Path("DATA.BIN")), 4u);
    const auto file = files.OpenForReading(folder.Path("data.bin"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->Size(), 4u);
    std::array<char, 3> buffer{};
    EXPECT_EQ(file->Read(buffer), 3u);
    EXPECT_EQ(buffer[2], '\n');
    EXPECT_EQ(file->Read(buffer), 1u);
    EXPECT_EQ(file->Read(buffer), 0u);
}

TEST(PosixFileSystem, AFileOfMoreThanFourGigabytesHasItsSize) {
    const TemporaryFolder folder;
    folder.Put("large", "");
    constexpr std::uint64_t kSize = 5ull * 1024 * 1024 * 1024;
    std::error_code fault;
    fs::resize_file(folder.Path("large"), kSize, fault);
    if (fault) GTEST_SKIP() << "the temporary folder takes no sparse file of this size";
    PosixFileSystem files;
    EXPECT_EQ(files.FileSize(folder.Path("large")), kSize);
    EXPECT_EQ(files.OpenForReading(folder.Path("large"))->Size(), kSize);
}

TEST(PosixFileSystem, FoldersListTheirEntriesByFoldedName) {
    const TemporaryFolder folder;
    for (const char* name : {"b.txt", "A.txt", "_x", "a.txt", "Zz", "\xC3\xA9"}) folder.Put(name, "");
    fs::create_directory(folder.Path("Sub"));
    fs::create_directory_symlink("Sub", folder.Path("linked"));
    fs::create_symlink("nowhere", folder.Path("dangling"));
    PosixFileSystem files;
    std::string listed;
    for (const FolderEntry& entry : files.ListFolder(folder.Path())) {
        listed.append(entry.name).append(entry.isFolder ? "/ " : " ");
    }
    EXPECT_EQ(listed, "A.txt a.txt b.txt dangling linked/ Sub/ Zz _x \xC3\xA9 ");
    EXPECT_TRUE(files.ListFolder(folder.Path("a.txt")).empty());
    EXPECT_TRUE(files.ListFolder(folder.Path("missing")).empty());
    EXPECT_TRUE(files.ListFolder("").empty());
}

TEST(PosixFileSystem, FoldersAreMadeWithTheirParentsOrNotAtAll) {
    const TemporaryFolder folder;
    folder.Put("file", "");
    PosixFileSystem files;
    EXPECT_TRUE(files.CreateFolders(folder.Path("One/two/three/")));
    EXPECT_TRUE(files.CreateFolders(folder.Path("ONE/Two/four")));
    EXPECT_TRUE(fs::is_directory(folder.Path("One/two/four")));
    EXPECT_TRUE(files.CreateFolders(folder.Path()));
    EXPECT_FALSE(files.CreateFolders(folder.Path("file")));
    EXPECT_FALSE(files.CreateFolders(folder.Path("file/below")));
    EXPECT_FALSE(files.CreateFolders(""));
    EXPECT_FALSE(files.CreateFolders(folder.Path("five/" + std::string(300, 'n') + "/six")));
    EXPECT_FALSE(fs::exists(folder.Path("five")));
}

}  // namespace
}  // namespace orlo

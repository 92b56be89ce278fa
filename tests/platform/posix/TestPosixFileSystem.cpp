#include "platform/posix/PosixFileSystem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/TextLines.h"
#include "platform/TemporaryFolder.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

TEST(PosixFileSystem, AnExactNameComesFirstAndThenTheFirstOfSeveral) {
    const TemporaryFolder folder;
    folder.Put("Aircraft/Boeing 747/Aircraft.cfg", "747");
    folder.Put("plan.txt", "exact");
    folder.Put("Plan.txt", "other");
    folder.Put("PLAN.TXT", "upper");
    folder.Put("\xC4\x9A.txt", "E caron");
    PosixFileSystem files;
    const struct {
        std::string path, resolved;
        std::optional<std::string> content;
    } cases[] = {
        {"aircraft//boeing 747/./AIRCRAFT.cfg", "Aircraft//Boeing 747/./Aircraft.cfg", "747"},
        {"AIRCRAFT/../aircraft/BOEING 747/aircraft.cfg", "Aircraft/../Aircraft/Boeing 747/Aircraft.cfg",
         "747"},
        {"plan.txt", "plan.txt", "exact"},
        {"Plan.txt", "Plan.txt", "other"},
        {"pLaN.tXt", "PLAN.TXT", "upper"},               // in byte order
        {"\xC4\x8A.txt", "\xC4\x8A.txt", std::nullopt},  // another letter, though 9A folds to 8A
        {"aircraft/Airbus/New.cfg", "Aircraft/Airbus/New.cfg", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(files.Resolve(folder.Path(c.path)), folder.Path(c.resolved));
        EXPECT_EQ(ReadWholeFile(files, folder.Path(c.path)), c.content) << c.path;
        EXPECT_EQ(files.FileExists(folder.Path(c.path)), c.content.has_value()) << c.path;
    }
}

TEST(PosixFileSystem, FoldersListLinksAndNamesThatDifferInCaseAndOnlyRegularFilesAreRead) {
    const TemporaryFolder folder;
    for (const char* name : {"A.txt", "a.txt", "Sub/below"}) folder.Put(name, "");
    mkfifo(folder.Path("fifo").c_str(), 0666);
    fs::create_symlink("fifo", folder.Place("link"));
    fs::create_directory_symlink("Sub", folder.Place("linked"));
    fs::create_symlink("nowhere", folder.Place("dangling"));
    PosixFileSystem files;
    EXPECT_EQ(test::Listed(files, folder.Path()), "A.txt a.txt dangling fifo link linked/ Sub/ ");
    for (const std::string& path :
         {folder.Path("fifo"), folder.Path("link"), folder.Path("dangling"), std::string("/dev/zero")})
        EXPECT_FALSE(files.OpenForReading(path)) << path;
}

TEST(PosixFileSystem, APrivateFolderIsTheUsersAloneAndALinkIsSeenAsOne) {
    const TemporaryFolder folder;
    folder.Put("file.txt", "text");
    fs::create_symlink(folder.Path("file.txt"), folder.Path("link.txt"));
    PosixFileSystem files;
    EXPECT_TRUE(files.IsLink(folder.Path("LINK.txt")));
    for (const char* other : {"file.txt", "none.txt", ""}) EXPECT_FALSE(files.IsLink(folder.Path(other)));
    EXPECT_TRUE(files.CreatePrivateFolders(folder.Path("state/kept")));
    for (const char* made : {"state", "state/kept"})
        EXPECT_EQ(fs::status(folder.Path(made)).permissions(), fs::perms::owner_all) << made;
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

}  // namespace
}  // namespace orlo

#include "platform/posix/ProgramFolder.h"

#include <gtest/gtest.h>

#include "platform/TemporaryFolder.h"
#include "platform/posix/PosixFileSystem.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

class ProgramFolder : public testing::Test {
  protected:
    ProgramFolder() {
        folder.Put("bin/orlo", "program");
        folder.Put("share/ORLO_AC.CFG", "classes");
        folder.Put("share/Help/index.html", "help");
        fs::create_directory(folder.Path("home"));
        fs::permissions(folder.Path("home"), fs::perms(0777));
    }

    // Whether a user without rights on "bin" gets `expected`.
    int FindAsPlainUser(const std::vector<std::string>& shares, const std::string& expected) const {
        return test::RunAsPlainUser([&] {
            PosixFileSystem files;
            const std::string found =
                FindProgramFolder(files, folder.Path("bin/orlo"), shares, folder.Path("home/data/orlo"));
            return found == expected ? 0 : 1;
        });
    }
    void CloseBin() const { fs::permissions(folder.Path("bin"), fs::perms(0555)); }

    TemporaryFolder folder;
};

TEST_F(ProgramFolder, IsTheExecutablesOwnWhereThatCanBeWritten) {
    fs::permissions(folder.Path("bin"), fs::perms(0777));
    EXPECT_EQ(FindAsPlainUser({folder.Path("share")}, folder.Path("bin")), 0);
    EXPECT_FALSE(fs::exists(folder.Path("home/data")));
}

TEST_F(ProgramFolder, IsElseTheUsersOwnFilledOnce) {
    CloseBin();
    const std::vector<std::string> shares = {folder.Path("missing"), folder.Path("share")};
    EXPECT_EQ(FindAsPlainUser(shares, folder.Path("home/data/orlo")), 0);
    EXPECT_EQ(folder.Content("home/data/orlo/ORLO_AC.CFG"), "classes");
    EXPECT_EQ(folder.Content("home/data/orlo/Help/index.html"), "help");
    EXPECT_EQ(folder.Entries("home/data"), 1u);

    // What the user changed or took away stays so.
    folder.Put("home/data/orlo/ORLO_AC.CFG", "mine");
    fs::remove(folder.Path("home/data/orlo/Help/index.html"));
    EXPECT_EQ(FindAsPlainUser(shares, folder.Path("home/data/orlo")), 0);
    EXPECT_EQ(folder.Content("home/data/orlo/ORLO_AC.CFG"), "mine");
    EXPECT_EQ(folder.Entries("home/data/orlo/Help"), 0u);
}

TEST_F(ProgramFolder, IsNotTakenBeforeItsCopyIsComplete) {
    CloseBin();
    folder.Put("share/secret.cfg", "x");
    fs::permissions(folder.Path("share/secret.cfg"), fs::perms(0));
    EXPECT_EQ(FindAsPlainUser({folder.Path("share")}, ""), 0);
    EXPECT_FALSE(fs::exists(folder.Path("home/data/orlo")));
    fs::permissions(folder.Path("share/secret.cfg"), fs::perms(0644));
    EXPECT_EQ(FindAsPlainUser({folder.Path("share")}, folder.Path("home/data/orlo")), 0);
    EXPECT_EQ(folder.Content("home/data/orlo/secret.cfg"), "x");
    EXPECT_EQ(folder.Entries("home/data"), 1u);
}

TEST_F(ProgramFolder, OfAShareInACircleIsGivenUp) {
    CloseBin();
    fs::create_directory_symlink("..", folder.Path("share/Help/up"));
    EXPECT_EQ(FindAsPlainUser({folder.Path("share")}, ""), 0);
}

TEST(ExecutablePath, NamesTheRunningProgram) {
    EXPECT_EQ(ExecutablePath(), fs::read_symlink("/proc/self/exe").string());
}

}  // namespace
}  // namespace orlo

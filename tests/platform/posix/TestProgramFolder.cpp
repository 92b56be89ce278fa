#include "platform/posix/ProgramFolder.h"

#include <gtest/gtest.h>

#include "platform/TemporaryFolder.h"
#include "platform/posix/ChildProcess.h"
#include "platform/posix/PosixFileSystem.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

// A program that is not installed: "share" is that of a checkout.
class ProgramFolder : public testing::Test {
  protected:
    ProgramFolder() {
        folder.Put("bin/orlo", "program");
        folder.Put("share/ORLO_AC.CFG", "classes");
        folder.Put("share/Help/index.html", "help");
        fs::create_directory(folder.Path("home"));
        fs::permissions(folder.Path("home"), fs::perms(0777));
        fs::permissions(folder.Path("bin"), fs::perms(0555));
    }

    // 0 when a user other than root gets `expected`.
    int FindAsPlainUser(const std::string& expected) const {
        return test::RunAsPlainUser([&] {
            PosixFileSystem files;
            const std::string found =
                FindProgramFolder(files, folder.Path("bin/orlo"), folder.Path("home/data/orlo"));
            return found == expected ? 0 : 1;
        });
    }
    void Install() const {
        folder.Put("share/orlo/ORLO_AC.CFG", "installed classes");
        folder.Put("share/orlo/Help/index.html", "installed help");
        folder.Put("share/orlo/Help/pictures/about.png", "picture");
    }

    TemporaryFolder folder;
};

TEST_F(ProgramFolder, IsTheExecutablesOwnWhereThatCanBeWrittenUnlessTheProgramIsInstalled) {
    fs::permissions(folder.Path("bin"), fs::perms(0777));
    EXPECT_EQ(FindAsPlainUser(folder.Path("bin")), 0);
    EXPECT_FALSE(fs::exists(folder.Path("home/data")));
    // Root can write where all programs are, and got that folder, in which there are no rule files.
    Install();
    EXPECT_EQ(FindAsPlainUser(folder.Path("home/data/orlo")), 0);
    EXPECT_EQ(folder.Content("home/data/orlo/ORLO_AC.CFG"), "installed classes");
    EXPECT_EQ(folder.Content("home/data/orlo/Help/pictures/about.png"), "picture");
}

TEST_F(ProgramFolder, IsElseTheUsersOwnFilledOnce) {
    EXPECT_EQ(FindAsPlainUser(folder.Path("home/data/orlo")), 0);
    EXPECT_EQ(folder.Content("home/data/orlo/ORLO_AC.CFG"), "classes");
    EXPECT_EQ(folder.Content("home/data/orlo/Help/index.html"), "help");
    EXPECT_EQ(folder.Entries("home/data"), 1u);

    // What the user changed or took away stays so.
    folder.Put("share/ORLO_FL.CFG", "levels");
    folder.Put("home/data/orlo/ORLO_AC.CFG", "mine");
    EXPECT_EQ(FindAsPlainUser(folder.Path("home/data/orlo")), 0);
    EXPECT_EQ(folder.Content("home/data/orlo/ORLO_AC.CFG"), "mine");
    EXPECT_FALSE(fs::exists(folder.Path("home/data/orlo/ORLO_FL.CFG")));
}

// The manual was copied once, and an update of the program left the old one.
TEST_F(ProgramFolder, HasItsManualRenewedAndNothingElse) {
    Install();
    ASSERT_EQ(FindAsPlainUser(folder.Path("home/data/orlo")), 0);
    const std::string user = "home/data/orlo/";
    folder.Put(user + "Help/notes.html", "mine");
    const auto before = fs::last_write_time(folder.Path(user + "Help/pictures/about.png"));

    folder.Put("share/orlo/Help/index.html", "INSTALLED HELP");  // as long as the old one
    folder.Put("share/orlo/Help/move.html", "a new page");
    folder.Put("share/orlo/ORLO_AC.CFG", "new classes");
    EXPECT_EQ(FindAsPlainUser(folder.Path("home/data/orlo")), 0);
    EXPECT_EQ(folder.Content(user + "Help/index.html"), "INSTALLED HELP");
    EXPECT_EQ(folder.Content(user + "Help/move.html"), "a new page");
    EXPECT_EQ(folder.Content(user + "Help/notes.html"), "mine");
    EXPECT_EQ(fs::last_write_time(folder.Path(user + "Help/pictures/about.png")), before);
    EXPECT_EQ(folder.Content(user + "ORLO_AC.CFG"), "installed classes");

    // A manual that can't be renewed keeps nobody from working.
    fs::permissions(folder.Path("share/orlo/Help/index.html"), fs::perms(0));
    EXPECT_EQ(FindAsPlainUser(folder.Path("home/data/orlo")), 0);
}

TEST_F(ProgramFolder, IsNotTakenBeforeItsCopyIsComplete) {
    fs::create_directory_symlink("..", folder.Path("share/Help/up"));  // a circle is given up
    EXPECT_EQ(FindAsPlainUser(""), 0);
    fs::remove_all(folder.Path("home/data"));
    fs::remove(folder.Path("share/Help/up"));
    folder.Put("share/secret.cfg", "x");
    fs::permissions(folder.Path("share/secret.cfg"), fs::perms(0));
    EXPECT_EQ(FindAsPlainUser(""), 0);
    EXPECT_FALSE(fs::exists(folder.Path("home/data/orlo")));
    fs::permissions(folder.Path("share/secret.cfg"), fs::perms(0644));
    EXPECT_EQ(FindAsPlainUser(folder.Path("home/data/orlo")), 0);
    EXPECT_EQ(folder.Content("home/data/orlo/secret.cfg"), "x");
    EXPECT_EQ(folder.Entries("home/data"), 1u);
}

TEST(ExecutablePath, NamesTheRunningProgram) {
    EXPECT_EQ(ExecutablePath(), fs::read_symlink("/proc/self/exe").string());
}

}  // namespace
}  // namespace orlo

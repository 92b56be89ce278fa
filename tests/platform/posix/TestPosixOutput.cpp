#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "core/TextLines.h"
#include "platform/TemporaryFolder.h"
#include "platform/posix/ChildProcess.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;
using test::Replace;
using test::RunAsPlainUser;
using test::RunInChild;
using test::TemporaryFolder;

mode_t ModeOf(const std::string& path) {
    struct stat facts {};
    return stat(path.c_str(), &facts) == 0 ? facts.st_mode & 07777 : 0;
}

// Files beyond this size fail as on a full disk.
void LimitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

TEST(PosixOutput, AFileKeepsItsModeAndANewOneObeysTheUsersMask) {
    const TemporaryFolder folder;
    chmod(folder.Put("old.txt", "old").c_str(), 0604);
    const mode_t old = umask(027);
    EXPECT_EQ(Replace(folder.Path("old.txt"), "new"), 0);
    EXPECT_EQ(Replace(folder.Path("new.txt"), "new"), 0);
    umask(old);
    EXPECT_EQ(ModeOf(folder.Path("old.txt")), 0604u);
    EXPECT_EQ(ModeOf(folder.Path("new.txt")), 0640u);
    // A copy of a program is one, and can be replaced.
    chmod(folder.Put("tool", "tool").c_str(), 0555);
    EXPECT_TRUE(PosixFileSystem().CopyFile(folder.Path("tool"), folder.Path("copy")));
    EXPECT_EQ(ModeOf(folder.Path("copy")) & 0700u, 0700u);
}

TEST(PosixOutput, LinksAreFollowedAndStayLinks) {
    const TemporaryFolder folder;
    folder.Put("real/plan.txt", "old");
    fs::create_directory(folder.Path("links"));
    fs::create_symlink("../real/plan.txt", folder.Path("links/near.txt"));
    fs::create_symlink(folder.Path("links/near.txt"), folder.Path("far.txt"));
    fs::create_symlink("real/missing.txt", folder.Path("dangling.txt"));
    fs::create_symlink("circle.txt", folder.Path("circle.txt"));
    EXPECT_EQ(Replace(folder.Path("far.txt"), "new"), 0);
    EXPECT_EQ(Replace(folder.Path("dangling.txt"), "made"), 0);
    EXPECT_EQ(Replace(folder.Path("circle.txt"), "never"), 1);
    EXPECT_EQ(folder.Content("real/plan.txt"), "new");
    EXPECT_EQ(folder.Content("real/missing.txt"), "made");
    EXPECT_TRUE(fs::is_symlink(folder.Path("far.txt")));
    EXPECT_TRUE(fs::is_symlink(folder.Path("links/near.txt")));
    EXPECT_TRUE(fs::is_symlink(folder.Path("dangling.txt")));
    EXPECT_EQ(folder.Entries("real"), 2u);
    EXPECT_EQ(folder.Entries("links"), 1u);
}

TEST(PosixOutput, ANewFileTakesThePlaceOfALinkAndLeavesItsTarget) {
    const TemporaryFolder folder;
    folder.Put("secret.txt", "kept");
    fs::create_symlink(folder.Path("secret.txt"), folder.Path("plan.txt"));
    fs::create_directory(folder.Path("Aircraft.txt"));
    PosixFileSystem files;
    const auto file = files.CreateNew(folder.Path("plan.txt"));
    ASSERT_TRUE(file && file->Write("new") && file->Commit());
    EXPECT_EQ(ReadWholeFile(files, folder.Path("plan.txt")), "new");
    EXPECT_FALSE(fs::is_symlink(folder.Path("plan.txt")));
    EXPECT_EQ(ReadWholeFile(files, folder.Path("secret.txt")), "kept");
    EXPECT_EQ(files.CreateNew(folder.Path("Aircraft.txt")), nullptr) << "a folder stands there";

    fs::create_directory(folder.Path("Sub"));
    EXPECT_TRUE(files.RenameFile(folder.Path("PLAN.txt"), folder.Path("sub/Named As Given.txt")));
    EXPECT_EQ(ReadWholeFile(files, folder.Path("Sub/Named As Given.txt")), "new");
}

TEST(PosixOutput, DevicesPipesAndNamesThatAreTooLongAreRefused) {
    const TemporaryFolder folder;
    mkfifo(folder.Path("fifo").c_str(), 0666);
    PosixFileSystem files;
    for (const std::string& path :
         {folder.Path("fifo"), std::string("/dev/full"), folder.Path(std::string(300, 'n'))}) {
        EXPECT_EQ(Replace(path, "new"), 1) << path;
        EXPECT_FALSE(files.CreateInPlace(path)) << path;
    }
    EXPECT_EQ(folder.Entries(), 1u);
}

TEST(PosixOutput, AFullDiskLeavesTheOldFileWhole) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("plan.txt", "old");
    EXPECT_EQ(RunInChild([&] {
                  LimitFileSize(100000);
                  PosixFileSystem files;
                  const auto file = files.CreateReplacing(path);
                  if (!file) return 1;
                  bool written = true;
                  for (int i = 0; i < 3000; ++i) written = file->Write(std::string(100, 'x')) && written;
                  if (written) return 2;              // a write that fails says so
                  if (file->Write("more")) return 3;  // and so do all behind it
                  if (file->Commit()) return 4;
                  // Small enough to fail at the end only.
                  return Replace(path, std::string(1000, 'y')) == 0 ? 0 : 5;
              }),
              0);
    EXPECT_EQ(RunInChild([&] {
                  LimitFileSize(500);
                  PosixFileSystem files;
                  const auto file = files.CreateReplacing(path);
                  // The bytes still wait to be written when the file is complete.
                  return file && file->Write(std::string(600, 'z')) && !file->Commit() ? 0 : 1;
              }),
              0);
    EXPECT_EQ(folder.Content("plan.txt"), std::string(1000, 'y'));
    EXPECT_EQ(folder.Entries(), 1u);
}

TEST(PosixOutput, AKillBeforeTheCommitLeavesTheOldFileAndNothingThatLooksLikeIt) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("FlightPlans.txt", "old");
    EXPECT_EQ(RunInChild([&] {
                  PosixFileSystem files;
                  auto* file = files.CreateReplacing(path).release();
                  return file != nullptr && file->Write(std::string(300000, 'x')) ? 0 : 1;
              }),
              0);
    EXPECT_EQ(folder.Content("FlightPlans.txt"), "old");
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
        const std::string name = entry.path().filename().string();
        if (name == "FlightPlans.txt") continue;
        EXPECT_EQ(name.front(), '.') << name;
        EXPECT_EQ(entry.path().extension(), ".new") << name;
    }
    // What the killed one left is in nobody's way.
    EXPECT_EQ(Replace(path, "new"), 0);
    EXPECT_EQ(folder.Content("FlightPlans.txt"), "new");
}

TEST(PosixOutput, AFolderThatTakesNoSecondFileIsWrittenInPlace) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("closed/plan.txt", std::string(100, 'o'));
    chmod(path.c_str(), 0666);
    chmod(folder.Path("closed").c_str(), 0555);
    const auto replaceWith = [&](std::size_t size, rlim_t limit = RLIM_INFINITY) {
        return RunAsPlainUser([&] {
            LimitFileSize(limit);
            return Replace(path, std::string(size, 'n'));
        });
    };
    EXPECT_EQ(replaceWith(200, 150), 3);  // a full disk
    EXPECT_EQ(RunAsPlainUser([&] {
                  PosixFileSystem files;
                  return files.CreateReplacing(path)->Write("dropped") ? 0 : 1;
              }),
              0);
    EXPECT_EQ(folder.Content("closed/plan.txt"), std::string(100, 'o'));
    for (const std::size_t size : {200u, 50u}) {
        EXPECT_EQ(replaceWith(size), 0);
        EXPECT_EQ(folder.Content("closed/plan.txt"), std::string(size, 'n'));
    }

    chmod(path.c_str(), 0644);  // another user's
    if (getuid() == 0) {
        EXPECT_EQ(replaceWith(60), 1);
    }
    EXPECT_EQ(RunAsPlainUser([&] { return Replace(folder.Path("closed/new.txt"), "x"); }), 1);
    chmod(folder.Path("closed").c_str(), 0755);
    EXPECT_EQ(folder.Entries("closed"), 1u);
}

}  // namespace
}  // namespace orlo

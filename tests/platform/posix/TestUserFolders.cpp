#include "platform/posix/UserFolders.h"

#include <gtest/gtest.h>

#include "core/Text.h"
#include "platform/TemporaryFolder.h"
#include "platform/common/TextSettingsStore.h"
#include "platform/posix/ChildProcess.h"

namespace orlo {
namespace {

constexpr std::string_view kSettingsKey = "SOFTWARE\\Brantel Data Service\\Orlo\\1.0\\Settings";

TEST(TextSettingsStore, ItsFolderIsMadeAndAFileThatCannotBeReadIsNotReplaced) {
    const test::TemporaryFolder folder;
    PosixFileSystem files;
    const std::string path = folder.Path("config/orlo/settings.txt");
    TextSettingsStore store(files, path);
    store.Set(kSettingsKey, "TATime", "30");
    ASSERT_TRUE(store.Flush());
    EXPECT_EQ(folder.Content("config/orlo/settings.txt"),
              "[SOFTWARE\\Brantel Data Service\\Orlo\\1.0\\Settings]\r\nTATime=30\r\n");
    std::filesystem::permissions(folder.Path("config/orlo"), std::filesystem::perms(0777));
    std::filesystem::permissions(path, std::filesystem::perms(0200));
    EXPECT_EQ(test::RunAsPlainUser([&] {
                  TextSettingsStore other(files, path);
                  other.Set(kSettingsKey, "TATime", "45");
                  return other.Flush() ? 1 : 0;
              }),
              0);
    EXPECT_EQ(folder.Entries("config/orlo"), 1u);
    std::filesystem::permissions(path, std::filesystem::perms(0600));
    EXPECT_EQ(TextSettingsStore(files, path).Get(kSettingsKey, "TATime"), "30");
}

TEST(UserFolders, VariablesWithFullPathsComeBeforeTheHomeFolder) {
    EXPECT_EQ(
        test::RunInChild([] {
            const auto all = [] {
                return Concat(UserSettingsPath(), " ", UserDataFolder(), " ", UserKeptFolder(), " ",
                              WinePrefixFolder());
            };
            setenv("HOME", "/home/me", 1);
            for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "WINEPREFIX"})
                unsetenv(name);
            if (all() !=
                "/home/me/.config/orlo/settings.txt /home/me/.local/share/orlo "
                "/home/me/.local/state/orlo/kept /home/me/.wine")
                return 1;
            setenv("XDG_CONFIG_HOME", "/cfg", 1);
            setenv("XDG_DATA_HOME", "relative", 1);
            setenv("XDG_STATE_HOME", "/state", 1);
            setenv("WINEPREFIX", "/games/wine", 1);
            return all() == "/cfg/orlo/settings.txt /home/me/.local/share/orlo /state/orlo/kept "
                            "/games/wine"
                       ? 0
                       : 2;
        }),
        0);
}

}  // namespace
}  // namespace orlo

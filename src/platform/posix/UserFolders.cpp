#include "platform/posix/UserFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string_view>

#include "core/Application.h"
#include "core/Path.h"

namespace orlo {
namespace {

constexpr std::string_view kOwnName = "orlo";

// The variable's value when it is a full path.
std::string PathVariable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && value[0] == kPathSeparator ? std::string(value) : std::string();
}

std::string HomeFolder() {
    std::string home = PathVariable("HOME");
    if (!home.empty()) return home;
    std::array<char, 16384> buffer;
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return {};
    return found->pw_dir != nullptr ? std::string(found->pw_dir) : std::string();
}

std::string FolderOf(const char* variable, std::string_view belowHome) {
    std::string folder = PathVariable(variable);
    if (!folder.empty()) return folder;
    const std::string home = HomeFolder();
    return home.empty() ? std::string() : JoinPath(home, belowHome);
}

std::string OwnFolder(const std::string& base) {
    return base.empty() ? std::string() : JoinPath(base, kOwnName);
}

}  // namespace

std::string UserDataFolder() {
    return OwnFolder(FolderOf("XDG_DATA_HOME", ".local/share"));
}

std::string UserSettingsPath() {
    const std::string folder = OwnFolder(FolderOf("XDG_CONFIG_HOME", ".config"));
    return folder.empty() ? std::string() : JoinPath(folder, "settings.txt");
}

std::string UserKeptFolder() {
    const std::string folder = OwnFolder(FolderOf("XDG_STATE_HOME", ".local/state"));
    return folder.empty() ? std::string() : JoinPath(folder, kKeptFolderName);
}

std::string WinePrefixFolder() {
    return FolderOf("WINEPREFIX", ".wine");
}

}  // namespace orlo

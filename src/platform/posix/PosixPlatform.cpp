#include <string>

#include "platform/Platform.h"
#include "platform/common/TextSettingsStore.h"
#include "platform/posix/EndSignals.h"
#include "platform/posix/LargePageMemory.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixMachineSettings.h"
#include "platform/posix/PosixProcesses.h"
#include "platform/posix/ProgramFolder.h"
#include "platform/posix/SystemClock.h"
#include "platform/posix/Terminal.h"
#include "platform/posix/UserFolders.h"

namespace orlo {

std::unique_ptr<FileSystem> MakeFileSystem() {
    return std::make_unique<PosixFileSystem>();
}

std::unique_ptr<Clock> MakeClock() {
    return std::make_unique<SystemClock>();
}

std::unique_ptr<ProcessService> MakeProcesses() {
    return std::make_unique<PosixProcesses>();
}

std::unique_ptr<SettingsStore> MakeUserSettings(FileSystem& files, const std::optional<std::string>& path) {
    return std::make_unique<TextSettingsStore>(files, path ? *path : UserSettingsPath());
}

std::unique_ptr<SettingsStore> MakeMachineSettings(FileSystem& files, const std::string& simulator) {
    auto settings =
        std::make_unique<PosixMachineSettings>(files, std::string(kMachineSettingsPath), WinePrefixFolder());
    settings->SetSimulator(simulator);
    return settings;
}

std::string FindProgramFolder(FileSystem& files) {
    return FindProgramFolder(files, ExecutablePath(), UserDataFolder());
}

std::string UserStateFolder() {
    return UserKeptFolder();
}

std::unique_ptr<EndWatch> WatchForEnd() {
    return std::make_unique<EndSignals>();
}

std::pmr::memory_resource& ListMemory() {
    return LargePageMemory();
}

bool ErrorsAreOnTerminal() {
    return IsTerminal(StandardStream::Error);
}

// The menu belongs to the window manager.
std::shared_ptr<void> AddAboutToSystemMenu(std::uintptr_t, std::function<void()>) {
    return nullptr;
}

std::vector<std::string> ProgramArguments(int count, char** words) {
    return count > 1 ? std::vector<std::string>(words + 1, words + count) : std::vector<std::string>();
}

std::shared_ptr<void> UseUtf8Streams() {
    return nullptr;
}

}  // namespace orlo

#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "platform/Platform.h"
#include "platform/common/TextSettingsStore.h"
#include "platform/windows/EndEvents.h"
#include "platform/windows/ProgramFolder.h"
#include "platform/windows/RegistrySettings.h"
#include "platform/windows/SystemClock.h"
#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsFileSystem.h"
#include "platform/windows/WindowsProcesses.h"
// Behind the system's header, which it needs.
#include <shellapi.h>

namespace orlo {
namespace {

// Sets a console to UTF-8, and at the end to its old encodings: it keeps what a program has set.
class ConsoleEncodings {
  public:
    ConsoleEncodings() : input_(GetConsoleCP()), output_(GetConsoleOutputCP()) {
        SetConsoleCP(CP_UTF8);
        SetConsoleOutputCP(CP_UTF8);
    }
    ConsoleEncodings(const ConsoleEncodings&) = delete;
    ConsoleEncodings& operator=(const ConsoleEncodings&) = delete;
    ~ConsoleEncodings() {
        if (input_ != 0) SetConsoleCP(input_);
        if (output_ != 0) SetConsoleOutputCP(output_);
    }

  private:
    UINT input_;  // 0 where there is no console
    UINT output_;
};

}  // namespace

std::unique_ptr<FileSystem> MakeFileSystem() {
    return std::make_unique<WindowsFileSystem>();
}

std::unique_ptr<Clock> MakeClock() {
    return std::make_unique<SystemClock>();
}

std::unique_ptr<ProcessService> MakeProcesses() {
    return std::make_unique<WindowsProcesses>();
}

std::unique_ptr<SettingsStore> MakeUserSettings(FileSystem& files, const std::optional<std::string>& path) {
    if (path) return std::make_unique<TextSettingsStore>(files, *path);
    return std::make_unique<RegistrySettings>();
}

std::unique_ptr<SettingsStore> MakeMachineSettings(FileSystem&, const std::string& simulator) {
    return std::make_unique<MachineRegistrySettings>(simulator);
}

std::string FindProgramFolder(FileSystem& files) {
    return FindProgramFolder(files, ExecutablePath(), UserDataFolder());
}

std::string UserStateFolder() {
    return UserKeptFolder();
}

std::unique_ptr<EndWatch> WatchForEnd() {
    return std::make_unique<EndEvents>();
}

// Large pages need a right here that users don't have.
std::pmr::memory_resource& ListMemory() {
    return *std::pmr::new_delete_resource();
}

bool ErrorsAreOnTerminal() {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

// Not the words that main gets: those lack all characters outside the system's code page.
std::vector<std::string> ProgramArguments(int, char**) {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              &LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; words && i < count; ++i) arguments.push_back(NarrowText(words.get()[i]));
    return arguments;
}

std::shared_ptr<void> UseUtf8Streams() {
    for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    return std::make_shared<ConsoleEncodings>();
}

}  // namespace orlo

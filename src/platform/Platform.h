#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <memory_resource>
#include <optional>
#include <streambuf>
#include <string>
#include <vector>

#include "services/Clock.h"
#include "services/EndRequest.h"
#include "services/FileSystem.h"
#include "services/ProcessService.h"
#include "services/SettingsStore.h"

namespace orlo {

// The operating system, for the main of each front end. Each system has its own source for this header. Texts
// are UTF-8 on Windows and the system's bytes elsewhere.

std::unique_ptr<FileSystem> MakeFileSystem();
std::unique_ptr<Clock> MakeClock();
std::unique_ptr<ProcessService> MakeProcesses();

// The user's settings: the text file `path`, or without a path the system's own store. `files` has to outlive
// them.
std::unique_ptr<SettingsStore> MakeUserSettings(FileSystem& files, const std::optional<std::string>& path);

// The settings of the machine, never written. `simulator`, unless it is empty, is given as the simulator's
// folder whatever the machine has. `files` has to outlive them.
std::unique_ptr<SettingsStore> MakeMachineSettings(FileSystem& files, const std::string& simulator);

// The folder that holds the rule files, the scenery cache and the manual (see common/ProgramFolder.h), filled
// from the installation, or from the checkout beside a build's folder. Empty where there is none.
std::string FindProgramFolder(FileSystem& files);

// The folder of the user's own where copies of files are kept. Nothing is made; empty where there is no home.
std::string UserStateFolder();

// The request to end, as this system makes it: a signal, or an event of the console.
class EndWatch : public EndRequest {
  public:
    // Standard input. It also ends when the end is asked for, while it waits for bytes too.
    virtual std::streambuf& Input() = 0;
    // What can be read from when the end was asked for, for a loop of events; -1 where the system has no
    // such.
    virtual int Descriptor() const = 0;
};

// From now on such a request ends nothing by itself and is only noted. What the program's own parent has told
// to ignore stays ignored. A second one of the same kind ends the program at once, but for a terminal that
// closes, which tells so twice. One lives at a time; when it goes, all is as before.
std::unique_ptr<EndWatch> WatchForEnd();

// The memory resource that serves large lists best. It lives to the end of the program.
std::pmr::memory_resource& ListMemory();

// Whether a person reads what goes to standard error.
bool ErrorsAreOnTerminal();

// Puts a separator and the entry "About" at the end of a window's system menu, that of its title bar.
// `window` is the system's own number of a window of this thread; `chosen` runs within its loop of events.
// When the last copy of the result goes, also after the window, the menu is as before. Null where the
// system's windows have no such menu of their own.
[[nodiscard]] std::shared_ptr<void> AddAboutToSystemMenu(std::uintptr_t window, std::function<void()> chosen);

// The words behind the program's name on the command line; `count` and `words` are the arguments of main.
std::vector<std::string> ProgramArguments(int count, char** words);

// Makes the standard streams carry bytes unchanged, and a console take them for UTF-8. When the last copy of
// the result goes, the console is as before.
[[nodiscard]] std::shared_ptr<void> UseUtf8Streams();

}  // namespace orlo

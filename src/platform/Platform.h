#pragma once

#include <memory>
#include <memory_resource>
#include <optional>
#include <string>
#include <vector>

#include "services/Clock.h"
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

// The memory resource that serves large lists best. It lives to the end of the program.
std::pmr::memory_resource& ListMemory();

// Whether a person reads what goes to standard error.
bool ErrorsAreOnTerminal();

// The words behind the program's name on the command line; `count` and `words` are the arguments of main.
std::vector<std::string> ProgramArguments(int count, char** words);

// Makes the standard streams carry bytes unchanged, and a console take them for UTF-8. When the last copy of
// the result goes, the console is as before.
[[nodiscard]] std::shared_ptr<void> UseUtf8Streams();

}  // namespace orlo

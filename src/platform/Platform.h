#pragma once

#include <memory>
#include <memory_resource>
#include <optional>
#include <string>
#include <vector>

#include "services/Clock.h"
#include "services/FileSystem.h"
#include "services/SettingsStore.h"

namespace orlo {

// The system that the program runs on, as the mains of the front ends use it. Each system has its own source
// for this header. Texts are UTF-8 on Windows and the system's bytes elsewhere.

std::unique_ptr<FileSystem> MakeFileSystem();
std::unique_ptr<Clock> MakeClock();

// The user's settings: those of the text file `path`, or, without one, the system's own store. `files` has to
// outlive them.
std::unique_ptr<SettingsStore> MakeUserSettings(FileSystem& files, const std::optional<std::string>& path);

// The settings of the machine, never written. `simulator`, where it is not empty, answers for the simulator's
// folder before all else. `files` has to outlive them.
std::unique_ptr<SettingsStore> MakeMachineSettings(FileSystem& files, const std::string& simulator);

// The folder that holds the rule files, the cache and the logs (see common/ProgramFolder.h), filled from the
// installation, or from the checkout beside a build's folder. Empty where there is none.
std::string FindProgramFolder(FileSystem& files);

// The memory resource that serves large lists best. It lives to the end of the program.
std::pmr::memory_resource& ListMemory();

// Whether a person reads what goes to standard error.
bool ErrorsAreOnTerminal();

// The words behind the program's name on its command line, of which `count` and `words` are what main got.
std::vector<std::string> ProgramArguments(int count, char** words);

// Makes the standard streams carry bytes as they are, which a console takes for UTF-8, until the last copy of
// what it returns is gone; then a console is as it was.
[[nodiscard]] std::shared_ptr<void> UseUtf8Streams();

}  // namespace orlo

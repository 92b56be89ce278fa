// The console program: makes the services of this system and runs a script on the program.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory_resource>

#include "console/ConsoleHost.h"
#include "console/Options.h"
#include "console/ScriptRunner.h"
#include "core/Version.h"
#include "platform/Platform.h"
#include "platform/common/SystemRandom.h"
#include "shell/Program.h"
#include "shell/StartUp.h"

namespace orlo {
namespace {

constexpr int kStartUpFailed = 1;
constexpr int kScriptFailed = 2;

// Words of the command line are UTF-8 on Windows, and the system's bytes elsewhere.
std::filesystem::path ScriptPath(const std::string& word) {
    return std::u8string(word.begin(), word.end());
}

int RunConsole(const ConsoleOptions& options, std::istream& script) {
    std::pmr::set_default_resource(&ListMemory());
    const auto files = MakeFileSystem();
    const auto userSettings = MakeUserSettings(*files, options.settings);
    const auto machineSettings = MakeMachineSettings(*files, options.simulator.value_or(std::string()));
    SystemRandom random(options.seed);
    const auto clock = MakeClock();
    ConsoleHost host(*files, std::cout, options.strict, options.trace);
    if (ErrorsAreOnTerminal()) host.DrawBarOn(&std::cerr);
    Services services{*files, *userSettings, *machineSettings, host, host, host, random, *clock};

    const std::string programFolder = options.program ? *options.program : FindProgramFolder(*files);
    Program program(services, programFolder);
    ScriptRunner runner(program, host, script, std::cout, std::cerr, options.strict);
    if (!StartUp(program.context)) {
        std::cout << std::flush;
        return kStartUpFailed;
    }
    return runner.Run();
}

int Main(const std::vector<std::string>& arguments) {
    const ConsoleOptions options = ParseConsoleOptions(arguments);
    if (!options.fault.empty()) {
        std::cerr << "orlo-console: " << options.fault << "\nTry --help.\n";
        return kScriptFailed;
    }
    if (options.help || options.version) {
        std::cout << (options.help ? ConsoleHelp() : std::string("orlo-console ") + kVersionText + '\n');
        return 0;
    }
    if (!options.script) return RunConsole(options, std::cin);
    std::ifstream script(ScriptPath(*options.script), std::ios::binary);
    if (!script) {
        std::cerr << "orlo-console: script '" << *options.script << "' can't be read\n";
        return kScriptFailed;
    }
    return RunConsole(options, script);
}

}  // namespace
}  // namespace orlo

int main(int count, char** words) {
    std::ios::sync_with_stdio(false);
    const auto streams = orlo::UseUtf8Streams();
    const int status = orlo::Main(orlo::ProgramArguments(count, words));
    std::cout << std::flush;
    return status;
}

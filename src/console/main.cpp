// The console program: makes the system's services and runs a script on the planner.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory_resource>

#include "console/ConsoleHost.h"
#include "console/Options.h"
#include "console/ScriptRunner.h"
#include "core/Application.h"
#include "core/Path.h"
#include "core/Version.h"
#include "platform/Platform.h"
#include "platform/SystemServices.h"
#include "shell/Program.h"
#include "shell/StartUp.h"

namespace orlo {
namespace {

constexpr int kStartUpFailed = 1;
constexpr int kScriptFailed = 2;

// Words of the command line are UTF-8 on Windows, and the system's bytes elsewhere. A path made of char8_t
// takes both as they are.
std::filesystem::path ScriptPath(const std::string& word) {
    return std::u8string(word.begin(), word.end());
}

// Holds the settings back until the script has run to its end, so that one that could not go on writes none.
class HeldSettings : public SettingsStore {
  public:
    explicit HeldSettings(std::unique_ptr<SettingsStore> store) : store_(std::move(store)) {}
    std::optional<std::string> Get(std::string_view keyPath, std::string_view name) override {
        return store_->Get(keyPath, name);
    }
    bool Set(std::string_view keyPath, std::string_view name, std::string_view value) override {
        return store_->Set(keyPath, name, value);
    }
    bool Flush() override { return flushed_ = true; }
    bool WriteHeld() { return !flushed_ || store_->Flush(); }

  private:
    std::unique_ptr<SettingsStore> store_;
    bool flushed_ = false;
};

// The folder of the kept files.
std::string StateFolder(const ConsoleOptions& options) {
    if (options.state) return *options.state;
    return options.settings ? JoinPath(ParentFolder(*options.settings), kKeptFolderName) : UserStateFolder();
}

int RunScript(const ConsoleOptions& options, std::istream& script, SystemServices& system,
              const EndRequest& end) {
    auto held = std::make_unique<HeldSettings>(std::move(system.userSettings));
    HeldSettings& userSettings = *held;
    system.userSettings = std::move(held);
    ConsoleHost host(*system.files, std::cout, options.strict, options.trace);
    if (ErrorsAreOnTerminal()) host.DrawBarOn(&std::cerr);
    Services services = system.Behind(host);

    Program program(services, options.program ? *options.program : FindProgramFolder(*system.files),
                    StateFolder(options));
    ScriptRunner runner(program, host, script, std::cout, std::cerr, options.strict, &end);
    if (!StartUp(program.context)) {
        std::cout << std::flush;
        return kStartUpFailed;
    }
    // The option counts before the user's own setting, which the start has read.
    if (options.simulator) program.session.SimulatorFolder.clear();
    const int status = runner.Run();
    if (status != kScriptFailed && !userSettings.WriteHeld())
        std::cerr << "orlo-console: the settings could not be written\n";
    return status;
}

int RunConsole(const ConsoleOptions& options) {
    SystemServices system(options.settings, options.simulator.value_or(std::string()), options.seed);
    const auto end = WatchForEnd();
    if (!options.script) {
        std::istream script(&end->Input());
        script.tie(&std::cout);
        return RunScript(options, script, system, *end);
    }
    std::ifstream script(ScriptPath(*options.script), std::ios::binary);
    if (!script || !system.files->FileExists(*options.script)) {
        std::cerr << "orlo-console: script '" << *options.script << "' can't be read\n";
        return kScriptFailed;
    }
    return RunScript(options, script, system, *end);
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
    std::pmr::set_default_resource(&ListMemory());
    try {
        return RunConsole(options);
    } catch (const std::exception& failure) {
        std::cerr << "orlo-console: " << failure.what() << '\n';
        return kStartUpFailed;
    }
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

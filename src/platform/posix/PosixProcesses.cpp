#include "platform/posix/PosixProcesses.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "core/Path.h"
#include "core/Text.h"
#include "platform/common/ProgramKind.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixHandle.h"
#include "platform/posix/PosixNames.h"
#include "platform/posix/PosixTool.h"

extern char** environ;

namespace orlo {
namespace {

constexpr const char* kNullDevice = "/dev/null";
constexpr std::string_view kWineIsSilent = "WINEDEBUG=-all";

ProgramKind KindOf(const std::string& path) {
    std::array<char, kProgramHeadSize> head;
    const PosixHandle file = IsUsablePath(path) ? OpenRegular(path, O_RDONLY) : PosixHandle();
    const ssize_t size = file.IsOpen() ? ReadSome(file, head) : 0;
    return ProgramKindOf({head.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))});
}

// The full path of the first of these names that a folder of PATH has; empty where none has one.
std::string OnSearchPath(std::initializer_list<std::string_view> names) {
    const char* folders = std::getenv("PATH");
    if (folders == nullptr) return {};
    for (const std::string_view name : names) {
        std::string_view left = folders;
        while (!left.empty()) {
            const std::size_t end = std::min(left.find(':'), left.size());
            const std::string path = JoinPath(left.substr(0, end), name);
            struct stat facts {};
            const bool isFile = stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
            if (path.front() == '/' && isFile && access(path.c_str(), X_OK) == 0) return path;
            left.remove_prefix(std::min(end + 1, left.size()));
        }
    }
    return {};
}

std::string Wine() {
    return OnSearchPath({"wine", "wine64"});
}

// What runs such a program: nothing for one of this system.
std::string RunnerOf(ProgramKind kind, bool shown) {
    if (kind == ProgramKind::Other) return {};
    if (shown && kind == ProgramKind::WindowsConsole) {
        const std::string console = OnSearchPath({"wineconsole"});
        if (!console.empty()) return console;
    }
    return Wine();
}

// A copy may have come from a disk that knows no such permission.
void MakeExecutable(const std::string& path) {
    struct stat facts {};
    if (access(path.c_str(), X_OK) == 0 || stat(path.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) return;
    chmod(path.c_str(), (facts.st_mode & 07777) | S_IXUSR);
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

// This program's, but for the variables that are given.
std::vector<std::string> Environment(std::initializer_list<std::string_view> given) {
    std::vector<std::string> variables;
    for (char** each = environ; each != nullptr && *each != nullptr; ++each) {
        const std::string_view variable = *each;
        const std::string_view name = variable.substr(0, variable.find('=') + 1);
        if (std::none_of(given.begin(), given.end(), [&](auto text) { return text.starts_with(name); }))
            variables.emplace_back(variable);
    }
    variables.insert(variables.end(), given.begin(), given.end());
    return variables;
}

// A variable of the environment that no other tool has.
std::string NewMark() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return Concat("ORLO_TOOL=", static_cast<std::int64_t>(getpid()), ".",
                  static_cast<std::int64_t>(now.count()));
}

// What a child does between its birth and its program.
class SpawnRules {
  public:
    explicit SpawnRules(const std::string& workingFolder) {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, kNullDevice, O_RDONLY, 0);
        for (const int stream : {STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&actions, stream, kNullDevice, O_WRONLY, 0);
        posix_spawn_file_actions_addchdir_np(&actions, workingFolder.c_str());
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setpgroup(&attributes, 0);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes, &none);
        sigset_t all;
        sigfillset(&all);
        posix_spawnattr_setsigdefault(&attributes, &all);
        posix_spawnattr_setflags(&attributes,
                                 POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnRules(const SpawnRules&) = delete;
    SpawnRules& operator=(const SpawnRules&) = delete;
    ~SpawnRules() {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }

    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
};

}  // namespace

bool PosixProcesses::CanRun(const std::string& program) {
    return KindOf(ResolveNames(program)) == ProgramKind::Other || !Wine().empty();
}

std::unique_ptr<RunningTool> PosixProcesses::Start(const ToolStart& start) {
    const std::string program = ResolveNames(start.program);
    const ProgramKind kind = KindOf(program);
    const std::string runner = RunnerOf(kind, start.shown);
    if (kind == ProgramKind::Other) {
        MakeExecutable(program);
    } else if (runner.empty()) {
        return nullptr;
    }

    std::vector<std::string> words;
    for (const std::string& word : {runner, program, start.argument}) {
        if (!word.empty()) words.push_back(word);
    }
    WineMark mark;
    if (!runner.empty()) mark = {NewMark(), FileName(program)};
    std::vector<std::string> environment =
        runner.empty() ? Environment({}) : Environment({kWineIsSilent, mark.variable});
    // Where the signal is ignored, as it may be from the program's own parent, no exit code is kept.
    std::signal(SIGCHLD, SIG_DFL);
    const SpawnRules rules(ResolveNames(start.workingFolder));
    pid_t child = 0;
    const int fault = posix_spawn(&child, words.front().c_str(), &rules.actions, &rules.attributes,
                                  Pointers(words).data(), Pointers(environment).data());
    return fault == 0 ? std::make_unique<PosixTool>(child, std::move(mark)) : nullptr;
}

std::string PosixProcesses::TemporaryFolder() {
    const char* folder = std::getenv("TMPDIR");
    const std::string path = folder != nullptr && *folder != '\0' ? folder : "/tmp";
    return std::string(WithoutTrailingSeparator(PosixFileSystem().FullPath(path)));
}

}  // namespace orlo

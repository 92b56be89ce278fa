#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "platform/TemporaryFolder.h"
#include "platform/common/ProgramKind.h"
#include "platform/posix/EndSignals.h"
#include "platform/posix/PosixProcesses.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

constexpr int kPatience = 20'000;  // milliseconds

// A variable of the environment for as long as this lives.
class Variable {
  public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        setenv(name, value.c_str(), 1);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { old_ ? setenv(name_, old_->c_str(), 1) : unsetenv(name_); }

  private:
    const char* name_;
    std::optional<std::string> old_;
};

class Processes : public testing::Test {
  protected:
    // A tool of this content, without the permission to execute it.
    std::string Tool(const std::string& script) const {
        return folder.Put("Tool.exe", script.starts_with("MZ") ? script : "#!/bin/sh\n" + script);
    }
    std::unique_ptr<RunningTool> Start(const std::string& program, const std::string& argument = "",
                                       bool shown = false) {
        fs::create_directories(folder.Place("work"));
        return processes.Start({program, argument, folder.Path("work"), shown});
    }
    // The exit code; -1 where the tool doesn't start or end.
    std::int32_t Run(const std::string& program, const std::string& argument = "", bool shown = false) {
        const auto tool = Start(program, argument, shown);
        return tool && tool->Wait(kPatience) ? tool->ExitCode() : -1;
    }
    // Waits for the file that the tool writes, and gives the process number in it.
    pid_t NumberIn(const std::string& name) const {
        std::string text;
        for (int i = 0; i < kPatience / 5 && !text.ends_with('\n'); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            text = folder.Content(name);
        }
        return static_cast<pid_t>(std::atoi(text.c_str()));
    }

    TemporaryFolder folder;
    PosixProcesses processes;
};

bool HasEnded(pid_t process) {
    std::ifstream facts("/proc/" + std::to_string(process) + "/stat");
    const std::string text{std::istreambuf_iterator<char>(facts), {}};
    // One whose parent is gone too is buried by the system, in its own time.
    return text.empty() || text.find(") Z ") != std::string::npos;
}

bool IsGone(pid_t process) {
    for (int i = 0; i < kPatience / 5 && !HasEnded(process); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return HasEnded(process);
}

std::ptrdiff_t OpenFiles() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

TEST_F(Processes, AToolEndsWithItsCodeAndLeavesNothingBehind) {
    const std::ptrdiff_t before = OpenFiles();
    const struct {
        const char *name, *script;
        std::int32_t code;
    } cases[] = {
        {"a code", "exit 7", 7},
        {"a signal", "kill -SEGV $$", 128 + SIGSEGV},
        {"its folder", "[ \"$PWD\" = \"$(cd \"$(dirname \"$0\")/work\" && pwd -P)\" ]", 0},
        {"one argument", "[ $# = 1 ] && [ \"$1\" = '/NP \"a b\" $HOME' ]", 0},
        {"nothing to read", "[ -z \"$(cat)\" ]", 0},
        {"much to say", "dd if=/dev/zero bs=65536 count=200 && dd if=/dev/zero bs=65536 count=200 >&2", 0},
        {"plain signals", "grep -q '^SigBlk:\t0*$' /proc/self/status", 0},
    };
    for (const auto& c : cases) EXPECT_EQ(Run(Tool(c.script), "/NP \"a b\" $HOME"), c.code) << c.name;
    std::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(Run(Tool("exit 7")), 7) << "in a program that was started to ignore the end of its children";
    Tool("exit 0");
    EXPECT_EQ(Run(folder.Path("TOOL.EXE")), 0) << "a name in another case";
    EXPECT_FALSE(Start(folder.Path("missing.exe")));
    EXPECT_FALSE(Start(folder.Path("work")));
    EXPECT_FALSE(Start(folder.Put("text", "no program")));
    EXPECT_FALSE(processes.Start({Tool("exit 0"), "", folder.Path("no such folder")}));
    EXPECT_EQ(OpenFiles(), before);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
}

TEST_F(Processes, AToolThatNeverEndsIsEndedWithItsChildren) {
    const struct {
        const char *name, *script;
        std::int32_t code;
    } cases[] = {
        {"at once", "sleep 1000 & echo $! >child; wait", 128 + SIGTERM},
        {"by force", "trap '' TERM; sleep 1000 & echo $! >child; wait", 128 + SIGKILL},
        {"with a good conscience", "trap 'exit 0' TERM; sleep 1000 & echo $! >child; wait", 128 + SIGTERM},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        fs::remove(folder.Place("work/child"));
        const auto tool = Start(Tool(c.script));
        ASSERT_TRUE(tool);
        EXPECT_FALSE(tool->Wait(20));
        const pid_t child = NumberIn("work/child");
        ASSERT_GT(child, 0);
        tool->End();
        EXPECT_TRUE(tool->Wait(0));
        EXPECT_EQ(tool->ExitCode(), c.code);
        EXPECT_TRUE(IsGone(child));
    }
    fs::remove(folder.Place("work/child"));
    const auto ended = Start(Tool("echo $$ >child"));
    ASSERT_TRUE(ended);
    EXPECT_TRUE(IsGone(NumberIn("work/child")));
    ended->End();
    EXPECT_EQ(ended->ExitCode(), 0) << "it had ended by itself";
}

TEST_F(Processes, AToolThatIsLetGoRunsOnAndIsBuried) {
    Start(Tool("echo $$ >number; exec sleep 1"));
    const pid_t tool = NumberIn("work/number");
    ASSERT_GT(tool, 0);
    EXPECT_EQ(kill(tool, 0), 0);
    for (int i = 0; i < kPatience / 5 && kill(tool, 0) == 0; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_EQ(kill(tool, 0), -1);
}

TEST_F(Processes, AnInterruptIsCountedWhileAToolLivesAndReachesItNot) {
    struct sigaction before {};
    sigaction(SIGINT, nullptr, &before);
    {
        const auto tool = Start(Tool("echo $$ >number; exec sleep 1000"));
        ASSERT_TRUE(tool);
        EXPECT_NE(getpgid(NumberIn("work/number")), getpgrp()) << "the terminal's interrupt would reach it";
        EXPECT_FALSE(tool->Interrupted());
        raise(SIGINT);
        EXPECT_TRUE(tool->Interrupted());
        EXPECT_FALSE(tool->Wait(20));
        tool->End();
        const auto later = Start(Tool("exit 0"));
        EXPECT_FALSE(later->Interrupted());
        const EndSignals end;
        raise(SIGTERM);
        EXPECT_TRUE(later->Interrupted()) << "the program has to end, so no tool may keep it";
    }
    struct sigaction after {};
    sigaction(SIGINT, nullptr, &after);
    EXPECT_EQ(after.sa_handler, before.sa_handler);
}

// A program of Windows with this subsystem, as far as its head tells.
std::string WindowsProgram(char subsystem) {
    std::string bytes(0x200, '\0');
    bytes.replace(0, 2, "MZ");
    bytes[0x3C] = static_cast<char>(0x80);
    bytes.replace(0x80, 4, "PE\0\0", 4);
    bytes[0x80 + 0x5C] = subsystem;
    return bytes;
}

TEST_F(Processes, AProgramOfWindowsRunsThroughTheWineThatIsThere) {
    const std::string console = WindowsProgram(3);
    EXPECT_EQ(ProgramKindOf(console), ProgramKind::WindowsConsole);
    EXPECT_EQ(ProgramKindOf(WindowsProgram(2)), ProgramKind::WindowsGraphical);
    for (std::size_t size = 2; size < console.size(); ++size)
        EXPECT_EQ(ProgramKindOf(console.substr(0, size)), ProgramKind::WindowsConsole) << size;
    EXPECT_EQ(ProgramKindOf("M"), ProgramKind::Other);
    EXPECT_EQ(ProgramKindOf(std::string("MZ").append(0x3A, '\0').append("\xFF\xFF\xFF\xFF")),
              ProgramKind::WindowsConsole);

    const std::string tool = Tool(console);
    fs::create_directories(folder.Place("bin"));
    const Variable path("PATH", "relative::" + folder.Path("nowhere") + ":" + folder.Path("bin"));
    EXPECT_FALSE(processes.CanRun(tool));
    EXPECT_FALSE(Start(tool, "/NP"));
    EXPECT_TRUE(processes.CanRun("/bin/sh"));
    const auto putRunner = [&](const std::string& name) {
        folder.Put("bin/" + name, "#!/bin/sh\necho \"${0##*/} ${1##*/} $2 $WINEDEBUG\" >said\nexit 9");
        fs::permissions(folder.Place("bin/" + name), fs::perms(0755));
    };
    putRunner("wine");
    EXPECT_TRUE(processes.CanRun(tool));
    const struct {
        std::string program;
        bool shown;
        const char* said;
    } cases[] = {
        {console, false, "wine Tool.exe /NP -all\n"},
        {console, true, "wineconsole Tool.exe /NP -all\n"},
        {WindowsProgram(2), true, "wine Tool.exe /NP -all\n"},
    };
    const Variable debug("WINEDEBUG", "+all");
    EXPECT_EQ(Run(tool, "/NP", true), 9);
    EXPECT_EQ(folder.Content("work/said"), "wine Tool.exe /NP -all\n") << "without wineconsole";
    putRunner("wineconsole");
    for (const auto& c : cases) {
        EXPECT_EQ(Run(Tool(c.program), "/NP", c.shown), 9);
        EXPECT_EQ(folder.Content("work/said"), c.said);
    }
}

// A console of Wine runs its program in a session of its own, and Wine's server serves other programs too.
TEST_F(Processes, AToolUnderWineIsEndedInAnotherGroupAndWinesServerIsNot) {
    const std::string tool = Tool(WindowsProgram(3));
    folder.Put("bin/wine",
               "#!/bin/sh\n"
               "setsid sh -c 'echo $$ >server; exec sleep 20' &\n"
               "setsid sh -c 'echo $$ >tool; while :; do sleep 1; done' \"$1\" & wait");
    fs::permissions(folder.Place("bin/wine"), fs::perms(0755));
    const Variable path("PATH", folder.Path("bin") + ":" + std::getenv("PATH"));
    const auto started = Start(tool, "/NP");
    ASSERT_TRUE(started);
    const pid_t inner = NumberIn("work/tool");
    const pid_t server = NumberIn("work/server");
    started->End();
    EXPECT_TRUE(IsGone(inner));
    EXPECT_FALSE(HasEnded(server));
    kill(server, SIGKILL);
}

TEST_F(Processes, TheTemporaryFolderIsAFullPath) {
    const std::string here = fs::current_path().string();
    const struct {
        std::string variable, path;
    } cases[] = {{folder.Path() + "//", folder.Path()}, {"", "/tmp"}, {"/", "/"}, {"sub", here + "/sub"}};
    for (const auto& c : cases) {
        const Variable temporary("TMPDIR", c.variable);
        EXPECT_EQ(processes.TemporaryFolder(), c.path);
    }
}

}  // namespace
}  // namespace orlo

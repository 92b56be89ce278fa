#include "platform/posix/PosixTool.h"

#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <system_error>
#include <thread>

#include "platform/posix/EndSignals.h"
#include "platform/posix/MarkedProcesses.h"

namespace orlo {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kLook{5};
constexpr milliseconds kGrace{2000};  // between the request to end and the end by force
constexpr std::int32_t kSignalled = 128;

// Asks `done` until it says yes or the time is over; the last answer.
template <typename Done>
bool WaitUntil(milliseconds time, Done done) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (!done()) {
        const auto left = end - std::chrono::steady_clock::now();
        if (left <= left.zero()) return false;
        std::this_thread::sleep_for(std::min<std::chrono::steady_clock::duration>(left, kLook));
    }
    return true;
}

}  // namespace

PosixTool::~PosixTool() {
    if (!Wait(0)) LetGo();
}

// Whether the child has ended. It goes on holding its number and its group's until it is waited for.
bool PosixTool::HasEnded() const {
    siginfo_t facts{};
    return waitid(P_PID, static_cast<id_t>(child_), &facts, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           facts.si_pid != 0;
}

bool PosixTool::Wait(int time) {
    if (child_ == 0) return true;
    if (!WaitUntil(milliseconds(time), [this] { return HasEnded(); })) return false;
    int status = 0;
    const pid_t child = std::exchange(child_, 0);
    if (waitpid(child, &status, 0) == child) Take(status);
    return true;
}

void PosixTool::Take(int status) {
    exitCode_ = WIFSIGNALED(status) ? kSignalled + WTERMSIG(status) : WEXITSTATUS(status);
}

void PosixTool::End() {
    if (Wait(0)) return;
    kill(-child_, SIGTERM);
    WaitUntil(kGrace, [this] { return HasEnded(); });
    kill(-child_, SIGKILL);
    if (!mark_.variable.empty()) EndMarkedProcesses(mark_.variable, mark_.program);
    // A process within a broken driver can't even be ended by force.
    if (!Wait(static_cast<int>(kGrace.count()))) LetGo();
    if (ExitCode() == 0) exitCode_ = kSignalled + SIGTERM;
}

bool PosixTool::Interrupted() const {
    return watch_.Interrupted() || EndSignals::Noted();
}

void PosixTool::LetGo() {
    const pid_t child = std::exchange(child_, 0);
    try {
        std::thread([child] { waitpid(child, nullptr, 0); }).detach();
    } catch (const std::system_error&) {
        // Its entry in the system's table then stays until the program ends.
    }
}

}  // namespace orlo

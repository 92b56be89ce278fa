#include "platform/windows/WindowsTool.h"

#include <atomic>

#include "platform/windows/EndEvents.h"
#include "platform/windows/SystemHeader.h"

namespace orlo {
namespace {

constexpr UINT kEndedByUser = 1;
constexpr int kEndTakes = 2000;  // milliseconds

// The system calls the handler on a thread of its own.
std::atomic<long> interrupts = 0;

BOOL WINAPI OnConsoleEvent(DWORD event) {
    if (event != CTRL_C_EVENT) return FALSE;
    ++interrupts;
    return TRUE;
}

}  // namespace

InterruptWatch::InterruptWatch() : before_(interrupts) {
    SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
}

InterruptWatch::~InterruptWatch() {
    SetConsoleCtrlHandler(OnConsoleEvent, FALSE);
}

bool InterruptWatch::Interrupted() const {
    return interrupts != before_;
}

bool WindowsTool::Interrupted() const {
    return watch_.Interrupted() || EndEvents::Noted();
}

bool WindowsTool::Wait(int milliseconds) {
    if (exitCode_) return true;
    if (WaitForSingleObject(process_.Value(), static_cast<DWORD>(milliseconds)) == WAIT_TIMEOUT) return false;
    DWORD code = 0;
    GetExitCodeProcess(process_.Value(), &code);
    exitCode_ = static_cast<std::int32_t>(code);
    return true;
}

void WindowsTool::End() {
    if (Wait(0)) return;
    if (!job_.IsOpen() || TerminateJobObject(job_.Value(), kEndedByUser) == 0)
        TerminateProcess(process_.Value(), kEndedByUser);
    if (!Wait(kEndTakes) || *exitCode_ == 0) exitCode_ = static_cast<std::int32_t>(kEndedByUser);
}

}  // namespace orlo

#include "platform/windows/EndEvents.h"

#include <atomic>
#include <iostream>

#include "platform/windows/SystemHeader.h"

namespace orlo {
namespace {

// As elsewhere for the signals of these kinds.
constexpr int kInterrupted = 130;
constexpr int kEnded = 143;

constexpr int kEventTakes = 500;  // milliseconds
constexpr int kLook = 10;

constexpr DWORD kNone = ~DWORD{0};

// The system calls the handler on a thread of its own.
std::atomic<DWORD> noted = kNone;
std::atomic<HANDLE> reader = nullptr;  // the thread that may wait for standard input

BOOL WINAPI OnEnd(DWORD event) {
    DWORD before = kNone;
    if (!noted.compare_exchange_strong(before, event) && before == event) return FALSE;
    CancelSynchronousIo(reader);
    // When the handler of these returns, the system ends the program; it does so too after some seconds.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) Sleep(INFINITE);
    return TRUE;
}

}  // namespace

EndEvents::EndEvents() {
    noted = kNone;
    reader = OpenThread(THREAD_TERMINATE, FALSE, GetCurrentThreadId());
    SetConsoleCtrlHandler(OnEnd, TRUE);
}

EndEvents::~EndEvents() {
    SetConsoleCtrlHandler(OnEnd, FALSE);
    if (const HANDLE thread = reader.exchange(nullptr)) CloseHandle(thread);
    noted = kNone;
}

std::optional<int> EndEvents::ExitStatus() const {
    if (!Noted()) return std::nullopt;
    return noted == CTRL_C_EVENT ? kInterrupted : kEnded;
}

// Ctrl+C ends the reading from a console, sometimes before its event comes.
EndEvents::WatchedInput::int_type EndEvents::WatchedInput::underflow() {
    const int_type byte = Noted() ? traits_type::eof() : std::cin.rdbuf()->sbumpc();
    if (traits_type::eq_int_type(byte, traits_type::eof())) {
        DWORD mode = 0;
        const bool console = GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &mode) != 0;
        for (int waited = 0; console && !Noted() && waited < kEventTakes; waited += kLook) Sleep(kLook);
        return traits_type::eof();
    }
    byte_ = traits_type::to_char_type(byte);
    setg(&byte_, &byte_, &byte_ + 1);
    return byte;
}

bool EndEvents::Noted() {
    return noted != kNone;
}

}  // namespace orlo

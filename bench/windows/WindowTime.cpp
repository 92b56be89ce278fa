// How long programs take from their start to their first window with a title bar:
//   orlo-window-time ROUNDS PROGRAM...
// Prints for each the median in milliseconds. The programs take turns, and each is ended when its window
// stands.

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kPatience = 30'000;  // milliseconds

struct Search {
    DWORD process;
    bool found = false;
};

BOOL CALLBACK Look(HWND window, LPARAM parameter) {
    auto* search = reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const bool titled = (GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
    if (process == search->process && titled && IsWindowVisible(window)) search->found = true;
    return !search->found;
}

// Milliseconds; -1 where no window comes.
double TimeToWindow(const char* program) {
    std::string line = std::string("\"") + program + "\"";
    STARTUPINFOA how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION made{};
    const auto start = std::chrono::steady_clock::now();
    if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &made) == 0)
        return -1;
    Search search{made.dwProcessId};
    double passed = 0;
    while (!search.found && passed < kPatience) {
        Sleep(1);
        EnumWindows(Look, reinterpret_cast<LPARAM>(&search));
        passed = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    }
    TerminateProcess(made.hProcess, 0);
    WaitForSingleObject(made.hProcess, INFINITE);
    CloseHandle(made.hThread);
    CloseHandle(made.hProcess);
    return search.found ? passed : -1;
}

}  // namespace

int main(int count, char** words) {
    const int rounds = count > 2 ? std::max(1, std::atoi(words[1])) : 0;
    std::vector<std::vector<double>> times(static_cast<std::size_t>(std::max(0, count - 2)));
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < times.size(); ++i) times[i].push_back(TimeToWindow(words[i + 2]));
    }
    for (std::vector<double>& each : times) {
        std::sort(each.begin(), each.end());
        if (each.empty() || each.front() < 0) return 1;
        std::printf("%.0f\n", each[each.size() / 2]);
    }
    return rounds > 0 ? 0 : 1;
}

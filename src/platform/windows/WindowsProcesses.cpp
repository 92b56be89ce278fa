#include "platform/windows/WindowsProcesses.h"

#include <array>
#include <cstddef>
#include <vector>

#include "core/Path.h"
#include "core/Text.h"
#include "platform/windows/SystemHeader.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsFileSystem.h"
#include "platform/windows/WindowsTool.h"

namespace orlo {
namespace {

// The null device for reading and writing, which a child may take over.
WindowsHandle OpenNullDevice() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE opened =
        CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                    OPEN_EXISTING, 0, nullptr);
    return opened == INVALID_HANDLE_VALUE ? WindowsHandle() : WindowsHandle(opened);
}

// The facts with which a process starts, and the one handle that it takes over: none where it is shown.
class StartFacts {
  public:
    explicit StartFacts(bool shown) : null_(shown ? WindowsHandle() : OpenNullDevice()) {
        facts.StartupInfo.cb = sizeof facts;
        facts.StartupInfo.dwFlags = STARTF_USESHOWWINDOW;
        facts.StartupInfo.wShowWindow = shown ? SW_SHOWNORMAL : SW_HIDE;
        if (!null_.IsOpen()) return;
        handle_ = null_.Value();
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        memory_.resize(size);
        const auto list = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data());
        if (InitializeProcThreadAttributeList(list, 1, 0, &size) == 0) return;
        facts.lpAttributeList = list;
        if (UpdateProcThreadAttribute(list, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, &handle_, sizeof handle_,
                                      nullptr, nullptr) == 0)
            return;
        facts.StartupInfo.dwFlags |= STARTF_USESTDHANDLES;
        facts.StartupInfo.hStdInput = handle_;
        facts.StartupInfo.hStdOutput = handle_;
        facts.StartupInfo.hStdError = handle_;
    }
    StartFacts(const StartFacts&) = delete;
    StartFacts& operator=(const StartFacts&) = delete;
    ~StartFacts() {
        if (facts.lpAttributeList != nullptr) DeleteProcThreadAttributeList(facts.lpAttributeList);
    }

    bool Inherits() const { return (facts.StartupInfo.dwFlags & STARTF_USESTDHANDLES) != 0; }

    STARTUPINFOEXW facts{};

  private:
    WindowsHandle null_;
    HANDLE handle_ = nullptr;
    std::vector<std::byte> memory_;
};

std::wstring CommandLine(const ToolStart& start) {
    std::string line = Concat("\"", FullPath(start.program), "\"");
    if (start.argument.empty()) return WideText(line);
    const bool quoted = start.argument.find(' ') != std::string::npos;
    return WideText(Concat(line, quoted ? " \"" : " ", start.argument, quoted ? "\"" : ""));
}

std::string Variable(const wchar_t* name) {
    std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    if (value.empty()) return {};
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return NarrowText(value);
}

std::string SystemTemporaryFolder() {
    std::array<wchar_t, MAX_PATH + 2> path{};
    const DWORD length = GetTempPathW(static_cast<DWORD>(path.size()), path.data());
    return NarrowText({path.data(), length < path.size() ? length : 0});
}

}  // namespace

std::unique_ptr<RunningTool> WindowsProcesses::Start(const ToolStart& start) {
    const std::wstring program = WideText(FullPath(start.program));
    if (program.empty()) return nullptr;
    const std::wstring folder = WideText(FullPath(start.workingFolder));
    std::wstring line = CommandLine(start);
    StartFacts how(start.shown);
    // It waits until it is in its job, so that nothing it starts can stay outside.
    const DWORD flags = EXTENDED_STARTUPINFO_PRESENT | CREATE_SUSPENDED |
                        (start.shown ? CREATE_NEW_CONSOLE : CREATE_NO_WINDOW);
    PROCESS_INFORMATION made{};
    if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, how.Inherits() ? TRUE : FALSE, flags,
                       nullptr, folder.empty() ? nullptr : folder.c_str(), &how.facts.StartupInfo,
                       &made) == 0)
        return nullptr;
    WindowsHandle process(made.hProcess);
    const WindowsHandle thread(made.hThread);
    WindowsHandle job(CreateJobObjectW(nullptr, nullptr));
    if (job.IsOpen() && AssignProcessToJobObject(job.Value(), made.hProcess) == 0) job.Close();
    ResumeThread(made.hThread);
    return std::make_unique<WindowsTool>(std::move(process), std::move(job));
}

std::string WindowsProcesses::TemporaryFolder() {
    const std::string own = FullPath(Variable(L"TMPDIR"));
    const std::string folder =
        !own.empty() && WindowsFileSystem().FolderExists(own) ? own : SystemTemporaryFolder();
    return std::string(WithoutTrailingSeparator(folder));
}

}  // namespace orlo

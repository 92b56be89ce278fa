#include "platform/posix/MarkedProcesses.h"

#include <fcntl.h>
#include <sys/types.h>

#include <array>
#include <charconv>
#include <csignal>

#include "core/Path.h"
#include "core/Text.h"
#include "platform/posix/PosixHandle.h"
#include "platform/posix/PosixNames.h"

namespace orlo {
namespace {

constexpr std::string_view kProcesses = "/proc";

// A zero byte behind each of the file's texts; empty for a process of another user.
std::string TextsOf(std::string_view process, std::string_view file) {
    const PosixHandle opened = OpenRegular(Concat(kProcesses, "/", process, "/", file), O_RDONLY);
    std::string texts;
    std::array<char, 4096> buffer;
    while (opened.IsOpen()) {
        const ssize_t size = ReadSome(opened, buffer);
        if (size <= 0) break;
        texts.append(buffer.data(), static_cast<std::size_t>(size));
    }
    return texts;
}

}  // namespace

void EndMarkedProcesses(const std::string& variable, std::string_view file) {
    const std::string mark = variable + '\0';
    for (const FolderEntry& entry : ListNames(std::string(kProcesses))) {
        pid_t process = 0;
        const char* end = entry.name.data() + entry.name.size();
        if (std::from_chars(entry.name.data(), end, process).ptr != end || process <= 1) continue;
        if (TextsOf(entry.name, "environ").find(mark) != std::string::npos &&
            TextsOf(entry.name, "cmdline").find(file) != std::string::npos)
            kill(process, SIGKILL);
    }
}

}  // namespace orlo

#include "platform/posix/ProgramFolder.h"

#include <unistd.h>

#include <cstdio>

namespace orlo {
namespace {

constexpr std::size_t kLongestPath = 1024 * 1024;

}  // namespace

std::string ExecutablePath() {
    for (std::string buffer(256, '\0'); buffer.size() <= kLongestPath; buffer.resize(buffer.size() * 2)) {
        const ssize_t length = readlink("/proc/self/exe", buffer.data(), buffer.size());
        if (length <= 0) return {};
        if (static_cast<std::size_t>(length) < buffer.size())
            return buffer.substr(0, static_cast<std::size_t>(length));
    }
    return {};
}

bool CanWriteIn(const std::string& folder) {
    return access(folder.c_str(), W_OK | X_OK) == 0;
}

bool RenameFolder(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

}  // namespace orlo

#include "platform/posix/PosixHandle.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace orlo {
namespace {

// Some systems refuse or cut a single transfer of 2 GB and more.
constexpr std::size_t kLargestTransfer = std::size_t{1} << 30;

}  // namespace

PosixHandle& PosixHandle::operator=(PosixHandle&& other) noexcept {
    if (this != &other) {
        Close();
        descriptor_ = other.Release();
    }
    return *this;
}

bool PosixHandle::Close() {
    if (!IsOpen()) return true;
    // An interrupted close is not repeated: the number may belong to another file by then.
    return close(Release()) == 0 || errno == EINTR;
}

int PosixHandle::Release() {
    return std::exchange(descriptor_, -1);
}

bool PosixHandle::Rename(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

void PosixHandle::Remove(const std::string& path) {
    unlink(path.c_str());
}

PosixHandle OpenRegular(const std::string& path, int flags, mode_t mode) {
    struct stat facts {};
    // Opening a device can already do something to it, so the path is looked at first; and again once it is
    // open, in case it was exchanged.
    if (stat(path.c_str(), &facts) == 0 && !S_ISREG(facts.st_mode)) return {};
    int descriptor = -1;
    do {
        descriptor = open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, mode);
    } while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0) return {};
    PosixHandle file(descriptor);
    if (fstat(descriptor, &facts) != 0 || !S_ISREG(facts.st_mode)) return {};
    return file;
}

bool WriteAll(const PosixHandle& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            write(file.Descriptor(), bytes.data(), std::min(bytes.size(), kLargestTransfer));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

ssize_t ReadSome(const PosixHandle& file, std::span<char> buffer) {
    ssize_t count = 0;
    do {
        count = read(file.Descriptor(), buffer.data(), std::min(buffer.size(), kLargestTransfer));
    } while (count < 0 && errno == EINTR);
    return count;
}

std::optional<std::uint64_t> SizeOf(const PosixHandle& file) {
    struct stat facts {};
    if (fstat(file.Descriptor(), &facts) != 0) return std::nullopt;
    return static_cast<std::uint64_t>(facts.st_size);
}

bool WriteAllAt(const PosixHandle& file, std::uint64_t place, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = pwrite(file.Descriptor(), bytes.data(),
                                       std::min(bytes.size(), kLargestTransfer), static_cast<off_t>(place));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
        place += static_cast<std::uint64_t>(written);
    }
    return true;
}

bool SetSize(const PosixHandle& file, std::uint64_t size) {
    return ftruncate(file.Descriptor(), static_cast<off_t>(size)) == 0;
}

// Not every disk can set room aside; on such a one the write shows that the disk is full.
bool TakeRoom(const PosixHandle& file, std::uint64_t from, std::uint64_t to) {
    const int fault =
        posix_fallocate(file.Descriptor(), static_cast<off_t>(from), static_cast<off_t>(to - from));
    return fault == 0 || fault == EOPNOTSUPP || fault == EINVAL;
}

}  // namespace orlo

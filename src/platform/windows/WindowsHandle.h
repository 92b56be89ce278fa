#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace orlo {

// Owns one open file of the system.
class WindowsHandle {
  public:
    WindowsHandle() = default;
    explicit WindowsHandle(void* handle) : handle_(handle) {}
    WindowsHandle(WindowsHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    WindowsHandle& operator=(WindowsHandle&& other) noexcept;
    ~WindowsHandle() { Close(); }

    void* Value() const { return handle_; }
    bool IsOpen() const { return handle_ != nullptr; }

    // False when the system reports a failure; the handle is closed either way.
    bool Close();

    // For files. While another program holds one, they wait a moment for it.
    static bool Rename(const std::string& from, const std::string& to);
    static bool Remove(const std::string& path);

  private:
    void* handle_ = nullptr;  // nothing where no file is open
};

enum class OpenFor {
    Reading,
    Writing,    // of a file that stands there
    Making,     // of a new file; fails where one stands
    Truncating  // of a file that is made or emptied
};

// Not open when that fails, when the path is no file of a disk, or when a read-only file is to be written.
// Others may read, write and rename the file meanwhile. Where another program holds it, it waits a moment.
WindowsHandle OpenOnDisk(const std::string& path, OpenFor purpose);

// Whether another program has the file open in a way that lets nobody write or replace it.
bool IsHeld(const std::string& path);

// See common/OutputFiles.h.
bool WriteAll(const WindowsHandle& file, std::string_view bytes);
std::ptrdiff_t ReadSome(const WindowsHandle& file, std::span<char> buffer);
std::optional<std::uint64_t> SizeOf(const WindowsHandle& file);
bool WriteAllAt(const WindowsHandle& file, std::uint64_t place, std::string_view bytes);
bool SetSize(const WindowsHandle& file, std::uint64_t size);
bool TakeRoom(const WindowsHandle& file, std::uint64_t from, std::uint64_t to);

// The path that the links at the open file's path lead to in the end; empty where the system can't tell.
std::string FinalPath(const WindowsHandle& file);

}  // namespace orlo

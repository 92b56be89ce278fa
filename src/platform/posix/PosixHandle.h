#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orlo {

static_assert(sizeof(off_t) >= 8, "build with -D_FILE_OFFSET_BITS=64: files can be larger than 2 GB");

// Owns one open file of the system.
class PosixHandle {
  public:
    PosixHandle() = default;
    explicit PosixHandle(int descriptor) : descriptor_(descriptor) {}
    PosixHandle(PosixHandle&& other) noexcept : descriptor_(other.Release()) {}
    PosixHandle& operator=(PosixHandle&& other) noexcept;
    ~PosixHandle() { Close(); }

    int Descriptor() const { return descriptor_; }
    bool IsOpen() const { return descriptor_ >= 0; }

    // False when the system reports that earlier writes were lost; the handle is closed either way.
    bool Close();

    static bool Rename(const std::string& from, const std::string& to);
    static void Remove(const std::string& path);

  private:
    int Release();

    int descriptor_ = -1;
};

// Opens without waiting for the other end of a pipe. Not open when that fails or the path is no regular file.
// `flags` are those of open(); `mode` is for a file that is created.
PosixHandle OpenRegular(const std::string& path, int flags, mode_t mode = 0);

// Writes all bytes at the present place of the file; false when the system took only a part of them.
bool WriteAll(const PosixHandle& file, std::string_view bytes);

// Bytes read into the front of `buffer`; 0 at the end; negative after a failure.
ssize_t ReadSome(const PosixHandle& file, std::span<char> buffer);

// See common/OutputFiles.h.
std::optional<std::uint64_t> SizeOf(const PosixHandle& file);
bool WriteAllAt(const PosixHandle& file, std::uint64_t place, std::string_view bytes);
bool SetSize(const PosixHandle& file, std::uint64_t size);
bool TakeRoom(const PosixHandle& file, std::uint64_t from, std::uint64_t to);

}  // namespace orlo

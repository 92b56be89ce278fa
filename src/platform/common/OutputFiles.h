#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "services/FileSystem.h"

namespace orlo {

// The ways in which files are written, for the `Handle` of any system: IsOpen(), Close() and
//   bool WriteAll(const Handle&, std::string_view bytes)            at the present place
//   std::ptrdiff_t ReadSome(const Handle&, std::span<char> buffer)  0 at the end, negative after a failure
//   std::optional<std::uint64_t> SizeOf(const Handle&)
//   bool WriteAllAt(const Handle&, std::uint64_t place, std::string_view bytes)
//   bool SetSize(const Handle&, std::uint64_t size)                 cuts, or adds zero bytes
//   bool TakeRoom(const Handle&, std::uint64_t from, std::uint64_t to)
//     has the disk set aside what the file grows by; false on a full disk
//   static bool Handle::Rename(from, to) and static Handle::Remove(path)
//     for files; what stands at `to` is replaced

// Gathers small writes into larger ones.
template <typename Handle>
class PieceWriter {
  public:
    explicit PieceWriter(Handle file) : file_(std::move(file)) {}

    bool Write(std::string_view bytes) {
        if (failed_) return false;
        if (buffer_.size() + bytes.size() >= kPiece) {
            Flush();
            if (bytes.size() >= kPiece) {
                failed_ = failed_ || !WriteAll(file_, bytes);
                return !failed_;
            }
        }
        if (!failed_) buffer_.append(bytes);
        return !failed_;
    }

    // False when anything that was written didn't reach the file.
    bool Finish() {
        Flush();
        if (!file_.Close()) failed_ = true;
        return !failed_;
    }

    // Closes the file without what is still held back.
    void Abandon() {
        failed_ = true;
        buffer_.clear();
        file_.Close();
    }

    const Handle& File() const { return file_; }

  private:
    static constexpr std::size_t kPiece = 64 * 1024;

    void Flush() {
        if (!failed_ && !buffer_.empty()) failed_ = !WriteAll(file_, buffer_);
        buffer_.clear();
    }

    Handle file_;
    std::string buffer_;
    bool failed_ = false;
};

// Written beside its target and renamed over it. The data are not forced to the disk before the rename: a
// kill or a full disk can't hurt the old file anyway, a network disk reports late errors at the close, and
// waiting for the disk at each of thousands of small files would take minutes.
template <typename Handle>
class BesideFile : public OutputFile {
  public:
    BesideFile(std::string temporary, std::string target, Handle file)
        : temporary_(std::move(temporary)), target_(std::move(target)), writer_(std::move(file)) {}
    ~BesideFile() override { Discard(); }

    bool Write(std::string_view bytes) override { return !temporary_.empty() && writer_.Write(bytes); }

    bool Commit() override {
        if (temporary_.empty()) return committed_;
        committed_ = writer_.Finish() && Handle::Rename(temporary_, target_);
        if (committed_) {
            temporary_.clear();
        } else {
            Discard();
        }
        return committed_;
    }

  private:
    // Closes first: some systems can't remove an open file.
    void Discard() {
        writer_.Abandon();
        if (!temporary_.empty()) Handle::Remove(temporary_);
        temporary_.clear();
    }

    std::string temporary_;  // empty once it is renamed or removed
    std::string target_;
    PieceWriter<Handle> writer_;
    bool committed_ = false;
};

// Collected in memory and written over its target at the end, where the folder takes no second file.
template <typename Handle>
class OverwrittenFile : public OutputFile {
  public:
    explicit OverwrittenFile(Handle file) : file_(std::move(file)) {}

    bool Write(std::string_view bytes) override {
        if (!file_.IsOpen()) return false;
        bytes_.append(bytes);
        return true;
    }

    bool Commit() override {
        if (!file_.IsOpen()) return committed_;
        const bool written =
            TakeRoomForAll() && WriteAll(file_, bytes_) && SetSize(file_, std::uint64_t{bytes_.size()});
        committed_ = file_.Close() && written;
        return committed_;
    }

  private:
    // So that a full disk shows before a byte of the old file is touched.
    bool TakeRoomForAll() {
        const auto old = SizeOf(file_);
        if (!old) return false;
        if (bytes_.size() <= *old || TakeRoom(file_, *old, bytes_.size())) return true;
        // Cuts off what the failed try added; should that fail too, zero bytes stand behind the old file.
        SetSize(file_, *old);
        return false;
    }

    Handle file_;
    std::string bytes_;
    bool committed_ = false;
};

// Written at once into the file itself.
template <typename Handle>
class InPlaceFile : public OutputFile {
  public:
    explicit InPlaceFile(Handle file) : writer_(std::move(file)) {}
    ~InPlaceFile() override { Commit(); }

    bool Write(std::string_view bytes) override { return writer_.File().IsOpen() && writer_.Write(bytes); }
    bool Commit() override { return writer_.Finish(); }

  private:
    PieceWriter<Handle> writer_;
};

// Writes all patches, or none where one reaches beyond the end of the file.
template <typename Handle>
bool PatchBytes(const Handle& file, std::span<const FilePatch> patches) {
    const std::uint64_t size = SizeOf(file).value_or(0);
    for (const FilePatch& patch : patches) {
        if (patch.position > size || size - patch.position < patch.bytes.size()) return false;
    }
    for (const FilePatch& patch : patches) {
        if (!WriteAllAt(file, patch.position, patch.bytes)) return false;
    }
    return true;
}

// Copies the rest of `from`. False when it can't be read or written to its end.
template <typename Handle>
bool CopyBytes(const Handle& from, OutputFile& to) {
    std::vector<char> buffer(std::size_t{256} * 1024);
    for (;;) {
        const std::ptrdiff_t count = ReadSome(from, buffer);
        if (count < 0) return false;
        if (count == 0) return true;
        if (!to.Write({buffer.data(), static_cast<std::size_t>(count)})) return false;
    }
}

}  // namespace orlo

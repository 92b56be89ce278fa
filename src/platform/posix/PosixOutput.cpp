#include "platform/posix/PosixOutput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <string_view>

#include "core/Path.h"
#include "core/Text.h"
#include "platform/posix/PosixHandle.h"
#include "platform/posix/PosixNames.h"

namespace orlo {
namespace {

constexpr std::size_t kPiece = 64 * 1024;
constexpr mode_t kPermissions = 07777;
constexpr mode_t kAnyoneWrites = 0222;
constexpr int kMostNames = 1000;

// Gathers small writes into larger ones.
class PieceWriter {
  public:
    explicit PieceWriter(PosixHandle file) : file_(std::move(file)) {}

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

    const PosixHandle& File() const { return file_; }

  private:
    void Flush() {
        if (!failed_ && !buffer_.empty()) failed_ = !WriteAll(file_, buffer_);
        buffer_.clear();
    }

    PosixHandle file_;
    std::string buffer_;
    bool failed_ = false;
};

// Written beside its target and renamed over it. The data are not forced to the disk before the rename: a
// kill or a full disk can't hurt the old file either way, what a network reports late it reports at the
// close, and waiting for the disk once a file would stretch a run over thousands of small files to minutes.
class BesideFile : public OutputFile {
  public:
    BesideFile(std::string temporary, std::string target, PosixHandle file)
        : temporary_(std::move(temporary)), target_(std::move(target)), writer_(std::move(file)) {}
    ~BesideFile() override { Discard(); }

    bool Write(std::string_view bytes) override { return !temporary_.empty() && writer_.Write(bytes); }

    bool Commit() override {
        if (temporary_.empty()) return committed_;
        committed_ = writer_.Finish() && std::rename(temporary_.c_str(), target_.c_str()) == 0;
        if (committed_) {
            temporary_.clear();
        } else {
            Discard();
        }
        return committed_;
    }

  private:
    void Discard() {
        if (!temporary_.empty()) unlink(temporary_.c_str());
        temporary_.clear();
    }

    std::string temporary_;  // empty once it is renamed or removed
    std::string target_;
    PieceWriter writer_;
    bool committed_ = false;
};

// Collected in memory and written over its target at the end, where the folder takes no second file.
class OverwrittenFile : public OutputFile {
  public:
    explicit OverwrittenFile(PosixHandle file) : file_(std::move(file)) {}

    bool Write(std::string_view bytes) override {
        if (!file_.IsOpen()) return false;
        bytes_.append(bytes);
        return true;
    }

    bool Commit() override {
        if (!file_.IsOpen()) return committed_;
        const bool written = TakeRoom() && WriteAll(file_, bytes_) &&
                             ftruncate(file_.Descriptor(), static_cast<off_t>(bytes_.size())) == 0;
        committed_ = file_.Close() && written;
        return committed_;
    }

  private:
    // Has the disk set aside what the file grows by, so that a full disk shows before a byte of the old file
    // is touched.
    bool TakeRoom() {
        struct stat facts {};
        if (fstat(file_.Descriptor(), &facts) != 0) return false;
        const auto size = static_cast<off_t>(bytes_.size());
        if (size <= facts.st_size) return true;
        const int fault = posix_fallocate(file_.Descriptor(), facts.st_size, size - facts.st_size);
        if (fault == 0 || fault == EOPNOTSUPP || fault == EINVAL) return true;
        // What a failed try added goes again; should that fail too, zero bytes stand behind the old file.
        [[maybe_unused]] const int restored = ftruncate(file_.Descriptor(), facts.st_size);
        return false;
    }

    PosixHandle file_;
    std::string bytes_;
    bool committed_ = false;
};

class InPlaceFile : public OutputFile {
  public:
    explicit InPlaceFile(PosixHandle file) : writer_(std::move(file)) {}
    ~InPlaceFile() override { Commit(); }

    bool Write(std::string_view bytes) override { return writer_.File().IsOpen() && writer_.Write(bytes); }
    bool Commit() override { return writer_.Finish(); }

  private:
    PieceWriter writer_;
};

std::optional<struct stat> FactsOf(const std::string& path) {
    struct stat facts {};
    if (stat(path.c_str(), &facts) != 0) return std::nullopt;
    return facts;
}

// An administrator may write everything; a file that nobody may write is read-only to him too.
bool IsReadOnly(const std::string& path, const struct stat& facts) {
    return (facts.st_mode & kAnyoneWrites) == 0 || faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
}

// Gives a new file the owner and the permissions of the one that it is to replace. Only an administrator can
// give a file away; without that the new file is the user's own.
bool TakeOver(const PosixHandle& file, const struct stat& old) {
    [[maybe_unused]] const int group = fchown(file.Descriptor(), static_cast<uid_t>(-1), old.st_gid);
    [[maybe_unused]] const int owner = fchown(file.Descriptor(), old.st_uid, static_cast<gid_t>(-1));
    return fchmod(file.Descriptor(), old.st_mode & kPermissions) == 0;
}

// A new file in the folder under a hidden name that no reader takes for the target.
std::unique_ptr<OutputFile> OpenBeside(const std::string& target, const std::optional<struct stat>& old,
                                       mode_t newMode) {
    const std::string folder = ParentFolder(target);
    const mode_t mode = old ? static_cast<mode_t>(S_IRUSR | S_IWUSR) : newMode;
    for (int i = 0; i < kMostNames; ++i) {
        std::string temporary = JoinPath(folder, Concat(".orlo-", getpid(), "-", i, ".new"));
        PosixHandle file = OpenRegular(temporary, O_WRONLY | O_CREAT | O_EXCL, mode);
        if (!file.IsOpen()) {
            if (errno == EEXIST) continue;
            return nullptr;
        }
        if (old && !TakeOver(file, *old)) {
            unlink(temporary.c_str());
            return nullptr;
        }
        return std::make_unique<BesideFile>(std::move(temporary), target, std::move(file));
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<OutputFile> OpenReplacing(const std::string& path, mode_t newMode) {
    if (!IsUsablePath(path)) return nullptr;
    const std::string target = FollowLinks(path);
    if (target.empty() || FileName(target).empty()) return nullptr;
    const auto old = FactsOf(target);
    if (old && (!S_ISREG(old->st_mode) || IsReadOnly(target, *old))) return nullptr;
    if (auto file = OpenBeside(target, old, newMode)) return file;
    if (!old) return nullptr;
    PosixHandle file = OpenRegular(target, O_WRONLY);
    if (!file.IsOpen()) return nullptr;
    return std::make_unique<OverwrittenFile>(std::move(file));
}

std::unique_ptr<OutputFile> OpenInPlace(const std::string& path) {
    if (!IsUsablePath(path)) return nullptr;
    const auto old = FactsOf(path);
    if (old && IsReadOnly(path, *old)) return nullptr;
    PosixHandle file = OpenRegular(path, O_WRONLY | O_CREAT, 0666);
    if (!file.IsOpen() || ftruncate(file.Descriptor(), 0) != 0) return nullptr;
    return std::make_unique<InPlaceFile>(std::move(file));
}

}  // namespace orlo

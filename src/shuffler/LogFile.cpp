#include "shuffler/LogFile.h"

namespace orlo {
namespace {

constexpr std::size_t kPieceSize = 64 * 1024;

}  // namespace

void LogFile::Open(FileSystem& files, const std::string& path) {
    file_ = files.CreateInPlace(path);
    pending_.clear();
}

void LogFile::Line(std::string_view text) {
    if (!IsOpen()) return;
    pending_.append(text).append("\r\n");
    if (pending_.size() < kPieceSize) return;
    file_->Write(pending_);
    pending_.clear();
}

void LogFile::Close() {
    if (!IsOpen()) return;
    file_->Write(pending_);
    file_->Commit();
    file_.reset();
}

}  // namespace orlo

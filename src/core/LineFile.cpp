#include "core/LineFile.h"

#include <utility>

namespace orlo {
namespace {

constexpr std::size_t kPieceSize = 64 * 1024;

}  // namespace

void LineFile::Open(FileSystem& files, const std::string& path) {
    Take(files.CreateInPlace(path));
}

void LineFile::Take(std::unique_ptr<OutputFile> file) {
    file_ = std::move(file);
    pending_.clear();
    failed_ = false;
}

void LineFile::Line(std::string_view text) {
    if (!IsOpen()) return;
    pending_.append(text).append("\r\n");
    if (pending_.size() >= kPieceSize) Flush();
}

void LineFile::Flush() {
    if (!IsOpen() || pending_.empty()) return;
    failed_ = !file_->Write(pending_) || failed_;
    pending_.clear();
}

bool LineFile::Close() {
    if (!IsOpen()) return true;
    Flush();
    const bool committed = file_->Commit();
    file_.reset();
    return committed && !failed_;
}

}  // namespace orlo

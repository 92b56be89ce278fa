#include "core/TextLines.h"

#include <algorithm>
#include <cstring>

#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::uint64_t kLargestWholeFile = std::uint64_t{1} << 30;
constexpr std::size_t kBufferSize = 1024 * 1024;
constexpr std::size_t kFirstPiece = 512;  // longer than most lines
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Length of the line at the front of `text`; npos where `text` holds no line end. Searches in growing pieces,
// so that a file without line feeds isn't searched to its end for each line.
std::size_t LineLength(std::string_view text) {
    std::size_t piece = kFirstPiece;
    for (std::size_t at = 0; at < text.size(); at += piece, piece *= 2) {
        const std::string_view part = text.substr(at, piece);
        const std::size_t lineFeed = part.find('\n');
        const std::size_t carriageReturn = part.substr(0, lineFeed).find('\r');
        const std::size_t found = std::min(lineFeed, carriageReturn);
        if (found != std::string_view::npos) return at + found;
    }
    return std::string_view::npos;
}

}  // namespace

LineReader::LineReader(InputFile& file)
    : file_(file), buffer_(static_cast<std::size_t>(std::min<std::uint64_t>(file.Size() + 1, kBufferSize))) {}

// Reads more bytes behind those not yet given out. False at the end of the file.
bool LineReader::Fill() {
    if (atEnd_) return false;
    if (start_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + start_, end_ - start_);
        end_ -= start_;
        start_ = 0;
    }
    if (end_ == buffer_.size()) buffer_.resize(buffer_.size() * 2);
    const std::size_t read = file_.Read(std::span<char>(buffer_.data() + end_, buffer_.size() - end_));
    end_ += read;
    atEnd_ = read == 0;
    return !atEnd_;
}

std::optional<std::string_view> LineReader::TakeLine(std::size_t length) {
    std::string_view line(buffer_.data() + start_, length);
    start_ += length;
    if (first_) line = WithoutByteOrderMark(line);
    first_ = false;
    return line;
}

std::optional<std::string_view> LineReader::Next() {
    std::size_t searched = 0;  // bytes that hold no line end
    for (;;) {
        if (skipLineFeed_ && start_ < end_) {
            if (buffer_[start_] == '\n') ++start_;
            skipLineFeed_ = false;
        }
        const std::string_view rest(buffer_.data() + start_, end_ - start_);
        const std::size_t found = LineLength(rest.substr(std::min(searched, rest.size())));
        if (found != std::string_view::npos) {
            const std::size_t length = searched + found;
            skipLineFeed_ = rest[length] == '\r';
            const auto line = TakeLine(length);
            ++start_;
            return line;
        }
        searched = rest.size();
        if (!Fill()) {
            const auto line = TakeLine(end_ - start_);
            return line->empty() ? std::nullopt : line;
        }
    }
}

std::vector<std::string_view> SplitLines(std::string_view text) {
    text = WithoutByteOrderMark(text);
    std::vector<std::string_view> lines;
    while (!text.empty()) lines.push_back(TakeLine(text));
    return lines;
}

std::string_view TakeLine(std::string_view& text) {
    const std::size_t length = LineLength(text);
    const std::string_view line = text.substr(0, length);
    text.remove_prefix(line.size());
    if (!text.empty()) text.remove_prefix(text.substr(0, 2) == "\r\n" ? 2 : 1);
    return line;
}

std::string_view WithoutByteOrderMark(std::string_view text) {
    if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) text.remove_prefix(kByteOrderMark.size());
    return text;
}

std::optional<std::string> ReadWholeFile(FileSystem& files, const std::string& path) {
    const auto file = files.OpenForReading(path);
    if (!file || file->Size() > kLargestWholeFile) return std::nullopt;
    std::string bytes;
    bytes.resize(file->Size());
    std::size_t length = 0;
    while (length < bytes.size()) {
        const std::size_t read = file->Read(std::span<char>(bytes.data() + length, bytes.size() - length));
        if (read == 0) break;
        length += read;
    }
    bytes.resize(length);
    return bytes;
}

bool ReplaceWholeFile(FileSystem& files, const std::string& path, std::string_view text) {
    const auto file = files.CreateReplacing(path);
    return file != nullptr && file->Write(text) && file->Commit();
}

std::string_view CutComments(std::string_view line) {
    return BeforeFirst(BeforeFirst(line, ";"), "//");
}

std::string FieldText(std::string_view typed) {
    std::string text = ReplaceAll(typed, "//", "  ");
    std::replace_if(
        text.begin(), text.end(), [](char mark) { return mark == ',' || mark == ';'; }, ' ');
    return text;
}

}  // namespace orlo

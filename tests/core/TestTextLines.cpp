#include "core/TextLines.h"

#include <gtest/gtest.h>

#include <chrono>

#include "core/Text.h"
#include "services/FileSystem.h"

namespace orlo {
namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t kBuffer = 1024 * 1024;  // what the reader takes at a time

// A file that gives its bytes in pieces of at most `piece`.
class PieceFile : public InputFile {
  public:
    PieceFile(std::string_view bytes, std::size_t piece) : bytes_(bytes), piece_(piece) {}
    std::size_t Read(std::span<char> buffer) override {
        const std::size_t count = bytes_.copy(buffer.data(), std::min(buffer.size(), piece_));
        bytes_.remove_prefix(count);
        return count;
    }
    std::uint64_t Size() const override { return bytes_.size(); }

  private:
    std::string_view bytes_;
    std::size_t piece_;
};

Lines ReadLines(std::string_view text, std::size_t piece) {
    PieceFile file(text, piece);
    LineReader reader(file);
    Lines lines;
    while (const auto line = reader.Next()) lines.emplace_back(*line);
    return lines;
}

TEST(TextLines, AllLineEndsAreAccepted) {
    const std::pair<std::string_view, Lines> cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"a\r\n", {"a"}},
        {"\r\n\r\n", {"", ""}},
        {"\r\r\n\n", {"", "", ""}},
        {"\n\r", {"", ""}},
        {"a\r", {"a"}},
        {"\xEF\xBB\xBFz\r\nb", {"z", "b"}},
        {"\xEF\xBB\xBF", {}},
        {"\xEF\xBB\xBF\r\n", {""}},
        {"\xEF\xBB", {"\xEF\xBB"}},
        {"a\n\xEF\xBB\xBFz", {"a", "\xEF\xBB\xBFz"}},
        {std::string_view("a\0b\nc", 5), {std::string("a\0b", 3), "c"}},
    };
    for (const auto& [text, lines] : cases) {
        const auto split = SplitLines(text);
        EXPECT_EQ(Lines(split.begin(), split.end()), lines) << text;
        for (const std::size_t piece : {1u, 2u, 3u, 1000u}) EXPECT_EQ(ReadLines(text, piece), lines);
    }
}

TEST(TextLines, LinesMayBeLongerThanTheBufferAndEndAcrossIt) {
    const Lines lines = {"short", std::string(3 * kBuffer + 5, 'y'), "", std::string(kBuffer + 700, 'z')};
    std::string text;
    for (const std::string& line : lines) text.append(line).append("\r\n");
    EXPECT_EQ(ReadLines(text, 100000), lines);
    const auto split = SplitLines(text);
    EXPECT_EQ(Lines(split.begin(), split.end()), lines);
    for (const std::string_view end : {"\r\n", "\r", "\n"}) {
        for (std::size_t before = kBuffer - 3; before <= kBuffer + 1; ++before) {
            const std::string first(before, 'x');
            const std::string both = Concat(first, end, "second", end);
            EXPECT_EQ(ReadLines(both, both.size()), (Lines{first, "second"})) << before;
        }
    }
}

// A file with CR alone was searched to its end for a LF once a line.
TEST(TextLines, AFileWithoutLineFeedsIsReadInOnePass) {
    std::string text;
    for (int i = 0; i < 500000; ++i) text.append("abc\r");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(SplitLines(text).size(), 500000u);
    EXPECT_EQ(ReadLines(text, text.size()).size(), 500000u);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(TextLines, CommentsStartAtTheFirstMarkOfEitherKind) {
    EXPECT_EQ(CutComments("a;b//c"), "a");
    EXPECT_EQ(CutComments("a//b;c"), "a");
    EXPECT_EQ(CutComments("a/b/c"), "a/b/c");
    EXPECT_EQ(CutComments("a/;/"), "a/");
    EXPECT_EQ(CutComments("//"), "");
}

}  // namespace
}  // namespace orlo

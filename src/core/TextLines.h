#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/FileSystem.h"

namespace orlo {

// The lines of a text file, each without its line end. CR LF, LF and CR end a line; a byte order mark in
// front of the first line is skipped; a last line without an end counts when it isn't empty.
class LineReader {
  public:
    explicit LineReader(InputFile& file);

    // The next line, which holds until the next call; nothing at the end of the file.
    std::optional<std::string_view> Next();

  private:
    bool Fill();
    std::optional<std::string_view> TakeLine(std::size_t length);

    InputFile& file_;
    std::vector<char> buffer_;
    std::size_t start_ = 0;  // of the bytes not yet given out
    std::size_t end_ = 0;
    bool atEnd_ = false;
    bool first_ = true;
    bool skipLineFeed_ = false;  // the last line ended in a CR; a LF behind it belongs to it
};

// The lines of a text by the same rule.
std::vector<std::string_view> SplitLines(std::string_view text);

// Takes the first line with its end off a text that isn't empty, and gives it without its end.
std::string_view TakeLine(std::string_view& text);

// The text behind the byte order mark at its front, where one stands.
std::string_view WithoutByteOrderMark(std::string_view text);

// A whole file; nothing when it can't be opened or is larger than 1 GiB, as no file is that is read whole. A
// file that shrinks while it is read gives what could be read.
std::optional<std::string> ReadWholeFile(FileSystem& files, const std::string& path);

// Replaces the file by the text. False, with the old file whole, where it can't be written.
bool ReplaceWholeFile(FileSystem& files, const std::string& path, std::string_view text);

// A line of the plan's text files without its comment: the text before the first ";" or "//".
std::string_view CutComments(std::string_view line);

// A text that was typed, as a field of such a line can hold it: ",", ";" and "//" become blanks.
std::string FieldText(std::string_view typed);

}  // namespace orlo

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// Text is bytes in code page 1252; a character is a byte, and case is folded by that code page's table.

char UpperChar(char character);
char LowerChar(char character);
std::string UpperText(std::string_view text);

bool EqualNoCase(std::string_view a, std::string_view b);
// Negative, 0 or positive, byte by byte after folding to upper case.
int CompareNoCase(std::string_view a, std::string_view b);
bool StartsWithNoCase(std::string_view text, std::string_view beginning);
bool EndsWithNoCase(std::string_view text, std::string_view ending);
// An empty part is in every text.
bool ContainsNoCase(std::string_view text, std::string_view part);
std::size_t HashNoCase(std::string_view text);

// Takes blanks (0x20) off both ends, and nothing else.
std::string_view TrimBlanks(std::string_view text);
// Takes blanks and tabs off both ends.
std::string_view TrimWhite(std::string_view text);

// All parts between separators, blanks kept; an empty text gives one empty part.
std::vector<std::string_view> SplitText(std::string_view text, char separator);

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);
std::string RemoveAll(std::string_view text, char character);

// `text` filled with blanks on the right up to `width`; a longer text stays whole.
std::string PadRight(std::string_view text, std::size_t width);

// The text before the first `mark`; the whole text where there is none.
std::string_view BeforeFirst(std::string_view text, std::string_view mark);

// Joins any mix of texts and whole numbers.
template <typename... Pieces>
std::string Concat(const Pieces&... pieces);

// Code page 1252 to UTF-8 for a screen: a text that is valid UTF-8 stays, any other is taken as 1252.
std::string ToScreen(std::string_view text);
// UTF-8 as typed to code page 1252 where every character has a byte there; otherwise it stays UTF-8.
std::string FromScreen(std::string_view utf8);

namespace detail {
inline void AppendPiece(std::string& out, std::string_view piece) {
    out.append(piece);
}
inline void AppendPiece(std::string& out, char piece) {
    out.push_back(piece);
}
inline void AppendPiece(std::string& out, int piece) {
    out.append(std::to_string(piece));
}
inline void AppendPiece(std::string& out, unsigned piece) {
    out.append(std::to_string(piece));
}
inline void AppendPiece(std::string& out, long piece) {
    out.append(std::to_string(piece));
}
inline void AppendPiece(std::string& out, unsigned long piece) {
    out.append(std::to_string(piece));
}
inline void AppendPiece(std::string& out, long long piece) {
    out.append(std::to_string(piece));
}
inline void AppendPiece(std::string& out, unsigned long long piece) {
    out.append(std::to_string(piece));
}
}  // namespace detail

template <typename... Pieces>
std::string Concat(const Pieces&... pieces) {
    std::string out;
    (detail::AppendPiece(out, pieces), ...);
    return out;
}

}  // namespace orlo

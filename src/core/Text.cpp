#include "core/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace orlo {
namespace {

constexpr std::array<unsigned char, 256> MakeUpperTable() {
    std::array<unsigned char, 256> table{};
    for (unsigned i = 0; i < 256; ++i) {
        unsigned upper = i;
        if (i >= 'a' && i <= 'z') upper = i - 32;
        if (i >= 0xE0 && i <= 0xFE && i != 0xF7) upper = i - 32;
        if (i == 0x9A || i == 0x9C || i == 0x9E) upper = i - 16;
        if (i == 0xFF) upper = 0x9F;
        table[i] = static_cast<unsigned char>(upper);
    }
    return table;
}

constexpr std::array<unsigned char, 256> kUpper = MakeUpperTable();

constexpr std::array<unsigned char, 256> MakeLowerTable() {
    std::array<unsigned char, 256> table{};
    for (unsigned i = 0; i < 256; ++i) table[i] = static_cast<unsigned char>(i);
    for (unsigned i = 0; i < 256; ++i) {
        if (kUpper[i] != i) table[kUpper[i]] = static_cast<unsigned char>(i);
    }
    return table;
}

constexpr std::array<unsigned char, 256> kLower = MakeLowerTable();

// Characters of the bytes 0x80 to 0x9F of code page 1252; 0 where the byte has none.
constexpr std::array<char16_t, 32> kHighCharacters = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

bool IsWhite(char character) {
    return character == ' ' || character == '\t';
}

unsigned char Byte(char character) {
    return static_cast<unsigned char>(character);
}

char32_t CharacterOfByte(unsigned char byte) {
    if (byte >= 0x80 && byte <= 0x9F && kHighCharacters[byte - 0x80u] != 0)
        return kHighCharacters[byte - 0x80u];
    return byte;
}

std::optional<char> ByteOfCharacter(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    for (unsigned char byte = 0x80; byte < 0xA0; ++byte) {
        if (CharacterOfByte(byte) == character) return static_cast<char>(byte);
    }
    return std::nullopt;
}

void AppendUtf8(std::string& out, char32_t character) {
    auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xE0 | (character >> 12));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

// The characters of a UTF-8 text; nothing where it is not valid, which overlong forms and surrogates are not.
std::optional<std::u32string> DecodeUtf8(std::string_view text) {
    std::u32string characters;
    for (std::size_t i = 0; i < text.size();) {
        const unsigned char first = Byte(text[i]);
        std::size_t length = first < 0x80   ? 1
                             : first < 0xC2 ? 0
                             : first < 0xE0 ? 2
                             : first < 0xF0 ? 3
                             : first < 0xF5 ? 4
                                            : 0;
        if (length == 0 || i + length > text.size()) return std::nullopt;
        char32_t character = length == 1 ? first : first & (0x7Fu >> length);
        for (std::size_t k = 1; k < length; ++k) {
            const unsigned char next = Byte(text[i + k]);
            if ((next & 0xC0) != 0x80) return std::nullopt;
            character = (character << 6) | (next & 0x3Fu);
        }
        constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
        const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
        if (character < kSmallest[length] || surrogate || character > 0x10FFFF) return std::nullopt;
        characters.push_back(character);
        i += length;
    }
    return characters;
}

}  // namespace

char UpperChar(char character) {
    return static_cast<char>(kUpper[Byte(character)]);
}
char LowerChar(char character) {
    return static_cast<char>(kLower[Byte(character)]);
}

std::string UpperText(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), UpperChar);
    return out;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return UpperChar(x) == UpperChar(y); });
}

int CompareNoCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int x = kUpper[Byte(a[i])];
        const int y = kUpper[Byte(b[i])];
        if (x != y) return x - y;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

bool StartsWithNoCase(std::string_view text, std::string_view beginning) {
    return text.size() >= beginning.size() && EqualNoCase(text.substr(0, beginning.size()), beginning);
}

bool EndsWithNoCase(std::string_view text, std::string_view ending) {
    return text.size() >= ending.size() && EqualNoCase(text.substr(text.size() - ending.size()), ending);
}

bool ContainsNoCase(std::string_view text, std::string_view part) {
    if (part.size() > text.size()) return false;
    for (std::size_t i = 0; i + part.size() <= text.size(); ++i) {
        if (EqualNoCase(text.substr(i, part.size()), part)) return true;
    }
    return false;
}

std::size_t HashNoCase(std::string_view text) {
    std::uint64_t hash = 1469598103934665603u;
    for (char character : text) hash = (hash ^ kUpper[Byte(character)]) * 1099511628211u;
    return static_cast<std::size_t>(hash ^ (hash >> 32));
}

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

std::string_view TrimWhite(std::string_view text) {
    while (!text.empty() && IsWhite(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsWhite(text.back())) text.remove_suffix(1);
    return text;
}

std::vector<std::string_view> SplitText(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string out;
    for (;;) {
        const std::size_t found = text.find(from);
        out.append(text.substr(0, found));
        if (found == std::string_view::npos) return out;
        out.append(to);
        text.remove_prefix(found + from.size());
    }
}

std::string RemoveAll(std::string_view text, char character) {
    return ReplaceAll(text, std::string_view(&character, 1), "");
}

std::string PadRight(std::string_view text, std::size_t width) {
    std::string out(text);
    if (out.size() < width) out.resize(width, ' ');
    return out;
}

std::string_view BeforeFirst(std::string_view text, std::string_view mark) {
    return text.substr(0, text.find(mark));
}

std::string ToScreen(std::string_view text) {
    if (DecodeUtf8(text)) return std::string(text);
    std::string out;
    for (char character : text) AppendUtf8(out, CharacterOfByte(Byte(character)));
    return out;
}

std::string FromScreen(std::string_view utf8) {
    const auto characters = DecodeUtf8(utf8);
    if (!characters) return std::string(utf8);
    std::string out;
    for (char32_t character : *characters) {
        const auto byte = ByteOfCharacter(character);
        if (!byte) return std::string(utf8);
        out.push_back(*byte);
    }
    return out;
}

}  // namespace orlo

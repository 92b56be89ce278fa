#include "platform/common/WineRegistry.h"

#include <cstdint>

#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::string_view kSoftware = "SOFTWARE\\";
constexpr std::string_view kSoftware32 = "Software\\Wow6432Node\\";
constexpr char32_t kReplacement = 0xFFFD;

// Registry kinds of values that are texts.
constexpr std::uint32_t kText = 1;
constexpr std::uint32_t kExpandableText = 2;

std::optional<std::uint32_t> HexDigit(char character) {
    if (character >= '0' && character <= '9') return static_cast<std::uint32_t>(character - '0');
    const char lower = LowerChar(character);
    if (lower >= 'a' && lower <= 'f') return static_cast<std::uint32_t>(lower - 'a' + 10);
    return std::nullopt;
}

// Collects UTF-16 units and bytes as UTF-8.
class Utf8Builder {
  public:
    void AddByte(char byte) {
        EndSurrogate();
        out_.push_back(byte);
    }
    void AddUnit(std::uint32_t unit) {
        const bool low = unit >= 0xDC00 && unit < 0xE000;
        if (high_ != 0 && low) {
            const char32_t character = 0x10000 + ((high_ - 0xD800) << 10) + (unit - 0xDC00);
            high_ = 0;
            AddCharacter(character);
            return;
        }
        EndSurrogate();
        if (unit >= 0xD800 && unit < 0xDC00) {
            high_ = unit;
        } else {
            AddCharacter(low ? kReplacement : unit);
        }
    }
    std::string Finish() {
        EndSurrogate();
        return std::move(out_);
    }

  private:
    void EndSurrogate() {
        if (high_ != 0) AddCharacter(kReplacement);
        high_ = 0;
    }
    void AddCharacter(char32_t character) {
        const auto put = [this](char32_t byte) { out_.push_back(static_cast<char>(byte)); };
        const auto follow = [&](int shift) { put(0x80 | ((character >> shift) & 0x3F)); };
        if (character < 0x80) {
            put(character);
        } else if (character < 0x800) {
            put(0xC0 | (character >> 6));
            follow(0);
        } else if (character < 0x10000) {
            put(0xE0 | (character >> 12));
            follow(6);
            follow(0);
        } else {
            put(0xF0 | (character >> 18));
            follow(12);
            follow(6);
            follow(0);
        }
    }

    std::string out_;
    std::uint32_t high_ = 0;  // half of a character that waits for its other half
};

// "\x" and up to four hexadecimal digits, behind the "x"; a "\x" without digits is a plain "x".
void TakeHexEscape(std::string_view& text, Utf8Builder& out) {
    std::uint32_t unit = 0;
    int digits = 0;
    while (digits < 4 && !text.empty()) {
        const auto digit = HexDigit(text.front());
        if (!digit) break;
        unit = unit * 16 + *digit;
        text.remove_prefix(1);
        ++digits;
    }
    if (digits == 0) {
        out.AddByte('x');
    } else {
        out.AddUnit(unit);
    }
}

// Up to three octal digits, the first of which is `first`.
void TakeOctalEscape(char first, std::string_view& text, Utf8Builder& out) {
    auto unit = static_cast<std::uint32_t>(first - '0');
    for (int i = 0; i < 2 && !text.empty() && text.front() >= '0' && text.front() <= '7'; ++i) {
        unit = unit * 8 + static_cast<std::uint32_t>(text.front() - '0');
        text.remove_prefix(1);
    }
    out.AddUnit(unit);
}

void TakeEscape(std::string_view& text, Utf8Builder& out) {
    const char kind = text.front();
    text.remove_prefix(1);
    switch (kind) {
        case 'n':
            out.AddByte('\n');
            break;
        case 'r':
            out.AddByte('\r');
            break;
        case 't':
            out.AddByte('\t');
            break;
        case 'x':
            TakeHexEscape(text, out);
            break;
        default:
            if (kind >= '0' && kind <= '7') {
                TakeOctalEscape(kind, text, out);
            } else {
                out.AddByte(kind);
            }
    }
}

// Takes an escaped text and the mark that closes it off the front; nothing where it isn't closed.
std::optional<std::string> TakeEscaped(std::string_view& text, char closing) {
    Utf8Builder out;
    while (!text.empty()) {
        const char character = text.front();
        text.remove_prefix(1);
        if (character == closing) return out.Finish();
        if (character == '\\' && !text.empty()) {
            TakeEscape(text, out);
        } else {
            out.AddByte(character);
        }
    }
    return std::nullopt;
}

bool TakeIf(std::string_view& text, std::string_view beginning) {
    if (!StartsWithNoCase(text, beginning)) return false;
    text.remove_prefix(beginning.size());
    return true;
}

// The number in "str(2):" or "hex(1):" from behind the opening bracket; takes "):" too.
std::optional<std::uint32_t> TakeKind(std::string_view& text) {
    std::uint32_t kind = 0;
    int digits = 0;
    while (digits < 8 && !text.empty()) {
        const auto digit = HexDigit(text.front());
        if (!digit) break;
        kind = kind * 16 + *digit;
        text.remove_prefix(1);
        ++digits;
    }
    if (digits == 0 || !TakeIf(text, "):")) return std::nullopt;
    return kind;
}

// Takes two hexadecimal digits and the comma behind them.
std::optional<std::uint32_t> TakeHexByte(std::string_view& text) {
    if (text.size() < 2) return std::nullopt;
    const auto high = HexDigit(text[0]);
    const auto low = HexDigit(text[1]);
    if (!high || !low) return std::nullopt;
    text.remove_prefix(2);
    TakeIf(text, ",");
    return *high * 16 + *low;
}

// Walks the lines of the file, and the values of one key in it.
class RegistryLines {
  public:
    explicit RegistryLines(std::string_view text) : lines_(SplitLines(text)) {}

    std::optional<std::string> Find(std::string_view keyPath, std::string_view name) {
        bool inKey = false;
        for (at_ = 0; at_ < lines_.size(); ++at_) {
            std::string_view line = TrimBlanks(lines_[at_]);
            if (line.empty()) continue;
            if (line.front() == '[') {
                line.remove_prefix(1);
                const auto path = TakeEscaped(line, ']');
                inKey = path && EqualNoCase(*path, keyPath);
            } else if (inKey) {
                if (auto value = ValueOf(line, name)) return value;
            }
        }
        return std::nullopt;
    }

  private:
    std::optional<std::string> ValueOf(std::string_view line, std::string_view name) {
        if (!TakeIf(line, "\"")) return std::nullopt;
        const auto found = TakeEscaped(line, '"');
        if (!found || !EqualNoCase(*found, name) || !TakeIf(line, "=")) return std::nullopt;
        if (TakeIf(line, "\"")) return TakeEscaped(line, '"');
        const bool isHex = TakeIf(line, "hex(");
        if (!isHex && !TakeIf(line, "str(")) return std::nullopt;
        const auto kind = TakeKind(line);
        if (!kind || (*kind != kText && *kind != kExpandableText)) return std::nullopt;
        if (isHex) return HexText(line);
        if (!TakeIf(line, "\"")) return std::nullopt;
        return TakeEscaped(line, '"');
    }

    // Bytes of a text in UTF-16, low byte first, up to its end or its zero; a "\" at the end of a line goes
    // on in the next one.
    std::optional<std::string> HexText(std::string_view line) {
        Utf8Builder out;
        std::uint32_t unit = 0;
        bool isHalf = false;
        for (;;) {
            while (const auto byte = TakeHexByte(line)) {
                unit = isHalf ? unit + *byte * 256 : *byte;
                if (isHalf && unit == 0) return out.Finish();
                if (isHalf) out.AddUnit(unit);
                isHalf = !isHalf;
            }
            if (line != "\\" || at_ + 1 >= lines_.size()) return out.Finish();
            line = TrimBlanks(lines_[++at_]);
        }
    }

    std::vector<std::string_view> lines_;
    std::size_t at_ = 0;
};

}  // namespace

std::optional<std::string> FindWineRegistryValue(std::string_view text, std::string_view keyPath,
                                                 std::string_view name) {
    RegistryLines lines(text);
    if (StartsWithNoCase(keyPath, kSoftware)) {
        const std::string path32 = Concat(kSoftware32, keyPath.substr(kSoftware.size()));
        if (auto value = lines.Find(path32, name)) return value;
    }
    return lines.Find(keyPath, name);
}

std::optional<DrivePath> SplitDrivePath(std::string_view path) {
    if (path.size() < 2 || path[1] != ':') return std::nullopt;
    const char drive = LowerChar(path[0]);
    if (drive < 'a' || drive > 'z') return std::nullopt;
    path.remove_prefix(2);
    while (!path.empty() && (path.front() == '\\' || path.front() == '/')) path.remove_prefix(1);
    return DrivePath{drive, NativePath(path)};
}

}  // namespace orlo

#include "platform/common/SettingsText.h"

#include <algorithm>

#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kCommentMarks = ";#";

// Bytes that would end the line or the text.
bool HasLineBreaker(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos;
}

// Whether reading would not give the text back as it is.
bool NeedsQuotes(std::string_view text) {
    return HasLineBreaker(text) || TrimWhite(text).size() != text.size() ||
           (!text.empty() && text.front() == '"');
}

bool NameNeedsQuotes(std::string_view name) {
    return name.empty() || NeedsQuotes(name) || name.front() == '[' ||
           kCommentMarks.find(name.front()) != std::string_view::npos ||
           name.find('=') != std::string_view::npos;
}

std::string Quoted(std::string_view text) {
    std::string out = "\"";
    for (char character : text) {
        switch (character) {
            case '\r':
                out.append("\\r");
                break;
            case '\n':
                out.append("\\n");
                break;
            case '\0':
                out.append("\\0");
                break;
            case '"':
            case '\\':
                out.push_back('\\');
                [[fallthrough]];
            default:
                out.push_back(character);
        }
    }
    out.push_back('"');
    return out;
}

char Unescaped(char character) {
    switch (character) {
        case 'r':
            return '\r';
        case 'n':
            return '\n';
        case '0':
            return '\0';
        default:
            return character;
    }
}

// Takes a quoted text off the front of `text`; nothing, and `text` untouched, where none is closed.
std::optional<std::string> TakeQuoted(std::string_view& text) {
    if (text.empty() || text.front() != '"') return std::nullopt;
    std::string out;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"') {
            text.remove_prefix(i + 1);
            return out;
        }
        const bool escaped = text[i] == '\\' && i + 1 < text.size();
        out.push_back(escaped ? Unescaped(text[++i]) : text[i]);
    }
    return std::nullopt;
}

// The whole text, taken out of its quotes when they surround all of it.
std::string Unquoted(std::string_view text) {
    std::string_view rest = text;
    auto quoted = TakeQuoted(rest);
    return quoted && rest.empty() ? std::move(*quoted) : std::string(text);
}

}  // namespace

SettingsText::SettingsText(std::string_view text) {
    // A second mark would be the first one once the text is written.
    while (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) text.remove_prefix(kByteOrderMark.size());
    for (const std::string_view line : SplitLines(text)) {
        const std::string_view trimmed = TrimWhite(line);
        const std::size_t end = trimmed.rfind(']');
        if (!trimmed.empty() && trimmed.front() == '[' && end != std::string_view::npos) {
            sections_.push_back({std::string(line), std::string(trimmed.substr(1, end - 1)), {}});
        } else {
            sections_.back().lines.push_back(ParseLine(line));
        }
    }
}

SettingsText::Line SettingsText::ParseLine(std::string_view text) {
    Line line{std::string(text), false, {}, {}};
    std::string_view rest = TrimWhite(text);
    if (rest.empty() || kCommentMarks.find(rest.front()) != std::string_view::npos) return line;
    std::optional<std::string> name = TakeQuoted(rest);
    rest = TrimWhite(rest);
    const std::size_t equals = name ? 0 : rest.find('=');
    if (equals >= rest.size() || rest[equals] != '=') return line;
    line.isValue = true;
    line.name = name ? std::move(*name) : std::string(TrimWhite(rest.substr(0, equals)));
    line.value = Unquoted(TrimWhite(rest.substr(equals + 1)));
    return line;
}

SettingsText::Line SettingsText::MakeLine(std::string_view name, std::string_view value) {
    return {Concat(NameNeedsQuotes(name) ? Quoted(name) : std::string(name), "=",
                   NeedsQuotes(value) ? Quoted(value) : std::string(value)),
            true, std::string(name), std::string(value)};
}

SettingsText::Section* SettingsText::FindSection(std::string_view keyPath) {
    for (std::size_t i = 1; i < sections_.size(); ++i) {
        if (EqualNoCase(sections_[i].keyPath, keyPath)) return &sections_[i];
    }
    return nullptr;
}

std::optional<std::string> SettingsText::Get(std::string_view keyPath, std::string_view name) const {
    for (std::size_t i = 1; i < sections_.size(); ++i) {
        if (!EqualNoCase(sections_[i].keyPath, keyPath)) continue;
        for (const Line& line : sections_[i].lines) {
            if (line.isValue && EqualNoCase(line.name, name)) return line.value;
        }
    }
    return std::nullopt;
}

bool SettingsText::Set(std::string_view keyPath, std::string_view name, std::string_view value) {
    if (HasLineBreaker(keyPath)) return false;
    for (std::size_t i = 1; i < sections_.size(); ++i) {
        if (!EqualNoCase(sections_[i].keyPath, keyPath)) continue;
        for (Line& line : sections_[i].lines) {
            if (!line.isValue || !EqualNoCase(line.name, name)) continue;
            if (line.value != value) line = MakeLine(line.name, value);
            return true;
        }
    }
    Section* section = FindSection(keyPath);
    if (section == nullptr) {
        sections_.push_back({Concat("[", keyPath, "]"), std::string(keyPath), {}});
        section = &sections_.back();
    }
    auto place = section->lines.end();
    while (place != section->lines.begin() && !std::prev(place)->isValue) --place;
    section->lines.insert(place, MakeLine(name, value));
    return true;
}

std::string SettingsText::Text() const {
    std::string text;
    for (std::size_t i = 0; i < sections_.size(); ++i) {
        if (i > 0) text.append(sections_[i].header).append(kLineEnd);
        for (const Line& line : sections_[i].lines) text.append(line.text).append(kLineEnd);
    }
    return text;
}

}  // namespace orlo

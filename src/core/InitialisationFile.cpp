#include "core/InitialisationFile.h"

#include <algorithm>
#include <utility>

#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

using Dialect = InitialisationDialect;

// Bytes that would end the line or the text.
bool HasLineBreaker(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos;
}

std::string_view WithoutQuotes(std::string_view text) {
    const bool quoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.front() == text.back();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

// Bytes of the escaped text at the front, its quotes included; 0 where none is closed.
std::size_t EscapedLength(std::string_view text) {
    if (text.empty() || text.front() != '"') return 0;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"') return i + 1;
        if (text[i] == '\\' && i + 1 < text.size()) ++i;
    }
    return 0;
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

// The text without its escapes where quotes surround all of it, as it stands where they don't.
std::string WithoutEscapes(std::string_view text) {
    if (text.empty() || EscapedLength(text) != text.size()) return std::string(text);
    std::string out;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        out.push_back(text[i] == '\\' ? Unescaped(text[++i]) : text[i]);
    }
    return out;
}

std::string Escaped(std::string_view text) {
    std::string out = "\"";
    for (const char character : text) {
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

// The functions below take a line without blanks and tabs around it.

std::optional<std::string_view> SectionOf(std::string_view line, const Dialect& dialect) {
    if (line.empty() || line.front() != '[') return std::nullopt;
    if (dialect.sections == Dialect::Sections::Closed && line.back() != ']') return std::nullopt;
    const bool whole = dialect.sections != Dialect::Sections::Trimmed;
    const std::size_t end = whole ? line.rfind(']') : line.find(']');
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view name = line.substr(1, end - 1);
    return dialect.sections == Dialect::Sections::Whole ? name : TrimWhite(name);
}

// Whether the line is no value because of its first byte.
bool IsRemark(std::string_view line, const Dialect& dialect) {
    return dialect.remarks.find(line.front()) != std::string_view::npos ||
           (line.front() == '[' && dialect.sections == Dialect::Sections::Trimmed);
}

std::optional<InitialisationFile::Value> ValueOf(std::string_view line, const Dialect& dialect) {
    if (line.empty() || IsRemark(line, dialect)) return std::nullopt;
    const bool escapes = dialect.quotes == Dialect::Quotes::Escaped;
    const std::size_t escaped = escapes ? EscapedLength(line) : 0;
    const std::size_t equals = line.find('=', escaped);
    if (equals == std::string_view::npos) return std::nullopt;
    const std::string_view name = TrimWhite(line.substr(0, equals));
    if (escaped > 0 && name.size() != escaped) return std::nullopt;
    const std::string_view text = TrimWhite(line.substr(equals + 1));
    return InitialisationFile::Value{name, escapes ? text : WithoutQuotes(text)};
}

bool NeedsEscapes(std::string_view text) {
    return HasLineBreaker(text) || TrimWhite(text).size() != text.size() ||
           (!text.empty() && text.front() == '"');
}

std::string EscapedLine(std::string_view name, std::string_view value, const Dialect& dialect) {
    const bool odd = name.empty() || NeedsEscapes(name) || name.front() == '[' || IsRemark(name, dialect) ||
                     name.find('=') != std::string_view::npos;
    return Concat(odd ? Escaped(name) : std::string(name), "=",
                  NeedsEscapes(value) ? Escaped(value) : std::string(value));
}

bool IsValue(std::string_view line, std::string_view name, std::string_view text, const Dialect& dialect) {
    if (HasLineBreaker(line)) return false;
    const auto read = ValueOf(TrimWhite(line), dialect);
    return read && read->name == name && read->text == text;
}

// The value in the quotes that it needs to be read back.
std::string InQuotes(std::string_view value) {
    const bool needed = WithoutQuotes(TrimWhite(value)).size() != value.size();
    return needed ? Concat("\"", value, "\"") : std::string(value);
}

// The line that is read as this value; nothing where no line would be.
std::optional<std::string> LineOf(std::string_view name, std::string_view value, const Dialect& dialect) {
    if (dialect.quotes == Dialect::Quotes::Escaped) return EscapedLine(name, value, dialect);
    std::string line = Concat(name, "=", InQuotes(value));
    if (!IsValue(line, name, value, dialect)) return std::nullopt;
    return line;
}

// A line of a value of that name with another value. The blanks around name and value stay, and quotes around
// the old one surround the new one.
std::optional<std::string> LineWith(std::string_view line, std::string_view name, std::string_view value,
                                    const Dialect& dialect) {
    if (dialect.quotes == Dialect::Quotes::Escaped) return LineOf(name, value, dialect);
    const std::size_t equals = line.find('=');
    const std::size_t begin = std::min(line.find_first_not_of(" \t", equals + 1), line.size());
    const std::string_view old = TrimWhite(line.substr(begin));
    const bool quoted = WithoutQuotes(old).size() != old.size();
    std::string changed =
        Concat(line.substr(0, begin), quoted ? Concat(old.front(), value, old.front()) : InQuotes(value),
               line.substr(begin + old.size()));
    if (!IsValue(changed, name, value, dialect)) return std::nullopt;
    return changed;
}

}  // namespace

void AppendSectionLine(std::string& out, std::string_view name) {
    out.append("[").append(name).append("]\r\n");
}

void AppendValueLine(std::string& out, std::string_view name, std::string_view value) {
    out.append(name).append("=").append(value).append("\r\n");
}

InitialisationFile::InitialisationFile(std::string text, const InitialisationDialect& dialect)
    : dialect_(dialect), text_(std::move(text)) {
    Parse();
}

void InitialisationFile::Parse() {
    sections_.clear();
    values_.clear();
    std::string_view rest = WithoutByteOrderMark(text_);
    while (!rest.empty()) {
        const std::string_view line = TrimWhite(TakeLine(rest));
        if (const auto name = SectionOf(line, dialect_)) {
            sections_.push_back({PieceOf(*name), values_.size()});
        } else if (!sections_.empty()) {
            const auto value = ValueOf(line, dialect_);
            if (value) values_.push_back({PieceOf(value->name), PieceOf(value->text)});
        }
    }
}

InitialisationFile::Piece InitialisationFile::PieceOf(std::string_view lent) const {
    return {static_cast<std::size_t>(lent.data() - text_.data()), lent.size()};
}

std::size_t InitialisationFile::EndOf(std::size_t section) const {
    return section + 1 < sections_.size() ? sections_[section + 1].firstValue : values_.size();
}

std::optional<std::size_t> InitialisationFile::FindSection(std::string_view name) const {
    for (std::size_t section = 0; section < sections_.size(); ++section) {
        if (EqualNoCase(SectionName(section), name)) return section;
    }
    return std::nullopt;
}

InitialisationFile::Value InitialisationFile::ValueAt(std::size_t section, std::size_t place) const {
    const Entry& entry = values_[sections_[section].firstValue + place];
    return {View(entry.name), View(entry.text)};
}

const InitialisationFile::Entry* InitialisationFile::FindEntry(std::size_t section,
                                                               std::string_view name) const {
    const bool escapes = dialect_.quotes == Dialect::Quotes::Escaped;
    for (std::size_t place = sections_[section].firstValue; place < EndOf(section); ++place) {
        const Entry& entry = values_[place];
        if (escapes ? EqualNoCase(Plain(entry.name), name) : EqualNoCase(View(entry.name), name))
            return &entry;
    }
    return nullptr;
}

const InitialisationFile::Entry* InitialisationFile::FindEntry(std::string_view section,
                                                               std::string_view name) const {
    for (std::size_t place = 0; place < sections_.size(); ++place) {
        if (!EqualNoCase(SectionName(place), section)) continue;
        const Entry* entry = FindEntry(place, name);
        if (entry != nullptr || !dialect_.joined) return entry;
    }
    return nullptr;
}

std::string_view InitialisationFile::Find(std::size_t section, std::string_view name) const {
    const Entry* entry = FindEntry(section, name);
    return entry != nullptr ? View(entry->text) : std::string_view();
}

// The text that a piece stands for.
std::string InitialisationFile::Plain(Piece piece) const {
    return dialect_.quotes == Dialect::Quotes::Escaped ? WithoutEscapes(View(piece))
                                                       : std::string(View(piece));
}

std::optional<std::string> InitialisationFile::Get(std::string_view section, std::string_view name) const {
    const Entry* entry = FindEntry(section, name);
    if (entry == nullptr) return std::nullopt;
    return Plain(entry->text);
}

bool InitialisationFile::Set(std::string_view section, std::string_view name, std::string_view value) {
    if (HasLineBreaker(section)) return false;
    const Entry* entry = FindEntry(section, name);
    if (entry != nullptr && Plain(entry->text) == value) return true;
    const Piece old = entry != nullptr ? LineAt(entry->name.begin) : Piece();
    const auto line = entry != nullptr ? LineWith(View(old), Plain(entry->name), value, dialect_)
                                       : LineOf(name, value, dialect_);
    if (!line) return false;
    if (entry != nullptr) {
        text_.replace(old.begin, old.size, *line);
    } else if (const auto found = FindSection(section)) {
        const std::size_t end = EndOf(*found);
        const bool empty = end == sections_[*found].firstValue;
        InsertBehind(empty ? sections_[*found].name.begin : values_[end - 1].name.begin, *line);
    } else {
        const std::string head = Concat("[", section, "]");
        if (SectionOf(head, dialect_) != section) return false;
        InsertBehind(text_.size(), Concat(head, LineEnd(), *line));
    }
    Parse();
    return true;
}

// The line around a place, without its end.
InitialisationFile::Piece InitialisationFile::LineAt(std::size_t place) const {
    const std::size_t begin = place == 0 ? 0 : text_.find_last_of("\r\n", place - 1) + 1;
    return {begin, std::min(text_.find_first_of("\r\n", place), text_.size()) - begin};
}

std::string_view InitialisationFile::LineEnd() const {
    const std::size_t end = text_.find_first_of("\r\n");
    if (end == std::string::npos) return "\r\n";
    return View({end, text_.compare(end, 2, "\r\n") == 0 ? 2u : 1u});
}

// Inserts the line, and a line end, behind the line around the place.
void InitialisationFile::InsertBehind(std::size_t place, std::string line) {
    const std::string lineEnd(LineEnd());
    const Piece before = LineAt(place);
    std::size_t at = before.begin + before.size;
    if (at < text_.size()) {
        at += text_.compare(at, 2, "\r\n") == 0 ? 2 : 1;
    } else if (before.size > 0) {
        text_.append(lineEnd);
        at = text_.size();
    }
    // A CR here and the LF of an empty line behind it would become one line end.
    const bool wouldJoin = lineEnd == "\r" && text_.compare(at, 1, "\n") == 0;
    text_.insert(at, line.append(wouldJoin ? "\r\n" : lineEnd));
}

}  // namespace orlo

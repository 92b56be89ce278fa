#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// How one kind of initialisation file is written.
struct InitialisationDialect {
    enum class Sections {
        // The name of a section ends at the first "]", without blanks and tabs around it. Without a "]" the
        // line means nothing.
        Trimmed,
        // The name ends at the last "]" and counts as it stands. Without a "]" the line may be a value.
        Whole,
        // Only a line that also ends in "]" opens a section; its name has no blanks and tabs around it. Any
        // other line may be a value, even one that starts with "[".
        Closed,
    };
    enum class Quotes {
        Stripped,  // a value loses the quotes of either kind around it
        Escaped,   // names and values may stand in double quotes with escapes; docs/settings.md tells them
    };
    std::string_view remarks;  // a line that opens with one of these bytes is a remark
    Sections sections = Sections::Trimmed;
    Quotes quotes = Quotes::Stripped;
    bool joined = false;  // sections of one name are one; otherwise a value is looked for in the first alone
};

// The simulator's own files: aircraft.cfg, model.cfg.
inline constexpr InitialisationDialect kSimulatorDialect{.remarks = ";"};

// The lines of a file that is written anew, with CR LF behind them. The texts go out as they stand.
void AppendSectionLine(std::string& out, std::string_view name);
void AppendValueLine(std::string& out, std::string_view name, std::string_view value);

// The text of an initialisation file: "[section]" lines, each followed by its "name=value" lines. Blanks and
// tabs around names and values are no part of them. Names compare without regard to case, and of two that are
// equal the first counts. Any other line, and a value in front of the first section, has no meaning.
//
// Places of sections and values, and the texts lent here, hold until Set or a move.
class InitialisationFile {
  public:
    // Takes any text. CR LF, LF and CR end a line; a byte order mark is passed over.
    explicit InitialisationFile(std::string text, const InitialisationDialect& dialect = kSimulatorDialect);

    // Sections in file order, 0 to SectionCount() - 1; a name that stands twice stands twice here.
    std::size_t SectionCount() const { return sections_.size(); }
    std::string_view SectionName(std::size_t section) const { return View(sections_[section].name); }
    std::optional<std::size_t> FindSection(std::string_view name) const;

    // The values of a section in file order, 0 to ValueCount() - 1. Escaped texts stand in their quotes here.
    struct Value {
        std::string_view name;
        std::string_view text;
    };
    std::size_t ValueCount(std::size_t section) const {
        return EndOf(section) - sections_[section].firstValue;
    }
    Value ValueAt(std::size_t section, std::size_t place) const;
    // The text of that name's value; empty where there is none.
    std::string_view Find(std::size_t section, std::string_view name) const;

    // The value without its quotes and escapes; nothing where there is none.
    std::optional<std::string> Get(std::string_view section, std::string_view name) const;

    // Changes the value in its line, which keeps its line end and the spelling of its name, and in a dialect
    // without escapes also its blanks and quotes; a value that is the same changes nothing. A new name goes
    // behind the last value of its section and a new section to the end of the file, with the line end of the
    // first line, CR LF where there is none. All other lines keep their bytes; only a last line without an
    // end gets one when a line goes behind it. False, with nothing changed, where Get could not give the
    // value back: for a line end or a zero byte in a section's name, or in a name or value of a dialect
    // without escapes, and for a name that would be read as something else, such as one with "=" there.
    bool Set(std::string_view section, std::string_view name, std::string_view value);

    const std::string& Text() const { return text_; }

  private:
    struct Piece {  // of text_
        std::size_t begin = 0;
        std::size_t size = 0;
    };
    struct Section {
        Piece name;
        std::size_t firstValue = 0;  // place in values_
    };
    struct Entry {
        Piece name;
        Piece text;
    };

    void Parse();
    std::string_view View(Piece piece) const { return {text_.data() + piece.begin, piece.size}; }
    Piece PieceOf(std::string_view lent) const;
    std::size_t EndOf(std::size_t section) const;
    const Entry* FindEntry(std::size_t section, std::string_view name) const;
    const Entry* FindEntry(std::string_view section, std::string_view name) const;
    std::string Plain(Piece piece) const;
    Piece LineAt(std::size_t place) const;
    std::string_view LineEnd() const;
    void InsertBehind(std::size_t place, std::string line);

    InitialisationDialect dialect_;
    std::string text_;
    std::vector<Section> sections_;
    std::vector<Entry> values_;  // of all sections
};

}  // namespace orlo

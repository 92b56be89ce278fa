#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// The text form of a settings store: "[key path]" lines, each followed by the "name=value" lines of that key.
// docs/settings.md tells the form. Paths and names compare without regard to case; of two that are equal the
// first counts. Lines that are neither are kept where they stand.
class SettingsText {
  public:
    SettingsText() = default;
    explicit SettingsText(std::string_view text);

    std::optional<std::string> Get(std::string_view keyPath, std::string_view name) const;

    // Changes the value where it stands, or adds it behind the last value of its key, and a new key at the
    // end. False, and nothing changed, for a key path that holds a line end or a zero byte.
    bool Set(std::string_view keyPath, std::string_view name, std::string_view value);

    // The whole text, with CR LF line ends.
    std::string Text() const;

  private:
    struct Line {
        std::string text;  // as it stands in the file
        bool isValue = false;
        std::string name;
        std::string value;
    };
    // What stands in front of the first key is a section without one.
    struct Section {
        std::string header;  // as it stands in the file
        std::string keyPath;
        std::vector<Line> lines;
    };

    static Line ParseLine(std::string_view text);
    static Line MakeLine(std::string_view name, std::string_view value);
    Section* FindSection(std::string_view keyPath);

    std::vector<Section> sections_ = std::vector<Section>(1);
};

}  // namespace orlo

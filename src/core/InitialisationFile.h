#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlo {

// One section of an initialisation file with its keys and values in file order, as they stand in the file:
// names trimmed, values trimmed and without surrounding quotes, comments not cut.
struct InitialisationSection {
    std::string name;
    std::vector<std::pair<std::string, std::string>> values;

    // Value of the first key of that name without regard to case; empty when missing.
    std::string Value(std::string_view key) const;
};

// An initialisation file ("[section]" lines and "key=value" lines) read whole.
struct InitialisationFile {
    std::vector<InitialisationSection> sections;  // in file order; a name that stands twice stands twice here

    // First section of that name without regard to case; null when missing.
    const InitialisationSection* Section(std::string_view name) const;
    // Value by section and key; empty when either is missing.
    std::string Value(std::string_view section, std::string_view key) const;
};

// Reads the text of an initialisation file. Lines that are neither a section nor hold a "=" are skipped;
// lines that start with ";" are comments.
InitialisationFile ParseInitialisationFile(std::string_view text);

}  // namespace orlo

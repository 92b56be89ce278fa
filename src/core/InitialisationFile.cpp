#include "core/InitialisationFile.h"

#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

std::string_view WithoutQuotes(std::string_view text) {
    const bool quoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.front() == text.back();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

}  // namespace

std::string InitialisationSection::Value(std::string_view key) const {
    for (const auto& [keyName, value] : values) {
        if (EqualNoCase(keyName, key)) return value;
    }
    return {};
}

const InitialisationSection* InitialisationFile::Section(std::string_view name) const {
    for (const InitialisationSection& section : sections) {
        if (EqualNoCase(section.name, name)) return &section;
    }
    return nullptr;
}

std::string InitialisationFile::Value(std::string_view section, std::string_view key) const {
    const InitialisationSection* found = Section(section);
    return found != nullptr ? found->Value(key) : std::string();
}

InitialisationFile ParseInitialisationFile(std::string_view text) {
    InitialisationFile file;
    for (std::string_view line : SplitLines(text)) {
        line = TrimWhite(line);
        if (line.empty() || line.front() == ';') continue;
        if (line.front() == '[') {
            const std::size_t end = line.find(']');
            if (end == std::string_view::npos) continue;
            file.sections.push_back({std::string(TrimWhite(line.substr(1, end - 1))), {}});
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos || file.sections.empty()) continue;
        file.sections.back().values.emplace_back(TrimWhite(line.substr(0, equals)),
                                                 WithoutQuotes(TrimWhite(line.substr(equals + 1))));
    }
    return file;
}

}  // namespace orlo

#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "core/InitialisationFile.h"
#include "core/TextLines.h"

namespace orlo::test {

// The lines of a text with their ends.
inline std::vector<std::string> LinesWithEnds(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::string_view before = text;
        TakeLine(text);
        lines.emplace_back(before.substr(0, before.size() - text.size()));
    }
    return lines;
}

// Whether one line was changed, or one or two were added, and all others stand as before.
inline bool OneLineDiffers(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    if (after.size() < before.size() || after.size() > before.size() + 2) return false;
    const auto added = static_cast<std::ptrdiff_t>(after.size() - before.size());
    const auto [kept, at] = std::mismatch(before.begin(), before.end(), after.begin());
    const auto changed = added == 0 && kept != before.end() ? 1 : 0;
    return std::equal(kept + changed, before.end(), at + changed + added, after.end());
}

// The same where the last line, which had no end, took one.
inline bool OneLineDiffersBehindTheLast(std::vector<std::string> before,
                                        const std::vector<std::string>& after) {
    if (before.empty() || before.back().find_first_of("\r\n") != std::string::npos) return false;
    if (after.size() < before.size()) return false;
    const std::string& now = after[before.size() - 1];
    if (!now.starts_with(before.back()) || now.size() > before.back().size() + 2) return false;
    before.back() = now;
    return OneLineDiffers(before, after);
}

// Sets a value and ends the program where it isn't given back, where a refusal changes anything, or where
// other lines don't stay. The texts may be lent by the file. Whether the value was taken.
inline bool SetKeepsTheOtherLines(InitialisationFile& file, std::string_view section, std::string_view name,
                                  std::string_view value) {
    const std::string asked[] = {std::string(section), std::string(name), std::string(value)};
    const std::string textBefore = file.Text();
    if (!file.Set(section, name, value)) {
        if (file.Text() != textBefore) std::abort();
        return false;
    }
    if (file.Get(asked[0], asked[1]) != asked[2]) std::abort();
    const std::vector<std::string> before = LinesWithEnds(textBefore);
    const std::vector<std::string> after = LinesWithEnds(file.Text());
    if (!OneLineDiffers(before, after) && !OneLineDiffersBehindTheLast(before, after)) std::abort();
    return true;
}

}  // namespace orlo::test

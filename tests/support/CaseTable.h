#pragma once

#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlo::test {

using CaseRow = std::vector<std::string>;

// The fields of a line of a CSV file; a field in quotes can hold commas.
inline CaseRow SplitCaseRow(std::string_view line) {
    CaseRow fields(1);
    bool quoted = false;
    for (const char character : line) {
        if (character == '"') {
            quoted = !quoted;
        } else if (character == ',' && !quoted) {
            fields.emplace_back();
        } else if (character != '\r') {
            fields.back().push_back(character);
        }
    }
    return fields;
}

// The rows of a table of cases that lies beside the checkout, without its header. Nothing where it is
// missing or a row has another number of fields than its header.
inline std::optional<std::vector<CaseRow>> ReadCaseTable(const std::string& name) {
    std::ifstream file(std::string(ORLO_SOURCE_DIR "/../shared/vectors/") + name);
    std::string line;
    if (!std::getline(file, line)) return std::nullopt;
    const std::size_t columns = SplitCaseRow(line).size();
    std::vector<CaseRow> rows;
    while (std::getline(file, line)) {
        CaseRow row = SplitCaseRow(line);
        if (row.size() != columns) return std::nullopt;
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace orlo::test

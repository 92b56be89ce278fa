#include "config/FlightLevels.h"

#include <array>
#include <utility>

#include "config/RuleFile.h"
#include "core/Number.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::string_view kFlightLevelsName = "ORLO_FL.CFG";
constexpr std::size_t kFieldCount = 7;

// Nothing where a field is no whole number. `fields` has kFieldCount texts.
std::optional<FlightLevelRule> RuleFromFields(const std::vector<std::string_view>& fields) {
    std::array<std::int32_t, kFieldCount> numbers{};
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const auto number = ParseWholeNumber(fields[i]);
        if (!number) return std::nullopt;
        numbers[i] = *number;
    }
    return FlightLevelRule{numbers[0], numbers[1], numbers[2], numbers[3],
                           numbers[4], numbers[5], numbers[6]};
}

}  // namespace

ParsedFlightLevels ParseFlightLevels(std::string_view text) {
    ParsedFlightLevels parsed;
    for (const std::string_view untrimmed : SplitLines(text)) {
        const std::string_view line = TrimBlanks(untrimmed);
        if (line.empty() || line.front() == ';') continue;
        const auto fields = SplitText(line, ',');
        if (fields.size() != kFieldCount) {
            parsed.offendingLine = line;
            break;
        }
        if (const auto rule = RuleFromFields(fields)) parsed.rules.push_back(*rule);
    }
    return parsed;
}

bool ReadFlightLevels(Session& session, FileSystem& files, MessageHost& messages) {
    session.rules.FlightLevelRules.clear();
    const auto text = ReadRuleFile(session.ProgramFolder, files, messages, kFlightLevelsName);
    if (!text) return false;
    ParsedFlightLevels parsed = ParseFlightLevels(*text);
    session.rules.FlightLevelRules = std::move(parsed.rules);
    if (parsed.offendingLine) ShowRuleLineError(messages, kFlightLevelsName, *parsed.offendingLine);
    return !parsed.offendingLine;
}

}  // namespace orlo

#include "operations/MoverAction.h"

#include "core/InitialisationFile.h"
#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr InitialisationDialect kActionDialect{.remarks = ";",
                                               .sections = InitialisationDialect::Sections::Closed};
constexpr std::int32_t kMoveType = 1;  // the only type there is

}  // namespace

std::string MoverActionText(const MoverAction& action) {
    std::string text;
    AppendSectionLine(text, "GENERAL");
    AppendValueLine(text, "TYPE", std::to_string(kMoveType));
    if (!action.Selection.empty()) AppendSectionLine(text, "SELECTION");
    for (const std::string& title : action.Selection) AppendValueLine(text, title, "1");
    AppendSectionLine(text, "OPTIONS");
    AppendValueLine(text, "PERCENT", std::to_string(action.Percent));
    AppendValueLine(text, "SOURCE", action.Source);
    AppendValueLine(text, "DESTINATION", action.Destination);
    return text;
}

std::optional<MoverAction> ReadMoverAction(std::string text) {
    const InitialisationFile file(std::move(text), kActionDialect);
    const auto valueOf = [&file](std::string_view section, std::string_view name) {
        return std::string(TrimBlanks(file.Get(section, name).value_or("")));
    };
    if (ParseWholeNumber(valueOf("GENERAL", "TYPE")) != kMoveType) return std::nullopt;
    MoverAction action;
    const auto percent = ParseWholeNumber(valueOf("OPTIONS", "PERCENT"));
    if (percent && *percent >= 1 && *percent <= 100) action.Percent = *percent;
    action.Source = valueOf("OPTIONS", "SOURCE");
    action.Destination = valueOf("OPTIONS", "DESTINATION");
    const auto selection = file.FindSection("SELECTION");
    if (!selection) return action;
    for (std::size_t place = 0; place < file.ValueCount(*selection); ++place) {
        action.Selection.emplace_back(file.ValueAt(*selection, place).name);
    }
    return action;
}

}  // namespace orlo

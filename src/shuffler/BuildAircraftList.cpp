#include "shuffler/BuildAircraftList.h"

#include <algorithm>
#include <limits>

#include "core/Number.h"
#include "core/PlanSideFiles.h"
#include "core/Text.h"

namespace orlo {
namespace {

std::string TitleOf(std::string_view nodeText) {
    return std::string(TrimBlanks(nodeText.substr(0, nodeText.rfind('('))));
}

// The installed aircraft that a node stands for; null for a group.
const FSAircraft* AircraftOf(const TreeNode& node, const Session& session) {
    if (node.colour != Colour::Blue) return nullptr;
    const auto index = ParseWholeNumber(node.tag);
    if (!index || *index < 0 || *index >= session.FSAircraftCount()) return nullptr;
    return &session.FSAircrafts[static_cast<std::size_t>(*index)];
}

std::int32_t HighestNumber(const Session& session) {
    std::int32_t highest = 0;
    for (const PlanAircraft& aircraft : session.PlanAircrafts) {
        highest = std::max(highest, AircraftNumber(aircraft.ACNumber));
    }
    return highest;
}

}  // namespace

void BuildAircraftList(const MainForm& form, Session& session) {
    session.PlanAircrafts.clear();
    std::int64_t number = session.StartNumber;
    for (const TreeNode& node : form.tvShuffleAircraft.nodes) {
        const FSAircraft* aircraft = node.checked ? AircraftOf(node, session) : nullptr;
        if (aircraft == nullptr) continue;
        session.PlanAircrafts.push_back(
            {Concat("AC#", number++), TitleOf(node.text), std::to_string(aircraft->CruiseSpeed), 0});
    }
    session.MaxACNumber = HighestNumber(session);
}

std::int32_t NextStartNumber(const Session& session) {
    const std::int32_t highest = HighestNumber(session);
    return highest < std::numeric_limits<std::int32_t>::max() ? highest + 1 : highest;
}

}  // namespace orlo

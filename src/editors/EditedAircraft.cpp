#include "editors/EditedAircraft.h"

#include "core/Text.h"
#include "editors/FSAircraftRows.h"

namespace orlo {

std::span<FSAircraft> VariantsOfFile(Fleet& fleet, const FSAircraft& aircraft) {
    const auto place = static_cast<std::size_t>(&aircraft - fleet.FSAircrafts.data());
    std::size_t first = place;
    std::size_t end = place + 1;
    const auto isSame = [&](std::size_t at) {
        return fleet.FSAircrafts[at].ConfigFile == aircraft.ConfigFile;
    };
    while (first > 0 && isSame(first - 1)) --first;
    while (end < fleet.FSAircrafts.size() && isSame(end)) ++end;
    return {&fleet.FSAircrafts[first], end - first};
}

std::string ConfigValue(std::string_view typed) {
    const std::string text = ReplaceAll(typed, ";", " ");
    return std::string(TrimWhite(text));
}

FSAircraft* EditedAircraft(Context& context) {
    const ListView& list = context.forms.frmFSAircraftEdit.lvAircrafts;
    if (list.current < 0) return nullptr;
    const std::int32_t place = static_cast<const FSAircraftRows&>(*list.Source()).Place(list.current);
    return &context.session.fleet.FSAircrafts[static_cast<std::size_t>(place)];
}

void ShowAircraftChanged(Context& context) {
    FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    form.lvAircrafts.SourceChanged();
    form.cmdSave.enabled = true;
    form.cmdUndo.enabled = true;
}

}  // namespace orlo

#include "editors/EditedAircraft.h"

#include "core/Text.h"
#include "editors/FSAircraftRows.h"

namespace orlo {

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

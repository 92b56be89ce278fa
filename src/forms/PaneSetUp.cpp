#include "forms/PaneSetUp.h"

#include "core/Text.h"
#include "core/TimeZoneNames.h"

namespace orlo {

void SetColumns(ListView& list, std::initializer_list<std::string_view> captions) {
    for (const std::string_view caption : captions) list.AddColumn(UpperText(caption), caption);
}

void SetEntries(ComboBox& combo, std::initializer_list<ComboEntry> entries) {
    for (const ComboEntry& entry : entries) combo.Add(entry.text, entry.itemData);
}

void SetZones(ComboBox& combo) {
    for (const std::string_view zone : kTimeZoneNames) combo.Add(zone);
    combo.SelectText("GMT");
}

}  // namespace orlo

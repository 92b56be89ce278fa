#include "forms/TimetablePane.h"

#include "core/ClockTime.h"
#include "forms/PaneSetUp.h"

namespace orlo {

TimetablePane::TimetablePane(Form& form) : picTimetable{form, "picTimetable"} {
    picTimetable.visible = false;
    SetColumns(lvTimetable,
               {"Time", "Arr./Dep.", "From/To", "Airline", "Flight Number", "Aircraft", "Registration"});
    cmTTDay.Add("#Week#", -1);
    for (const std::string_view day : kWeekdayNames) {
        cmTTDay.Add(day, static_cast<std::int32_t>(cmTTDay.entries.size()) - 1);
    }
    cmTTDay.SelectFirst();
    SetZones(cmTTZone);
    txtTTStart.text = "00:00:00";
    txtTTEnd.text = "23:59:59";
    txtTTPercent.text = "100";
    for (CheckBox* box : {&ckTTArrival, &ckTTDeparture, &ckTTIFR, &ckTTVFR}) box->checked = true;
}

}  // namespace orlo

#include "forms/TimetablePane.h"

#include "forms/PaneSetUp.h"

namespace orlo {

TimetablePane::TimetablePane(Form& form) : picTimetable{form, "picTimetable"} {
    picTimetable.visible = false;
    SetColumns(lvTimetable,
               {"Time", "Arr./Dep.", "From/To", "Airline", "Flight Number", "Aircraft", "Registration"});
    SetEntries(cmTTDay, {{"#Week#", -1},
                         {"Sunday", 0},
                         {"Monday", 1},
                         {"Tuesday", 2},
                         {"Wednesday", 3},
                         {"Thursday", 4},
                         {"Friday", 5},
                         {"Saturday", 6}});
    cmTTDay.SelectFirst();
    SetZones(cmTTZone);
    txtTTStart.text = "00:00:00";
    txtTTEnd.text = "23:59:59";
    txtTTPercent.text = "100";
    for (CheckBox* box : {&ckTTArrival, &ckTTDeparture, &ckTTIFR, &ckTTVFR}) box->checked = true;
}

}  // namespace orlo

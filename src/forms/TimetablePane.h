#pragma once

#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// The pane of the tab Timetable: what happens at an airport, and when.
struct TimetablePane {
    explicit TimetablePane(Form& form);

    Picture picTimetable;
    Label lblTTAirport{picTimetable, "lblTTAirport",
                       "&Airport ICAO (Enter multiple overlays separated by commas)"};
    TextBox txtTTAirport{picTimetable, "txtTTAirport"};
    Label lblTTZone{picTimetable, "lblTTZone", "&Time Zone"};
    ComboBox cmTTZone{picTimetable, "cmTTZone"};
    Label lblTTDay{picTimetable, "lblTTDay", "Da&y"};
    ComboBox cmTTDay{picTimetable, "cmTTDay"};
    Label lblTTStart{picTimetable, "lblTTStart", "Start Ti&me"};
    TextBox txtTTStart{picTimetable, "txtTTStart"};
    Label lblTTEnd{picTimetable, "lblTTEnd", "&End Time"};
    TextBox txtTTEnd{picTimetable, "txtTTEnd"};
    Label lblTTPercent{picTimetable, "lblTTPercent", "A&I Percent"};
    TextBox txtTTPercent{picTimetable, "txtTTPercent"};
    CheckBox ckTTArrival{picTimetable, "ckTTArrival", "A&rrival"};
    CheckBox ckTTDeparture{picTimetable, "ckTTDeparture", "&Departure"};
    CheckBox ckTTIFR{picTimetable, "ckTTIFR", "&IFR"};
    CheckBox ckTTVFR{picTimetable, "ckTTVFR", "&VFR"};
    Label lblTTPreview{picTimetable, "lblTTPreview", "Previe&w"};
    ListView lvTimetable{picTimetable, "lvTimetable"};
    Button cmdTTShow{picTimetable, "cmdTTShow", "Sh&ow"};
    Button cmdTTPrint{picTimetable, "cmdTTPrint", "&Print"};
    Button cmdTTSave{picTimetable, "cmdTTSave", "&Save"};
    Button cmdTTStatistics{picTimetable, "cmdTTStatistics", "Statisti&cs"};

    // What the pane remembers besides its controls.
    bool ShowsOneDay = false;  // the rows were asked for by a day of the week
};

}  // namespace orlo

#pragma once

#include <vector>

#include "core/FlightList.h"
#include "core/PlanRecords.h"
#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// The editor of the plan's aircraft. The place of a row in lvAircrafts is the aircraft's place in
// PlanAircrafts, that of a row in lvFSAircraft its place in FSAircrafts.
struct AircraftEditForm : Form {
    AircraftEditForm();

    Label lblAircrafts{*this, "lblAircrafts", "Available &Aircraft (red colored are not installed in FS)"};
    ListView lvAircrafts{*this, "lvAircrafts"};
    Button cmdNumber{*this, "cmdNumber", "&Number"};
    Button cmdSpeed{*this, "cmdSpeed", "&Speed"};
    Button cmdTitle{*this, "cmdTitle", "&Title"};
    Button cmdDelete{*this, "cmdDelete", "&Delete"};
    Label lblAircraft{*this, "lblAircraft", "&Replacement"};
    ComboBox cmAircraft{*this, "cmAircraft"};  // item data: place in PlanAircrafts
    Button cmdSubstitute{*this, "cmdSubstitute", "Su&bstitute"};

    Label lblFSAircraft{*this, "lblFSAircraft",
                        "Available &FS Aircraft (blue colored are currently used in the plan)"};
    ListView lvFSAircraft{*this, "lvFSAircraft"};
    Button cmdAdd{*this, "cmdAdd", "&Add"};
    Button cmdAddMissing{*this, "cmdAddMissing", "Add &missing"};

    Button cmdSave{*this, "cmdSave", "Sa&ve"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

    // What the dialog holds besides its controls, for one showing.
    FlightList KeptFlights;  // as they were at entry
    std::vector<PlanAircraft> KeptAircrafts;
    bool Changed = false;  // flights or aircraft differ from them
    bool Saved = false;    // the changes stay
};

}  // namespace orlo

#pragma once

#include "forms/Form.h"
#include "forms/TreeView.h"

namespace orlo {

// The pane of the tab Shuffle: the installed aircraft to choose from, and the options of a shuffle.
struct ShufflePane {
    explicit ShufflePane(Form& form);

    Picture picShuffle;
    Label lblShufflerView{picShuffle, "lblShufflerView", "&View mode"};
    ComboBox cmShufflerView{picShuffle, "cmShufflerView"};
    Label lblShuffleAircraft{picShuffle, "lblShuffleAircraft",
                             "&Select Aircraft to use for the Flightplan (0 aircraft selected)"};
    TreeView tvShuffleAircraft{picShuffle, "tvShuffleAircraft"};
    Label lblStartNumber{picShuffle, "lblStartNumber", "Aircraft &numbers start with"};
    TextBox txtStartNumber{picShuffle, "txtStartNumber"};
    Button cmdCalcStartNumber{picShuffle, "cmdCalcStartNumber", "Auto Value"};
    CheckBox ckOverwriteTailNumber{picShuffle, "ckOverwriteTailNumber", "Generate &Tail number"};
    CheckBox ckRemoveMinus{picShuffle, "ckRemoveMinus", "&Remove char '-' from the Tail number"};
    CheckBox ckCheckFL{picShuffle, "ckCheckFL", "Correct &Flight Levels"};
    CheckBox ckIFRVFR{picShuffle, "ckIFRVFR", "Change &IFR/VFR"};
    CheckBox ckCheckVisitedAirports{picShuffle, "ckCheckVisitedAirports",
                                    "Include &visited Airports in search"};
    Button cmdShuffle{picShuffle, "cmdShuffle", "Sh&uffle"};
    Button cmdACTypeDat{picShuffle, "cmdACTypeDat", "Create 'AircraftTypes.dat'"};
};

}  // namespace orlo

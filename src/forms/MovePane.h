#pragma once

#include <cstdint>

#include "forms/Form.h"
#include "forms/TreeView.h"

namespace orlo {

// The pane of the tab Move: which aircraft's traffic is moved, and between which airports.
struct MovePane {
    explicit MovePane(Form& form);

    Picture picMove;
    Label lblMoveView{picMove, "lblMoveView", "&View mode"};
    ComboBox cmMoveView{picMove, "cmMoveView"};
    Label lblMoveAircrafts{picMove, "lblMoveAircrafts",
                           "Select &Aircraft to move (red colored are not used in the plan)"};
    TreeView tvMoveAircrafts{picMove, "tvMoveAircrafts"};
    Label lblSource{picMove, "lblSource", "ICAO &Source"};
    ComboBox cmSource{picMove, "cmSource"};
    Label lblDest{picMove, "lblDest", "ICAO &Destination"};
    ComboBox cmDest{picMove, "cmDest"};
    Button cmdMove{picMove, "cmdMove", "&Move"};
    Button cmdMovePercent{picMove, "cmdMovePercent", "&Percent"};
    Button cmdMoveSave{picMove, "cmdMoveSave", "&Save Action"};
    Button cmdMoveLoad{picMove, "cmdMoveLoad", "&Load Action"};
    Button cmdMoveExecute{picMove, "cmdMoveExecute", "&Execute Action"};

    // What the pane remembers besides its controls.
    std::int32_t MovePercent = -1;  // of the last or loaded mover action; -1 moves all
    bool ExecutingAction = false;   // a percentage move then takes MovePercent and asks nothing
    bool ActionToSave = false;      // traffic was moved since the view was reset
    bool ActionLoaded = false;      // a loaded action can be executed
};

}  // namespace orlo

#include "forms/MovePane.h"

#include "forms/PaneSetUp.h"

namespace orlo {

MovePane::MovePane(Form& form) : picMove{form, "picMove"} {
    picMove.visible = false;
    SetEntries(cmMoveView, {{"Aircraft Classes", 0}, {"Airlines", 0}});
}

}  // namespace orlo

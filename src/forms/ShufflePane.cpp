#include "forms/ShufflePane.h"

#include "forms/PaneSetUp.h"

namespace orlo {

ShufflePane::ShufflePane(Form& form) : picShuffle{form, "picShuffle"} {
    SetEntries(cmShufflerView, {{"Aircraft Classes", 0}, {"Airlines", 0}, {"UI Manufacturer", 0}});
}

}  // namespace orlo

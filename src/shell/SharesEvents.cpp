#include <array>

#include "shell/EventTables.h"
#include "shell/HelpMenu.h"
#include "shuffler/SharesWindow.h"

namespace orlo {
namespace {

using enum EventKind;
using SF = SharesForm;

constexpr std::array kSharesEvents = {
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{ControlOf<SF, &SF::lvSets>, SelectRow, Run<ShowSharesOfSet>},
    EventEntry{ControlOf<SF, &SF::lvSets>, ClickColumn, SortByColumn},
    EventEntry{ControlOf<SF, &SF::cmdSavePicture>, Click, Run<SaveSharesPicture>},
    EventEntry{ControlOf<SF, &SF::cmdClose>, Click, Run<CloseShares>},
};

}  // namespace

EventTable SharesEvents() {
    return kSharesEvents;
}

}  // namespace orlo

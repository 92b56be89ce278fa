#include "shell/PaneFacts.h"

#include <array>

#include "projects/MergeProject.h"
#include "projects/ProjectEntries.h"
#include "shell/EventTables.h"

namespace orlo {
namespace {

using M = MainForm;
using enum EventKind;
using namespace edges;

// Delete and Insert in the list press its buttons.
void OnProjectKey(Context& context, Event& event) {
    MainForm& form = context.forms.frmMain;
    if (event.value == kKeyDelete) event.presses = &form.cmdProjectDelete;
    if (event.value == kKeyInsert) event.presses = &form.cmdProjectAdd;
}

constexpr std::array kProjectEvents = {
    EventEntry{InMain<&M::cmdProjectCompile>, Click, Run<OnProjectCompile>},
    EventEntry{InMain<&M::cmdProjectMerge>, Click, Run<OnProjectMerge>},
    EventEntry{InMain<&M::cmdProjectAdd>, Click, Run<AddProjectEntry>},
    EventEntry{InMain<&M::cmdProjectDelete>, Click, Run<DeleteProjectEntries>},
    EventEntry{InMain<&M::cmdProjectFile>, Click, Run<ChangeProjectFlightplan>},
    EventEntry{InMain<&M::cmdProjectAC>, Click, Run<ChangeProjectAircraft>},
    EventEntry{InMain<&M::txtProjectDescription>, Leave, Run<TakeProjectDescription>},
    EventEntry{InMain<&M::lvProject>, SelectRow, Run<OnSelectProjectRow>},
    EventEntry{InMain<&M::lvProject>, ClickColumn, SortByColumn},
    EventEntry{InMain<&M::lvProject>, KeyUp, OnProjectKey},
};

constexpr std::array kProjectResize = {
    ResizeRow{InMain<&M::lvProject>, kGrows},
    ResizeRow{InMain<&M::txtProjectFile>, kGrowsWide},
    ResizeRow{InMain<&M::txtProjectAC>, kGrowsWide},
    ResizeRow{InMain<&M::txtProjectDescription>, kGrowsWide},
    ResizeRow{InMain<&M::cmdProjectCompile>, kBottomMiddle},
    ResizeRow{InMain<&M::cmdProjectMerge>, kBottomMiddle},
    ResizeRow{InMain<&M::cmdProjectAdd>, kBottomMiddle},
    ResizeRow{InMain<&M::cmdProjectDelete>, kBottomMiddle},
    ResizeRow{InMain<&M::cmdProjectFile>, kTopRight},
    ResizeRow{InMain<&M::cmdProjectAC>, kTopRight},
    ResizeRow{InMain<&M::frProject>, kBottomWide},
    ResizeRow{InMain<&M::picProjectDummy>, kBottomWide},
};

}  // namespace

PaneFacts ProjectPaneFacts() {
    return {"PROJECT",      &M::picProject, &M::cmdProjectCompile, nullptr,
            "project.html", kProjectEvents, kProjectResize};
}

}  // namespace orlo

#pragma once

#include <span>
#include <string_view>

#include "forms/Event.h"
#include "forms/MainForm.h"
#include "mainwindow/Resize.h"

namespace orlo {

// A control of the main window, for tables.
template <auto Member>
inline constexpr ControlGetter InMain = ControlOf<MainForm, Member>;

// How a control follows the size of the window: the modes of its top, left, bottom and right edge. A bottom
// or right edge that "stays" keeps the control's height or width.
namespace edges {
using enum EdgeMode;
inline constexpr EdgeModes kStays = {Stays, Stays, Stays, Stays};
inline constexpr EdgeModes kGrows = {Stays, Stays, FollowsFarEdge, FollowsFarEdge};
inline constexpr EdgeModes kGrowsWide = {Stays, Stays, Stays, FollowsFarEdge};
inline constexpr EdgeModes kTopRight = {Stays, FollowsFarEdge, Stays, FollowsFarEdge};
inline constexpr EdgeModes kLeftHalf = {Stays, Stays, Stays, FollowsMiddle};
inline constexpr EdgeModes kFromMiddle = {Stays, FollowsMiddle, Stays, Stays};
inline constexpr EdgeModes kRightHalf = {Stays, FollowsMiddle, Stays, FollowsFarEdge};
inline constexpr EdgeModes kLow = {FollowsFarEdge, Stays, Stays, Stays};
inline constexpr EdgeModes kLowLeftHalf = {FollowsFarEdge, Stays, Stays, FollowsMiddle};
inline constexpr EdgeModes kLowFromMiddle = {FollowsFarEdge, FollowsMiddle, Stays, Stays};
inline constexpr EdgeModes kLowRightHalf = {FollowsFarEdge, FollowsMiddle, Stays, FollowsFarEdge};
inline constexpr EdgeModes kBottomLeft = {FollowsFarEdge, Stays, FollowsFarEdge, Stays};
inline constexpr EdgeModes kBottomMiddle = {FollowsFarEdge, FollowsMiddle, FollowsFarEdge, FollowsMiddle};
inline constexpr EdgeModes kBottomRight = {FollowsFarEdge, FollowsFarEdge, FollowsFarEdge, FollowsFarEdge};
inline constexpr EdgeModes kBottomWide = {FollowsFarEdge, Stays, FollowsFarEdge, FollowsFarEdge};
}  // namespace edges

struct ResizeRow {
    ControlGetter control;
    EdgeModes modes;
};

// What the shell knows of a pane of the main window.
struct PaneFacts {
    std::string_view key;  // of its tab
    Picture MainForm::*pane;
    Button MainForm::*defaultButton;
    ControlGetter focus;        // what gets the focus when the tab is chosen; null: the focus stays
    std::string_view helpPage;  // a file of the folder Help
    EventTable events;
    std::span<const ResizeRow> resize;
};

PaneFacts ShufflePaneFacts();
PaneFacts MovePaneFacts();
PaneFacts ExportPaneFacts();
PaneFacts TimetablePaneFacts();
PaneFacts ProjectPaneFacts();

// In the order of the tabs.
std::span<const PaneFacts> Panes();
// The pane of the tab that is chosen; the first one where no tab is.
const PaneFacts& ChosenPane(const MainForm& form);
// Of the pane that the control stands in; null for none.
const PaneFacts* PaneAround(const MainForm& form, const Control& control);

// Registers the controls of the main window that follow its size, with their boxes in a window of this inner
// size.
void RegisterMainLayout(cResize& layout, MainForm& form, std::int32_t height, std::int32_t width);

}  // namespace orlo

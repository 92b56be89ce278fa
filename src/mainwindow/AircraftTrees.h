#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/Session.h"
#include "forms/MainForm.h"

namespace orlo {

// The two trees of installed aircraft: groups by the view that the combo box above the tree shows, and one
// leaf a title.

enum class SkipTree : bool { No, Yes };

// The key of a title's leaf in both trees and every view.
std::string AircraftNodeKey(std::string_view title);

// Adds the leaf and the groups that it needs. `fsIndex` is the aircraft's place in FSAircrafts. A title that
// has its leaf already adds none, but its groups stay.
void AddAircraftToTrees(MainForm& form, const Session& session, std::string_view title,
                        std::string_view airline, std::string_view manufacturer, std::string_view model,
                        std::int32_t fsIndex, SkipTree skipShuffleTree, SkipTree skipMoveTree);

// Whether the aircraft of this title stand in the trees at all.
bool ShowsInTrees(std::string_view title);

// Fills both trees anew from FSAircrafts, marks the plan's aircraft and sorts.
void FillAircraftTrees(MainForm& form, const Session& session);

// For each plan aircraft, its number goes into the tag of its leaf in tvMoveAircrafts, which turns black, and
// its leaf in tvShuffleAircraft is checked.
void MarkPlanAircraft(MainForm& form, const Session& session);

// Whether the choice in a view's combo box asks for another tree: it isn't the one shown last, and a plan
// with flights is open.
bool ViewChanges(const ComboBox& view, const Session& session);

// Rebuild the tree in the chosen view with the same leaves checked, where ViewChanges; in every case the
// choice counts as shown then.
void ChangeShufflerView(MainForm& form, const Session& session);
void ChangeMoveView(MainForm& form, const Session& session);

// The aircraft whose leaves are checked in tvShuffleAircraft, in the order of its nodes. The title is the
// leaf's text in front of its last "(".
std::vector<CheckedAircraft> CheckedShuffleAircraft(const MainForm& form, const Session& session);

// The tool tip of a node of either tree, -1 for none; empty for no tip.
std::string TreeNodeTip(const MainForm& form, const Session& session, const TreeView& tree,
                        std::int32_t node);

}  // namespace orlo

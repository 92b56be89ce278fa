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

// Adds the leaf and the groups that it needs. `fsIndex` is the aircraft's place in FSAircrafts. For a title
// that has a leaf already only the groups are added.
void AddAircraftToTrees(MainForm& form, const Session& session, std::string_view title,
                        std::string_view airline, std::string_view manufacturer, std::string_view model,
                        std::int32_t fsIndex, SkipTree skipShuffleTree, SkipTree skipMoveTree);

// Whether aircraft of this title are shown in the trees.
bool ShowsInTrees(std::string_view title);

// Fills both trees anew from FSAircrafts, marks the plan's aircraft and sorts.
void FillAircraftTrees(MainForm& form, const Session& session);

// For each plan aircraft: its leaf in tvMoveAircrafts turns black and gets its number into the tag, and its
// leaf in tvShuffleAircraft is checked.
void MarkPlanAircraft(MainForm& form, const Session& session);

// Whether the tree must be rebuilt: the view chosen in the combo box isn't the one shown, and the plan has
// flights.
bool ViewChanges(const ComboBox& view, const Session& session);

// Where ViewChanges, rebuild the tree in the chosen view with the same leaves checked. The choice then counts
// as the view shown, rebuilt or not.
void ChangeShufflerView(MainForm& form, const Session& session);
void ChangeMoveView(MainForm& form, const Session& session);

// The aircraft whose leaves are checked in tvShuffleAircraft, in the order of its nodes. The title is the
// leaf's text in front of its last "(".
std::vector<CheckedAircraft> CheckedShuffleAircraft(const MainForm& form, const Session& session);

// The tool tip of a node of either tree, -1 for none; empty for no tip.
std::string TreeNodeTip(const MainForm& form, const Session& session, const TreeView& tree,
                        std::int32_t node);

}  // namespace orlo

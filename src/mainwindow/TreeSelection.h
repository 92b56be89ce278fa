#pragma once

#include <cstdint>
#include <span>

#include "core/Session.h"
#include "forms/MainForm.h"

namespace orlo {

// The check marks of the two aircraft trees. A group is checked when all its children are; with only some of
// them it is unchecked and gray.

// Runs for a node whose check mark has changed: its children take the mark down to all levels, and its
// ancestors follow. Nothing happens while it is running already. In tvShuffleAircraft an open plan's label
// follows too.
void HandleNodeCheck(MainForm& form, const Session& session, TreeView& tree, std::int32_t node);

// Checks the nodes and runs HandleNodeCheck for each, in order; the same outcome in one pass over the tree.
void CheckNodes(MainForm& form, const Session& session, TreeView& tree, std::span<const std::int32_t> nodes);

// Writes the count of checked leaves into lblShuffleAircraft.
void RefreshShuffleLabel(MainForm& form);

// The commands of mnuSelect. On a tree, nodes that are neither blue nor red take the window text colour with
// the first two, and groups follow their children with the third; tvShuffleAircraft refreshes its label.
void SelectAll(MainForm& form, TreeView& tree);
void DeselectAll(MainForm& form, TreeView& tree);
void InverseSelection(MainForm& form, TreeView& tree);
void SelectAll(ListView& list);
void DeselectAll(ListView& list);
void InverseSelection(ListView& list);

// Whether the right mouse button opens mnuSelect on the control: on the trees with a plan that has flights,
// on lvExPreview with a result.
bool OffersSelectMenu(const MainForm& form, const Session& session, const Control& control);

}  // namespace orlo

#pragma once

#include <cstdint>
#include <span>

#include "core/Session.h"
#include "forms/MainForm.h"

namespace orlo {

// The check marks of the two aircraft trees. A group is checked when all its children are; with only some of
// them checked it is unchecked and gray.

// Runs for a node whose check mark has changed: all nodes below take the mark, and its ancestors follow their
// children. Does nothing while it is running already. For tvShuffleAircraft of an open plan the label follows
// too.
void HandleNodeCheck(MainForm& form, const Session& session, TreeView& tree, std::int32_t node);

// As if each node were checked, in order, and HandleNodeCheck ran for it; but in one pass over the tree.
void CheckNodes(MainForm& form, const Session& session, TreeView& tree, std::span<const std::int32_t> nodes);

// Writes the count of checked leaves into lblShuffleAircraft.
void RefreshShuffleLabel(MainForm& form);

// The commands of mnuSelect. On a tree the first two give all nodes but the blue and red leaves the window
// text colour, and the third lets groups follow their children; all three refresh the label of
// tvShuffleAircraft.
void SelectAll(MainForm& form, TreeView& tree);
void DeselectAll(MainForm& form, TreeView& tree);
void InverseSelection(MainForm& form, TreeView& tree);
void SelectAll(ListView& list);
void DeselectAll(ListView& list);
void InverseSelection(ListView& list);

// Whether the right mouse button opens mnuSelect on the control: on the trees while the plan has flights, on
// lvExPreview while it has rows.
bool OffersSelectMenu(const MainForm& form, const Session& session, const Control& control);

}  // namespace orlo

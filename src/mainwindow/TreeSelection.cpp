#include "mainwindow/TreeSelection.h"

#include <algorithm>
#include <vector>

#include "core/Text.h"

namespace orlo {
namespace {

void ClearGray(TreeNode& node) {
    if (node.colour == Colour::Gray) node.colour = Colour::WindowText;
}

bool IsLeafColour(Colour colour) {
    return colour == Colour::Blue || colour == Colour::Red;
}

void PushDown(TreeView& tree, std::int32_t node) {
    const bool checked = tree.At(node).checked;
    std::vector<std::int32_t> waiting = tree.At(node).children;
    while (!waiting.empty()) {
        TreeNode& child = tree.At(waiting.back());
        waiting.pop_back();
        child.checked = checked;
        ClearGray(child);
        waiting.insert(waiting.end(), child.children.begin(), child.children.end());
    }
}

void FollowChildren(TreeView& tree, std::int32_t group) {
    TreeNode& node = tree.At(group);
    bool all = true;
    bool some = false;
    for (const std::int32_t place : node.children) {
        const TreeNode& child = tree.At(place);
        all = all && child.checked;
        some = some || child.checked || child.colour == Colour::Gray;
    }
    node.checked = all;
    node.colour = some && !all ? Colour::Gray : Colour::WindowText;
}

void PullUp(TreeView& tree, std::int32_t node) {
    for (std::int32_t group = tree.At(node).parent; group >= 0; group = tree.At(group).parent) {
        FollowChildren(tree, group);
    }
}

void SetShuffleLabel(MainForm& form, std::int64_t count) {
    form.lblShuffleAircraft.caption =
        Concat("&Select Aircraft to use for the Flightplan (", count, " aircraft selected)");
}

void SetAll(TreeView& tree, bool checked) {
    for (TreeNode& node : tree.nodes) {
        node.checked = checked;
        if (!IsLeafColour(node.colour)) node.colour = Colour::WindowText;
    }
    ++tree.stateRevision;
}

bool IsShuffleTree(const MainForm& form, const TreeView& tree) {
    return &tree == &form.tvShuffleAircraft;
}

// Checks the nodes and all below them. The result tells, by place, which nodes are their ancestors.
std::vector<bool> CheckSubtrees(TreeView& tree, std::span<const std::int32_t> nodes) {
    std::vector<bool> done(tree.nodes.size());
    std::vector<bool> ancestors(tree.nodes.size());
    std::vector<std::int32_t> waiting;
    for (const std::int32_t node : nodes) {
        for (std::int32_t group = tree.At(node).parent; group >= 0; group = tree.At(group).parent) {
            if (ancestors[static_cast<std::size_t>(group)]) break;
            ancestors[static_cast<std::size_t>(group)] = true;
        }
        waiting.push_back(node);
        while (!waiting.empty()) {
            const std::int32_t place = waiting.back();
            waiting.pop_back();
            if (done[static_cast<std::size_t>(place)]) continue;
            done[static_cast<std::size_t>(place)] = true;
            TreeNode& below = tree.At(place);
            below.checked = true;
            ClearGray(below);
            waiting.insert(waiting.end(), below.children.begin(), below.children.end());
        }
    }
    return ancestors;
}

}  // namespace

void HandleNodeCheck(MainForm& form, const Session& session, TreeView& tree, std::int32_t node) {
    if (form.HandlingNodeCheck) return;
    form.HandlingNodeCheck = true;
    ClearGray(tree.At(node));
    PushDown(tree, node);
    PullUp(tree, node);
    ++tree.stateRevision;
    if (IsShuffleTree(form, tree) && session.plan.PlanLoaded) RefreshShuffleLabel(form);
    form.HandlingNodeCheck = false;
}

// Nothing is unchecked here, so a checked subtree stays checked, and in the end each ancestor is as its
// children are. So it is enough that the ancestors follow their children once, from below: a child stands
// behind its parent in tree order.
void CheckNodes(MainForm& form, const Session& session, TreeView& tree, std::span<const std::int32_t> nodes) {
    if (nodes.empty()) return;
    ++tree.stateRevision;
    if (form.HandlingNodeCheck) {
        for (const std::int32_t node : nodes) tree.At(node).checked = true;
        return;
    }
    const std::vector<bool> ancestors = CheckSubtrees(tree, nodes);
    for (std::int32_t group = tree.Count() - 1; group >= 0; --group) {
        if (ancestors[static_cast<std::size_t>(group)]) FollowChildren(tree, group);
    }
    if (IsShuffleTree(form, tree) && session.plan.PlanLoaded) RefreshShuffleLabel(form);
}

void RefreshShuffleLabel(MainForm& form) {
    const std::vector<TreeNode>& nodes = form.tvShuffleAircraft.nodes;
    SetShuffleLabel(form, std::count_if(nodes.begin(), nodes.end(), [](const TreeNode& node) {
                        return node.checked && node.colour == Colour::Blue;
                    }));
}

void SelectAll(MainForm& form, TreeView& tree) {
    SetAll(tree, true);
    if (IsShuffleTree(form, tree)) RefreshShuffleLabel(form);
}

void DeselectAll(MainForm& form, TreeView& tree) {
    SetAll(tree, false);
    if (IsShuffleTree(form, tree)) SetShuffleLabel(form, 0);
}

// Only leaves are inverted. From the last node to the first, each group then follows its children, which are
// done.
void InverseSelection(MainForm& form, TreeView& tree) {
    for (std::int32_t node = tree.Count() - 1; node >= 0; --node) {
        if (tree.At(node).children.empty()) {
            tree.At(node).checked = !tree.At(node).checked;
        } else {
            FollowChildren(tree, node);
        }
    }
    ++tree.stateRevision;
    if (IsShuffleTree(form, tree)) RefreshShuffleLabel(form);
}

void SelectAll(ListView& list) {
    list.SelectAll(true);
}

void DeselectAll(ListView& list) {
    list.SelectAll(false);
}

void InverseSelection(ListView& list) {
    for (std::int32_t position = 0; position < list.Count(); ++position) {
        const std::int32_t place = list.PlaceAt(position);
        list.Select(place, !list.Selected(place));
    }
}

bool OffersSelectMenu(const MainForm& form, const Session& session, const Control& control) {
    if (&control == &form.lvExPreview) return form.lvExPreview.Count() > 0;
    const bool isTree = &control == &form.tvShuffleAircraft || &control == &form.tvMoveAircrafts;
    return isTree && session.plan.FlightCount() != 0;
}

}  // namespace orlo

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/KeyedIndex.h"
#include "forms/Control.h"

namespace orlo {

struct TreeNode {
    std::string key;
    std::string text;
    std::string tag;
    Colour colour = Colour::WindowText;
    bool checked = false;
    std::int32_t parent = -1;            // place of the parent, -1 at the root
    std::vector<std::int32_t> children;  // places, as displayed
};

// A tree as flat nodes in the order of adding; "tree order" is this order. Keys are found without regard to
// case.
struct TreeView : Control {
    TreeView(Container in, std::string_view nameOf)
        : Control(ControlKind::TreeView, in.form, in.parent, nameOf, "") {}

    // Place of the new node; -1, with nothing changed, when another has its key. With `parentPlace` -1 it is
    // a root.
    std::int32_t Add(std::int32_t parentPlace, std::string_view key, std::string_view text,
                     Colour nodeColour);
    std::int32_t Find(std::string_view key) const;  // -1 when missing
    void Clear();
    void Reserve(std::size_t count);

    TreeNode& At(std::int32_t place) { return nodes[static_cast<std::size_t>(place)]; }
    const TreeNode& At(std::int32_t place) const { return nodes[static_cast<std::size_t>(place)]; }
    std::int32_t Count() const { return static_cast<std::int32_t>(nodes.size()); }

    // Sorts the children of every node, and the roots, by text with case folded; equal ones keep their order.
    void SortChildren();

    // All nodes from top to bottom as a fully opened tree displays them.
    std::vector<std::int32_t> DisplayOrder() const;

    std::vector<TreeNode> nodes;
    std::vector<std::int32_t> roots;  // places, as displayed
    std::int32_t current = -1;
    bool checkBoxes = true;
    std::string emptyHint;             // drawn in the tree while it has no nodes
    std::int64_t contentRevision = 0;  // counts adds, clears and sorts
    std::int64_t stateRevision = 0;    // whoever changes checks, colours or tags raises it

  private:
    KeyedIndex<std::int32_t> index_;
};

}  // namespace orlo

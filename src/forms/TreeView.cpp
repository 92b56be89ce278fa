#include "forms/TreeView.h"

#include <algorithm>

namespace orlo {

std::int32_t TreeView::Add(std::int32_t parentPlace, std::string_view key, std::string_view text,
                           Colour nodeColour) {
    const std::int32_t place = Count();
    if (!index_.Add(key, place)) return -1;
    TreeNode node;
    node.key = key;
    node.text = text;
    node.colour = nodeColour;
    node.parent = parentPlace;
    nodes.push_back(std::move(node));
    (parentPlace < 0 ? roots : At(parentPlace).children).push_back(place);
    ++contentRevision;
    return place;
}

std::int32_t TreeView::Find(std::string_view key) const {
    const std::int32_t* place = index_.Find(key);
    return place == nullptr ? -1 : *place;
}

void TreeView::Clear() {
    nodes.clear();
    roots.clear();
    index_.Clear();
    current = -1;
    ++contentRevision;
}

void TreeView::Reserve(std::size_t count) {
    nodes.reserve(count);
    index_.Reserve(count);
}

void TreeView::SortChildren() {
    const auto byText = [this](std::int32_t a, std::int32_t b) {
        return CompareNoCase(At(a).text, At(b).text) < 0;
    };
    std::stable_sort(roots.begin(), roots.end(), byText);
    for (TreeNode& node : nodes) std::stable_sort(node.children.begin(), node.children.end(), byText);
    ++contentRevision;
}

std::vector<std::int32_t> TreeView::DisplayOrder() const {
    std::vector<std::int32_t> order;
    order.reserve(nodes.size());
    std::vector<std::int32_t> waiting(roots.rbegin(), roots.rend());
    while (!waiting.empty()) {
        const std::int32_t place = waiting.back();
        waiting.pop_back();
        order.push_back(place);
        const std::vector<std::int32_t>& children = At(place).children;
        waiting.insert(waiting.end(), children.rbegin(), children.rend());
    }
    return order;
}

}  // namespace orlo

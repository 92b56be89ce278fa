#include "shell/PaneFacts.h"

#include <algorithm>
#include <array>

namespace orlo {

std::span<const PaneFacts> Panes() {
    static const std::array panes = {ShufflePaneFacts(), MovePaneFacts(), ExportPaneFacts(),
                                     TimetablePaneFacts(), ProjectPaneFacts()};
    return panes;
}

const PaneFacts& ChosenPane(const MainForm& form) {
    const auto panes = Panes();
    const auto found = std::find_if(panes.begin(), panes.end(), [&](const PaneFacts& pane) {
        return pane.key == form.tabMain.selectedKey;
    });
    return found == panes.end() ? panes.front() : *found;
}

const PaneFacts* PaneAround(const MainForm& form, const Control& control) {
    const Control* outermost = &control;
    while (outermost->parent != nullptr) outermost = outermost->parent;
    const auto panes = Panes();
    const auto found = std::find_if(panes.begin(), panes.end(),
                                    [&](const PaneFacts& pane) { return &(form.*pane.pane) == outermost; });
    return found == panes.end() ? nullptr : &*found;
}

void RegisterMainLayout(cResize& layout, MainForm& form, std::int32_t height, std::int32_t width) {
    layout.SetFormHeight(height);
    layout.SetFormWidth(width);
    layout.Add(form.tabMain, edges::kGrows, EdgeUnit::Offset);
    for (const PaneFacts& pane : Panes()) {
        layout.Add(form.*pane.pane, edges::kGrows, EdgeUnit::Offset);
        for (const ResizeRow& row : pane.resize) layout.Add(row.control(form), row.modes, EdgeUnit::Offset);
    }
}

}  // namespace orlo

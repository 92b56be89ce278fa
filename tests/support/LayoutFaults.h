#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/Text.h"
#include "forms/Form.h"

namespace orlo::test {

struct PlacedControl {
    const Control* control;
    const Control* container;  // whose rows name it
};

inline void AppendPlaced(const Layout& layout, const Control* container, std::vector<PlacedControl>& placed) {
    for (const LayoutRow& row : layout.rows) {
        for (const LayoutItem& item : row.items) {
            if (const Label* label = BroughtLabel(*item.control)) placed.push_back({label, container});
            placed.push_back({item.control, container});
            if (item.button != nullptr) placed.push_back({item.button, container});
            for (const Layout& inside : item.inside) AppendPlaced(inside, item.control, placed);
        }
        for (const Layout& pane : row.panes) AppendPlaced(pane, container, placed);
    }
}

// What is wrong with the rows of a form, a line a fault; empty for nothing.
inline std::string LayoutFaults(const Form& form) {
    std::vector<PlacedControl> placed;
    AppendPlaced(form.layout, nullptr, placed);
    std::string faults;
    const auto tell = [&](const Control& control, std::string_view what) {
        faults += Concat(form.name, ".", control.name, " ", what, "\n");
    };
    std::size_t last = 0;
    for (const Control* control : form.Controls()) {
        if (control->kind == ControlKind::MenuEntry) continue;
        const auto isIt = [&](const PlacedControl& one) { return one.control == control; };
        const auto found = std::find_if(placed.begin(), placed.end(), isIt);
        const auto rows = std::count_if(placed.begin(), placed.end(), isIt);
        if (rows != 1) tell(*control, rows == 0 ? "stands in no row" : "stands in two rows");
        if (found == placed.end()) continue;
        if (found->container != control->parent) tell(*control, "stands in rows of another container");
        const auto at = static_cast<std::size_t>(found - placed.begin());
        if (at < last) tell(*control, "stands before what is declared before it");
        last = at;
    }
    return faults;
}

}  // namespace orlo::test

#include "mainwindow/Resize.h"

#include "core/Number.h"

namespace orlo {
namespace {

// Where an edge stands after the window's size went from `before` to `now`.
double MovedEdge(std::int32_t edge, EdgeMode mode, EdgeUnit unit, std::int32_t before, std::int32_t now) {
    const double half = mode == EdgeMode::FollowsMiddle ? 2 : 1;
    if (unit == EdgeUnit::Offset) return edge + (now - before) / half;
    if (before == 0) return edge;
    return edge + edge * ((static_cast<double>(now) / before - 1) / half);
}

std::int32_t Rounded(double value) {
    return static_cast<std::int32_t>(RoundHalfEven(value));
}

}  // namespace

void cResize::Add(Control& control, EdgeModes modes, EdgeUnit unit) {
    const ControlBox& box = control.box;
    entries_.push_back(
        {&control, box.top, box.left, box.top + box.height, box.left + box.width, modes, unit});
}

void cResize::Resize(std::int32_t height, std::int32_t width) const {
    for (const Entry& entry : entries_) {
        ControlBox& box = entry.control->box;
        const EdgeModes& modes = entry.modes;
        if (modes.top != EdgeMode::Stays) {
            box.top = Rounded(MovedEdge(entry.top, modes.top, entry.unit, height_, height));
        }
        if (modes.left != EdgeMode::Stays) {
            box.left = Rounded(MovedEdge(entry.left, modes.left, entry.unit, width_, width));
        }
        if (modes.bottom != EdgeMode::Stays) {
            box.height =
                Rounded(MovedEdge(entry.bottom, modes.bottom, entry.unit, height_, height) - box.top);
        }
        if (modes.right != EdgeMode::Stays) {
            box.width = Rounded(MovedEdge(entry.right, modes.right, entry.unit, width_, width) - box.left);
        }
    }
}

}  // namespace orlo

#pragma once

#include <cstdint>
#include <vector>

#include "forms/Control.h"

namespace orlo {

// How an edge of a control follows the window.
enum class EdgeMode : std::int16_t {
    Stays = 0,
    FollowsFarEdge = 1,  // the window's bottom or right edge
    FollowsMiddle = 2,
};

struct EdgeModes {
    EdgeMode top = EdgeMode::Stays;
    EdgeMode left = EdgeMode::Stays;
    EdgeMode bottom = EdgeMode::Stays;
    EdgeMode right = EdgeMode::Stays;
};

enum class EdgeUnit : std::int16_t { Scale = 0, Offset = 1 };

// The proportional layout of a window: the edges of each registered control stay where they were at
// registration, or move or scale with the window's inner size. Controls are not kept from overlapping here;
// the window's least size sees to that.
class cResize {
  public:
    void SetFormHeight(std::int32_t height) { height_ = height; }
    void SetFormWidth(std::int32_t width) { width_ = width; }

    // Registers the control with its present place.
    void Add(Control& control, EdgeModes modes, EdgeUnit unit);

    // Gives all controls their places in a window of this inner size, in the order of registration.
    void Resize(std::int32_t height, std::int32_t width) const;

  private:
    struct Entry {
        Control* control;
        std::int32_t top;
        std::int32_t left;
        std::int32_t bottom;
        std::int32_t right;
        EdgeModes modes;
        EdgeUnit unit;
    };

    std::vector<Entry> entries_;
    std::int32_t height_ = 0;
    std::int32_t width_ = 0;
};

}  // namespace orlo

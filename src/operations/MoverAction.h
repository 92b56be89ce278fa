#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlo {

inline constexpr std::int32_t kMoveAll = -1;  // as a percentage: no quota

// What a mover action file (docs/action-files.md) keeps: a selection that can be moved again on any plan.
struct MoverAction {
    std::vector<std::string> Selection;  // titles, in the order of the file
    std::int32_t Percent = kMoveAll;     // 1 to 100, or kMoveAll; any whole number when it is written
    std::string Source;
    std::string Destination;
};

// The text of its file. A title with "=" or with ";" in front is written as it stands and not found again.
std::string MoverActionText(const MoverAction& action);

// Nothing for a text that is no action file. A percentage that is no number from 1 to 100 gives kMoveAll.
std::optional<MoverAction> ReadMoverAction(std::string text);

}  // namespace orlo

#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/AircraftRecords.h"

namespace orlo {

// The words of the aircraft classes by class code, as files, logs and windows spell them; empty for
// kClassNone.
inline constexpr std::array<std::string_view, 9> kAircraftClassNames = {
    "",          "Not Used",  "Micro Prop", "Mid Prop", "Large Prop",
    "Micro Jet", "Small Jet", "Large Jet",  "Huge Jet"};

// The word of a class code; `otherwise` for a code that is no class.
inline std::string_view AircraftClassName(std::int32_t classCode, std::string_view otherwise) {
    if (classCode < kClassNotUsed || classCode > kClassHugeJet) return otherwise;
    return kAircraftClassNames[static_cast<std::size_t>(classCode)];
}

}  // namespace orlo

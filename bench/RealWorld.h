#pragma once

#include <filesystem>

namespace orlo::bench {

// The folder of a world of real traffic beside the checkout, whether or not it stands.
inline std::filesystem::path RealWorldFolder() {
    return std::filesystem::path(ORLO_SOURCE_DIR) / ".." / "shared" / "real";
}

}  // namespace orlo::bench

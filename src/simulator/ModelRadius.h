#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "services/FileSystem.h"

namespace orlo {

// What is known of an aircraft's visual model.
struct ModelRadius {
    std::int32_t Format = 0;   // 1 to 3: where the radius stands; 0 when it can't be read
    std::int32_t Radius = -1;  // -1 when it can't be read
    std::string Path;          // of the model; empty when there is none
};

// Position of the radius in a model of format 1 to 3; 0 for any other.
std::uint64_t ModelRadiusPosition(std::int32_t format);

// Reads the model that the `model` value of a section names; with an empty name, that of the plain folder
// "model".
ModelRadius ReadModelRadius(FileSystem& files, const std::string& folder, std::string_view modelName);

}  // namespace orlo

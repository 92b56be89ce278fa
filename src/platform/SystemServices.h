#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/common/SystemRandom.h"
#include "services/Clock.h"
#include "services/FileSystem.h"
#include "services/FrontEnd.h"
#include "services/Services.h"
#include "services/SettingsStore.h"

namespace orlo {

// The services of the system that the program runs on. A front end is put in front of them, and what stands
// in for one of them is assigned over it before.
struct SystemServices {
    // The file of the user's settings, or without one the system's store; the simulator's folder, or where it
    // is empty what the machine's settings tell; and the seed of all draws, or without one the clock.
    explicit SystemServices(const std::optional<std::string>& settings = std::nullopt,
                            const std::string& simulator = {},
                            std::optional<std::uint64_t> seed = std::nullopt);

    std::unique_ptr<FileSystem> files;
    std::unique_ptr<SettingsStore> userSettings;
    std::unique_ptr<SettingsStore> machineSettings;
    SystemRandom random;
    std::unique_ptr<Clock> clock;

    // They hold as long as this and the front end, and as nothing is assigned anew.
    Services Behind(FrontEnd& frontEnd) {
        return {*files, *userSettings, *machineSettings, frontEnd, frontEnd, frontEnd, random, *clock};
    }
};

}  // namespace orlo

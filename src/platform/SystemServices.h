#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/common/SystemRandom.h"
#include "services/Clock.h"
#include "services/FileSystem.h"
#include "services/FrontEnd.h"
#include "services/ProcessService.h"
#include "services/Services.h"
#include "services/SettingsStore.h"

namespace orlo {

// The services of the operating system, to which a front end is added. To replace a service, assign another
// to its member before.
struct SystemServices {
    // `settings`: the file of the user's settings; without one, the system's store. `simulator`: the
    // simulator's folder; where it is empty, the machine's settings tell it. `seed`: of all draws; without
    // one, the clock seeds.
    explicit SystemServices(const std::optional<std::string>& settings = std::nullopt,
                            const std::string& simulator = {},
                            std::optional<std::uint64_t> seed = std::nullopt);

    std::unique_ptr<FileSystem> files;
    std::unique_ptr<SettingsStore> userSettings;
    std::unique_ptr<SettingsStore> machineSettings;
    SystemRandom random;
    std::unique_ptr<Clock> clock;
    std::unique_ptr<ProcessService> processes;

    // All services. They hold while this and the front end live and no member is assigned anew.
    Services Behind(FrontEnd& frontEnd) {
        return {*files,   *userSettings, *machineSettings, frontEnd,  frontEnd,
                frontEnd, random,        *clock,           *processes};
    }
};

}  // namespace orlo

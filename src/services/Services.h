#pragma once

#include "services/Clock.h"
#include "services/FileSystem.h"
#include "services/MessageHost.h"
#include "services/ProcessService.h"
#include "services/ProgressHost.h"
#include "services/RandomSource.h"
#include "services/SettingsStore.h"
#include "services/WindowHost.h"

namespace orlo {

// What the program asks of the world. The owner of the services outlives all who hold this.
struct Services {
    FileSystem& files;
    SettingsStore& userSettings;
    SettingsStore& machineSettings;  // never written
    ProgressHost& progress;
    MessageHost& messages;
    WindowHost& windows;
    RandomSource& random;
    Clock& clock;
    ProcessService& processes;
};

}  // namespace orlo

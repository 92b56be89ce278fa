#pragma once

#include <string>

#include "core/Session.h"
#include "services/FileSystem.h"
#include "services/SettingsStore.h"

namespace orlo {

// The simulator's folder as the machine-wide settings tell it, trimmed; empty when it is not known.
std::string GetSimulatorPath(SettingsStore& machineSettings);
// The simulator's folder that the user chose, else that of GetSimulatorPath.
std::string SimulatorFolder(const Session& session, SettingsStore& machineSettings);

// Replaces the fleet by the variants of all folders below "Aircraft", in the order of the folders
// and then of the sections. A detailed scan also reads the fields that only editors and checks need, and
// checks the files of each variant. False, with an empty list, when there is no such folder.
bool ScanAircraft(Fleet& fleet, const ClassLists& classes, FileSystem& files,
                  const std::string& simulatorFolder, bool detailed);

// Appends the variants of one aircraft's folder; none without an aircraft.cfg in it.
void ReadAircraftFolder(Fleet& fleet, const ClassLists& classes, FileSystem& files, const std::string& folder,
                        bool detailed);

}  // namespace orlo

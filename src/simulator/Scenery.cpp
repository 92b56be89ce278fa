#include "simulator/Scenery.h"

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "simulator/AfdCache.h"
#include "simulator/AircraftScan.h"
#include "simulator/BglAirport.h"

namespace orlo {
namespace {

void ScanScenery(std::vector<AirportRecord>& records, const std::string& simulatorFolder,
                 Services& services) {
    const std::string folder = SceneryFolder(simulatorFolder);
    for (const std::string& name : SceneryFileNames(services.files, folder)) {
        services.progress.SetText(Concat("Getting FS2002 Scenery (File '", name, "')..."));
        services.windows.ProcessEvents();
        ReadAFDFile(services.files, JoinPath(folder, name), records);
    }
}

std::string CachePath(const Session& session) {
    return JoinPath(session.ProgramFolder, kAFDCacheName);
}

}  // namespace

std::string SceneryFolder(const std::string& simulatorFolder) {
    return JoinPath(simulatorFolder, NativePath("SCENEDB\\AFDFILES\\SCENERY"));
}

std::vector<std::string> SceneryFileNames(FileSystem& files, const std::string& sceneryFolder) {
    std::vector<std::string> names;
    for (const FolderEntry& entry : files.ListFolder(sceneryFolder)) {
        if (!entry.isFolder && entry.name.size() > 3 && EndsWithNoCase(entry.name, "BGL")) {
            names.push_back(entry.name);
        }
    }
    return names;
}

void ForgetScenery(Session& session, FileSystem& files) {
    files.DeleteFile(CachePath(session));
    session.scenery.Airports = {};
}

bool ReadCachedScenery(Session& session, FileSystem& files) {
    AFDCacheHeader header;
    return !session.scenery.Airports.empty() ||
           ReadAFDCache(files, CachePath(session), session.scenery.Airports, header);
}

bool ReadScenery(Session& session, Services& services) {
    if (ReadCachedScenery(session, services.files)) return true;
    const std::string simulatorFolder = SimulatorFolder(session, services.machineSettings);
    if (simulatorFolder.empty()) {
        ShowMessage(services.messages, "Couldn't find FS2002 Path.", kMarkCritical);
        return false;
    }
    ScanScenery(session.scenery.Airports, simulatorFolder, services);
    if (session.scenery.Airports.empty()) return false;
    AFDCacheHeader header;
    header.Date = DayCount(services.clock.Now());
    WriteAFDCache(services.files, CachePath(session), session.scenery.Airports, header);
    return true;
}

}  // namespace orlo

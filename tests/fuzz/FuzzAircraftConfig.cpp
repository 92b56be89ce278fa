#include <cstddef>
#include <cstdint>

#include "simulator/AircraftFiles.h"
#include "simulator/AircraftScan.h"
#include "support/MemoryFileSystem.h"

// The input is an aircraft.cfg, and the model.cfg beside it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace orlo;
    test::MemoryFileSystem files;
    const std::string text(reinterpret_cast<const char*>(data), size);
    files.files[JoinPath("a", "aircraft.cfg")] = text;
    files.files[JoinPath("a", NativePath("model\\model.cfg"))] = text;
    Session session;
    ClassEntry entry;
    entry.ID = "7";
    session.rules.Classes.Entries[kClassHugeJet] = {entry};
    ReadAircraftFolder(session.fleet, session.rules.Classes, files, "a", true);
    CheckAircraftFiles(session.fleet, files);
    for (const FSAircraft& aircraft : session.fleet.FSAircrafts) {
        if (aircraft.Title.empty()) __builtin_trap();
    }
    return 0;
}

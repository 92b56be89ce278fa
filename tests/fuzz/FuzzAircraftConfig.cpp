#include <cstddef>
#include <cstdint>

#include "fuzz/KeptLines.h"
#include "simulator/AircraftFiles.h"
#include "simulator/AircraftSave.h"
#include "simulator/AircraftScan.h"
#include "support/MemoryFileSystem.h"

// The input is an aircraft.cfg, and the model.cfg beside it. A title that is saved is read again, and no
// other line differs.
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
    if (session.fleet.FSAircrafts.empty()) return 0;
    std::vector<FSAircraft> kept = session.fleet.FSAircrafts;
    session.fleet.FSAircrafts.front().Title = "Renamed";
    session.fleet.FSAircrafts.front().Changed = true;
    const bool saved = SaveAircraft(session.fleet.FSAircrafts, kept, files, nullptr).empty();
    const std::string& after = files.files[JoinPath("a", "aircraft.cfg")];
    if (!saved && after != text) __builtin_trap();
    const auto before = test::LinesWithEnds(text);
    if (!test::OneLineDiffers(before, test::LinesWithEnds(after)) && after != text) __builtin_trap();
    session.fleet.FSAircrafts.clear();
    ReadAircraftFolder(session.fleet, session.rules.Classes, files, "a", false);
    if (saved && session.fleet.FSAircrafts.front().Title != "Renamed") __builtin_trap();
    return 0;
}

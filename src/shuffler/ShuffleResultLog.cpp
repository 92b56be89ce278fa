#include "shuffler/ShuffleResultLog.h"

#include "core/LineFile.h"
#include "core/Number.h"
#include "core/Path.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::string_view kSeparator = "------------------------------------------------------------------";

void WriteAircraft(LineFile& log, const AirlineEntry& entry, const std::vector<FSAircraft>& fsAircrafts) {
    log.Line(Concat("\tAircraft (", entry.Aircraft.size(), "):"));
    for (const AirlineAircraft& aircraft : entry.Aircraft) {
        const std::string& title = fsAircrafts[static_cast<std::size_t>(aircraft.AircraftIndex)].Title;
        log.Line(Concat("\t\t", title, ": ", aircraft.UseCount, " flights"));
    }
    log.Line(Concat("\t", kSeparator));
    log.Line("");
}

std::string AchievedPercent(const AirlineEntry& entry, const AirlineSet& set) {
    if (set.Flights == 0) return "0";
    return FormatFixed(static_cast<double>(entry.Flights) * 100 / set.Flights, 2);
}

void WriteSet(LineFile& log, std::string_view level, std::string_view name, const AirlineSet& set,
              const std::vector<FSAircraft>& fsAircrafts) {
    log.Line(kSeparator);
    log.Line(Concat(level, ": ", name));
    log.Line(Concat("Airlines: ", set.Airlines.size()));
    log.Line(Concat("Total flights: ", set.Flights));
    log.Line(kSeparator);
    log.Line("");
    for (const AirlineEntry& entry : set.Airlines) {
        log.Line(Concat("\t", kSeparator));
        log.Line(Concat("\tAirline: ", entry.Name));
        log.Line(Concat("\tTotal flights: ", entry.Flights));
        log.Line(Concat("\tPlaned Percent: ", entry.PlannedPercent));
        log.Line(Concat("\tAchieved Percent: ", AchievedPercent(entry, set)));
        WriteAircraft(log, entry, fsAircrafts);
    }
}

}  // namespace

void WriteShuffleResultLog(FileSystem& files, const std::string& flightplanPath, const AirlineSets& sets,
                           const AirlineEntry& noAirline, const std::vector<FSAircraft>& fsAircrafts) {
    LineFile log;
    log.Open(files, JoinPath(ParentFolder(flightplanPath), "Shuffle Result.log"));
    log.Line(kSeparator);
    log.Line("No Airline: ");
    log.Line(Concat("Total flights: ", noAirline.Flights));
    WriteAircraft(log, noAirline, fsAircrafts);

    const auto writeSets = [&](std::string_view level, const std::vector<AirlineSet>& list) {
        for (const AirlineSet& set : list) WriteSet(log, level, set.Name, set, fsAircrafts);
    };
    WriteSet(log, "Region", "Global", sets.Global, fsAircrafts);
    writeSets("Region", sets.Regions);
    writeSets("Country", sets.Countries);
    writeSets("State", sets.States);
    writeSets("City", sets.Cities);
    writeSets("Airport", sets.Airports);
    log.Close();
}

}  // namespace orlo

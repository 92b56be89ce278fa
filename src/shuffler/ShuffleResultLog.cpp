#include "shuffler/ShuffleResultLog.h"

#include "core/LineFile.h"
#include "core/Number.h"
#include "core/Path.h"
#include "core/Text.h"
#include "shuffler/ShuffleShares.h"

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

std::string AchievedText(const AirlineEntry& entry, const AirlineSet& set) {
    return set.Flights == 0 ? "0" : FormatFixed(AchievedPercent(entry, set), 2);
}

void WriteSet(LineFile& log, const SetOfLevel& shown, const std::vector<FSAircraft>& fsAircrafts) {
    const AirlineSet& set = *shown.set;
    log.Line(kSeparator);
    log.Line(Heading(shown));
    log.Line(Concat("Airlines: ", set.Airlines.size()));
    log.Line(Concat("Total flights: ", set.Flights));
    log.Line(kSeparator);
    log.Line("");
    for (const AirlineEntry& entry : set.Airlines) {
        log.Line(Concat("\t", kSeparator));
        log.Line(Concat("\tAirline: ", entry.Name));
        log.Line(Concat("\tTotal flights: ", entry.Flights));
        log.Line(Concat("\tPlaned Percent: ", entry.PlannedPercent));
        log.Line(Concat("\tAchieved Percent: ", AchievedText(entry, set)));
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

    for (const SetOfLevel& set : SetsByLevel(sets)) WriteSet(log, set, fsAircrafts);
    log.Close();
}

}  // namespace orlo

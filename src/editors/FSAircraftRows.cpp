#include "editors/FSAircraftRows.h"

#include "config/NameLists.h"
#include "core/AircraftClassNames.h"
#include "mainwindow/AircraftTrees.h"

namespace orlo {

FSAircraftRows::FSAircraftRows(const Fleet& fleet, const Rules& rules)
    : fleet_(fleet),
      airlines_{rules.AirlineNames, {}},
      models_{rules.ModelNames, {}},
      types_{rules.TypeNames, {}} {
    for (std::int32_t place = 0; place < fleet.FSAircraftCount(); ++place) {
        if (ShowsInTrees(fleet.FSAircrafts[static_cast<std::size_t>(place)].Title)) places_.push_back(place);
    }
}

const FSAircraft& FSAircraftRows::At(std::int32_t row) const {
    return fleet_.FSAircrafts[static_cast<std::size_t>(Place(row))];
}

bool FSAircraftRows::KnownNames::Allow(const std::string& name) const {
    if (name.empty()) return true;
    if (const bool* known = asked.Find(name)) return *known;
    const bool isThere = ContainsName(list, name);
    asked.Add(name, isThere);
    return isThere;
}

bool FSAircraftRows::HasUnknownName(const FSAircraft& aircraft) const {
    return !airlines_.Allow(aircraft.Airline) || !models_.Allow(aircraft.ATCModel) ||
           !types_.Allow(aircraft.ATCType);
}

void FSAircraftRows::AppendText(std::int32_t row, std::int32_t column, std::string& out) const {
    const FSAircraft& aircraft = At(row);
    switch (column) {
        case kFSTitle:
            out.append(aircraft.Title);
            break;
        case kFSATCType:
            out.append(aircraft.ATCType);
            break;
        case kFSATCModel:
            out.append(aircraft.ATCModel);
            break;
        case kFSAirline:
            out.append(aircraft.Airline);
            break;
        case kFSClass:
            out.append(AircraftClassName(aircraft.Class, "Unknown"));
            break;
        case kFSErrors:
            if (!aircraft.Problem.empty()) {
                out.append(aircraft.Problem);
            } else if (HasUnknownName(aircraft)) {
                out.append("ERROR");
            }
            break;
        default:
            break;
    }
}

RowFacts FSAircraftRows::Facts(std::int32_t row) const {
    return {std::to_string(Place(row)), At(row).ConfigFile, Colour::WindowText};
}

}  // namespace orlo

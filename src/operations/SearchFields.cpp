#include "operations/SearchFields.h"

#include "core/Text.h"

namespace orlo {

FieldSearch::FieldSearch(const SearchFields& fields, const Session& session, const MatchedAircraft& matched)
    : fields_(fields), session_(session), matched_(matched) {
    if (fields.AskForScenery()) {
        airports_.Reserve(session.scenery.Airports.size());
        std::int32_t place = 0;
        for (const AirportRecord& airport : session.scenery.Airports) airports_.Add(airport.ICAO, place++);
    }
    if (fields.Airline.empty()) return;
    for (const PlanAircraft& aircraft : session.plan.PlanAircrafts) {
        const FSAircraft* entry = matched.Find(aircraft.ACNumber);
        if (entry == nullptr || entry->Airline.empty()) continue;
        airlineFits_.Add(aircraft.ACNumber, ContainsNoCase(entry->Airline, fields.Airline));
    }
}

bool FieldSearch::Matches(const FlightView& flight) const {
    bool flag = fields_.MatchAll;
    // A condition counts while the outcome is still open.
    const auto counts = [&](bool isSet) { return isSet && flag == fields_.MatchAll; };

    if (counts(!fields_.Departure.empty())) flag = ContainsNoCase(flight.StartAirport(), fields_.Departure);
    if (counts(!fields_.Leg.empty())) flag = FliesVia(flight);
    if (counts(!fields_.Continent.empty()))
        flag = PassesAtRegion(flight.StartAirport(), fields_.Continent, &AirportRecord::Region);
    if (counts(!fields_.Country.empty()))
        flag = PassesAtRegion(flight.StartAirport(), fields_.Country, &AirportRecord::Country);
    if (counts(!fields_.Airline.empty())) {
        const bool* fits = airlineFits_.Find(flight.ACNumber);
        flag = fits != nullptr && *fits;
    }
    if (counts(fields_.IFR)) flag = EqualNoCase(flight.FlightType, "IFR");
    if (counts(fields_.VFR)) flag = EqualNoCase(flight.FlightType, "VFR");
    if (counts(fields_.ACNumber.has_value())) flag = EqualNoCase(flight.ACNumber, *fields_.ACNumber);
    if (counts(fields_.Class != kAnyClass)) {
        const FSAircraft* entry = matched_.Find(flight.ACNumber);
        if (entry != nullptr) flag = entry->Class == fields_.Class;
    }
    return flag;
}

bool FieldSearch::PassesAtRegion(std::string_view code, const std::string& part,
                                 std::string AirportRecord::*field) const {
    const std::int32_t* place = airports_.Find(code);
    return place != nullptr &&
           ContainsNoCase(session_.scenery.Airports[static_cast<std::size_t>(*place)].*field, part);
}

// The last leg leads back to the start and is not tested.
bool FieldSearch::FliesVia(const FlightView& flight) const {
    std::int32_t left = flight.LegCount - 1;
    for (const LegView& leg : flight) {
        if (left-- <= 0) return false;
        if (ContainsNoCase(leg.Destination, fields_.Leg)) return true;
    }
    return false;
}

}  // namespace orlo

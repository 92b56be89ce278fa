#include "shuffler/RouteAirports.h"

#include <algorithm>

#include "core/Text.h"

namespace orlo {
namespace {

std::int32_t FindPlace(const KeyedIndex<std::int32_t>& index, std::string_view key) {
    const std::int32_t* found = index.Find(key);
    return found == nullptr ? -1 : *found;
}

}  // namespace

RouteAirports::RouteAirports(const std::vector<AirportRecord>& records, const PlanPositions& positions,
                             const AirlineSets& sets)
    : records_(records), positions_(positions) {
    recordIndex_.Reserve(records.size());
    std::int32_t index = 0;
    for (const AirportRecord& record : records) recordIndex_.Add(record.ICAO, index++);

    std::int32_t place = 1;  // behind the global set
    const auto add = [&](const std::vector<AirlineSet>& list, KeyedIndex<std::int32_t>& names) {
        names.Reserve(list.size());
        for (const AirlineSet& set : list) names.Add(set.Name, place++);
    };
    add(sets.Regions, regionSets_);
    add(sets.Countries, countrySets_);
    add(sets.States, stateSets_);
    add(sets.Cities, citySets_);
    add(sets.Airports, airportSets_);
}

RouteAirport RouteAirports::Resolve(std::string_view code) {
    RouteAirport airport;
    airport.place = positions_.Place(code);
    const std::int32_t* found = recordIndex_.Find(code);
    if (found == nullptr) return airport;

    const AirportRecord& record = records_[static_cast<std::size_t>(*found)];
    const std::string country = Concat(record.Region, "/", record.Country);
    const auto nextCountry = static_cast<std::int32_t>(countries_.Count());
    countries_.Add(country, nextCountry);
    airport.country = *countries_.Find(country);
    airport.airportSet = FindPlace(airportSets_, code);
    airport.citySet = FindPlace(citySets_, Concat(country, "/", record.City));
    airport.stateSet = FindPlace(stateSets_, Concat(country, "/", record.State));
    airport.countrySet = FindPlace(countrySets_, country);
    airport.regionSet = FindPlace(regionSets_, record.Region);
    airport.minRunway = std::min(record.TakeoffLength, record.LandingLength);
    airport.minParking = record.MinParkingRadius;
    airport.surface = std::max(record.TakeoffSurface, record.LandingSurface);
    return airport;
}

std::int32_t RouteAirports::Distance(std::int32_t from, std::int32_t to) const {
    if (from == to) return 0;
    return positions_.Distance(At(from).place, At(to).place);
}

std::int32_t RouteAirports::Course(std::int32_t from, std::int32_t to) const {
    if (from == to) return -1;
    return positions_.Course(At(from).place, At(to).place);
}

}  // namespace orlo

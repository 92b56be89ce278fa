#include "shuffler/RouteAirports.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::size_t kFirstSlots = 1024;
constexpr std::uint64_t kLongCode = std::uint64_t{1} << 63;

std::int32_t FindPlace(const KeyedIndex<std::int32_t>& index, std::string_view key) {
    const std::int32_t* found = index.Find(key);
    return found == nullptr ? -1 : *found;
}

}  // namespace

RouteAirports::RouteAirports(const std::vector<AirportRecord>& records, const PlanPositions& positions,
                             const AirlineSets& sets)
    : records_(records), positions_(positions), slots_(kFirstSlots) {
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

// Short codes have unlike keys: their bytes and, in the top byte, their length. Long ones are told by the top
// bit, and their texts must be compared.
std::uint64_t RouteAirports::KeyOf(std::string_view code) {
    if (code.size() >= sizeof(std::uint64_t)) return std::hash<std::string_view>{}(code) | kLongCode;
    std::uint64_t key = static_cast<std::uint64_t>(code.size()) << 56;
    for (std::size_t i = 0; i < code.size(); ++i) {
        key |= static_cast<std::uint64_t>(static_cast<unsigned char>(code[i])) << (8 * i);
    }
    return key;
}

// The slot of a code, or the free one where it belongs.
std::size_t RouteAirports::FindSlot(std::uint64_t key, std::string_view code) const {
    const std::size_t mask = slots_.size() - 1;
    // Multiplication by a large odd number spreads the bytes over the top bits.
    std::size_t place = static_cast<std::size_t>((key * 0x9E3779B97F4A7C15u) >> 32) & mask;
    for (; slots_[place].number >= 0; place = (place + 1) & mask) {
        if (slots_[place].key != key) continue;
        if ((key & kLongCode) == 0 || Code(slots_[place].number) == code) break;
    }
    return place;
}

std::int32_t RouteAirports::Number(std::string_view code) {
    const std::uint64_t key = KeyOf(code);
    Slot& slot = slots_[FindSlot(key, code)];
    if (slot.number >= 0) return slot.number;
    const auto number = static_cast<std::int32_t>(codes_.size());
    slot = {key, number};
    codes_.push_back(code);
    airports_.push_back(Resolve(code));
    if (codes_.size() * 2 > slots_.size()) GrowSlots();
    return number;
}

void RouteAirports::GrowSlots() {
    const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
    for (const Slot& slot : old) {
        if (slot.number >= 0) slots_[FindSlot(slot.key, Code(slot.number))] = slot;
    }
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

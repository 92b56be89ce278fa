#include "shuffler/ShuffleRun.h"

#include <algorithm>
#include <unordered_map>

#include "core/Number.h"
#include "shuffler/AircraftMatch.h"
#include "shuffler/FlightAttributes.h"
#include "shuffler/ShuffleLog.h"

namespace orlo {
namespace {

constexpr std::int32_t kGlobalSet = 0;  // first in the list of sets
constexpr std::int32_t kUnset = 999999;

// For each plan aircraft the first one that bears its number.
std::vector<std::int32_t> FindUsagePlaces(const std::vector<PlanAircraft>& planAircrafts) {
    std::unordered_map<std::string_view, std::int32_t> first;
    first.reserve(planAircrafts.size());
    std::vector<std::int32_t> places;
    places.reserve(planAircrafts.size());
    for (const PlanAircraft& aircraft : planAircrafts) {
        const auto place = static_cast<std::int32_t>(places.size());
        places.push_back(first.try_emplace(aircraft.ACNumber, place).first->second);
    }
    return places;
}

std::vector<AirlineSet*> ListRunSets(AirlineSets& sets, AirlineSet& noAirlineSet) {
    std::vector<AirlineSet*> list = ListAirlineSets(sets);
    list.push_back(&noAirlineSet);
    return list;
}

}  // namespace

void ResetRunAirlines(Session& session) {
    session.shuffle.RunAirlines = session.rules.Airlines;
    for (AirlineSet* set : ListAirlineSets(session.shuffle.RunAirlines)) {
        set->Flights = 0;
        for (AirlineEntry& entry : set->Airlines) {
            entry.PlannedPercent = 0;
            entry.Flights = 0;
            entry.Aircraft.clear();
        }
    }
}

AirlineSet MakeNoAirlineSet(std::vector<AirlineAircraft> aircraft) {
    AirlineSet set;
    AirlineEntry& entry = set.Airlines.emplace_back();
    entry.PlannedPercent = 100;
    entry.Percent = 100;
    entry.Aircraft = std::move(aircraft);
    return set;
}

ShuffleRun::ShuffleRun(Session& sessionOf, AirlineSet& noAirlineSet, RandomSource& randomOf, LineFile& logOf)
    : session_(sessionOf),
      random_(randomOf),
      log_(logOf),
      positions_(sessionOf.plan),
      airports_(sessionOf.scenery.Airports, positions_, sessionOf.shuffle.RunAirlines),
      sets_(ListRunSets(sessionOf.shuffle.RunAirlines, noAirlineSet)),
      candidates_(sets_, sessionOf.fleet.FSAircrafts, sessionOf.shuffle.CheckFL),
      usagePlaces_(FindUsagePlaces(sessionOf.plan.PlanAircrafts)),
      failedFlight_(sets_.size(), 0) {}

ShuffleRun::Decision ShuffleRun::Decide(const FlightView& row) {
    ++flightNumber_;
    LoadFlight(row, flight_);
    FindAirports();
    if (!FindLimits()) return Decision::LevelIsNoNumber;
    FindNeeds();
    candidates_.TestProfiles(limits_, needs_);
    tailPatterns_ = {};
    return SearchAircraft();
}

// Looks up the airports of all legs, and whether all lie in one country.
void ShuffleRun::FindAirports() {
    domestic_ = true;
    for (std::int32_t i = 0; i < flight_.LegCount; ++i) {
        WorkingLeg& leg = flight_.LegAt(i);
        leg.Airport = airports_.Number(leg.Destination);
        const RouteAirport& airport = airports_.At(leg.Airport);
        domestic_ =
            domestic_ && airport.Known() && airport.country == airports_.At(flight_.LegAt(0).Airport).country;
    }
}

bool ShuffleRun::FindLimits() {
    limits_ = {};
    for (std::int32_t i = 0; i < flight_.LegCount; ++i) {
        WorkingLeg& leg = flight_.LegAt(i);
        const auto level = ParseWholeNumber(leg.FlightLevel);
        if (!level) return false;
        leg.Distance = airports_.Distance(flight_.LegBefore(i).Airport, leg.Airport);
        limits_.maxLevel = std::max(limits_.maxLevel, *level);
        limits_.minLevel = std::min(limits_.minLevel, *level);
        limits_.maxDistance = std::max(limits_.maxDistance, leg.Distance);
        limits_.minDistance = std::min(limits_.minDistance, leg.Distance);
    }
    return true;
}

void ShuffleRun::FindNeeds() {
    needs_ = {kUnset, kUnset, kSurfaceNone};
    for (std::int32_t i = 0; i < flight_.LegCount; ++i) {
        const RouteAirport& airport = airports_.At(flight_.LegAt(i).Airport);
        if (!airport.Known()) continue;
        needs_.minRunway = std::min(needs_.minRunway, airport.minRunway);
        needs_.minParking = std::min(needs_.minParking, airport.minParking);
        needs_.surface = std::max(needs_.surface, airport.surface);
    }
    if (needs_.minRunway == kUnset) needs_.minRunway = 0;
    if (needs_.minParking == kUnset) needs_.minParking = 0;
}

// First airport, city and state of the start, for a domestic flight also of its other airports, and then the
// country. Next, where asked for, all four of each other airport. Last the region of the airport looked at
// last, the global set and the aircraft without airline.
ShuffleRun::Decision ShuffleRun::SearchAircraft() {
    const std::int32_t retries = flight_.LegCount - 1;
    std::int32_t domesticRetries = 0;
    std::int32_t visitedRetries = 0;
    std::int32_t current = flight_.LegCount > 0 ? flight_.LegBefore(0).Airport : airports_.Number({});
    for (;;) {
        const RouteAirport& airport = airports_.At(current);
        if (!airport.Known()) {
            LogUnknownAirport(log_, airports_.Code(current));
            return RemoveFlight();
        }
        if (TryAirportLevels(airport)) return Decision::Assigned;
        if (domestic_ && domesticRetries < retries) {
            current = flight_.LegAt(domesticRetries++).Airport;
            continue;
        }
        TakeTailPatterns(airport.countrySet);
        if (TrySet(airport.countrySet)) return Decision::Assigned;
        if (session_.shuffle.CheckVisitedAirports && visitedRetries < retries) {
            current = flight_.LegAt(visitedRetries++).Airport;
            continue;
        }
        return TryLastLevels(airport) ? Decision::Assigned : RemoveFlight();
    }
}

bool ShuffleRun::TryAirportLevels(const RouteAirport& airport) {
    TakeTailPatternsIfNone(airport.airportSet);
    if (TrySet(airport.airportSet)) return true;
    TakeTailPatterns(airport.citySet);
    if (TrySet(airport.citySet)) return true;
    TakeTailPatterns(airport.stateSet);
    return TrySet(airport.stateSet);
}

bool ShuffleRun::TryLastLevels(const RouteAirport& airport) {
    TakeTailPatternsIfNone(airport.regionSet);
    return TrySet(airport.regionSet) || TrySet(kGlobalSet) || TryNoAirline();
}

bool ShuffleRun::TrySet(std::int32_t set) {
    if (set < 0) return false;
    // What a flight needs is the same at each of its airports, so a set that had nothing still has nothing.
    std::int64_t& failedFlight = failedFlight_[static_cast<std::size_t>(set)];
    if (failedFlight == flightNumber_) return false;
    AirlineSet& airlines = SetAt(set);
    if (!AssignAircraft(set, airlines.Flights)) {
        failedFlight = flightNumber_;
        return false;
    }
    ++airlines.Flights;
    WriteTailNumber(airlines.TailPatterns);
    const std::string_view location = airlines.Name;
    LogAssignedFlight(log_, flight_, limits_, set == kGlobalSet ? "Global" : location);
    return true;
}

bool ShuffleRun::TryNoAirline() {
    const auto noAirlineSet = static_cast<std::int32_t>(sets_.size()) - 1;
    if (!AssignAircraft(noAirlineSet, 0)) {
        LogRunway(log_, needs_);
        return false;
    }
    WriteTailNumber(tailPatterns_.empty() ? std::string_view(SetAt(kGlobalSet).TailPatterns) : tailPatterns_);
    LogAssignedFlight(log_, flight_, limits_, "No Airline");
    return true;
}

bool ShuffleRun::AssignAircraft(std::int32_t set, std::int32_t setFlights) {
    std::span<std::int32_t> rows = candidates_.FindFitting(set);
    if (rows.empty()) return false;
    std::size_t chosen = 0;
    if (rows.size() > 1) {
        rows = candidates_.PreferUnderShare(setFlights, rows);
        chosen =
            static_cast<std::size_t>(RoundHalfEven(static_cast<double>(rows.size() - 1) * random_.Next()));
    }
    ApplyAircraft(candidates_.Take(rows[chosen]));
    return true;
}

void ShuffleRun::ApplyAircraft(const AirlineAircraft& chosen) {
    const auto planPlace = static_cast<std::size_t>(chosen.PlanAircraftIndex);
    ++session_.plan.PlanAircrafts[static_cast<std::size_t>(usagePlaces_[planPlace])].UsageCount;
    const FSAircraft& aircraft = session_.fleet.FSAircrafts[static_cast<std::size_t>(chosen.AircraftIndex)];
    flight_.ACNumber = session_.plan.PlanAircrafts[planPlace].ACNumber;
    if (session_.shuffle.ChangeIFRVFR) ApplyFlightRules(aircraft.Class, flight_);
    if (session_.shuffle.CheckFL) {
        ApplyFlightLevels(session_.rules.FlightLevelRules, aircraft, airports_, random_, flight_);
    }
    ApplyFlightTimes(aircraft.CruiseSpeed, flight_);
    LogAircraft(log_, aircraft);
}

ShuffleRun::Decision ShuffleRun::RemoveFlight() {
    LogRemovedFlight(log_, flight_, limits_);
    return Decision::Removed;
}

void ShuffleRun::WriteTailNumber(std::string_view patterns) {
    if (patterns.empty() || !session_.shuffle.OverwriteTailNumber) return;
    flight_.TailNumber = CreateTailNumber(patterns, session_.shuffle.RemoveMinus, random_);
}

void ShuffleRun::TakeTailPatterns(std::int32_t set) {
    if (set >= 0) tailPatterns_ = SetAt(set).TailPatterns;
}

void ShuffleRun::TakeTailPatternsIfNone(std::int32_t set) {
    if (tailPatterns_.empty()) TakeTailPatterns(set);
}

}  // namespace orlo

#include "shuffler/PlainShuffle.h"

#include <algorithm>
#include <optional>

#include "core/Number.h"
#include "core/Text.h"
#include "simulator/FlightLevelMaths.h"
#include "simulator/Navigation.h"
#include "simulator/PlanPositions.h"

namespace orlo::test {
namespace {

struct Limits {
    std::int32_t maxLevel = -1, maxDistance = -1, minLevel = 999999, minDistance = 999999;
};

struct Candidate {
    std::size_t AirlineIndex = 0, AircraftIndex = 0;
    std::int32_t Planned = 0, Achieved = 0;
};

std::int32_t Round(double value) {
    return static_cast<std::int32_t>(RoundHalfEven(value));
}

class PlainShuffle {
  public:
    PlainShuffle(const Session& session, RandomSource& random)
        : session_(session), random_(random), positions_(session) {}

    PlainShuffleResult Run() {
        for (std::int32_t i = 0; i < session_.FlightCount(); ++i) {
            out_.flights.push_back(session_.Flights.Unpack(i));
        }
        out_.usageCounts.assign(session_.PlanAircrafts.size(), 0);
        out_.sets = session_.Airlines;
        MatchAll();
        random_.SeedFromClock();
        for (Flight& flight : out_.flights) {
            if (flight.Removed) continue;
            const std::optional<Limits> limits = GetFlightLimits(flight);
            if (!limits) {
                out_.succeeded = false;
                break;
            }
            Decide(flight, *limits);
        }
        out_.noAirlineFlights = noAirline_.Airlines[0].Flights;
        return std::move(out_);
    }

  private:
    std::vector<AirlineSet*> AllSets() {
        std::vector<AirlineSet*> all{&out_.sets.Global};
        for (AirlineSet& set : out_.sets.Regions) all.push_back(&set);
        for (AirlineSet& set : out_.sets.Countries) all.push_back(&set);
        for (AirlineSet& set : out_.sets.States) all.push_back(&set);
        for (AirlineSet& set : out_.sets.Cities) all.push_back(&set);
        for (AirlineSet& set : out_.sets.Airports) all.push_back(&set);
        return all;
    }

    void MatchAll() {
        noAirline_.Airlines.resize(1);
        noAirline_.Airlines[0].PlannedPercent = noAirline_.Airlines[0].Percent = 100;
        for (AirlineSet* set : AllSets()) {
            set->Flights = 0;
            for (AirlineEntry& entry : set->Airlines) {
                entry.Flights = entry.PlannedPercent = 0;
                entry.Aircraft.clear();
            }
        }
        for (std::int32_t p = 0; p < session_.PlanAircraftCount(); ++p) {
            const std::string title = UpperText(PlanAt(p).Title);
            for (std::int32_t f = 0; f < session_.FSAircraftCount(); ++f) {
                if (UpperText(FSAt(f).Title) != title) continue;
                Match({f, p, 0});
                break;
            }
        }
        for (AirlineSet* set : AllSets()) Normalise(*set);
    }

    void Match(AirlineAircraft aircraft) {
        const std::string airline = UpperText(FSAt(aircraft.AircraftIndex).Airline);
        if (airline.empty()) {
            noAirline_.Airlines[0].Aircraft.push_back(aircraft);
            return;
        }
        for (AirlineSet* set : AllSets()) {
            for (AirlineEntry& entry : set->Airlines) {
                if (UpperText(entry.Name) == airline) entry.Aircraft.push_back(aircraft);
            }
        }
    }

    static void Normalise(AirlineSet& set) {
        std::int32_t sum = 0, stated = 0, unstated = 0;
        for (AirlineEntry& entry : set.Airlines) {
            const bool has = !entry.Aircraft.empty();
            if (entry.Percent < 1) {
                if (has) ++unstated;
            } else if (has && sum + entry.Percent <= 100) {
                sum += entry.Percent;
                ++stated;
            } else {
                entry.Percent = -1;
                if (has) ++unstated;
            }
        }
        for (AirlineEntry& entry : set.Airlines) {
            if (unstated > 0) {
                if (entry.Percent != -1) entry.PlannedPercent = entry.Percent;
                if (entry.Percent == -1 && !entry.Aircraft.empty()) {
                    entry.PlannedPercent = (100 - sum) / unstated;
                }
            } else if (stated > 0 && entry.Percent >= 1) {
                entry.PlannedPercent = entry.Percent + (100 - sum) / stated;
            }
        }
    }

    static const std::string& From(const Flight& flight, std::size_t leg) {
        return leg == 0 ? flight.Legs.back().Destination : flight.Legs[leg - 1].Destination;
    }

    std::optional<Limits> GetFlightLimits(const Flight& flight) const {
        Limits limits;
        for (std::size_t i = 0; i < flight.Legs.size(); ++i) {
            const auto level = ParseWholeNumber(flight.Legs[i].FlightLevel);
            if (!level) return std::nullopt;
            limits.maxLevel = std::max(limits.maxLevel, *level);
            limits.minLevel = std::min(limits.minLevel, *level);
            const std::int32_t distance =
                positions_.Distance(From(flight, i), std::string_view(flight.Legs[i].Destination));
            limits.maxDistance = std::max(limits.maxDistance, distance);
            limits.minDistance = std::min(limits.minDistance, distance);
        }
        return limits;
    }

    const AirportRecord* FindRecord(std::string_view code) const {
        for (const AirportRecord& record : session_.Airports) {
            if (UpperText(record.ICAO) == UpperText(code)) return &record;
        }
        return nullptr;
    }

    static AirlineSet* FindSet(std::vector<AirlineSet>& list, std::string_view name) {
        for (AirlineSet& set : list) {
            if (UpperText(set.Name) == UpperText(name)) return &set;
        }
        return nullptr;
    }

    static std::string CountryOf(const AirportRecord& record) {
        return UpperText(Concat(record.Region, "/", record.Country));
    }

    bool IsDomestic(const Flight& flight, const AirportRecord& current) const {
        for (const Leg& leg : flight.Legs) {
            const AirportRecord* record = FindRecord(leg.Destination);
            if (record == nullptr || CountryOf(*record) != CountryOf(current)) return false;
        }
        return true;
    }

    // One level of the search: tries the set if there is one.
    bool Try(Flight& flight, const Limits& limits, AirlineSet* set) {
        if (set == nullptr || !AssignAircraft(flight, set->Airlines, set->Flights, limits, false)) {
            return false;
        }
        ++out_.assigned;
        ++set->Flights;
        if (!set->TailPatterns.empty() && session_.OverwriteTailNumber) {
            flight.TailNumber = CreateTail(set->TailPatterns);
        }
        LogFlight(flight, limits, flight.ACNumber, "/" + (set == &out_.sets.Global ? "Global" : set->Name));
        return true;
    }

    void Decide(Flight& flight, const Limits& limits) {
        std::string tailPatterns;
        std::int32_t first = 0, second = 0;
        std::string code = flight.Legs.empty() ? "" : flight.Legs.back().Destination;
        const AirportRecord* record = nullptr;
        for (;;) {
            record = FindRecord(code);
            if (record == nullptr) {
                out_.log += "ICAO " + code + " unknown. Please check your Airport configuration.\n";
                Remove(flight, limits);
                return;
            }
            AirlineSet* set = FindSet(out_.sets.Airports, code);
            if (set != nullptr && tailPatterns.empty()) tailPatterns = set->TailPatterns;
            if (Try(flight, limits, set)) return;
            set = FindSet(out_.sets.Cities, CountryOf(*record) + "/" + record->City);
            if (set != nullptr) tailPatterns = set->TailPatterns;
            if (Try(flight, limits, set)) return;
            set = FindSet(out_.sets.States, CountryOf(*record) + "/" + record->State);
            if (set != nullptr) tailPatterns = set->TailPatterns;
            if (Try(flight, limits, set)) return;
            if (IsDomestic(flight, *record) && first < flight.LegCount() - 1) {
                code = flight.Legs[static_cast<std::size_t>(first++)].Destination;
                continue;
            }
            set = FindSet(out_.sets.Countries, CountryOf(*record));
            if (set != nullptr) tailPatterns = set->TailPatterns;
            if (Try(flight, limits, set)) return;
            if (session_.CheckVisitedAirports && second < flight.LegCount() - 1) {
                code = flight.Legs[static_cast<std::size_t>(second++)].Destination;
                continue;
            }
            break;
        }
        AirlineSet* region = FindSet(out_.sets.Regions, record->Region);
        if (region != nullptr && tailPatterns.empty()) tailPatterns = region->TailPatterns;
        if (Try(flight, limits, region) || Try(flight, limits, &out_.sets.Global)) return;
        if (!AssignAircraft(flight, noAirline_.Airlines, 0, limits, true)) {
            Remove(flight, limits);
            return;
        }
        ++out_.assigned;
        if (tailPatterns.empty()) tailPatterns = out_.sets.Global.TailPatterns;
        if (!tailPatterns.empty() && session_.OverwriteTailNumber)
            flight.TailNumber = CreateTail(tailPatterns);
        LogFlight(flight, limits, flight.ACNumber, "/No Airline");
    }

    void Remove(Flight& flight, const Limits& limits) {
        flight.Removed = true;
        ++out_.removed;
        LogFlight(flight, limits, "NO AIRCRAFT", "");
    }

    void LogFlight(const Flight& flight, const Limits& limits, const std::string& number,
                   const std::string& location) {
        const std::string departure = flight.Legs.empty() ? "" : flight.Legs.back().Destination;
        const std::string destination = flight.Legs.empty() ? "" : flight.Legs.front().Destination;
        out_.log += Concat(number, "/", flight.TailNumber, "/", flight.FlightType, "/", departure, "/",
                           destination, "/", limits.minLevel, "/", limits.maxLevel, "/", limits.minDistance,
                           "/", limits.maxDistance, location, "\n\n");
    }

    bool AssignAircraft(Flight& flight, std::vector<AirlineEntry>& airlines, std::int32_t setFlights,
                        const Limits& limits, bool logRunway) {
        std::int32_t minRunway = 999999, minParking = 999999, surfaceCode = 0;
        for (const Leg& leg : flight.Legs) {
            const AirportRecord* record = FindRecord(leg.Destination);
            if (record == nullptr) continue;
            minRunway = std::min({minRunway, record->TakeoffLength, record->LandingLength});
            minParking = std::min(minParking, record->MinParkingRadius);
            surfaceCode = std::max({surfaceCode, record->TakeoffSurface, record->LandingSurface});
        }
        if (minRunway == 999999) minRunway = 0;
        if (minParking == 999999) minParking = 0;
        const std::string surface = surfaceCode == 1   ? "HARD"
                                    : surfaceCode == 2 ? "SOFT"
                                    : surfaceCode == 3 ? "WATER"
                                    : surfaceCode == 4 ? "SNOW"
                                                       : "1";
        std::vector<Candidate> candidates;
        bool anyUnder = false, anyOver = false;
        for (std::size_t a = 0; a < airlines.size(); ++a) {
            const AirlineEntry& entry = airlines[a];
            const std::int32_t achieved = setFlights == 0 ? 0 : entry.Flights * 100 / setFlights;
            for (std::size_t i = 0; i < entry.Aircraft.size(); ++i) {
                const FSAircraft& aircraft = FSAt(entry.Aircraft[i].AircraftIndex);
                const bool levels = limits.minLevel >= aircraft.MinFL && limits.maxLevel <= aircraft.MaxFL;
                if (!levels && !session_.CheckFL) continue;
                if (limits.minDistance < aircraft.MinRange) continue;
                if (limits.maxDistance > aircraft.MaxRange) continue;
                if (aircraft.RunwayLength > minRunway) continue;
                if (aircraft.MinParkingRadius > minParking) continue;
                if (UpperText(aircraft.RunwayTypes).find(surface) == std::string::npos) continue;
                candidates.push_back({a, i, entry.PlannedPercent, achieved});
                (entry.PlannedPercent < achieved ? anyOver : anyUnder) = true;
            }
        }
        if (candidates.empty()) {
            if (logRunway) out_.log += Concat("Runway: ", minRunway, "/", minParking, "/", surface, "\n");
            return false;
        }
        std::size_t chosen = 0;
        if (candidates.size() > 1) {
            if (anyUnder && anyOver) {
                std::erase_if(candidates, [](const Candidate& c) { return c.Planned < c.Achieved; });
            }
            const auto last = static_cast<double>(candidates.size() - 1);
            chosen = static_cast<std::size_t>(Round(last * random_.Next()));
        }
        AirlineEntry& entry = airlines[candidates[chosen].AirlineIndex];
        Take(flight, entry, entry.Aircraft[candidates[chosen].AircraftIndex]);
        return true;
    }

    void Take(Flight& flight, AirlineEntry& entry, AirlineAircraft& aircraft) {
        const std::string id = PlanAt(aircraft.PlanAircraftIndex).ACNumber;
        for (std::int32_t p = 0; p < session_.PlanAircraftCount(); ++p) {
            if (PlanAt(p).ACNumber != id) continue;
            ++out_.usageCounts[static_cast<std::size_t>(p)];
            break;
        }
        ++aircraft.UseCount;
        ++entry.Flights;
        flight.ACNumber = id;
        const FSAircraft& chosen = FSAt(aircraft.AircraftIndex);
        ApplyRules(flight, chosen);
        ApplyLevelsAndTimes(flight, chosen);
        static constexpr const char* kWords[] = {"Unknown",   "Not Used",   "Micro Prop",
                                                 "Mid Prop",  "Large Prop", "Micro Jet",
                                                 "Small Jet", "Large Jet",  "Huge Jet"};
        out_.log += Concat(chosen.Airline.empty() ? "No Airline" : chosen.Airline, "/", chosen.Title, "/",
                           kWords[chosen.Class], "/", chosen.UIManufacturer, "/", chosen.UIType, "\n");
    }

    void ApplyRules(Flight& flight, const FSAircraft& aircraft) const {
        if (!session_.ChangeIFRVFR || UpperText(flight.FlightType) != "VFR") return;
        const bool fast = aircraft.Class == 1 || aircraft.Class >= 4;
        const bool slow = aircraft.Class == 2 || aircraft.Class == 3;
        if (fast) flight.FlightType = "IFR";
        for (Leg& leg : flight.Legs) {
            if (fast) leg.NumberMode = "F";
            if (slow) leg.NumberMode = "R";
        }
    }

    void ApplyLevelsAndTimes(Flight& flight, const FSAircraft& aircraft) {
        std::vector<std::size_t> order;
        for (std::size_t i = 1; i < flight.Legs.size(); ++i) order.push_back(i);
        if (!flight.Legs.empty()) order.push_back(0);
        for (std::size_t i : order) {
            if (!session_.CheckFL) break;
            const std::string_view from = From(flight, i), to = flight.Legs[i].Destination;
            flight.Legs[i].FlightLevel = SuggestFlightLevel(
                session_.FlightLevelRules, flight.FlightType, positions_.Distance(from, to),
                positions_.Course(from, to), {aircraft.MinFL, aircraft.MaxFL}, false, random_);
        }
        for (std::size_t i : order) {
            const std::string_view from = From(flight, i), to = flight.Legs[i].Destination;
            flight.Legs[i].ETA = GetArrivalTime(positions_.Distance(from, to), flight.Legs[i].DepartTime,
                                                flight.Period, aircraft.CruiseSpeed);
        }
    }

    std::string CreateTail(const std::string& patterns) {
        const std::vector<std::string_view> list = SplitText(patterns, ',');
        const auto pick =
            static_cast<std::size_t>(Round(static_cast<double>(list.size() - 1) * random_.Next()));
        std::string tail;
        for (char character : list[pick]) {
            if (character == '?') character = Round(random_.Next()) == 1 ? '!' : '.';
            if (character == '!') {
                tail += std::to_string(Round(9 * random_.Next()));
            } else if (character == '.') {
                tail += static_cast<char>(65 + Round(25 * random_.Next()));
            } else if (character != '-' || !session_.RemoveMinus) {
                tail += character;
            }
        }
        return tail;
    }

    const FSAircraft& FSAt(std::int32_t index) const {
        return session_.FSAircrafts[static_cast<std::size_t>(index)];
    }
    const PlanAircraft& PlanAt(std::int32_t index) const {
        return session_.PlanAircrafts[static_cast<std::size_t>(index)];
    }

    const Session& session_;
    RandomSource& random_;
    PlanPositions positions_;
    AirlineSet noAirline_;
    PlainShuffleResult out_;
};

}  // namespace

PlainShuffleResult ShuffleByPlainRules(const Session& session, RandomSource& random) {
    return PlainShuffle(session, random).Run();
}

}  // namespace orlo::test

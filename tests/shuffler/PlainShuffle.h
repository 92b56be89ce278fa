#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/Number.h"
#include "core/Session.h"
#include "core/Text.h"
#include "services/RandomSource.h"
#include "shuffler/AircraftMatch.h"
#include "simulator/FlightLevelMaths.h"
#include "simulator/Navigation.h"
#include "simulator/PlanPositions.h"

namespace orlo::test {

// A plain reading of the shuffle's rules: loops over loops, each text looked up where it is needed. It shares
// with the engine the navigation, the levels, and the text and number helpers alone.
class PlainShuffle {
  public:
    Session session;  // a copy, changed as the shuffle changes it
    bool succeeded = true;
    std::int32_t removed = 0;
    std::int32_t assigned = 0;
    std::int32_t noAirlineFlights = 0;

    PlainShuffle(const Session& before, RandomSource& random)
        : session(before), random_(random), positions_(session.plan) {
        MatchAll();
        random_.SeedFromClock();
        for (std::int32_t i = 0; i < session.plan.FlightCount(); ++i) {
            flight_ = session.plan.Flights.Unpack(i);
            if (flight_.Removed) continue;
            succeeded = FindLimits();
            if (!succeeded) break;
            Decide();
            session.plan.Flights.Replace(i, flight_);
            session.plan.Flights.SetRemoved(i, flight_.Removed);
        }
    }

  private:
    struct Candidate {
        AirlineEntry* entry;
        AirlineAircraft* aircraft;
        bool over;
    };

    std::size_t Draw(std::size_t last) {
        return static_cast<std::size_t>(RoundHalfEven(static_cast<double>(last) * random_.Next()));
    }
    FSAircraft& FSAt(std::int32_t index) {
        return session.fleet.FSAircrafts[static_cast<std::size_t>(index)];
    }
    PlanAircraft& PlanAt(std::int32_t index) {
        return session.plan.PlanAircrafts[static_cast<std::size_t>(index)];
    }

    void MatchAll() {
        session.shuffle.RunAirlines = session.rules.Airlines;
        for (AirlineSet* set : ListAirlineSets(session.shuffle.RunAirlines)) {
            set->Flights = 0;
            for (AirlineEntry& entry : set->Airlines) {
                entry.Flights = entry.PlannedPercent = 0;
                entry.Aircraft.clear();
            }
        }
        noAirline_.resize(1);
        noAirline_[0].PlannedPercent = 100;
        for (std::int32_t p = 0; p < session.plan.PlanAircraftCount(); ++p) {
            for (std::int32_t f = 0; f < session.fleet.FSAircraftCount(); ++f) {
                if (!EqualNoCase(FSAt(f).Title, PlanAt(p).Title)) continue;
                Match({f, p, 0});
                break;
            }
        }
        for (AirlineSet* set : ListAirlineSets(session.shuffle.RunAirlines)) Normalise(*set);
    }

    void Match(AirlineAircraft aircraft) {
        const std::string& airline = FSAt(aircraft.AircraftIndex).Airline;
        if (airline.empty()) return noAirline_[0].Aircraft.push_back(aircraft);
        for (AirlineSet* set : ListAirlineSets(session.shuffle.RunAirlines)) {
            for (AirlineEntry& entry : set->Airlines) {
                if (EqualNoCase(entry.Name, airline)) entry.Aircraft.push_back(aircraft);
            }
        }
    }

    static void Normalise(AirlineSet& set) {
        std::int32_t sum = 0, stated = 0, unstated = 0;
        for (AirlineEntry& entry : set.Airlines) {
            const bool has = !entry.Aircraft.empty();
            const bool states = has && entry.Percent >= 1 && sum + entry.Percent <= 100;
            if (states) sum += entry.Percent;
            if (!states && entry.Percent >= 1) entry.Percent = -1;
            if (has) ++(states ? stated : unstated);
        }
        for (AirlineEntry& entry : set.Airlines) {
            if (unstated > 0) {
                if (entry.Percent != -1) entry.PlannedPercent = entry.Percent;
                if (entry.Percent == -1 && !entry.Aircraft.empty())
                    entry.PlannedPercent = (100 - sum) / unstated;
            } else if (stated > 0 && entry.Percent >= 1) {
                entry.PlannedPercent = entry.Percent + (100 - sum) / stated;
            }
        }
    }

    const std::string& From(std::size_t leg) const {
        return leg == 0 ? flight_.Legs.back().Destination : flight_.Legs[leg - 1].Destination;
    }
    std::int32_t DistanceOf(std::size_t leg) const {
        return positions_.Distance(From(leg), std::string_view(flight_.Legs[leg].Destination));
    }

    bool FindLimits() {
        maxLevel_ = maxDistance_ = -1;
        minLevel_ = minDistance_ = 999999;
        for (std::size_t i = 0; i < flight_.Legs.size(); ++i) {
            const auto level = ParseWholeNumber(flight_.Legs[i].FlightLevel);
            if (!level) return false;
            maxLevel_ = std::max(maxLevel_, *level);
            minLevel_ = std::min(minLevel_, *level);
            maxDistance_ = std::max(maxDistance_, DistanceOf(i));
            minDistance_ = std::min(minDistance_, DistanceOf(i));
        }
        return true;
    }

    const AirportRecord* FindRecord(std::string_view code) const {
        for (const AirportRecord& record : session.scenery.Airports) {
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
    bool IsDomestic(const AirportRecord& current) const {
        return std::all_of(flight_.Legs.begin(), flight_.Legs.end(), [&](const Leg& leg) {
            const AirportRecord* record = FindRecord(leg.Destination);
            return record != nullptr && CountryOf(*record) == CountryOf(current);
        });
    }

    // One level of the search: tries the set if there is one.
    bool Try(AirlineSet* set) {
        if (set == nullptr || !AssignAircraft(set->Airlines, set->Flights)) return false;
        ++set->Flights;
        OverwriteTail(set->TailPatterns);
        return true;
    }

    void Decide() {
        AirlineSets& sets = session.shuffle.RunAirlines;
        std::string patterns;
        std::size_t first = 0, second = 0;
        std::string code = flight_.Legs.empty() ? "" : flight_.Legs.back().Destination;
        const auto level = [&](std::vector<AirlineSet>& list, const std::string& name, bool ifNone) {
            AirlineSet* set = FindSet(list, name);
            if (set != nullptr && (!ifNone || patterns.empty())) patterns = set->TailPatterns;
            return Try(set);
        };
        for (;;) {
            const AirportRecord* record = FindRecord(code);
            if (record == nullptr) return Remove();
            const std::string country = CountryOf(*record);
            if (level(sets.Airports, code, true)) return;
            if (level(sets.Cities, country + "/" + record->City, false)) return;
            if (level(sets.States, country + "/" + record->State, false)) return;
            if (IsDomestic(*record) && first + 1 < flight_.Legs.size()) {
                code = flight_.Legs[first++].Destination;
                continue;
            }
            if (level(sets.Countries, country, false)) return;
            if (session.shuffle.CheckVisitedAirports && second + 1 < flight_.Legs.size()) {
                code = flight_.Legs[second++].Destination;
                continue;
            }
            if (level(sets.Regions, record->Region, true) || Try(&sets.Global)) return;
            break;
        }
        if (!AssignAircraft(noAirline_, 0)) return Remove();
        ++noAirlineFlights;
        OverwriteTail(patterns.empty() ? sets.Global.TailPatterns : patterns);
    }

    void Remove() {
        flight_.Removed = true;
        ++removed;
    }

    bool AssignAircraft(std::vector<AirlineEntry>& airlines, std::int32_t setFlights) {
        std::int32_t minRunway = 999999, minParking = 999999, surface = 0;
        for (const Leg& leg : flight_.Legs) {
            const AirportRecord* record = FindRecord(leg.Destination);
            if (record == nullptr) continue;
            minRunway = std::min({minRunway, record->TakeoffLength, record->LandingLength});
            minParking = std::min(minParking, record->MinParkingRadius);
            surface = std::max({surface, record->TakeoffSurface, record->LandingSurface});
        }
        if (minRunway == 999999) minRunway = 0;
        if (minParking == 999999) minParking = 0;
        constexpr const char* kSurfaces[] = {"1", "HARD", "SOFT", "WATER", "SNOW"};
        const std::string word = kSurfaces[surface < 5 ? surface : 0];

        std::vector<Candidate> candidates;
        for (AirlineEntry& entry : airlines) {
            const std::int32_t achieved = setFlights == 0 ? 0 : entry.Flights * 100 / setFlights;
            for (AirlineAircraft& choice : entry.Aircraft) {
                const FSAircraft& aircraft = FSAt(choice.AircraftIndex);
                const bool levels = minLevel_ >= aircraft.MinFL && maxLevel_ <= aircraft.MaxFL;
                if (!levels && !session.shuffle.CheckFL) continue;
                if (minDistance_ < aircraft.MinRange || maxDistance_ > aircraft.MaxRange) continue;
                if (aircraft.RunwayLength > minRunway) continue;
                if (aircraft.MinParkingRadius > minParking) continue;
                if (UpperText(aircraft.RunwayTypes).find(word) == std::string::npos) continue;
                candidates.push_back({&entry, &choice, entry.PlannedPercent < achieved});
            }
        }
        if (candidates.empty()) return false;
        std::size_t chosen = 0;
        if (candidates.size() > 1) {
            const auto over = [](const Candidate& candidate) { return candidate.over; };
            if (!std::all_of(candidates.begin(), candidates.end(), over)) std::erase_if(candidates, over);
            chosen = Draw(candidates.size() - 1);
        }
        Take(*candidates[chosen].entry, *candidates[chosen].aircraft);
        return true;
    }

    void Take(AirlineEntry& entry, AirlineAircraft& aircraft) {
        flight_.ACNumber = PlanAt(aircraft.PlanAircraftIndex).ACNumber;
        std::vector<PlanAircraft>& planned = session.plan.PlanAircrafts;
        const auto sameNumber = [&](const PlanAircraft& plan) { return plan.ACNumber == flight_.ACNumber; };
        ++std::find_if(planned.begin(), planned.end(), sameNumber)->UsageCount;
        ++aircraft.UseCount;
        ++entry.Flights;
        ++assigned;
        const FSAircraft& chosen = FSAt(aircraft.AircraftIndex);
        if (session.shuffle.ChangeIFRVFR) ApplyRules(chosen.Class);
        ApplyLevelsAndTimes(chosen);
    }

    void ApplyRules(std::int32_t aircraftClass) {
        if (!EqualNoCase(flight_.FlightType, "VFR") || aircraftClass == 0) return;
        const bool slow = aircraftClass == 2 || aircraftClass == 3;
        if (!slow) flight_.FlightType = "IFR";
        for (Leg& leg : flight_.Legs) leg.NumberMode = slow ? "R" : "F";
    }

    void ApplyLevelsAndTimes(const FSAircraft& aircraft) {
        for (std::size_t n = 1; n <= flight_.Legs.size(); ++n) {
            const std::size_t i = n % flight_.Legs.size();  // the first leg last
            Leg& leg = flight_.Legs[i];
            const std::int32_t course = positions_.Course(From(i), std::string_view(leg.Destination));
            if (session.shuffle.CheckFL) {
                leg.FlightLevel =
                    SuggestFlightLevel(session.rules.FlightLevelRules, flight_.FlightType, DistanceOf(i),
                                       course, {aircraft.MinFL, aircraft.MaxFL}, false, random_);
            }
            leg.ETA = GetArrivalTime(DistanceOf(i), leg.DepartTime, flight_.Period, aircraft.CruiseSpeed);
        }
    }

    void OverwriteTail(const std::string& patterns) {
        if (patterns.empty() || !session.shuffle.OverwriteTailNumber) return;
        const std::vector<std::string_view> list = SplitText(patterns, ',');
        flight_.TailNumber.clear();
        for (char character : list[Draw(list.size() - 1)]) {
            if (character == '?') character = Draw(1) == 1 ? '!' : '.';
            if (character == '!') character = static_cast<char>('0' + Draw(9));
            if (character == '.') character = static_cast<char>('A' + Draw(25));
            if (character != '-' || !session.shuffle.RemoveMinus) flight_.TailNumber += character;
        }
    }

    RandomSource& random_;
    PlanPositions positions_;
    std::vector<AirlineEntry> noAirline_;
    Flight flight_;  // at work, and what its legs need
    std::int32_t maxLevel_ = 0, maxDistance_ = 0, minLevel_ = 0, minDistance_ = 0;
};

}  // namespace orlo::test

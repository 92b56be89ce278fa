#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/LineFile.h"
#include "core/Session.h"
#include "services/RandomSource.h"
#include "shuffler/CandidateTable.h"
#include "shuffler/RouteAirports.h"
#include "shuffler/RouteLimits.h"
#include "shuffler/WorkingFlight.h"

namespace orlo {

// Starts session.shuffle.RunAirlines from the rules as read: all counts 0, percents as read.
void ResetRunAirlines(Session& session);

// The set of the aircraft without airline: one entry that may take all.
AirlineSet MakeNoAirlineSet(std::vector<AirlineAircraft> aircraft);

// The working data of one shuffle, built when MatchAircraft has filled session.shuffle.RunAirlines. Of the
// session it changes only the UsageCount of PlanAircrafts and the counts of RunAirlines.
class ShuffleRun {
  public:
    ShuffleRun(Session& sessionOf, AirlineSet& noAirlineSet, RandomSource& randomOf, LineFile& logOf);
    ShuffleRun(const ShuffleRun&) = delete;
    ShuffleRun& operator=(const ShuffleRun&) = delete;

    enum class Decision { Assigned, Removed, LevelIsNoNumber };

    // Decides the flight of a row and logs it. When it was assigned, TheFlight() is its new state.
    Decision Decide(const FlightView& row);
    const WorkingFlight& TheFlight() const { return flight_; }

  private:
    void FindAirports();
    bool FindLimits();  // false: a level is no number
    void FindNeeds();
    Decision SearchAircraft();
    bool TryAirportLevels(const RouteAirport& airport);
    bool TryLastLevels(const RouteAirport& airport);
    bool TrySet(std::int32_t set);
    bool TryNoAirline();
    bool AssignAircraft(std::int32_t set, std::int32_t setFlights);
    void ApplyAircraft(const AirlineAircraft& chosen);
    Decision RemoveFlight();
    AirlineSet& SetAt(std::int32_t set) { return *sets_[static_cast<std::size_t>(set)]; }
    void WriteTailNumber(std::string_view patterns);
    void TakeTailPatterns(std::int32_t set);
    void TakeTailPatternsIfNone(std::int32_t set);

    Session& session_;
    RandomSource& random_;
    LineFile& log_;
    PlanPositions positions_;
    RouteAirports airports_;
    std::vector<AirlineSet*> sets_;  // of ListAirlineSets, and the set without airline last
    CandidateTable candidates_;
    std::vector<std::int32_t> usagePlaces_;  // by plan aircraft: where its flights are counted

    WorkingFlight flight_;
    FlightLimits limits_;
    RouteNeeds needs_;
    bool domestic_ = false;                   // all airports lie in one country
    std::string_view tailPatterns_;           // for a flight that gets an aircraft without airline
    std::vector<std::int64_t> failedFlight_;  // by set: the last flight that found nothing in it
    std::int64_t flightNumber_ = 0;
};

}  // namespace orlo

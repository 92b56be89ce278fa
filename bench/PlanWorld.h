#pragma once

#include <cstdint>
#include <random>

#include "core/ClockTime.h"
#include "core/Session.h"
#include "core/Text.h"

namespace orlo::bench {

inline constexpr int kAircraft = 3000;
inline constexpr int kAirports = 22000;

// A plan of so many flights of two to five legs, most of them with faults, of aircraft of all sizes.
class PlanWorld {
  public:
    PlanWorld(Session& into, std::int64_t flights) : session(into) {
        session.rules.FlightLevelRules = {
            {-1, -1, 0, 179, 35, 175, 20},     {-1, -1, 180, 359, 45, 165, 20},
            {0, 250, 0, 179, 70, 230, 20},     {0, 250, 180, 359, 80, 220, 20},
            {251, 9999, 0, 179, 250, 410, 20}, {251, 9999, 180, 359, 260, 400, 20}};
        for (int i = 0; i < kAirports; ++i) AddAirport(i);
        for (int i = 0; i < kAircraft; ++i) AddAircraft(i);
        session.plan.Flights.Reserve(static_cast<std::int32_t>(flights));
        for (std::int64_t i = 0; i < flights; ++i) AddFlight();
    }

    Session& session;

  private:
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }

    static std::string Code(int airport) { return Concat("A", airport); }

    void AddAirport(int number) {
        session.plan.PlanAirportIndex.Add(Code(number), number);
        session.plan.PlanAirports.push_back({Code(number), Concat("N", Below(80), "* ", Below(60), ".50'"),
                                             Concat("W", Below(180), "* ", Below(60), ".20'"), "364"});
        AirportRecord record;
        record.ICAO = Code(number);
        record.Region = Concat("Region ", number % 9);
        record.Country = Concat("Country ", number % 200);
        session.scenery.Airports.push_back(record);
    }

    void AddAircraft(int number) {
        FSAircraft aircraft;
        aircraft.Title = Concat("Aircraft ", number);
        aircraft.MinFL = 0;
        aircraft.MaxFL = 250 + number % 200;
        aircraft.Airline = number % 10 == 0 ? "" : Concat("Sample Airline ", number % 300);
        aircraft.Class = kClassMicroProp + number % 7;
        session.fleet.FSAircrafts.push_back(aircraft);
        session.plan.PlanAircrafts.push_back({Concat("AC#", number + 1), aircraft.Title, "300", 0});
    }

    void AddFlight() {
        const bool weekly = Below(2) == 0;
        Flight flight{Concat("AC#", 1 + Below(kAircraft)),
                      Concat("N-", Below(90000)),
                      "50%",
                      weekly ? "WEEK" : "24Hr",
                      Below(4) == 0 ? "VFR" : "IFR",
                      {},
                      false};
        std::int32_t time = Below(weekly ? kSecondsPerWeek : kSecondsPerDay);
        const auto next = [&](std::int32_t seconds) {
            time = (time + seconds) % kSecondsPerWeek;
            const std::int32_t clock = time % kSecondsPerDay;
            return weekly ? FormatWeekTime({time / kSecondsPerDay, clock}) : FormatClockTime(clock);
        };
        for (int i = 0, legs = 2 + Below(4); i < legs; ++i) {
            const std::string depart = next(Below(2 * kSecondsPerHour));
            const std::string arrive = next(1200 + Below(3 * kSecondsPerHour));
            flight.Legs.push_back(
                {depart, arrive, false, "350", "F", Concat(1000 + Below(9000)), Code(Below(kAirports))});
        }
        session.plan.Flights.Append(flight);
    }

    std::mt19937 engine_{1};
};

}  // namespace orlo::bench

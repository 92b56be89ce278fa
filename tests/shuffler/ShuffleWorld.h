#pragma once

#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Session.h"
#include "shuffler/ShuffleEngine.h"
#include "support/FakeHosts.h"

namespace orlo::test {

// Repeatable draws; seeding from the clock starts them anew.
class SeededRandom : public RandomSource {
  public:
    explicit SeededRandom(unsigned seed = 1) : seed_(seed), engine_(seed) {}
    std::int64_t taken = 0;
    double Next() override {
        ++taken;
        return std::uniform_real_distribution<double>(0, 1)(engine_);
    }
    void SeedFromClock() override { engine_.seed(seed_); }

  private:
    unsigned seed_;
    std::mt19937 engine_;
};

struct Share {
    std::string airline;
    std::int32_t percent = -1;
};

inline AirlineSet MakeSet(std::string_view name, const std::vector<Share>& shares,
                          std::string_view patterns = "") {
    AirlineSet set;
    set.Name = name;
    set.TailPatterns = patterns;
    for (const Share& share : shares) {
        AirlineEntry& entry = set.Airlines.emplace_back();
        entry.Name = share.airline;
        entry.Percent = share.percent;
    }
    return set;
}

// A session in which a shuffle can run, with all options off, and the fakes that it needs. Airports lie one
// degree of longitude apart on the equator, so 60 nautical miles each from the next.
struct ShuffleWorld {
    SeededRandom random;
    FakeWorld world{{.random = &random}};
    Session session;

    explicit ShuffleWorld(unsigned seed = 1) : random(seed) {
        session.plan.PlanLoaded = true;
        session.shuffle.OverwriteTailNumber = false;
        session.shuffle.CheckVisitedAirports = false;
        session.shuffle.ChangeIFRVFR = false;
        session.shuffle.CheckFL = false;
        session.rules.FlightLevelRules = {{-1, -1, 0, 359, 35, 95, 20}, {0, 9999, 0, 359, 100, 400, 20}};
    }

    AirportRecord& AddAirport(std::string_view code, std::string_view region, std::string_view country) {
        AirportRecord record;
        record.ICAO = code;
        record.Region = region;
        record.Country = country;
        record.TakeoffLength = record.LandingLength = 9000;
        record.TakeoffSurface = record.LandingSurface = kSurfaceHard;
        record.MinParkingRadius = 50;
        AddPosition(code);
        session.scenery.Airports.push_back(std::move(record));
        return session.scenery.Airports.back();
    }

    void AddPosition(std::string_view code) {
        const std::int32_t place = session.plan.PlanAirportCount();
        session.plan.PlanAirportIndex.Add(code, place);
        session.plan.PlanAirports.push_back(
            {std::string(code), "N0* 00.00'", Concat("W", place, "* 00.00'"), "0"});
    }

    // An aircraft that can fly anything, installed and in the plan as "AC#1", "AC#2", ...
    FSAircraft& AddAircraft(std::string_view title, std::string_view airline) {
        FSAircraft aircraft;
        aircraft.Title = title;
        aircraft.Airline = airline;
        aircraft.Class = kClassSmallJet;
        aircraft.UIManufacturer = "Maker";
        aircraft.UIType = "Type";
        aircraft.CruiseSpeed = 120;
        aircraft.MinFL = aircraft.MinRange = 0;
        aircraft.MaxFL = 500;
        aircraft.MaxRange = 9999;
        aircraft.RunwayLength = 1000;
        aircraft.RunwayTypes = "Hard/Soft";
        aircraft.MinParkingRadius = 10;
        session.plan.PlanAircrafts.push_back(
            {Concat("AC#", session.plan.PlanAircraftCount() + 1), std::string(title), "120", 0});
        session.fleet.FSAircrafts.push_back(std::move(aircraft));
        return session.fleet.FSAircrafts.back();
    }

    // A flight that ends its legs at `codes`, all at one level, departing an hour apart.
    void AddFlight(const std::vector<std::string_view>& codes, std::string_view level = "200",
                   std::string_view type = "IFR") {
        Flight flight{"AC#99", "OLD", "50%", "24Hr", std::string(type), {}, false};
        for (std::string_view code : codes) {
            flight.Legs.push_back({Concat("0", flight.LegCount(), ":00:00"), "09:09:09", false,
                                   std::string(level), "X", "1234", std::string(code)});
        }
        session.plan.Flights.Append(flight);
    }

    ShuffleResult Shuffle() { return ShuffleFlightplan(session, world.services, "/plan/FlightPlans.txt"); }

    // The aircraft of all flights, "-" where one was removed.
    std::string Aircraft() const {
        const FlightList& flights = session.plan.Flights;
        std::string text;
        for (std::int32_t i = 0; i < flights.Count(); ++i)
            text += Concat(flights.Removed(i) ? "-" : flights.At(i).ACNumber, " ");
        return text;
    }
};

}  // namespace orlo::test

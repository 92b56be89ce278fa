#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <string>

#include "core/Session.h"
#include "core/Text.h"
#include "shuffler/AircraftMatch.h"
#include "shuffler/ShuffleEngine.h"
#include "shuffler/ShuffleWorld.h"
#include "support/FakeHosts.h"

namespace orlo {
namespace {

constexpr int kAirports = 22000;
constexpr int kAircraft = 3000;
constexpr int kAirlines = 300;
constexpr int kSets = 2000;
constexpr int kAirlinesPerSet = 12;
constexpr int kCountries = 200;
constexpr int kRegions = 10;

// A synthetic world: flights mostly within a country, aircraft of all sizes, sets on all levels.
class World {
  public:
    explicit World(int flights) {
        session.plan.PlanLoaded = true;
        session.rules.FlightLevelRules = {
            {-1, -1, 0, 179, 35, 175, 20},     {-1, -1, 180, 359, 45, 165, 20},
            {0, 250, 0, 179, 70, 230, 20},     {0, 250, 180, 359, 80, 220, 20},
            {251, 9999, 0, 179, 250, 410, 20}, {251, 9999, 180, 359, 260, 400, 20}};
        for (int i = 0; i < kAirports; ++i) AddAirport(i);
        for (int i = 0; i < kAircraft; ++i) AddAircraft(i);
        AddSets();
        session.plan.Flights.Reserve(flights);
        for (int i = 0; i < flights; ++i) AddFlight();
    }

    Session session;
    test::SeededRandom random;
    test::FakeWorld fakes{{.random = &random}};
    Services& services = fakes.services;

  private:
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }

    static std::string Code(int airport) {
        std::string code = "AAAA";
        for (std::size_t i = 4; i-- > 0; airport /= 26) code[i] = static_cast<char>('A' + airport % 26);
        return code;
    }
    static std::string CountryOf(int country) {
        return Concat("Region ", country % kRegions, "/Country ", country);
    }
    static std::string AirlineOf(int airline) { return Concat("Airline ", airline); }

    void AddAirport(int number) {
        const int country = number % kCountries;
        AirportRecord record;
        record.ICAO = Code(number);
        record.Region = Concat("Region ", country % kRegions);
        record.Country = Concat("Country ", country);
        record.State = Concat("State ", number / kCountries % 8);
        record.City = Concat("City ", number / kCountries % 90);
        record.TakeoffLength = record.LandingLength = 1500 + Below(10000);
        record.TakeoffSurface = record.LandingSurface = Below(10) == 0 ? kSurfaceSoft : kSurfaceHard;
        record.MinParkingRadius = Below(3) == 0 ? 9999 : 8 + Below(30);
        session.scenery.Airports.push_back(std::move(record));

        const auto minutes = [&] { return Concat(10 + Below(50), ".", 10 + Below(90), "'"); };
        session.plan.PlanAirportIndex.Add(Code(number), session.plan.PlanAirportCount());
        session.plan.PlanAirports.push_back(
            {Code(number), Concat(country % 2 == 0 ? "N" : "S", country % 12 * 5 + Below(5), "* ", minutes()),
             Concat(country % 3 == 0 ? "W" : "E", country % 17 * 10 + Below(9), "* ", minutes()), "0"});
    }

    void AddAircraft(int number) {
        FSAircraft aircraft;
        aircraft.Title = Concat("Aircraft ", number);
        aircraft.Airline = number % 100 == 0 ? std::string() : AirlineOf(number % kAirlines);
        aircraft.Class = 2 + number / kAirlines % 7;
        aircraft.CruiseSpeed = 120 + 50 * aircraft.Class;
        aircraft.MinFL = 0;
        aircraft.MaxFL = 300 + 15 * aircraft.Class;
        aircraft.MinRange = 0;
        aircraft.MaxRange = 1200 * aircraft.Class + number % 50;
        aircraft.RunwayLength = 300 * aircraft.Class;
        aircraft.RunwayTypes = aircraft.Class < 5 ? "Hard,Soft" : "Hard";
        aircraft.MinParkingRadius = 2 * aircraft.Class;
        session.fleet.FSAircrafts.push_back(aircraft);
        session.plan.PlanAircrafts.push_back({Concat("AC#", number + 1), aircraft.Title, "300", 0});
    }

    AirlineSet MakeSet(std::string name, int airlines) {
        AirlineSet set;
        set.Name = std::move(name);
        set.TailPatterns = "N!!!..,D-....";
        const int first = Below(kAirlines);
        for (int i = 0; i < airlines; ++i) {
            AirlineEntry entry;
            entry.Name = AirlineOf((first + i) % kAirlines);
            entry.Percent = i < 6 ? 10 : -1;
            set.Airlines.push_back(std::move(entry));
        }
        return set;
    }

    void AddSets() {
        AirlineSets& sets = session.rules.Airlines;
        sets.Global = MakeSet("", kAirlines);
        for (int i = 0; i < kRegions; ++i) sets.Regions.push_back(MakeSet(Concat("Region ", i), 60));
        for (int i = 0; i < kCountries; i += 2)
            sets.Countries.push_back(MakeSet(CountryOf(i), kAirlinesPerSet));
        for (int i = 0; i < 390; ++i) {
            const std::string country = CountryOf(i % kCountries);
            sets.States.push_back(MakeSet(Concat(country, "/State ", i / kCountries), kAirlinesPerSet));
            sets.Cities.push_back(MakeSet(Concat(country, "/City ", i / kCountries), kAirlinesPerSet));
        }
        const int airports = kSets - kRegions - kCountries / 2 - 2 * 390 - 1;
        for (int i = 0; i < airports; ++i) sets.Airports.push_back(MakeSet(Code(i), kAirlinesPerSet));
    }

    // Two to five legs; three flights of four stay in their country.
    void AddFlight() {
        const int country = Below(kCountries);
        const bool domestic = Below(4) != 0;
        Flight flight{"AC#1", "N1", "50%", Below(3) == 0 ? "WEEK" : "24Hr", Below(4) == 0 ? "VFR" : "IFR",
                      {},     false};
        const std::string day = flight.Period == "WEEK" ? Concat(Below(7), "/") : std::string();
        for (int i = 0, legs = 2 + Below(4); i < legs; ++i) {
            const int airport =
                domestic ? country + kCountries * Below(kAirports / kCountries) : Below(kAirports);
            const std::string time = Concat(day, 10 + Below(14), ":", 10 + Below(50), ":00");
            flight.Legs.push_back({time, time, false, Concat(100 + 10 * Below(20)), "F",
                                   Concat(1000 + Below(9000)), Code(airport)});
        }
        session.plan.Flights.Append(flight);
    }

    std::mt19937 engine_{1};
};

// One world for the sizes that follow each other.
World& WorldOf(int flights) {
    static std::unique_ptr<World> world;
    if (!world || world->session.plan.FlightCount() != flights) {
        world.reset();
        world = std::make_unique<World>(flights);
    }
    return *world;
}

void BM_Shuffle(benchmark::State& state) {
    const auto flights = static_cast<int>(state.range(0));
    World& world = WorldOf(flights);
    const FlightList plan = world.session.plan.Flights;
    ShuffleResult result;
    for (auto _ : state) {
        world.session.plan.Flights = plan;
        result = ShuffleFlightplan(world.session, world.services, "FlightPlans.txt");
    }
    world.session.plan.Flights = plan;
    state.counters["removed"] = result.removed;
    state.counters["per flight"] = benchmark::Counter(
        flights, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_Shuffle)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

void BM_MatchAircraft(benchmark::State& state) {
    World& world = WorldOf(10);
    for (auto _ : state) {
        AirlineSets sets = world.session.rules.Airlines;
        benchmark::DoNotOptimize(
            MatchAircraft(world.session.plan.PlanAircrafts, world.session.fleet.FSAircrafts, sets));
    }
}
BENCHMARK(BM_MatchAircraft)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orlo

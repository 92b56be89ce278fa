#include <gtest/gtest.h>

#include <array>
#include <random>

#include "shuffler/PlainShuffle.h"
#include "shuffler/ShuffleWorld.h"

namespace orlo::test {
namespace {

// Makes small worlds in which every rule has something to bite on.
class WorldMaker {
  public:
    explicit WorldMaker(unsigned seed) : engine_(seed) {}

    void Fill(ShuffleWorld& made) {
        Session& session = made.session;
        session.shuffle.OverwriteTailNumber = Chance(60);
        session.shuffle.CheckVisitedAirports = Chance(50);
        session.shuffle.ChangeIFRVFR = Chance(50);
        session.shuffle.RemoveMinus = Chance(50);
        session.shuffle.CheckFL = Chance(50);
        const bool longRunways = Chance(3);
        for (std::string_view code : kCodes) AddAirport(made, code);
        for (AirportRecord& airport : session.scenery.Airports) {
            if (longRunways) airport.TakeoffLength = airport.LandingLength = 999999;
        }
        for (int i = 0, count = Below(30); i < count; ++i) AddAircraft(made);
        AddSets(session.rules.Airlines);
        const int badLevels = Chance(20) ? 2 : 0;
        for (int i = 0, count = 5 + Below(60); i < count; ++i) AddFlight(session, badLevels);
    }

  private:
    static constexpr std::array<std::string_view, 10> kCodes = {"AAAA", "BBBB", "CCCC", "DDDD",        "EEEE",
                                                                "FFFF", "aaaa", "GGGG", "LONGER-CODE", ""};
    static constexpr std::array<std::string_view, 2> kRegions = {"North", "south"};
    static constexpr std::array<std::string_view, 2> kCountries = {"Land", "Isle"};
    static constexpr std::array<std::string_view, 3> kStates = {"", "East", "West"};
    static constexpr std::array<std::string_view, 3> kCities = {"", "Town", "Port"};
    static constexpr std::array<std::string_view, 5> kAirlines = {"Alpha", "BETA", "gamma", "Delta", ""};
    static constexpr std::array<std::string_view, 5> kPatterns = {"", "N!!!", "G-....,D-?!", ",X-?", "Z"};

    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <typename List>
    auto Pick(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(list.size())))];
    }
    std::string AnyCase(std::string_view text) { return Chance(50) ? UpperText(text) : std::string(text); }

    void AddAirport(ShuffleWorld& made, std::string_view code) {
        if (Chance(92)) made.AddPosition(code);
        if (Chance(10) && !made.session.plan.PlanAirports.empty())
            made.session.plan.PlanAirports.back().Longitude = "W1* 00.00'";
        if (code.empty() ? Chance(95) : Chance(5)) return;
        const bool oneCountry = Chance(70);
        AirportRecord record;
        record.ICAO = AnyCase(code);
        record.Region = oneCountry ? "North" : Pick(kRegions);
        record.Country = oneCountry ? "Land" : Pick(kCountries);
        record.State = Pick(kStates);
        record.City = Pick(kCities);
        record.TakeoffLength = 1500 + 1000 * Below(4);
        record.LandingLength = 1500 + 1000 * Below(4);
        record.TakeoffSurface = Chance(85) ? 1 : Below(6);
        record.LandingSurface = Chance(85) ? 1 : Below(5);
        record.MinParkingRadius = Chance(50) ? 9999 : 5 + 10 * Below(4);
        made.session.scenery.Airports.push_back(record);
    }

    void AddAircraft(ShuffleWorld& made) {
        const std::string title = Concat("Title ", Below(30));
        FSAircraft& aircraft = made.AddAircraft(title, AnyCase(Pick(kAirlines)));
        if (Chance(15)) made.session.plan.PlanAircrafts.back().ACNumber = "AC#1";
        if (Chance(15)) made.session.plan.PlanAircrafts.back().Title = "not installed";
        if (Chance(30)) made.session.plan.PlanAircrafts.back().Title = UpperText(title);
        aircraft.Class = Below(9);
        aircraft.CruiseSpeed = Chance(5) ? 0 : 60 + Below(400);
        aircraft.MinFL = Chance(50) ? 0 : 20 * Below(8);
        aircraft.MaxFL = aircraft.MinFL + 20 * (5 + Below(20));
        aircraft.MinRange = Chance(80) ? -1 : 60 * Below(4);
        aircraft.MaxRange = 60 * (3 + Below(10));
        aircraft.RunwayLength = 1000 * Below(4);
        aircraft.RunwayTypes = Chance(80) ? "hard,Soft,WATER" : Pick(std::array{"Snow", "Hard", "", "hard1"});
        aircraft.MinParkingRadius = 10 * Below(3);
    }

    AirlineSet MakeSetOf(std::string_view name) {
        static constexpr std::array<std::int32_t, 9> kPercents = {-1, -1, 0, 5, 30, 50, 70, 100, -7};
        const std::string anyName = AnyCase(name);
        const std::string_view patterns = Pick(kPatterns);
        std::vector<Share> shares(static_cast<std::size_t>(Below(4)));
        for (Share& share : shares) share = {AnyCase(Pick(kAirlines)), Pick(kPercents)};
        return MakeSet(anyName, shares, patterns);
    }

    // Some twice, of which the first counts.
    void AddSets(AirlineSets& sets) {
        sets.Global = MakeSetOf("");
        const auto add = [&](std::vector<AirlineSet>& list, std::string_view name, int percent) {
            while (Chance(percent)) list.push_back(MakeSetOf(name));
        };
        for (std::string_view code : kCodes) add(sets.Airports, code, 20);
        for (std::string_view region : kRegions) {
            add(sets.Regions, region, 40);
            for (std::string_view country : kCountries) {
                const std::string place = Concat(region, "/", country);
                add(sets.Countries, place, 40);
                for (std::string_view state : kStates) add(sets.States, Concat(place, "/", state), 20);
                for (std::string_view city : kCities) add(sets.Cities, Concat(place, "/", city), 20);
            }
        }
    }

    void AddFlight(Session& session, int badLevelPercent) {
        static constexpr std::array<std::string_view, 4> kOddLevels = {" 100 ", "99.5", "-20", "0300"};
        const bool week = Chance(30);
        Flight flight{"AC#77", "OLD-1",  "50%", week ? "week" : "24Hr", AnyCase(Chance(60) ? "IFR" : "vfr"),
                      {},      Chance(5)};
        for (int i = 0, count = Chance(4) ? Below(2) : 2 + Below(4); i < count; ++i) {
            Leg leg;
            leg.DepartTime = Concat(week ? Concat(Below(7), "/") : std::string(), FormatHour(Below(24)));
            if (Chance(3)) leg.DepartTime = "soon";
            leg.ETA = "11:11:11";
            leg.FixedETA = Chance(30);
            leg.FlightLevel = Chance(90) ? Concat(20 * Below(18)) : std::string(Pick(kOddLevels));
            if (Chance(badLevelPercent)) leg.FlightLevel = Chance(50) ? "" : "FL100";
            leg.NumberMode = Chance(50) ? "F" : "R";
            leg.FlightNumber = Concat(Below(9999));
            leg.Destination = kCodes[static_cast<std::size_t>(Below(Chance(3) ? 10 : Chance(40) ? 9 : 4))];
            flight.Legs.push_back(leg);
        }
        session.plan.Flights.Append(flight);
    }

    static std::string FormatHour(int hour) { return Concat(hour / 10, hour % 10, ":05:00"); }

    std::mt19937 engine_;
};

std::string Describe(AirlineSets sets) {
    std::string text;
    for (const AirlineSet* set : ListAirlineSets(sets)) {
        text += Concat("\n", set->Name, " ", set->Flights, ":");
        for (const AirlineEntry& entry : set->Airlines) {
            text +=
                Concat(" ", entry.Name, " ", entry.Percent, "/", entry.PlannedPercent, " ", entry.Flights);
            for (const AirlineAircraft& one : entry.Aircraft)
                text += Concat(" ", one.AircraftIndex, "-", one.PlanAircraftIndex, "x", one.UseCount);
        }
    }
    return text;
}

struct Seen {
    std::int64_t assigned = 0, removed = 0, noAirline = 0, errors = 0;
};

void CompareOneWorld(unsigned seed, Seen& seen) {
    ShuffleWorld made(seed);
    WorldMaker(seed).Fill(made);
    SeededRandom plainRandom(seed);
    const PlainShuffle plain(made.session, plainRandom);
    const ShuffleResult result = made.Shuffle();

    EXPECT_EQ(result.succeeded, plain.succeeded);
    EXPECT_EQ(result.removed, plain.removed);
    EXPECT_EQ(result.assigned, plain.assigned);
    EXPECT_EQ(made.random.taken, plainRandom.taken);
    ASSERT_EQ(made.session.plan.FlightCount(), plain.session.plan.FlightCount());
    for (std::int32_t i = 0; i < made.session.plan.FlightCount(); ++i) {
        ASSERT_EQ(made.session.plan.Flights.Line(i), plain.session.plan.Flights.Line(i));
        ASSERT_EQ(made.session.plan.Flights.Removed(i), plain.session.plan.Flights.Removed(i)) << i;
    }
    EXPECT_EQ(Describe(made.session.rules.Airlines), Describe(plain.session.rules.Airlines));
    EXPECT_EQ(Describe(made.session.shuffle.RunAirlines), Describe(plain.session.shuffle.RunAirlines));
    EXPECT_EQ(made.session.plan.PlanAircrafts, plain.session.plan.PlanAircrafts);
    seen.assigned += plain.assigned;
    seen.removed += plain.removed;
    seen.noAirline += plain.noAirlineFlights;
    seen.errors += plain.succeeded ? 0 : 1;
}

TEST(ShuffleAgainstPlainRules, FourHundredRandomWorldsEndAlikeWithTheSameDraws) {
    Seen seen;
    for (unsigned seed = 1; seed <= 400 && !HasFailure(); ++seed) {
        SCOPED_TRACE(Concat("seed ", seed));
        CompareOneWorld(seed, seen);
    }
    // The worlds are worth nothing unless all outcomes are common in them.
    EXPECT_GT(seen.assigned, 3000);
    EXPECT_GT(seen.removed, 1500);
    EXPECT_GT(seen.noAirline, 200);
    EXPECT_GT(seen.errors, 10);
}

}  // namespace
}  // namespace orlo::test

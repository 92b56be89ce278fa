#include "Fleet.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace orlo::world {

const char* const AirlineWithoutAircraft = "Sample Air Paper";
const char* const AirlineWithoutSet = "Sample Cargo Nowhere";

const ClassRow ClassRows[ClassCount] = {
    {"Micro Prop", {125, 0, 100, 0, 400, 500, "HARD SOFT", 5, "RAMP", 10}},
    {"Mid Prop", {180, 0, 180, 0, 800, 700, "HARD SOFT", 7, "RAMP", 50}},
    {"Large Prop", {270, 80, 250, 50, 900, 1100, "HARD", 9, "RAMP GATE", 100}},
    {"Micro Jet", {400, 100, 430, 100, 1500, 1300, "HARD", 9, "RAMP", 100}},
    {"Small Jet", {440, 100, 410, 120, 2200, 1600, "HARD", 12, "GATE", 100}},
    {"Large Jet", {470, 240, 410, 700, 4600, 2200, "HARD", 14, "GATE", 100}},
    {"Huge Jet", {490, 240, 430, 1500, 7500, 2800, "HARD", 16, "GATE", 100}},
};

namespace {

constexpr Performance NoTuning = {-1, -1, -1, -1, -1, -1, "", -1, "", -1};
constexpr int FaultyCount = 11;
const char* const LightMaker = "SAMPLE LIGHT";
const char* const PropMaker = "SAMPLE PROPS";
const char* const JetMaker = "SAMPLE JETS";

}  // namespace

const std::vector<AircraftType> AircraftTypes = {
    {"MP12", LightMaker, "Sample Light 12", MicroProp, "118.5 ;knots true", 1, 18, false, false, NoTuning},
    {"MP18", LightMaker, "Sample Light 18", MicroProp, "132.0", 2, 20, false, false, NoTuning},
    {"FP06",
     LightMaker,
     "Sample Float 6",
     MicroProp,
     "110.25 ; on floats",
     3,
     22,
     false,
     true,
     {110, 0, 100, 0, 350, 500, "WATER HARD", 5, "DOCK RAMP", 5}},
    {"DP19", PropMaker, "Sample Commuter 19", MidProp, "190.0 ;KTAS", 1, 32, false, false, NoTuning},
    {"DP34",
     PropMaker,
     "Sample Commuter 34",
     MidProp,
     "185",
     2,
     38,
     false,
     true,
     {185, 0, 200, 20, 700, 700, "HARD SOFT", 8, "RAMP", 60}},
    {"TP46", PropMaker, "Sample Prop 46", LargeProp, "262.5 ;cruise at FL200", 1, 45, false, false, NoTuning},
    {"TP72", PropMaker, "Sample Prop 72", LargeProp, "274.0", 2, 46, false, false, NoTuning},
    {"BJ08", JetMaker, "Sample Business 8", MicroJet, "402.0", 3, 30, false, false, NoTuning},
    {"SJ70",
     JetMaker,
     "Sample Jet 70",
     SmallJet,
     "428.9 ;knots",
     1,
     48,
     false,
     true,
     {430, 100, 410, 100, 1600, 1500, "HARD", 11, "GATE", 100}},
    {"SJ15", JetMaker, "Sample Jet 150", SmallJet, "445.0", 2, 60, false, false, NoTuning},
    {"SJ18", JetMaker, "Sample Jet 180", SmallJet, "448.0 ; M0.78", 3, 64, false, false, NoTuning},
    {"LJ25", JetMaker, "Sample Jet 250", LargeJet, "466.0", 1, 85, true, false, NoTuning},
    {"LJ30", JetMaker, "Sample Jet 300", LargeJet, "473.5 ;knots", 2, 98, true, false, NoTuning},
    {"HJ40", JetMaker, "Sample Jet 400", HugeJet, "490.0", 1, 105, true, false, NoTuning},
    {"HJ50",
     JetMaker,
     "Sample Jet 500",
     HugeJet,
     "492.75 ; long haul",
     3,
     119,
     true,
     true,
     {492, 240, 430, 1800, 7200, 2800, "HARD", 16, "GATE", 100}},
};

const Performance& PerformanceOf(const AircraftType& type) {
    return type.OwnLine ? type.Own : ClassRows[type.TypeClass].Profile;
}

const AircraftType& TypeOf(const Variant& variant) {
    return AircraftTypes[static_cast<std::size_t>(variant.TypeIndex)];
}

const Airline& AirlineOf(const Fleet& fleet, const Variant& variant) {
    return fleet.Airlines[static_cast<std::size_t>(variant.AirlineIndex)];
}

namespace {

int TypeIndexOf(const std::string& model) {
    const auto found = std::find_if(AircraftTypes.begin(), AircraftTypes.end(),
                                    [&](const AircraftType& type) { return type.Model == model; });
    return static_cast<int>(found - AircraftTypes.begin());
}

std::vector<Airline> NamedAirlines() {
    const std::string america = "North America", europe = "Europe";
    return {
        {"Sample Air Cascade", america, "United States"},
        {"Sample Air Liberty", america, "United States"},
        {"Sample Air Albion", europe, "United Kingdom"},
        {"Sample Air Rhine", europe, "Germany"},
        {"Sample Air Maple", america, "Canada"},
        {"Sample Air Seine", europe, "France"},
        {"Sample Air Thames", europe, "United Kingdom"},
        {"Sample Air Isar", europe, "Germany"},
        {"Sample Air Glacier", europe, "Switzerland"},
        {"Sample Air Fj\xF8rd", europe, "Norway"},
        {"Sample Air Dune", "Asia", "United Arab Emirates"},
        {"Sample Air Reef", "Oceania", "Australia"},
    };
}

// The named airlines first, then numbered ones that have their homes in the world's countries in turn.
std::vector<Airline> BuildAirlines(int count, const std::vector<Airport>& airports) {
    std::vector<std::pair<std::string, std::string>> homes;
    std::set<std::pair<std::string, std::string>> seen;
    for (const Airport& airport : airports) {
        if (seen.insert({airport.Region, airport.Country}).second)
            homes.push_back({airport.Region, airport.Country});
    }
    std::vector<Airline> airlines = NamedAirlines();
    for (std::size_t i = airlines.size(); i < static_cast<std::size_t>(count); ++i) {
        const auto& [region, country] = homes[i % homes.size()];
        airlines.push_back({"Sample Air " + std::to_string(i + 1), region, country});
    }
    airlines.resize(static_cast<std::size_t>(count));
    return airlines;
}

}  // namespace

Fleet BuildFleet(int airlineCount, int aircraftCount, const std::vector<Airport>& airports) {
    static const char* const privateModels[] = {"MP12", "DP19", "MP18", "BJ08", "FP06", "DP34"};
    // The first four give an airline an aircraft for every length of route.
    static const char* const airlineModels[] = {"SJ15", "TP72", "LJ30", "HJ40", "SJ70",
                                                "TP46", "LJ25", "SJ18", "HJ50"};

    Fleet fleet;
    fleet.Airlines = BuildAirlines(airlineCount, airports);
    fleet.FaultyVariants = aircraftCount >= 40 ? FaultyCount : 0;
    const int sound = aircraftCount - fleet.FaultyVariants;
    const int equipped = std::clamp(sound * 7 / 8 / 4, 1, airlineCount);
    std::map<std::pair<int, int>, int> paints;
    int airlineSlots = 0, privateSlots = 0;
    for (int i = 0; i < sound; ++i) {
        Variant variant;
        if (i % 8 == 7) {
            variant.TypeIndex = TypeIndexOf(privateModels[privateSlots++ % 6]);
        } else {
            variant.AirlineIndex = airlineSlots % equipped;
            variant.TypeIndex = TypeIndexOf(airlineModels[airlineSlots++ / equipped % 9]);
        }
        variant.Paint = ++paints[{variant.TypeIndex, variant.AirlineIndex}];
        variant.Title = TypeOf(variant).Name;
        variant.Title += " - ";
        if (variant.AirlineIndex < 0) {
            variant.Title += "Private";
        } else {
            Airline& airline = fleet.Airlines[static_cast<std::size_t>(variant.AirlineIndex)];
            airline.HasAircraft = true;
            variant.Title += airline.Name;
        }
        if (variant.Paint > 1) variant.Title += " Paint " + std::to_string(variant.Paint);
        fleet.Variants.push_back(variant);
    }
    return fleet;
}

}  // namespace orlo::world

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Airports.h"

namespace orlo::world {

// The seven classes in the order of the class file.
enum AircraftClass : int { MicroProp, MidProp, LargeProp, MicroJet, SmallJet, LargeJet, HugeJet, ClassCount };

// What an aircraft can do; as in a line of the class file.
struct Performance {
    int CruiseSpeed;         // knots
    int MinLevel, MaxLevel;  // hundreds of feet
    int MinRange, MaxRange;  // nautical miles
    int RunwayLength;        // metres, the unit of this scenery
    const char* RunwayTypes;
    int MinParkingRadius;  // metres
    const char* ParkingTypes;
    int IfrPercent;
};

struct ClassRow {
    const char* Name;
    Performance Profile;
};
extern const ClassRow ClassRows[ClassCount];

// An invented aircraft type.
struct AircraftType {
    const char* Model;  // as in atc_model, and the entry of the class file
    const char* Maker;  // as in atc_type
    const char* Name;
    AircraftClass TypeClass;
    const char* ConfigSpeed;  // as in [Reference Speeds], with decimals and comment
    int ModelLayout;          // 1 to 3: where the model file keeps its radius
    int Radius;               // feet
    bool Heavy;
    bool OwnLine;  // has its own eleven values in the class file
    Performance Own;
};
extern const std::vector<AircraftType> AircraftTypes;

// The values that hold for the type: its own, or those of its class.
const Performance& PerformanceOf(const AircraftType& type);

struct Airline {
    std::string Name;
    std::string Region, Country;  // its home
    bool HasAircraft = false;
};

// One livery of a type.
struct Variant {
    int TypeIndex = 0;      // into AircraftTypes
    int AirlineIndex = -1;  // into Fleet::Airlines; -1 for private aircraft
    int Paint = 1;          // counts the liveries of one type and airline
    std::string Title;
};

struct Fleet {
    std::vector<Airline> Airlines;
    std::vector<Variant> Variants;  // all of them sound
    int FaultyVariants = 0;         // how many of the world's variants are to have faults
};

// The type of a variant, and the airline of one that has an airline.
const AircraftType& TypeOf(const Variant& variant);
const Airline& AirlineOf(const Fleet& fleet, const Variant& variant);

// The airline that every rule file names and that owns nothing, and the one that owns aircraft and stands in
// no set.
extern const char* const AirlineWithoutAircraft;
extern const char* const AirlineWithoutSet;

// `aircraftCount` variants, faulty ones included; fewer airlines get aircraft when there are not four for
// each.
Fleet BuildFleet(int airlineCount, int aircraftCount, const std::vector<Airport>& airports);

}  // namespace orlo::world

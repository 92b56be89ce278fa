#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace orlo {

// Class codes of aircraft, as stored and logged.
enum AircraftClass : std::int32_t {
    kClassNone = 0,  // no class entry matched
    kClassNotUsed = 1,
    kClassMicroProp = 2,
    kClassMidProp = 3,
    kClassLargeProp = 4,
    kClassMicroJet = 5,
    kClassSmallJet = 6,
    kClassLargeJet = 7,
    kClassHugeJet = 8,
};

// One installed aircraft variant: one fltsim section of an aircraft.cfg.
struct FSAircraft {
    std::string ID;  // empty; an operation's copy holds the plan's aircraft number here
    std::string Title;
    std::string UIManufacturer;
    std::string UIType;
    std::int32_t CruiseSpeed = -1;  // knots
    std::int32_t Class = kClassNone;
    std::string ATCType;
    std::string ATCModel;
    std::string ConfigFile;  // full path of the aircraft.cfg
    std::string Airline;
    std::int32_t MinFL = -1;  // hundreds of feet
    std::int32_t MaxFL = -1;
    std::int32_t MaxRange = -1;  // nautical miles
    std::int32_t MinRange = -1;
    std::string Section;   // name of the section, as the file spells it
    bool Changed = false;  // edited and not yet saved
    std::string ModelFile;
    std::int32_t ModelFormat = 0;  // 0 unread, 1 to 3: where the radius stands in the model
    std::int32_t Radius = -1;      // of the model, as its file has it; -1 unread
    bool RadiusChanged = false;
    std::string Sim;
    std::string Model;
    std::string Panel;
    std::string Sound;
    std::string Texture;
    std::string KbChecklists;
    std::string KbReference;
    std::string ATCID;
    std::string ATCFlightNumber;
    bool ATCHeavy = false;
    std::string UIVariation;
    bool VisualDamage = false;
    std::string Description;
    std::string Performance;
    std::int32_t FileCruiseSpeed = -1;
    std::int32_t RunwayLength = -1;  // metres
    std::string RunwayTypes;
    std::int32_t MinParkingRadius = -1;
    std::string ParkingTypes;
    std::int32_t IFRPercent = -1;
    std::string FileATCModel;  // those of [General] alone, under which the class is looked up first
    std::string FileATCType;
    std::string ClassID;  // ID of the class entry that matched
    std::string Problem;  // faults of the files, joined by " | "

    bool operator==(const FSAircraft&) const = default;
};

// An installed aircraft that the user checked for the plan.
struct CheckedAircraft {
    std::int32_t FSIndex = -1;  // place in FSAircrafts
    std::string Title;          // as the tree shows it

    bool operator==(const CheckedAircraft&) const = default;
};

// Defaults of one class.
struct ClassProfile {
    std::int32_t MaxFL = -1;
    std::int32_t MinFL = -1;
    std::int32_t MaxRange = -1;
    std::int32_t MinRange = -1;
    std::int32_t CruiseSpeed = -1;
    std::int32_t RunwayLength = 0;
    std::string RunwayTypes;
    std::int32_t MinParkingRadius = 0;
    std::string ParkingTypes;
    std::int32_t IFRPercent = 0;

    bool operator==(const ClassProfile&) const = default;
};

// One line of a class section. A number of -1 or an empty text is unset.
struct ClassEntry {
    std::string ID;
    std::int32_t MaxRange = -1;
    std::int32_t MinRange = -1;
    std::int32_t MaxFL = -1;
    std::int32_t MinFL = -1;
    std::int32_t CruiseSpeed = -1;
    std::int32_t RunwayLength = -1;
    std::string RunwayTypes;
    std::int32_t MinParkingRadius = -1;
    std::string ParkingTypes;
    std::int32_t IFRPercent = -1;

    bool operator==(const ClassEntry&) const = default;
};

// All class lists, by class code: [kClassNotUsed] to [kClassHugeJet]; place 0 stays empty, and so does the
// profile of Not Used.
struct ClassLists {
    std::array<std::vector<ClassEntry>, 9> Entries;
    std::array<ClassProfile, 9> Profiles;

    bool operator==(const ClassLists&) const = default;
};

}  // namespace orlo

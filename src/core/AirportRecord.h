#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// Surface classes of the runway limits.
enum SurfaceClass : std::int32_t {
    kSurfaceNone = 0,
    kSurfaceHard = 1,
    kSurfaceSoft = 2,
    kSurfaceWater = 3,
    kSurfaceSnow = 4
};

// The word of a surface class as runway types and logs spell it: "HARD", "SOFT", "WATER" or "SNOW"; "1" for
// any other value.
constexpr std::string_view SurfaceText(std::int32_t surface) {
    switch (surface) {
        case kSurfaceHard:
            return "HARD";
        case kSurfaceSoft:
            return "SOFT";
        case kSurfaceWater:
            return "WATER";
        case kSurfaceSnow:
            return "SNOW";
        default:
            return "1";
    }
}

struct ParkingRecord {
    std::int32_t Number = 0;
    std::int32_t Reserved = 0;
    float Radius = 0;   // metres
    float Heading = 0;  // degrees, 0 to 360
    std::int32_t Class = 0;
    std::string Name;  // number, blank and kind
    std::int32_t Raw = 0;

    bool operator==(const ParkingRecord&) const = default;
};

struct FrequencyRecord {
    std::string Name;
    std::string Frequency;  // "118.300"
    std::int32_t Type = 0;

    bool operator==(const FrequencyRecord&) const = default;
};

struct RunwayRecord {
    std::string Name;
    std::string Ident;
    std::int32_t Number = 0;
    float Heading = 0;  // degrees, 0 to 360
    float MagVar = 0;   // degrees
    std::int32_t Length = 0;
    std::int32_t Width = 0;
    std::int32_t Kind = 0;  // 1 left, 2 right, 3 centre, 4 helipad
    std::int32_t Further1 = 0;
    std::int32_t Surface = 0;  // the scenery's code
    bool Landing1 = false;
    bool Takeoff1 = false;
    std::int32_t Pattern1 = 0;  // 0 none, 1 left, 2 right
    bool Landing2 = false;
    bool Takeoff2 = false;
    std::int32_t Pattern2 = 0;
    std::int32_t Further2 = 0;
    std::string ILSFrequency2;  // of the second end
    float ILSHeading2 = 0;
    std::string ILSName2;
    float ILSHeading1 = 0;  // of the first end
    std::string ILSFrequency1;
    std::string ILSName1;

    bool operator==(const RunwayRecord&) const = default;
};

// One airport of the scenery.
struct AirportRecord {
    std::string Name;
    std::string ICAO;
    std::string Latitude;  // letter, degrees, "*", minutes with four decimals, "'"
    std::string Longitude;
    std::int32_t Elevation = 0;  // as stored in the scenery
    std::string Region;
    std::string Country;
    std::string State;
    std::string City;
    std::int32_t LandingLength = 0;  // as stored in the scenery
    std::int32_t TakeoffLength = 0;
    std::int32_t LandingSurface = kSurfaceNone;
    std::int32_t TakeoffSurface = kSurfaceNone;
    std::vector<RunwayRecord> Runways;
    std::vector<ParkingRecord> Parkings;
    std::vector<FrequencyRecord> Frequencies;
    std::int32_t MaxParkingRadius = 0;     // 0 without parkings
    std::int32_t MinParkingRadius = 9999;  // 9999 without parkings

    bool operator==(const AirportRecord&) const = default;
};

}  // namespace orlo

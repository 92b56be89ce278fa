#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Geo.h"

namespace orlo::world {

// Surface codes of the scenery.
enum Surface : int { Concrete = 2, Asphalt = 3, Grass = 4, Gravel = 5, Snow = 8, Water = 10 };

struct Runway {
    int Number = 0;      // 1 to 36
    int Designator = 0;  // 0 none, 1 left, 2 right, 3 centre, 4 helipad
    int Length = 0;      // metres
    int Width = 0;       // metres
    int SurfaceCode = Asphalt;
    int MagneticVariation = 0;  // degrees
    std::uint32_t Flags = 0;    // bits 0 to 3: takeoff and landing of both ends; 4 to 7: their patterns
    bool Ils = false;
};

struct Parking {
    int Number = 0;
    int Kind = 0;     // 1 to 9 parking, 11 dock, 12 to 37 gates A to Z
    int Class = 0;    // 2 "Ramp GA Small" to 11 "Dock GA"
    int Radius = 0;   // metres
    int Heading = 0;  // degrees
};

struct Frequency {
    int KHz = 0;
    int Type = 0;  // 1 ATIS, 3 UNICOM, 5 Ground, 6 Tower, 7 Clearance, 8 Arrival, 9 Departure
};

struct Airport {
    std::string Code, Name, Region, Country, State, City;  // State is empty in most countries
    int Latitude = 0, Longitude = 0;                       // hundredths of a minute, north and east positive
    int Elevation = 0;                                     // metres
    std::vector<Runway> Runways;
    std::vector<Parking> Parkings;
    std::vector<Frequency> Frequencies;

    // What decides which aircraft can come here.
    int LongestRunway = 0;       // metres
    int LongestSurface = 0;      // code of the surface of that runway
    int SmallestParking = 9999;  // metres
    UnitVector Position;
};

// One hand-written real airport. Names and cities are in code page 1252.
struct RealAirport {
    const char *Code, *Name, *Region, *Country, *State, *City;
    double Latitude, Longitude;  // degrees, north and east positive
    int Elevation;               // metres
    const char* Runways;         // "16L 3627x46, 16R 2591x46"; a "W" behind the width is water
};

const std::vector<RealAirport>& RealAirports();

// The code of invented airport `index`: a "Q" and three base-36 digits. No real location indicator begins
// with "Q", since the radio code groups do.
std::string InventedCode(int index);

// The airports of the world. Neighbours in the list lie near each other on the globe.
std::vector<Airport> BuildAirports(int count, std::uint64_t seed);

}  // namespace orlo::world

#include "Airports.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>

#include "Random.h"

namespace orlo::world {

namespace {

enum class Size { Strip, Small, Medium, Large, Hub };

Size SizeOf(const Airport& airport) {
    if (airport.LongestRunway < 900) return Size::Strip;
    if (airport.LongestRunway < 1600) return Size::Small;
    if (airport.LongestRunway < 2500) return Size::Medium;
    return airport.LongestRunway < 3600 ? Size::Large : Size::Hub;
}

int Designator(char letter) {
    if (letter == 'L') return 1;
    if (letter == 'R') return 2;
    return letter == 'C' ? 3 : 0;
}

// Takes the number at the front of the text off it.
int TakeNumber(std::string_view& text) {
    int value = 0;
    while (!text.empty() && std::isdigit(static_cast<unsigned char>(text.front()))) {
        value = value * 10 + (text.front() - '0');
        text.remove_prefix(1);
    }
    return value;
}

std::vector<Runway> ParseRunways(std::string_view text) {
    std::vector<Runway> runways;
    while (!text.empty()) {
        Runway runway;
        runway.Flags = 0x0F;
        runway.Number = TakeNumber(text);
        runway.Designator = Designator(text.front());
        text.remove_prefix(text.find(' ') + 1);
        runway.Length = TakeNumber(text);
        text.remove_prefix(1);
        runway.Width = TakeNumber(text);
        if (text.substr(0, 1) == "W") {
            runway.SurfaceCode = Water;
            text.remove_prefix(1);
        }
        runway.Ils = runway.SurfaceCode != Water && runway.Length >= 2000;
        runways.push_back(runway);
        text.remove_prefix(std::min<std::size_t>(2, text.size()));
    }
    return runways;
}

// Adds `count` parkings of one class, gates lettered by their class and all others without a letter.
void AddParkings(Airport& airport, int count, int parkingClass, int radius, Random& random) {
    for (int i = 0; i < count; ++i) {
        Parking parking;
        parking.Number = static_cast<int>(airport.Parkings.size()) + 1;
        parking.Class = parkingClass;
        parking.Kind =
            parkingClass >= 8 && parkingClass <= 10 ? 12 + (10 - parkingClass) : random.Between(1, 9);
        if (parkingClass == 11) parking.Kind = 11;
        parking.Radius = radius;
        parking.Heading = random.Between(0, 359);
        airport.Parkings.push_back(parking);
    }
}

// Parkings that fit the airport's size. The smallest one decides which aircraft may come, so that large
// airports have no small ramps.
void FurnishParkings(Airport& airport, Random& random) {
    struct Stock {
        int Count, Class, Radius;
    };
    static const std::vector<Stock> stocks[] = {
        {{6, 2, 8}},
        {{4, 2, 9}, {3, 3, 12}, {2, 8, 14}},
        {{4, 3, 14}, {6, 8, 18}, {6, 9, 26}, {1, 5, 28}},
        {{4, 4, 16}, {8, 8, 18}, {12, 9, 26}, {6, 10, 36}, {3, 5, 36}},
        {{4, 4, 16}, {10, 8, 18}, {24, 9, 26}, {14, 10, 42}, {4, 5, 40}, {2, 6, 40}, {2, 7, 20}},
    };
    for (const Stock& stock : stocks[static_cast<int>(SizeOf(airport))]) {
        AddParkings(airport, stock.Count, stock.Class, stock.Radius, random);
    }
    const bool water = std::any_of(airport.Runways.begin(), airport.Runways.end(),
                                   [](const Runway& runway) { return runway.SurfaceCode == Water; });
    if (water) AddParkings(airport, 3, 11, 16, random);
}

void FurnishFrequencies(Airport& airport, Random& random) {
    static const std::vector<int> types[] = {{3}, {1, 3}, {1, 5, 6}, {1, 5, 6, 8}, {1, 5, 6, 7, 8, 9}};
    for (const int type : types[static_cast<int>(SizeOf(airport))]) {
        airport.Frequencies.push_back({118000 + 25 * random.Between(0, 719), type});
    }
}

// Fills what follows from the runways, and what is made up for real and invented airports alike.
void Furnish(Airport& airport, Random& random) {
    for (const Runway& runway : airport.Runways) {
        if (runway.Designator == 4 || runway.Length <= airport.LongestRunway) continue;
        airport.LongestRunway = runway.Length;
        airport.LongestSurface = runway.SurfaceCode;
    }
    FurnishParkings(airport, random);
    FurnishFrequencies(airport, random);
    for (const Parking& parking : airport.Parkings) {
        airport.SmallestParking = std::min(airport.SmallestParking, parking.Radius);
    }
    if (random.Percent(12)) {
        Runway helipad;
        helipad.Number = random.Between(1, 9);
        helipad.Designator = 4;
        helipad.Length = helipad.Width = 30;
        helipad.SurfaceCode = Concrete;
        helipad.Flags = 0x0F;
        airport.Runways.push_back(helipad);
    }
    airport.Position = ToUnitVector(airport.Latitude, airport.Longitude);
}

int ToHundredths(double degrees) {
    return degrees < 0 ? -ToHundredths(-degrees) : static_cast<int>(degrees * 6000 + 0.5);
}

Airport FromReal(const RealAirport& real) {
    Airport airport;
    airport.Code = real.Code;
    airport.Name = real.Name;
    airport.Region = real.Region;
    airport.Country = real.Country;
    airport.State = real.State;
    airport.City = real.City;
    airport.Latitude = ToHundredths(real.Latitude);
    airport.Longitude = ToHundredths(real.Longitude);
    airport.Elevation = real.Elevation;
    airport.Runways = ParseRunways(real.Runways);
    return airport;
}

// Where the walk through the invented world stands: regions hold some thirty countries, these five states or
// none, these ten cities, these one or two airports.
struct InventedPlace {
    int Region = 0, Country = 0, State = 0, City = 0;  // running numbers over the whole world
    int AirportsLeft = 0, CitiesLeft = 0, StatesLeft = 0, CountriesLeft = 0;
    bool HasStates = false;
    int RegionLatitude = 0, RegionLongitude = 0, CountryLatitude = 0, CountryLongitude = 0;
    int StateLatitude = 0, StateLongitude = 0, CityLatitude = 0, CityLongitude = 0;
};

constexpr int Degree = 6000;

int Near(int angle, int spread, Random& random) {
    return angle + random.Between(-spread, spread);
}

void NextRegion(InventedPlace& place, Random& random) {
    ++place.Region;
    place.CountriesLeft = 30;
    place.RegionLatitude = random.Between(-35 * Degree, 50 * Degree);
    place.RegionLongitude = random.Between(-150 * Degree, 150 * Degree);
}

void NextCountry(InventedPlace& place, Random& random) {
    if (place.CountriesLeft == 0) NextRegion(place, random);
    --place.CountriesLeft;
    ++place.Country;
    place.HasStates = place.Country % 2 == 0;
    place.StatesLeft = 5;
    place.CountryLatitude = Near(place.RegionLatitude, 15 * Degree, random);
    place.CountryLongitude = Near(place.RegionLongitude, 20 * Degree, random);
}

void NextCity(InventedPlace& place, Random& random) {
    if (place.CitiesLeft == 0) {
        if (place.StatesLeft == 0) NextCountry(place, random);
        --place.StatesLeft;
        ++place.State;
        place.CitiesLeft = 10;
        place.StateLatitude = Near(place.CountryLatitude, 3 * Degree, random);
        place.StateLongitude = Near(place.CountryLongitude, 4 * Degree, random);
    }
    --place.CitiesLeft;
    ++place.City;
    place.AirportsLeft = random.Between(1, 2);
    place.CityLatitude = Near(place.StateLatitude, 3 * Degree / 2, random);
    place.CityLongitude = Near(place.StateLongitude, 2 * Degree, random);
}

Runway InventedRunway(int length, int surface, Random& random) {
    Runway runway;
    runway.Number = random.Between(1, 18);
    runway.Length = length;
    runway.Width = length < 1200 ? 23 : 45;
    runway.SurfaceCode = surface;
    runway.Flags = random.Percent(90) ? 0x0Fu : 0x0Bu;
    if (random.Percent(30)) runway.Flags |= random.Percent(50) ? 0x10u : 0x80u;
    runway.Ils = surface == Asphalt && length >= 2000;
    return runway;
}

std::vector<Runway> InventedRunways(Random& random) {
    const int kind = random.Between(0, 99);
    int length = random.Between(50, 89) * 10, surface = Asphalt;
    if (kind < 4) {
        surface = Water;
    } else if (kind < 6) {
        surface = Snow;
    } else if (kind < 25) {
        surface = kind < 18 ? Grass : Gravel;
    } else if (kind < 45) {
        length = random.Between(90, 159) * 10;
    } else if (kind < 75) {
        length = random.Between(160, 249) * 10;
    } else {
        length = random.Between(250, 420) * 10;
    }
    std::vector<Runway> runways = {InventedRunway(length, surface, random)};
    if (length >= 2500) {
        runways.push_back(runways[0]);
        runways[0].Designator = 1;
        runways[1].Designator = 2;
        runways[1].Length -= random.Between(0, 60) * 10;
    }
    if (length >= 900 && random.Percent(40)) {
        runways.push_back(InventedRunway(length * 7 / 10, random.Percent(80) ? surface : Grass, random));
    }
    const int variation = random.Between(-15, 15);
    for (Runway& runway : runways) runway.MagneticVariation = variation;
    return runways;
}

Airport Invent(int index, InventedPlace& place, Random& random) {
    if (place.AirportsLeft == 0) NextCity(place, random);
    --place.AirportsLeft;
    Airport airport;
    airport.Code = InventedCode(index);
    airport.Region = "Sample Region " + std::to_string(place.Region);
    airport.Country = "Sample Country " + std::to_string(place.Country);
    if (place.HasStates) airport.State = "Sample State " + std::to_string(place.State);
    airport.City = "Sample City " + std::to_string(place.City);
    airport.Name = airport.City + (place.AirportsLeft > 0 ? " International" : " Municipal");
    airport.Latitude = Near(place.CityLatitude, Degree / 6, random);
    airport.Longitude = Near(place.CityLongitude, Degree / 6, random);
    airport.Elevation = random.Between(0, 900);
    airport.Runways = InventedRunways(random);
    return airport;
}

}  // namespace

std::string InventedCode(int index) {
    static const char digits[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    return {'Q', digits[index / 1296 % 36], digits[index / 36 % 36], digits[index % 36]};
}

std::vector<Airport> BuildAirports(int count, std::uint64_t seed) {
    Random random(seed, Random::Stream::Airports);
    std::vector<Airport> airports;
    airports.reserve(static_cast<std::size_t>(count));
    for (const RealAirport& real : RealAirports()) {
        if (static_cast<int>(airports.size()) == count) break;
        airports.push_back(FromReal(real));
    }
    InventedPlace place;
    for (int i = 0; static_cast<int>(airports.size()) < count; ++i)
        airports.push_back(Invent(i, place, random));
    for (Airport& airport : airports) Furnish(airport, random);
    return airports;
}

}  // namespace orlo::world

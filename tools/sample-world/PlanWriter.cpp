#include "PlanWriter.h"

#include <cmath>

#include "FlightWriter.h"
#include "Output.h"

namespace orlo::world {

namespace {

void WriteAirports(const std::filesystem::path& path, const std::vector<Airport>& airports) {
    TextFile file(path);
    file.Line("// The sample world's airports: code, latitude, longitude, altitude in feet");
    for (const Airport& airport : airports) {
        file.Put(airport.Code).Put(',').Put(CoordinateText(airport.Latitude, "NS")).Put(',');
        file.Put(CoordinateText(airport.Longitude, "EW")).Put(',');
        file.PutNumber(static_cast<int>(std::lrint(airport.Elevation * 3.281))).EndLine();
    }
    file.Close();
}

void WriteAircraftList(const std::filesystem::path& path, const Fleet& fleet) {
    TextFile file(path);
    file.Line("; The sample world's aircraft: number, cruise speed in knots, title");
    int number = 0;
    for (const Variant& variant : fleet.Variants) {
        file.Put("AC#").PutNumber(++number).Put(',').PutNumber(PerformanceOf(TypeOf(variant)).CruiseSpeed);
        file.Put(",\"").Put(variant.Title).Line("\"");
    }
    file.Put("AC#").PutNumber(number + 1).Line(",400,\"Sample Jet - sold and no longer installed\"");
    file.Close();
}

}  // namespace

void WritePlan(const std::filesystem::path& folder, const std::vector<Airport>& airports, const Fleet& fleet,
               int flightCount, std::uint64_t seed) {
    WriteAirports(folder / "Airports.txt", airports);
    WriteAircraftList(folder / "Aircraft.txt", fleet);
    TextFile file(folder / "FlightPlans.txt");
    WriteFlights(file, airports, fleet, flightCount, seed);
    file.Close();
}

}  // namespace orlo::world

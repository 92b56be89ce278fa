#include <cstdio>
#include <exception>
#include <filesystem>

#include "AircraftWriter.h"
#include "Airports.h"
#include "Fleet.h"
#include "Options.h"
#include "PlanWriter.h"
#include "ProjectWriter.h"
#include "Rules.h"
#include "SceneryWriter.h"

namespace {

using namespace orlo::world;

// `tools`: the folder of the stand-ins for the outside tools.
void WriteWorld(const Options& options, const std::filesystem::path& tools) {
    const std::filesystem::path world = options.Folder;
    const std::filesystem::path scenery = world / "Simulator" / "SCENEDB" / "AFDFILES" / "SCENERY";
    const std::filesystem::path aircraft = world / "Simulator" / "Aircraft";
    for (const auto& folder : {scenery, aircraft, world / "Program", world / "Plan", world / "Project"}) {
        std::filesystem::create_directories(folder);
    }
    const std::vector<Airport> airports = BuildAirports(options.AirportCount, options.Seed);
    const Fleet fleet = BuildFleet(options.AirlineCount, options.AircraftCount, airports);
    WriteScenery(scenery, airports);
    WriteAircraft(aircraft, fleet);
    WriteRules(world / "Program", airports, fleet, options.Seed);
    WritePlan(world / "Plan", airports, fleet, options.FlightCount, options.Seed);
    WriteProject(world / "Project", airports, fleet, options.Seed);
    CopyTools(tools, world / "Program");
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const auto options = ParseOptions(argumentCount - 1, arguments + 1);
    if (!options) {
        std::fputs(UsageText, stderr);
        return 2;
    }
    try {
        // A world is never mixed with an older one, and nothing that is there is overwritten.
        if (std::filesystem::exists(options->Folder) && !std::filesystem::is_empty(options->Folder)) {
            std::fprintf(stderr, "orlo-sample-world: %s is not empty\n", options->Folder.c_str());
            return 1;
        }
        WriteWorld(*options, std::filesystem::path(arguments[0]).parent_path());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "orlo-sample-world: %s\n", error.what());
        return 1;
    }
}

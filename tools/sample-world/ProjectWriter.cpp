#include "ProjectWriter.h"

#include <algorithm>

#include "Output.h"
#include "PlanWriter.h"

namespace orlo::world {

namespace {

constexpr std::size_t AircraftInPlan = 24;
constexpr int FlightsInPlan = 80;

struct PlanOfProject {
    const char *Folder, *Description;
};
constexpr PlanOfProject Plans[] = {
    {"One", "The network"}, {"Two", "Its partners"}, {"Three", "Charter flights"}};

// A part of the fleet that shares its first third with the part before, and its last third with the next.
Fleet PartOf(const Fleet& fleet, std::size_t place) {
    Fleet part = fleet;
    const std::size_t first = std::min(place * AircraftInPlan * 2 / 3, fleet.Variants.size() / 2);
    const std::size_t count = std::min(AircraftInPlan, fleet.Variants.size() - first);
    const auto begin = fleet.Variants.begin() + static_cast<std::ptrdiff_t>(first);
    part.Variants.assign(begin, begin + static_cast<std::ptrdiff_t>(count));
    return part;
}

}  // namespace

void WriteProject(const std::filesystem::path& folder, const std::vector<Airport>& airports,
                  const Fleet& fleet, std::uint64_t seed) {
    const std::filesystem::path full = std::filesystem::absolute(folder).lexically_normal();
    Bytes file;
    file.PutText16("1.1");
    file.PutSigned(static_cast<std::int32_t>(std::size(Plans)));
    std::size_t place = 0;
    for (const PlanOfProject& plan : Plans) {
        const std::filesystem::path own = full / plan.Folder;
        std::filesystem::create_directories(own);
        WritePlan(own, airports, PartOf(fleet, place), FlightsInPlan, seed + 1 + place);
        ++place;
        file.PutText16((own / "FlightPlans.txt").string());
        file.PutText16((own / "Aircraft.txt").string());
        file.PutText16(plan.Description);
        file.Put16(0);
    }
    WriteBytes(full / "Sample Project.orp", file.Data());
    // The plans' own lists are as good as this one.
    std::filesystem::copy_file(full / Plans[0].Folder / "Airports.txt", full / "Airports.txt");
}

void CopyTools(const std::filesystem::path& from, const std::filesystem::path& folder) {
#ifdef _WIN32
    constexpr const char* Ending = ".exe";
#else
    constexpr const char* Ending = "";
#endif
    for (const auto& [source, target] : {std::pair("stand-in-compiler", "TCOMPILER.EXE"),
                                         std::pair("stand-in-decompiler", "TDECOMPILER.EXE")}) {
        const std::filesystem::path program = from / (std::string(source) + Ending);
        if (std::filesystem::exists(program)) std::filesystem::copy_file(program, folder / target);
    }
}

}  // namespace orlo::world

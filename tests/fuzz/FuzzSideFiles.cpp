// Any bytes as Aircraft.txt and Airports.txt.

#include "core/PlanSideFiles.h"
#include "support/FakeHosts.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace orlo;
    test::FakeWorld world;
    Plan plan;
    plan.FlightplanPath = "/plan/FlightPlans.txt";
    const std::string text(reinterpret_cast<const char*>(data), size);
    world.files.files["/plan/Aircraft.txt"] = text;
    world.files.files["/plan/Airports.txt"] = text;
    ReadPlanAircraft(plan, world.services);
    ReadPlanAirports(plan, world.services);
    WritePlanAircraft(plan, world.files);
    return 0;
}

// Any bytes as a flightplan: reading, walking and writing must hold, and what was written reads back the
// same.

#include <cstdlib>

#include "core/FlightplanFile.h"
#include "support/FakeHosts.h"

namespace {

std::string Written(orlo::test::FakeWorld& world, const orlo::FlightList& flights) {
    orlo::WriteFlightplan(world.files, "/out/plan.txt", flights);
    return world.files.files["/out/plan.txt"];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace orlo;
    test::FakeWorld world;
    Plan plan;
    plan.FlightplanPath = "/plan.txt";
    world.files.files["/plan.txt"] = std::string(reinterpret_cast<const char*>(data), size);
    ReadFlightplan(plan, world.services);
    FlightList unpacked;
    for (std::int32_t i = 0; i < plan.FlightCount(); ++i) unpacked.Append(plan.Flights.Unpack(i));
    const std::string written = Written(world, plan.Flights);
    if (Written(world, unpacked) != written) std::abort();

    world.files.files["/plan.txt"] = written;
    Plan again;
    again.FlightplanPath = "/plan.txt";
    ReadFlightplan(again, world.services);
    // Fields that begin or end in blanks, and lines that the cut turns into comments, may differ once, never
    // twice.
    if (again.FlightCount() > plan.FlightCount()) std::abort();
    return 0;
}

#include <cstddef>
#include <cstdint>

#include "simulator/BglAirport.h"

// The input is a scenery file. What is read of it can't be more than its bytes hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace orlo;
    std::vector<AirportRecord> records;
    const bool isSection = ReadAFDBytes({reinterpret_cast<const char*>(data), size}, records);
    if (!isSection && !records.empty()) __builtin_trap();
    std::size_t bytes = 0;
    for (const AirportRecord& airport : records) {
        bytes += 9 + airport.Parkings.size() * kBglParkingEntrySize + airport.Runways.size() * 68 +
                 airport.Frequencies.size() * 17;
    }
    if (bytes > 2 * size) __builtin_trap();
    return 0;
}

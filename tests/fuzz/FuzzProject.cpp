#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "projects/ProjectFile.h"

// The entries of any bytes are written to a file that gives the same entries.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto entries = orlo::ParseProject({reinterpret_cast<const char*>(data), size});
    if (orlo::ParseProject(orlo::FormatProject(entries)) != entries) std::abort();
    return 0;
}

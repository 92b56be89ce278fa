#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "operations/MoverAction.h"

// What is read from any bytes is written to a file that gives the same selection and percentage.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto action = orlo::ReadMoverAction(std::string(reinterpret_cast<const char*>(data), size));
    if (!action) return 0;
    const auto again = orlo::ReadMoverAction(orlo::MoverActionText(*action));
    if (!again || again->Selection != action->Selection || again->Percent != action->Percent) std::abort();
    return 0;
}

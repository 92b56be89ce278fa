#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "platform/common/WineRegistry.h"

// The registry file is another program's: any bytes give a value no longer than they could spell, or none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::string_view kKey = "SOFTWARE\\A\\8.0";
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const std::string_view name : {"EXE Path", "H", ""}) {
        const auto value = orlo::FindWineRegistryValue(text, kKey, name);
        if (!value) continue;
        if (value->size() > 3 * size) std::abort();
        orlo::SplitDrivePath(*value);
    }
    orlo::SplitDrivePath(text);
    return 0;
}

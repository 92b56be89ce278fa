#include <cstddef>
#include <cstdint>
#include <string>

#include "simulator/BglAirport.h"
#include "simulator/GateResize.h"

// The input is a scenery file. The patches lie inside it and change at most four bytes a gate.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace orlo;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (std::int32_t code = 0; code < 16; ++code) {
        const ResizedGates gates =
            FindGates(bytes, {code, 12.5F, code % 2 == 0 ? "" : "a", code % 3 == 0 ? "" : "b"});
        std::string patched(bytes);
        for (const FilePatch& patch : gates.patches) {
            if (patch.position > size || patch.bytes.size() > size - patch.position) __builtin_trap();
            patched.replace(patch.position, patch.bytes.size(), patch.bytes);
        }
        std::size_t changed = 0;
        for (std::size_t i = 0; i < size; ++i) changed += patched[i] != bytes[i] ? 1 : 0;
        if (changed > 4 * static_cast<std::size_t>(gates.count)) __builtin_trap();
        if ((gates.count == 0) != gates.patches.empty()) __builtin_trap();
    }
    return 0;
}

#include <cstddef>
#include <cstdint>

#include "core/Path.h"
#include "simulator/ModelRadius.h"
#include "support/MemoryFileSystem.h"

// The input is a model, as it is and behind the bytes that stand in front of an old model's radius: those are
// too many for the fuzzer to write.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace orlo;
    test::MemoryFileSystem files;
    files.files[JoinPath("a", NativePath("model\\model.cfg"))] = "[models]\nnormal=m\n";
    std::string& model = files.files[JoinPath("a", NativePath("model\\m.mdl"))];
    for (std::int32_t format = 0; format <= 3; ++format) {
        model.assign(format < 2 ? 0 : ModelRadiusPosition(format), 'x');
        model.append(reinterpret_cast<const char*>(data), size);
        const ModelRadius found = ReadModelRadius(files, "a", "");
        if (found.Format == 0 && found.Radius != -1) __builtin_trap();
        if (found.Format != 0 && model.size() < ModelRadiusPosition(found.Format) + 4) __builtin_trap();
    }
    return 0;
}

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/InitialisationFile.h"

// Any bytes give a file whose every value is found again, unless one of the same name stands in front of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const orlo::InitialisationFile file = orlo::ParseInitialisationFile(text);
    std::size_t bytes = 0;
    for (const orlo::InitialisationSection& section : file.sections) {
        bytes += section.name.size();
        if (file.Section(section.name) == nullptr) std::abort();
        for (const auto& [key, value] : section.values) bytes += key.size() + value.size();
    }
    if (bytes > size) std::abort();
    if (!file.sections.empty() && !file.sections[0].values.empty()) {
        const auto& [key, value] = file.sections[0].values[0];
        if (file.Value(file.sections[0].name, key) != value) std::abort();
    }
    return 0;
}

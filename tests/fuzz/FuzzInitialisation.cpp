#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/InitialisationFile.h"
#include "fuzz/KeptLines.h"

// Any bytes give a file whose names and values are pieces of it, and whose first value is found again. A
// value that is taken is given back, and all other lines stay.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    orlo::InitialisationFile file((std::string(text)));
    std::size_t bytes = 0;
    for (std::size_t section = 0; section < file.SectionCount(); ++section) {
        bytes += file.SectionName(section).size();
        if (!file.FindSection(file.SectionName(section))) std::abort();
        for (std::size_t place = 0; place < file.ValueCount(section); ++place) {
            bytes += file.ValueAt(section, place).name.size() + file.ValueAt(section, place).text.size();
        }
    }
    if (bytes > size) std::abort();
    if (file.SectionCount() > 0 && file.ValueCount(0) > 0) {
        const auto [name, value] = file.ValueAt(0, 0);
        if (file.Find(0, name) != value || file.Get(file.SectionName(0), name) != value) std::abort();
    }

    const std::string_view piece = text.substr(0, size / 4);
    const std::string_view value = text.substr(size / 2);
    if (file.SectionCount() > 0) orlo::test::SetKeepsTheOtherLines(file, file.SectionName(0), piece, value);
    orlo::test::SetKeepsTheOtherLines(file, piece, "title", value);
    if (file.SectionCount() > 0 && file.ValueCount(0) > 0) {
        orlo::test::SetKeepsTheOtherLines(file, file.SectionName(0), file.ValueAt(0, 0).name, piece);
    }
    return 0;
}

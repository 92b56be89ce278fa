#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fuzz/KeptLines.h"
#include "platform/common/SettingsText.h"

// Any bytes are a settings text that is written as it reads, and takes any value without losing it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    orlo::InitialisationFile settings = orlo::ReadSettingsText(text);
    if (orlo::ReadSettingsText(settings.Text()).Text() != settings.Text()) std::abort();

    const std::string_view name = text.substr(0, size / 2);
    const std::string_view value = text.substr(size / 2);
    if (!orlo::test::SetKeepsTheOtherLines(settings, "Own", name, value)) std::abort();
    if (orlo::ReadSettingsText(settings.Text()).Get("own", name) != std::string(value)) std::abort();
    if (settings.ValueCount(0) > 0) {
        orlo::test::SetKeepsTheOtherLines(settings, settings.SectionName(0), settings.ValueAt(0, 0).name,
                                          name);
    }
    return 0;
}

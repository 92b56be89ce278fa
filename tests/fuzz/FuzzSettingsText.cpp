#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "platform/common/SettingsText.h"

// Any bytes are a settings text that is written as it reads, and takes any value without losing it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    orlo::SettingsText settings(text);
    const std::string written = settings.Text();
    if (orlo::SettingsText(written).Text() != written) std::abort();

    const std::string_view name = text.substr(0, size / 2);
    const std::string_view value = text.substr(size / 2);
    if (!settings.Set("Own", name, value)) std::abort();
    if (orlo::SettingsText(settings.Text()).Get("own", name) != std::string(value)) std::abort();
    return 0;
}

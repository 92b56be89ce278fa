#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orlo {

// A hierarchy of keys that hold named texts. A key path is written with "\" between its parts, for example
// "SOFTWARE\Brantel Data Service\Orlo\1.0\Settings". Paths and names compare without regard to case.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    virtual std::optional<std::string> Get(std::string_view keyPath, std::string_view name) = 0;
    virtual bool Set(std::string_view keyPath, std::string_view name, std::string_view value) = 0;

    // Writes what was set in one pass. False when it could not be written; the old store then stands whole.
    virtual bool Flush() = 0;
};

}  // namespace orlo

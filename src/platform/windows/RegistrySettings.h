#pragma once

#include <map>
#include <string>
#include <utility>

#include "core/Settings.h"
#include "services/SettingsStore.h"

namespace orlo {

// The user's settings in the registry, below HKEY_CURRENT_USER. Values are texts, UTF-8 inside the program.
// Reading a missing key makes it. What is set goes to the registry with Flush.
class RegistrySettings : public SettingsStore {
  public:
    std::optional<std::string> Get(std::string_view keyPath, std::string_view name) override;
    bool Set(std::string_view keyPath, std::string_view name, std::string_view value) override;
    // False when a value could not be written; it stays as it was, and the others are written.
    bool Flush() override;

  private:
    struct Change {
        std::string keyPath;
        std::string name;
        std::string value;
    };
    std::map<std::pair<std::string, std::string>, Change> changes_;  // by their upper-case names
};

// The machine-wide settings: the view that 32-bit programs have of HKEY_LOCAL_MACHINE. Nothing is made there.
class MachineRegistrySettings : public SettingsStore {
  public:
    // `simulator`, unless it is empty, is given as the simulator's folder whatever the registry has.
    explicit MachineRegistrySettings(std::string simulator) : simulator_(std::move(simulator)) {}

    std::optional<std::string> Get(std::string_view keyPath, std::string_view name) override;
    // Never written: always false.
    bool Set(std::string_view, std::string_view, std::string_view) override { return false; }
    bool Flush() override { return true; }

  private:
    std::string simulator_;
};

}  // namespace orlo

#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/common/TextSettingsStore.h"
#include "services/FileSystem.h"
#include "services/SettingsStore.h"

namespace orlo {

inline constexpr std::string_view kMachineSettingsPath = "/etc/orlo/machine.txt";

// The machine-wide settings. A value comes from the first place that has it: SetSimulator, the machine file
// (text form of TextSettingsStore), the registry of the user's Wine prefix, whose paths are given as the
// system's. Each value is looked up once.
class PosixMachineSettings : public SettingsStore {
  public:
    // `winePrefix` is the prefix's folder, as from WinePrefixFolder(); where it, or `machineFile`, is empty,
    // that place is passed over.
    PosixMachineSettings(FileSystem& files, std::string machineFile, std::string winePrefix);

    // The simulator's folder, whatever the other places have; an empty text takes that back.
    void SetSimulator(std::string folder) { simulator_ = std::move(folder); }

    std::optional<std::string> Get(std::string_view keyPath, std::string_view name) override;
    // Never written: always false.
    bool Set(std::string_view, std::string_view, std::string_view) override { return false; }
    bool Flush() override { return true; }

  private:
    std::optional<std::string> Find(std::string_view keyPath, std::string_view name);
    std::optional<std::string> FindInWine(std::string_view keyPath, std::string_view name);

    FileSystem& files_;
    std::string winePrefix_;
    std::string simulator_;
    TextSettingsStore machineFile_;
    std::map<std::pair<std::string, std::string>, std::optional<std::string>> known_;
};

}  // namespace orlo

#include "platform/posix/PosixMachineSettings.h"

#include "core/Path.h"
#include "core/Settings.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "platform/common/WineRegistry.h"
#include "platform/posix/WineDrives.h"

namespace orlo {
PosixMachineSettings::PosixMachineSettings(FileSystem& files, std::string machineFile, std::string winePrefix)
    : files_(files), winePrefix_(std::move(winePrefix)), machineFile_(files, std::move(machineFile)) {}

std::optional<std::string> PosixMachineSettings::Get(std::string_view keyPath, std::string_view name) {
    if (!simulator_.empty() && EqualNoCase(keyPath, kSimulatorKeyPath) && EqualNoCase(name, kSimulatorValue))
        return simulator_;
    const auto key = std::make_pair(UpperText(keyPath), UpperText(name));
    const auto known = known_.find(key);
    if (known != known_.end()) return known->second;
    return known_.emplace(key, Find(keyPath, name)).first->second;
}

std::optional<std::string> PosixMachineSettings::Find(std::string_view keyPath, std::string_view name) {
    auto value = machineFile_.Get(keyPath, name);
    return value ? value : FindInWine(keyPath, name);
}

std::optional<std::string> PosixMachineSettings::FindInWine(std::string_view keyPath, std::string_view name) {
    if (winePrefix_.empty()) return std::nullopt;
    const auto text = ReadWholeFile(files_, JoinPath(winePrefix_, "system.reg"));
    if (!text) return std::nullopt;
    const auto value = FindWineRegistryValue(*text, keyPath, name);
    if (!value) return std::nullopt;
    return FromWineDrive(files_, winePrefix_, *value);
}

}  // namespace orlo

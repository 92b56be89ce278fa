#include "simulator/AircraftSave.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

#include "core/FileBackup.h"
#include "core/InitialisationFile.h"
#include "core/LittleEndian.h"
#include "core/Path.h"
#include "core/TextLines.h"
#include "simulator/AircraftFiles.h"
#include "simulator/ModelRadius.h"

namespace orlo {
namespace {

// One of the three is set.
struct ConfigKey {
    std::string_view key;
    std::string FSAircraft::*text = nullptr;
    bool FSAircraft::*flag = nullptr;
    std::int32_t FSAircraft::*number = nullptr;
    std::string_view section = {};  // empty: the variant's own
};

constexpr std::array kConfigKeys = {
    ConfigKey{.key = "title", .text = &FSAircraft::Title},
    ConfigKey{.key = "atc_id", .text = &FSAircraft::ATCID},
    ConfigKey{.key = "atc_flight_number", .text = &FSAircraft::ATCFlightNumber},
    ConfigKey{.key = "atc_airline", .text = &FSAircraft::Airline},
    ConfigKey{.key = "ui_manufacturer", .text = &FSAircraft::UIManufacturer},
    ConfigKey{.key = "ui_type", .text = &FSAircraft::UIType},
    ConfigKey{.key = "ui_variation", .text = &FSAircraft::UIVariation},
    ConfigKey{.key = "visual_damage", .flag = &FSAircraft::VisualDamage},
    ConfigKey{.key = "atc_heavy", .flag = &FSAircraft::ATCHeavy},
    ConfigKey{.key = "model", .text = &FSAircraft::Model},
    ConfigKey{.key = "texture", .text = &FSAircraft::Texture},
    ConfigKey{.key = "sim", .text = &FSAircraft::Sim},
    ConfigKey{.key = "description", .text = &FSAircraft::Description},
    ConfigKey{.key = "atc_model", .text = &FSAircraft::ATCModel, .section = "general"},
    ConfigKey{.key = "atc_type", .text = &FSAircraft::ATCType, .section = "general"},
    ConfigKey{.key = "Performance", .text = &FSAircraft::Performance, .section = "general"},
    ConfigKey{.key = "cruise_speed", .number = &FSAircraft::FileCruiseSpeed, .section = "Reference Speeds"},
};

std::string ValueOf(const FSAircraft& aircraft, const ConfigKey& key) {
    if (key.text != nullptr) return aircraft.*key.text;
    if (key.flag != nullptr) return aircraft.*key.flag ? "1" : "0";
    return std::to_string(aircraft.*key.number);
}

// Where [General] has no model, a variant's own model and type are read, so these change with the file's.
bool SetOwnModelAndType(InitialisationFile& file, const FSAircraft& aircraft) {
    if (!ConfigText(file.Get("general", "atc_model").value_or("")).empty()) return true;
    const std::pair<std::string_view, const std::string&> values[] = {{"atc_model", aircraft.ATCModel},
                                                                      {"atc_type", aircraft.ATCType}};
    for (const auto& [key, value] : values) {
        const bool isOwn = !ConfigText(file.Get(aircraft.Section, key).value_or("")).empty();
        if (isOwn && !SetConfigText(file, aircraft.Section, key, value)) return false;
    }
    return true;
}

bool SetChangedKeys(InitialisationFile& file, const FSAircraft& aircraft, const FSAircraft& kept) {
    for (const ConfigKey& key : kConfigKeys) {
        const std::string value = ValueOf(aircraft, key);
        if (value == ValueOf(kept, key)) continue;
        const std::string_view section = key.section.empty() ? aircraft.Section : key.section;
        if (!SetConfigText(file, section, key.key, value)) return false;
    }
    return SetOwnModelAndType(file, aircraft);
}

// The variants of one aircraft.cfg, which stand together. The path of the file, or of its backup, where it
// can't be written; else empty. A file is backed up only where it can be written.
std::string WriteConfig(std::span<const FSAircraft> aircraft, std::span<const FSAircraft> kept,
                        FileSystem& files, const BackUpFile& backUp) {
    const std::string& path = aircraft.front().ConfigFile;
    const auto text = ReadWholeFile(files, path);
    if (!text) return path;
    InitialisationFile file(*text);
    for (std::size_t i = 0; i < aircraft.size(); ++i) {
        if (aircraft[i].Changed && !SetChangedKeys(file, aircraft[i], kept[i])) return path;
    }
    if (file.Text() == *text) return {};
    const auto output = files.CreateReplacing(path);
    if (!output) return path;
    if (backUp && !backUp(path)) return BackupPath(path);
    return output->Write(file.Text()) && output->Commit() ? std::string() : path;
}

FilePatch RadiusPatch(const FSAircraft& aircraft) {
    FilePatch patch;
    patch.position = ModelRadiusPosition(aircraft.ModelFormat);
    AppendLittleEndian(patch.bytes, static_cast<std::uint32_t>(aircraft.Radius), 4);
    return patch;
}

// The model is looked at again: it may have been exchanged since the scan, and then other bytes stand there.
// Gives what WriteConfig does.
std::string WriteRadius(const FSAircraft& aircraft, FileSystem& files, const BackUpFile& backUp) {
    const std::string& path = aircraft.ModelFile;
    if (aircraft.ModelFormat == 0 || !files.FileExists(path)) return {};
    const ModelRadius found = ReadModelRadius(files, ParentFolder(aircraft.ConfigFile), aircraft.Model);
    if (found.Path != path || found.Format != aircraft.ModelFormat) return path;
    if (found.Radius == aircraft.Radius) return {};
    if (!files.PatchFile(path, {})) return path;
    if (backUp && !backUp(path)) return BackupPath(path);
    const FilePatch patch = RadiusPatch(aircraft);
    return files.PatchFile(path, {&patch, 1}) ? std::string() : path;
}

std::size_t EndOfFile(const std::vector<FSAircraft>& aircraft, std::size_t first) {
    std::size_t end = first + 1;
    while (end < aircraft.size() && aircraft[end].ConfigFile == aircraft[first].ConfigFile) ++end;
    return end;
}

bool AnyChanged(std::span<const FSAircraft> aircraft) {
    for (const FSAircraft& each : aircraft) {
        if (each.Changed) return true;
    }
    return false;
}

// The variant's section is written; its model not yet.
void KeepConfig(FSAircraft& aircraft, FSAircraft& kept, FileSystem& files) {
    aircraft.Changed = false;
    kept = aircraft;
    if (!aircraft.RadiusChanged) return;
    kept.RadiusChanged = false;
    kept.Radius = ReadModelRadius(files, ParentFolder(aircraft.ConfigFile), aircraft.Model).Radius;
}

}  // namespace

std::string SaveAircraft(std::vector<FSAircraft>& aircraft, std::vector<FSAircraft>& kept, FileSystem& files,
                         const BackUpFile& backUp) {
    for (std::size_t first = 0, end = 0; first < aircraft.size(); first = end) {
        end = EndOfFile(aircraft, first);
        const std::span variants(&aircraft[first], end - first);
        if (AnyChanged(variants)) {
            std::string failed = WriteConfig(variants, std::span(&kept[first], end - first), files, backUp);
            if (!failed.empty()) return failed;
            for (std::size_t place = first; place < end; ++place)
                KeepConfig(aircraft[place], kept[place], files);
        }
        for (std::size_t place = first; place < end; ++place) {
            if (!aircraft[place].RadiusChanged) continue;
            std::string failed = WriteRadius(aircraft[place], files, backUp);
            if (!failed.empty()) return failed;
            aircraft[place].RadiusChanged = false;
            kept[place].Radius = aircraft[place].Radius;
        }
    }
    return {};
}

}  // namespace orlo

#include "simulator/AircraftScan.h"

#include <utility>

#include "core/InitialisationFile.h"
#include "core/KeyedIndex.h"
#include "core/Number.h"
#include "core/Path.h"
#include "core/Settings.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "simulator/AircraftClassLookup.h"
#include "simulator/AircraftFiles.h"
#include "simulator/ModelRadius.h"

namespace orlo {
namespace {

constexpr std::string_view kVariantSection = "FLTSIM";

// Sections of one name all read the texts of the first. A file with many of them and long texts is read until
// so many times its size were taken; true files repeat little.
constexpr std::size_t kMostRepeats = 64;
constexpr std::size_t kFreeRepeats = 1024 * 1024;  // bytes

// Sections by name. Where two share a name, the first is read for both.
class ConfigFile {
  public:
    explicit ConfigFile(const InitialisationFile& file) : file_(file) {
        for (std::size_t place = 0; place < file.SectionCount(); ++place) {
            sections_.Add(file.SectionName(place), place);
        }
    }
    // Bytes of all names and values of a section.
    std::size_t Size(std::string_view section) const {
        const std::size_t* found = sections_.Find(section);
        std::size_t size = 0;
        for (std::size_t i = 0; found != nullptr && i < file_.ValueCount(*found); ++i) {
            const auto [name, text] = file_.ValueAt(*found, i);
            size += name.size() + text.size();
        }
        return size;
    }
    std::string Text(std::string_view section, std::string_view key) const {
        const std::size_t* found = sections_.Find(section);
        return found != nullptr ? ConfigText(file_.Find(*found, key)) : std::string();
    }
    bool Boolean(std::string_view section, std::string_view key) const {
        const std::string text = Text(section, key);
        return ParseWholeNumber(text).value_or(0) != 0 || EqualNoCase(text, "True");
    }

  private:
    const InitialisationFile& file_;
    KeyedIndex<std::size_t> sections_;
};

// What all variants of an aircraft.cfg share. Models and classes are looked up once for each name.
class FolderReader {
  public:
    FolderReader(Fleet& fleet, const ClassLists& classes, FileSystem& files, const std::string& folder,
                 const InitialisationFile& file)
        : fleet_(fleet),
          classLists_(classes),
          files_(files),
          folder_(folder),
          config_(file),
          classes_(classes) {
        common_.ConfigFile = JoinPath(folder, "aircraft.cfg");
        common_.ATCModel = config_.Text("General", "atc_model");
        common_.ATCType = config_.Text("General", "atc_type");
        common_.FileATCModel = common_.ATCModel;
        common_.FileATCType = common_.ATCType;
        common_.Performance = config_.Text("General", "Performance");
        const std::string speed = config_.Text("Reference Speeds", "cruise_speed");
        common_.FileCruiseSpeed = ParseWholeNumber(BeforeFirst(speed, ".")).value_or(-1);
    }

    // Bytes of the texts behind all variants so far.
    std::size_t TakenSize() const { return taken_; }

    void ReadVariant(std::string_view section, bool detailed) {
        taken_ += config_.Size(section) + common_.Performance.size();
        const std::string title = config_.Text(section, "title");
        if (title.empty()) return;
        FSAircraft aircraft = common_;
        aircraft.Title = title;
        aircraft.Section = section;
        aircraft.UIManufacturer = config_.Text(section, "ui_manufacturer");
        aircraft.UIType = config_.Text(section, "ui_type");
        aircraft.UIVariation = config_.Text(section, "ui_variation");
        aircraft.Airline = config_.Text(section, "atc_airline");
        aircraft.Texture = config_.Text(section, "texture");
        if (detailed) ReadDetails(section, aircraft);
        ReadModelAndType(section, aircraft);
        ApplyAircraftClass(aircraft, classes_.Find(aircraft), classLists_);
        const ModelRadius& model = FindModel(config_.Text(section, "model"));
        aircraft.ModelFile = model.Path;
        aircraft.ModelFormat = model.Format;
        aircraft.Radius = model.Radius;
        fleet_.FSAircrafts.push_back(std::move(aircraft));
    }

  private:
    void ReadDetails(std::string_view section, FSAircraft& aircraft) {
        aircraft.Sim = config_.Text(section, "sim");
        aircraft.Model = config_.Text(section, "model");
        aircraft.Panel = config_.Text(section, "panel");
        aircraft.Sound = config_.Text(section, "sound");
        aircraft.KbChecklists = config_.Text(section, "kb_checklists");
        aircraft.KbReference = config_.Text(section, "kb_reference");
        aircraft.ATCID = config_.Text(section, "atc_id");
        aircraft.ATCFlightNumber = config_.Text(section, "atc_flight_number");
        aircraft.VisualDamage = config_.Boolean(section, "visual_damage");
        aircraft.Description = config_.Text(section, "description");
        aircraft.ATCHeavy = config_.Boolean(section, "atc_heavy");
    }

    // Without a model in [General], model and type are the section's.
    void ReadModelAndType(std::string_view section, FSAircraft& aircraft) {
        const bool modelBySection = aircraft.ATCModel.empty();
        if (modelBySection) aircraft.ATCModel = config_.Text(section, "atc_model");
        if (modelBySection || aircraft.ATCType.empty()) {
            std::string type = config_.Text(section, "atc_type");
            if (!type.empty()) aircraft.ATCType = std::move(type);
        }
    }

    const ModelRadius& FindModel(const std::string& name) {
        if (!models_.Contains(name)) models_.Add(name, ReadModelRadius(files_, folder_, name));
        return *models_.Find(name);
    }

    Fleet& fleet_;
    const ClassLists& classLists_;
    FileSystem& files_;
    const std::string& folder_;
    ConfigFile config_;
    FSAircraft common_;
    std::size_t taken_ = 0;
    ClassLookup classes_;
    KeyedIndex<ModelRadius> models_;
};

}  // namespace

std::string GetSimulatorPath(SettingsStore& machineSettings) {
    return std::string(TrimBlanks(GetMachineSetting(
        machineSettings, "Microsoft", "Microsoft Games\\Flight Simulator", "8.0", "", "EXE Path", "")));
}

std::string SimulatorFolder(const Session& session, SettingsStore& machineSettings) {
    return session.SimulatorFolder.empty() ? GetSimulatorPath(machineSettings) : session.SimulatorFolder;
}

bool ScanAircraft(Fleet& fleet, const ClassLists& classes, FileSystem& files,
                  const std::string& simulatorFolder, bool detailed) {
    fleet.FSAircrafts.clear();
    fleet.FSAircraftProblems = false;
    if (simulatorFolder.empty()) return false;
    const std::string root = JoinPath(simulatorFolder, "Aircraft");
    if (!files.FolderExists(root)) return false;
    for (const FolderEntry& entry : files.ListFolder(root)) {
        if (entry.isFolder) ReadAircraftFolder(fleet, classes, files, JoinPath(root, entry.name), detailed);
    }
    if (detailed) CheckAircraftFiles(fleet, files);
    return true;
}

void ReadAircraftFolder(Fleet& fleet, const ClassLists& classes, FileSystem& files, const std::string& folder,
                        bool detailed) {
    auto text = ReadWholeFile(files, JoinPath(folder, "aircraft.cfg"));
    if (!text || text->empty()) return;
    const InitialisationFile file(std::move(*text));
    FolderReader reader(fleet, classes, files, folder, file);
    for (std::size_t place = 0; place < file.SectionCount(); ++place) {
        if (reader.TakenSize() > kFreeRepeats + kMostRepeats * file.Text().size()) break;
        const std::string_view section = file.SectionName(place);
        if (StartsWithNoCase(section, kVariantSection)) reader.ReadVariant(section, detailed);
    }
}

}  // namespace orlo

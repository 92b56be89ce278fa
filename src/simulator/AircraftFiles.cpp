#include "simulator/AircraftFiles.h"

#include <optional>
#include <unordered_set>
#include <utility>

#include "core/KeyedIndex.h"
#include "core/Path.h"
#include "core/Text.h"

namespace orlo {
namespace {

using NameSet = std::unordered_set<std::string, NoCaseHash, NoCaseEqual>;

// The variants of one aircraft.cfg stand together and ask for the same folder, so it is listed once for all
// of them.
class AircraftFolder {
  public:
    AircraftFolder(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {
        for (const FolderEntry& entry : files.ListFolder(path_)) {
            (entry.isFolder ? folderNames_ : fileNames_).insert(entry.name);
        }
    }

    const std::string& Path() const { return path_; }
    bool HasFile(const std::string& name) const {
        return fileNames_.contains(name) || (IsPath(name) && files_.FileExists(JoinPath(path_, name)));
    }
    bool HasFolder(const std::string& name) const {
        return folderNames_.contains(name) || (IsPath(name) && files_.FolderExists(JoinPath(path_, name)));
    }

  private:
    static bool IsPath(std::string_view name) { return name.find(kPathSeparator) != std::string_view::npos; }

    FileSystem& files_;
    std::string path_;
    NameSet folderNames_;
    NameSet fileNames_;
};

std::string FindProblem(const FSAircraft& aircraft, const AircraftFolder& folder, FileSystem& files) {
    std::string problem;
    const auto add = [&problem](std::string_view text) {
        if (!problem.empty()) problem.append(" | ");
        problem.append(text);
    };
    if (!folder.HasFolder(PartName("Texture", aircraft.Texture))) add("Texture folder not found");
    if (aircraft.ModelFile.empty()) {
        add("No model defined");
    } else if (!files.FileExists(aircraft.ModelFile)) {
        add("Model folder not found");
    }
    const std::string sim = NativePath(aircraft.Sim);
    if (sim.empty()) {
        add("No AIR file defined");
    } else if (!folder.HasFile(Concat(sim, ".air")) && !folder.HasFile(sim)) {
        add("AIR file not found");
    }
    return problem;
}

}  // namespace

std::string ConfigText(std::string_view value) {
    return std::string(TrimWhite(BeforeFirst(value, ";")));
}

std::string PartName(std::string_view part, std::string_view name) {
    return name.empty() ? std::string(part) : Concat(part, '.', NativePath(name));
}

bool SetConfigText(InitialisationFile& file, std::string_view section, std::string_view key,
                   std::string_view text) {
    const std::string old = file.Get(section, key).value_or("");
    const std::string_view before = BeforeFirst(old, ";");
    const std::string_view comment = std::string_view(old).substr(before.size());
    const std::string_view blanks = before.substr(before.find_last_not_of(" \t") + 1);
    if (comment.empty()) return file.Set(section, key, text);
    return file.Set(section, key, text.empty() ? std::string(comment) : Concat(text, blanks, comment));
}

std::string AircraftFileProblem(const FSAircraft& aircraft, FileSystem& files) {
    return FindProblem(aircraft, AircraftFolder(files, ParentFolder(aircraft.ConfigFile)), files);
}

void CheckAircraftFiles(Fleet& fleet, FileSystem& files) {
    std::optional<AircraftFolder> folder;
    for (FSAircraft& aircraft : fleet.FSAircrafts) {
        const std::string path = ParentFolder(aircraft.ConfigFile);
        if (!folder || folder->Path() != path) folder.emplace(files, path);
        aircraft.Problem = FindProblem(aircraft, *folder, files);
        if (!aircraft.Problem.empty()) fleet.FSAircraftProblems = true;
    }
}

}  // namespace orlo

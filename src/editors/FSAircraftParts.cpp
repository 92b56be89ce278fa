#include "editors/FSAircraftParts.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "editors/EditedAircraft.h"
#include "editors/FSAircraftFields.h"
#include "mainwindow/StatusTexts.h"
#include "simulator/AircraftFiles.h"
#include "simulator/ModelRadius.h"

namespace orlo {
namespace {

constexpr int kDeepestFolder = 16;  // links can lead a folder into itself
constexpr std::string_view kAirFileEnding = ".AIR";

// Paths of all files below the folder, counted from it.
void ListFiles(FileSystem& files, const std::string& folder, const std::string& below, int depth,
               std::vector<std::string>& paths) {
    for (const FolderEntry& entry : files.ListFolder(JoinPath(folder, below))) {
        const std::string path = JoinPath(below, entry.name);
        if (!entry.isFolder) {
            paths.push_back(path);
        } else if (depth < kDeepestFolder) {
            ListFiles(files, folder, path, depth + 1, paths);
        }
    }
}

bool CopyInto(FileSystem& files, const std::string& from, const std::string& to) {
    return files.CreateFolders(ParentFolder(to)) && files.CopyFile(from, to);
}

// Takes away what a copy has made, and nothing else.
void DeleteCopy(FileSystem& files, const std::string& folder, const std::vector<std::string>& paths) {
    std::set<std::string, std::greater<>> folders = {folder};  // those within others come first
    for (const std::string& path : paths) {
        files.DeleteFile(JoinPath(folder, path));
        for (std::string in = ParentFolder(path); !in.empty(); in = ParentFolder(in))
            folders.insert(JoinPath(folder, in));
    }
    for (const std::string& each : folders) files.DeleteEmptyFolder(each);
}

// A name beside the folder where nothing stands.
std::string NameBeside(FileSystem& files, const std::string& folder) {
    std::string name = Concat(folder, ".orlo-new");
    while (files.FolderExists(name) || files.FileExists(name)) name += '1';
    return name;
}

// Copies the folder beside its new place and renames it, so that there is all of it or nothing.
void CopyFolder(Context& context, const std::string& from, const std::string& to) {
    FileSystem& files = context.services.files;
    const std::string beside = NameBeside(files, to);
    std::vector<std::string> paths;
    ListFiles(files, from, "", 0, paths);
    bool copied = files.CreateFolders(beside);
    for (const std::string& path : paths)
        copied = copied && CopyInto(files, JoinPath(from, path), JoinPath(beside, path));
    if (copied && files.RenameFolder(beside, to)) return;
    DeleteCopy(files, beside, paths);
    ReportNotWritten(context, to);
}

bool Agrees(Context& context, std::string_view question) {
    return UserAgrees(context.services.messages, question, &context.forms.frmFSAircraftEdit);
}

void OfferFolder(Context& context, const std::string& from, const std::string& to,
                 std::string_view question) {
    if (context.services.files.FolderExists(to) || !Agrees(context, question)) return;
    ForgetNotWritten(context);
    CopyFolder(context, from, to);
}

std::string FolderOf(const FSAircraft& aircraft) {
    return ParentFolder(aircraft.ConfigFile);
}

std::string AirFile(const FSAircraft& aircraft, std::string_view sim) {
    return JoinPath(FolderOf(aircraft),
                    Concat(NativePath(sim), EndsWithNoCase(sim, kAirFileEnding) ? "" : ".air"));
}

// The simulator also takes a name that is the file's own.
std::string PresentAirFile(const FSAircraft& aircraft, FileSystem& files) {
    std::string path = AirFile(aircraft, aircraft.Sim);
    return files.FileExists(path) ? path : JoinPath(FolderOf(aircraft), NativePath(aircraft.Sim));
}

// The edited aircraft and the new value of its part; null where the part stays as it is.
struct NewPart {
    FSAircraft* aircraft = nullptr;
    std::string value;
};

NewPart PartOf(Context& context, TextBox FSAircraftEditForm::*field, std::string FSAircraft::*part) {
    FSAircraft* edited = EditedAircraft(context);
    NewPart typed{edited, ConfigValue((context.forms.frmFSAircraftEdit.*field).text)};
    if (edited != nullptr && edited->*part == typed.value) typed.aircraft = nullptr;
    return typed;
}

// Reads the model's radius; one that is not saved yet, of another variant with that model, goes before it.
void TakeModel(Context& context, FSAircraft& aircraft) {
    const ModelRadius model = ReadModelRadius(context.services.files, FolderOf(aircraft), aircraft.Model);
    aircraft.ModelFile = model.Path;
    aircraft.ModelFormat = model.Format;
    aircraft.Radius = model.Radius;
    aircraft.RadiusChanged = false;
    for (const FSAircraft& other : VariantsOfFile(context.session.fleet, aircraft)) {
        if (!other.RadiusChanged || model.Path.empty() || other.ModelFile != model.Path) continue;
        aircraft.Radius = other.Radius;
        aircraft.RadiusChanged = true;
    }
}

void TakePart(Context& context, const NewPart& typed, std::string FSAircraft::*part) {
    FSAircraft& aircraft = *typed.aircraft;
    aircraft.*part = typed.value;
    aircraft.Changed = true;
    if (part == &FSAircraft::Model) TakeModel(context, aircraft);
    aircraft.Problem = AircraftFileProblem(aircraft, context.services.files);
    ShowAircraftChanged(context);
    ShowAircraftFields(context);
}

void LeaveFolder(Context& context, TextBox FSAircraftEditForm::*field, std::string FSAircraft::*part,
                 std::string_view folder, std::string_view question) {
    const NewPart typed = PartOf(context, field, part);
    if (typed.aircraft == nullptr) return;
    const std::string root = FolderOf(*typed.aircraft);
    OfferFolder(context, JoinPath(root, PartName(folder, typed.aircraft->*part)),
                JoinPath(root, PartName(folder, typed.value)), question);
    TakePart(context, typed, part);
}

}  // namespace

void OnAircraftPart(Context& context, Event&) {
    if (EditedAircraft(context) != nullptr) ShowAircraftChanged(context);
}

void OnLeaveAircraftModel(Context& context, Event&) {
    LeaveFolder(
        context, &FSAircraftEditForm::txtModelFile, &FSAircraft::Model, "model",
        "New model folder does not exist. Would you like to create the folder and copy the contents of "
        "the old folder?");
}

void OnLeaveAircraftTexture(Context& context, Event&) {
    LeaveFolder(
        context, &FSAircraftEditForm::txtTexture, &FSAircraft::Texture, "texture",
        "New texture folder does not exist. Would you like to create the folder and copy the contents "
        "of the old folder?");
}

void OnLeaveAircraftSim(Context& context, Event&) {
    const NewPart typed = PartOf(context, &FSAircraftEditForm::txtSim, &FSAircraft::Sim);
    if (typed.aircraft == nullptr) return;
    FileSystem& files = context.services.files;
    const std::string path = AirFile(*typed.aircraft, typed.value);
    if (!files.FileExists(path) &&
        Agrees(context, "New AIR file does not exist. Would you like to copy the old file?")) {
        ForgetNotWritten(context);
        if (!CopyInto(files, PresentAirFile(*typed.aircraft, files), path)) ReportNotWritten(context, path);
    }
    TakePart(context, typed, &FSAircraft::Sim);
}

}  // namespace orlo

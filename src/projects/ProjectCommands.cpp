#include "projects/ProjectCommands.h"

#include "core/Application.h"
#include "core/Text.h"
#include "forms/EmptyHints.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/RecentLists.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"
#include "projects/KeepProject.h"
#include "projects/ProjectEntries.h"
#include "projects/ProjectFile.h"

namespace orlo {
namespace {

constexpr std::string_view kProjectFilter = "ORLO Project (*.orp)|*.orp";

constexpr std::string_view kSaveReason = "Save Project";

bool WriteKnownProject(Context& context) {
    ProjectState& project = context.session.project;
    FileSystem& files = context.services.files;
    const std::string& path = project.ProjectPath;
    if (path.empty() || !KeepWhatGoes(context, project.Known, kSaveReason, path) ||
        !WriteProject(project, files, path))
        return false;
    return true;
}

void WriteProjectFile(Context& context) {
    ProjectState& project = context.session.project;
    TakeProjectDescription(context);
    ForgetNotWritten(context);
    // One that was never saved is written nowhere.
    project.DiffersFromFile = !WriteKnownProject(context);
    if (project.DiffersFromFile && !project.ProjectPath.empty())
        ReportNotWritten(context, project.ProjectPath);
    project.ProjectModified = false;
    EnableMenus(context);
    ShowMessage(context.services.messages, "Successfully saved modified Project.", kMarkInformation,
                &context.forms.frmMain);
}

void WriteInFrame(Context& context) {
    const BusyForm busy(context, context.forms.frmMain);
    WriteProjectFile(context);
}

// False where what stands in no file can't be kept either.
bool KeepUnwritten(Context& context) {
    const ProjectState& project = context.session.project;
    if (!project.DiffersFromFile || KeepProjectInMemory(context, kSaveReason)) return true;
    ReportNotWritten(context, project.ProjectPath.empty() ? "Project" : project.ProjectPath);
    return false;
}

// No where there is nothing to save.
MessageAnswer AskToSaveProject(Context& context) {
    if (!IsUnsaved(context.session.project)) return MessageAnswer::No;
    return AskToSave(context, "Save the modified Project?");
}

// The flightplan is what a Yes saves before another project is opened.
void SaveFlightplanInstead(Context& context) {
    if (context.session.plan.PlanLoaded) return SaveFlightplan(context);
    ShowMessage(context.services.messages, "Successfully saved modified Flightplan.", kMarkInformation,
                &context.forms.frmMain);
}

// Empty where there is none.
std::string ChooseProject(Context& context, std::string path) {
    Services& services = context.services;
    if (path.empty()) {
        FileDialog dialog;
        dialog.title = "Open Project";
        dialog.filter = kProjectFilter;
        dialog.startFolder = context.session.project.ProjectPath;
        dialog.fileMustExist = true;
        path = services.windows.ShowOpenDialog(dialog);
    }
    if (path.empty() || services.files.FileExists(path)) return path;
    ShowMessage(services.messages, "ORLO Project file not found.", kMarkCritical, &context.forms.frmMain);
    return {};
}

void BeginProject(Context& context, const std::string& path, bool modified) {
    ProjectState& project = context.session.project;
    project = ProjectState();
    project.ProjectPath = path;
    project.ProjectBegun = true;
    project.ProjectModified = modified;
    ClearProjectHint(context.forms.frmMain);
    EnableMenus(context);
}

}  // namespace

bool IsUnsaved(const ProjectState& project) {
    return project.ProjectModified || project.DiffersFromFile;
}

bool SaveProjectBeforeItGoes(Context& context) {
    return SaveProject(context) && KeepUnwritten(context);
}

bool NewProject(Context& context) {
    const MessageAnswer answer = AskToSaveProject(context);
    if (answer == MessageAnswer::Cancel) return false;
    if (answer == MessageAnswer::Yes) {
        WriteInFrame(context);
        if (!KeepUnwritten(context)) return false;
    }
    BeginProject(context, "", true);
    context.session.project.ProjectLoaded = true;
    ShowProjectEntries(context);
    return true;
}

bool OpenProject(Context& context, std::string path) {
    ProjectState& project = context.session.project;
    MainForm& form = context.forms.frmMain;
    const MessageAnswer answer = AskToSaveProject(context);
    if (answer == MessageAnswer::Cancel) return false;
    if (answer == MessageAnswer::Yes) {
        // What the user agreed to save is kept from memory.
        TakeProjectDescription(context);
        context.session.project.DiffersFromFile = true;
        SaveFlightplanInstead(context);
    }
    path = ChooseProject(context, std::move(path));
    if (path.empty()) return false;
    if (answer == MessageAnswer::Yes && !KeepUnwritten(context)) return false;

    BeginProject(context, context.services.files.FullPath(path), false);
    const BusyForm busy(context, form);
    form.lvProject.SwitchSorting(false);
    ReadProject(project, context.services.files, project.ProjectPath);
    ShowProjectEntries(context);
    project.ProjectLoaded = true;
    form.sbMain.text =
        Concat("Project loaded with ", project.ProjectEntryCount(), " entries [", project.ProjectPath, "].");
    AddRecentProject(context, project.ProjectPath);
    return true;
}

bool SaveProject(Context& context) {
    if (context.session.project.ProjectPath.empty()) return SaveProjectAs(context);
    WriteInFrame(context);
    return true;
}

bool SaveProjectAs(Context& context) {
    ProjectState& project = context.session.project;
    const std::string path = AskForSavePath(context, "Save Project as...", project.ProjectPath,
                                            kProjectFilter, ChosenFile::IsKeptByCaller);
    if (path.empty()) return false;
    // What this session wrote there before is an earlier project.
    if (path != project.ProjectPath) project.Known = {};
    project.ProjectPath = path;
    AddRecentProject(context, project.ProjectPath);
    WriteInFrame(context);
    return true;
}

}  // namespace orlo

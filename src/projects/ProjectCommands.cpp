#include "projects/ProjectCommands.h"

#include "core/Application.h"
#include "core/Text.h"
#include "forms/EmptyHints.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/RecentLists.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"
#include "projects/ProjectEntries.h"
#include "projects/ProjectFile.h"

namespace orlo {
namespace {

constexpr std::string_view kProjectFilter = "ORLO Project (*.orp)|*.orp";

void WriteProjectFile(Context& context) {
    ProjectState& project = context.session.project;
    TakeProjectDescription(context);
    ForgetNotWritten(context);
    // One that was never saved is written nowhere.
    if (!project.ProjectPath.empty() && !WriteProject(project, context.services.files, project.ProjectPath))
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

// No where there is nothing to save.
MessageAnswer AskToSaveProject(Context& context) {
    if (!context.session.project.ProjectModified) return MessageAnswer::No;
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

bool NewProject(Context& context) {
    const MessageAnswer answer = AskToSaveProject(context);
    if (answer == MessageAnswer::Cancel) return false;
    if (answer == MessageAnswer::Yes) WriteInFrame(context);
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
    if (answer == MessageAnswer::Yes) SaveFlightplanInstead(context);
    path = ChooseProject(context, std::move(path));
    if (path.empty()) return false;

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
    const std::string path =
        AskForSavePath(context, "Save Project as...", project.ProjectPath, kProjectFilter);
    if (path.empty()) return false;
    project.ProjectPath = path;
    AddRecentProject(context, project.ProjectPath);
    WriteInFrame(context);
    return true;
}

}  // namespace orlo

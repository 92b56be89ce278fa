#include "projects/ProjectEntries.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/SavePlan.h"

namespace orlo {
namespace {

// Columns of lvProject.
constexpr std::int32_t kDescription = 0;
constexpr std::int32_t kFlightplan = 1;
constexpr std::int32_t kAircraftFile = 2;

void MarkProjectModified(Context& context) {
    context.session.project.ProjectModified = true;
    EnableMenus(context);
}

ListRow RowOf(const ProjectEntry& entry) {
    ListRow row;
    row.key = entry.Flightplan;
    row.texts = {entry.Description, entry.Flightplan, entry.AircraftFile};
    return row;
}

// Of the entry shown in the frame; -1 where none is.
std::int32_t ShownRow(const MainForm& form) {
    return form.lvProject.FindKey(form.CurrentProjectKey);
}

// The first entry of the flightplan that is shown, case aside; null where there is none.
ProjectEntry* ShownEntry(Context& context) {
    std::vector<ProjectEntry>& entries = context.session.project.ProjectEntries;
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const ProjectEntry& entry) {
        return EqualNoCase(entry.Flightplan, context.forms.frmMain.CurrentProjectKey);
    });
    return found == entries.end() ? nullptr : &*found;
}

// Empty on a cancel.
std::string AskForFile(Context& context, std::string_view title, const std::string& start) {
    FileDialog dialog;
    dialog.title = title;
    dialog.filter = kTextFileFilter;
    dialog.startFolder = start;
    dialog.fileMustExist = true;
    const std::string path = context.services.windows.ShowOpenDialog(dialog);
    return path.empty() ? path : context.services.files.FullPath(path);
}

std::string AskForFlightplan(Context& context, const std::string& start) {
    return AskForFile(context, "Project - Choose Flightplan", start);
}

bool IsInProject(Context& context, const std::string& flightplan) {
    MainForm& form = context.forms.frmMain;
    if (form.lvProject.FindKey(flightplan) < 0) return false;
    ShowMessage(context.services.messages, "Flighplan is already in Project.", kMarkExclamation, &form);
    return true;
}

// The aircraft file beside the flightplan, as the disk spells it; empty where none is.
std::string AircraftBeside(FileSystem& files, const std::string& flightplan) {
    const std::string folder = ParentFolder(flightplan);
    const std::string path = JoinPath(folder, "Aircraft.txt");
    return folder.empty() || !files.FileExists(path) ? std::string() : files.Resolve(path);
}

std::vector<ProjectEntry> EntriesAsShown(const ListView& list) {
    std::vector<ProjectEntry> entries;
    for (std::int32_t position = 0; position < list.Count(); ++position) {
        const std::int32_t row = list.PlaceAt(position);
        entries.push_back(
            {list.Text(row, kFlightplan), list.Text(row, kAircraftFile), list.Text(row, kDescription), 0});
    }
    return entries;
}

}  // namespace

void ShowProjectEntries(Context& context) {
    ListView& list = context.forms.frmMain.lvProject;
    list.Clear();
    for (const ProjectEntry& entry : context.session.project.ProjectEntries) list.Add(RowOf(entry));
    ShowProjectEntry(context, list.current);
}

void ShowProjectEntry(Context& context, std::int32_t row) {
    MainForm& form = context.forms.frmMain;
    const ListView& list = form.lvProject;
    const auto text = [&](std::int32_t column) { return row < 0 ? std::string() : list.Text(row, column); };
    form.txtProjectDescription.text = text(kDescription);
    form.txtProjectFile.text = text(kFlightplan);
    form.txtProjectAC.text = text(kAircraftFile);
    form.CurrentProjectKey = row < 0 ? std::string() : list.Key(row);
    form.txtProjectDescription.selectAllRequest = row >= 0;
    form.txtProjectAC.selectAllRequest = row >= 0;
    EnableProjectPane(context);
}

void AddProjectEntry(Context& context) {
    ListView& list = context.forms.frmMain.lvProject;
    const std::string path = AskForFlightplan(context, "");
    if (path.empty() || IsInProject(context, path)) return;
    const ProjectEntry entry{path, AircraftBeside(context.services.files, path), "", 0};
    context.session.project.ProjectEntries.push_back(entry);
    list.current = list.Add(RowOf(entry));
    list.SelectCurrentOnly();
    list.ensureVisibleRequest = true;
    ShowProjectEntry(context, list.current);
    MarkProjectModified(context);
}

void ChangeProjectFlightplan(Context& context) {
    MainForm& form = context.forms.frmMain;
    const std::string path = AskForFlightplan(context, form.txtProjectFile.text);
    if (path.empty() || EqualNoCase(path, form.txtProjectFile.text) || IsInProject(context, path)) return;
    const std::int32_t row = ShownRow(form);
    if (row < 0) return;
    form.txtProjectFile.text = path;
    form.lvProject.SetText(row, kFlightplan, path);
    form.lvProject.SetKey(row, path);
    if (ProjectEntry* entry = ShownEntry(context)) entry->Flightplan = path;
    form.CurrentProjectKey = path;
    MarkProjectModified(context);
}

void ChangeProjectAircraft(Context& context) {
    MainForm& form = context.forms.frmMain;
    const std::string path = AskForFile(context, "Project - Choose Aircraft file", form.txtProjectAC.text);
    if (path.empty() || EqualNoCase(path, form.txtProjectAC.text)) return;
    const std::int32_t row = ShownRow(form);
    if (row < 0 || form.lvProject.Text(row, kAircraftFile) == path) return;
    form.txtProjectAC.text = path;
    form.lvProject.SetText(row, kAircraftFile, path);
    if (ProjectEntry* entry = ShownEntry(context)) entry->AircraftFile = path;
    MarkProjectModified(context);
}

void DeleteProjectEntries(Context& context) {
    MainForm& form = context.forms.frmMain;
    ListView& list = form.lvProject;
    if (!UserAgrees(context.services.messages, "Are you sure to remove the selected Flightplans?", &form))
        return;
    list.Remove(list.SelectedPlaces());
    context.session.project.ProjectEntries = EntriesAsShown(list);
    list.SelectCurrentOnly();
    ShowProjectEntry(context, list.current);
    MarkProjectModified(context);
}

void TakeProjectDescription(Context& context) {
    MainForm& form = context.forms.frmMain;
    const std::int32_t row = ShownRow(form);
    const std::string& typed = form.txtProjectDescription.text;
    if (row < 0 || form.lvProject.Text(row, kDescription) == typed) return;
    form.lvProject.SetText(row, kDescription, typed);
    if (ProjectEntry* entry = ShownEntry(context)) entry->Description = typed;
    MarkProjectModified(context);
}

void OnSelectProjectRow(Context& context) {
    ShowProjectEntry(context, context.forms.frmMain.lvProject.current);
}

}  // namespace orlo

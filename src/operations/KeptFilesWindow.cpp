#include "operations/KeptFilesWindow.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/KeptContent.h"
#include "core/KeptFiles.h"
#include "core/Path.h"
#include "core/Text.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"

namespace orlo {
namespace {

// No text filter, whose extension a dialog would add.
constexpr std::string_view kAnyFileFilter = "All Files (*.*)|*.*";

const KeptEntry& EntryAt(const KeptFilesForm& form, std::int32_t place) {
    return form.Entries[form.Rows[static_cast<std::size_t>(place)].entry];
}

const KeptFile& FileAt(const KeptFilesForm& form, std::int32_t place) {
    return EntryAt(form, place).Files[form.Rows[static_cast<std::size_t>(place)].file];
}

void AddRow(KeptFilesForm& form, std::size_t entryPlace, std::size_t filePlace) {
    const KeptEntry& entry = form.Entries[entryPlace];
    const std::string& path = entry.Files[filePlace].Path;
    ListRow row;
    row.key = Concat(entry.Name, "/", filePlace);
    row.toolTip = path;
    row.texts = {entry.When, FileName(path), entry.Reason, ParentFolder(path)};
    form.lvKept.Add(row);
    form.Rows.push_back({entryPlace, filePlace});
}

void ChooseRow(ListView& list, std::int32_t place) {
    list.current = place;
    list.SelectCurrentOnly();
    list.ensureVisibleRequest = true;
}

// Reads the list anew; its first row is current then.
void FillList(Context& context) {
    KeptFilesForm& form = context.forms.frmKeptFiles;
    form.Entries = ReadKeptEntries(context.services.files, context.session.StateFolder);
    form.Rows.clear();
    form.lvKept.Clear();
    for (std::size_t entry = 0; entry < form.Entries.size(); ++entry) {
        for (std::size_t file = 0; file < form.Entries[entry].Files.size(); ++file) AddRow(form, entry, file);
    }
    if (form.lvKept.Count() > 0) ChooseRow(form.lvKept, form.lvKept.PlaceAt(0));
    EnableKeptFiles(context);
}

// Whether the file that stands at `path` may be replaced by the current one: it is the same, or a copy was
// kept.
bool MayBeReplaced(Context& context, const KeptEntry& entry, const KeptFile& file, const std::string& path) {
    return SameContent(context.services.files, KeptContentPath(context.session.StateFolder, file), path) ||
           KeepAside(context, "Restore", std::span(&path, 1), entry.Name);
}

// The files of one entry that are selected.
std::vector<KeptFile> SelectedOf(const KeptFilesForm& form, std::size_t entry) {
    std::vector<KeptFile> files;
    for (const std::int32_t place : form.lvKept.SelectedPlaces()) {
        if (form.Rows[static_cast<std::size_t>(place)].entry == entry) files.push_back(FileAt(form, place));
    }
    return files;
}

}  // namespace

void ShowKeptFiles(Context& context) {
    KeptFilesForm& form = context.forms.frmKeptFiles;
    form.lvKept.sorted = false;
    FillList(context);
    form.SetFocus(form.lvKept);
    context.services.windows.ShowModal(form, &context.forms.frmMain);
}

void EnableKeptFiles(Context& context) {
    KeptFilesForm& form = context.forms.frmKeptFiles;
    form.cmdRestore.enabled = form.lvKept.current >= 0;
    form.cmdDelete.enabled = !form.lvKept.SelectedRanges().empty();
    form.cmdShowFolder.enabled = context.services.files.FolderExists(context.session.StateFolder);
}

void RestoreKeptFile(Context& context) {
    Services& services = context.services;
    KeptFilesForm& form = context.forms.frmKeptFiles;
    if (form.lvKept.current < 0) return;
    const KeptEntry entry = EntryAt(form, form.lvKept.current);
    const KeptFile file = FileAt(form, form.lvKept.current);
    const std::string key = form.lvKept.Key(form.lvKept.current);
    const std::string path =
        AskForSavePath(context, "Restore Kept File", file.Path, kAnyFileFilter, ChosenFile::IsKeptByCaller);
    if (path.empty()) return;
    ForgetNotWritten(context);
    bool restored = false;
    {
        const BusyForm busy(context, form);
        restored = MayBeReplaced(context, entry, file, path) &&
                   RestoreKept(services.files, context.session.StateFolder, file, path);
    }
    // A file that was kept on the way is a row of its own.
    FillList(context);
    if (const std::int32_t place = form.lvKept.FindKey(key); place >= 0) ChooseRow(form.lvKept, place);
    ShowMessage(services.messages,
                restored ? "Successfully restored the file." : "An error occured during restoring the file.",
                restored ? kMarkInformation : kMarkCritical, &form);
}

void ShowKeptFolder(Context& context) {
    const std::string& folder = context.session.StateFolder;
    if (!context.services.windows.OpenDocument(folder, folder))
        context.forms.frmMain.sbMain.text = Concat("Nothing is set up that opens [", folder, "].");
}

void DeleteKeptFiles(Context& context) {
    KeptFilesForm& form = context.forms.frmKeptFiles;
    const auto selected = form.lvKept.SelectedPlaces();
    if (selected.empty()) return;
    const auto answer =
        ShowMessage(context.services.messages,
                    Concat("Delete ", selected.size(), selected.size() == 1 ? " kept file" : " kept files",
                           "? This can't be undone."),
                    kButtonsYesNo | kMarkQuestion | kDefaultSecondButton, &form);
    if (answer != MessageAnswer::Yes) return;
    ForgetNotWritten(context);
    const std::string& folder = context.session.StateFolder;
    for (std::size_t entry = 0; entry < form.Entries.size(); ++entry) {
        const std::vector<KeptFile> gone = SelectedOf(form, entry);
        if (!gone.empty() && !DeleteKept(context.services.files, folder, form.Entries[entry], gone))
            ReportNotWritten(context, JoinPath(folder, form.Entries[entry].Name));
    }
    const std::int32_t position = form.lvKept.PositionOf(selected.front());
    FillList(context);
    const std::int32_t last = form.lvKept.Count() - 1;
    if (last >= 0) ChooseRow(form.lvKept, form.lvKept.PlaceAt(std::min(position, last)));
}

void CloseKeptFiles(Context& context) {
    context.forms.frmKeptFiles.closeRequest = true;
}

}  // namespace orlo

#include "editors/FSAircraftEditor.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "config/AircraftClasses.h"
#include "core/Application.h"
#include "core/FileBackup.h"
#include "editors/EditedAircraft.h"
#include "editors/FSAircraftClass.h"
#include "editors/FSAircraftFields.h"
#include "editors/FSAircraftParts.h"
#include "editors/FSAircraftRows.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/PlanChange.h"
#include "mainwindow/StatusTexts.h"
#include "simulator/AircraftSave.h"
#include "simulator/AircraftScan.h"

namespace orlo {
namespace {

constexpr int kScanStages = 3;
constexpr std::string_view kSaveReason = "Aircraft Editor";

void FillNames(ComboBox& combo, const NameList& list) {
    combo.Clear();
    for (const std::string& name : list.Names) combo.Add(name);
}

void FillList(Context& context) {
    ListView& list = context.forms.frmFSAircraftEdit.lvAircrafts;
    const auto rows = std::make_shared<FSAircraftRows>(context.session.fleet, context.session.rules);
    list.ShowSource(rows, rows->Count());
}

// The row of the aircraft at that place in FSAircrafts; where it has none, the first row stays selected.
void SelectAircraft(ListView& list, std::ptrdiff_t place) {
    const auto& rows = static_cast<const FSAircraftRows&>(*list.Source());
    for (std::int32_t row = 0; row < rows.Count(); ++row) {
        if (rows.Place(row) != place) continue;
        list.current = row;
        list.SelectCurrentOnly();
    }
}

void NothingToSave(FSAircraftEditForm& form) {
    form.cmdSave.enabled = false;
    form.cmdUndo.enabled = false;
}

void FillDialog(Context& context) {
    FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    const Rules& rules = context.session.rules;
    form.KeptAircraft = context.session.fleet.FSAircrafts;
    form.KeptClasses = rules.Classes;
    FillNames(form.cmAirline, rules.AirlineNames);
    FillNames(form.cmATCModel, rules.ModelNames);
    FillNames(form.cmATCType, rules.TypeNames);
    FillList(context);
    ShowAircraftFields(context);
    NothingToSave(form);
    form.SetFocus(form.lvAircrafts);
}

void PutBackKept(Context& context) {
    const FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    context.session.fleet.FSAircrafts = form.KeptAircraft;
    context.session.rules.Classes = form.KeptClasses;
    // The aircraft may have been kept by a save that ended in front of the classes.
    LookUpAllClasses(context.session);
}

// For Enter and the keys of buttons, which leave no field. False where what is typed can't be taken.
bool TakesTypedValue(Context& context) {
    FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    Event leave{&form, form.focus, EventKind::Leave};
    if (form.focus == &form.txtModelFile) OnLeaveAircraftModel(context, leave);
    if (form.focus == &form.txtTexture) OnLeaveAircraftTexture(context, leave);
    if (form.focus == &form.txtSim) OnLeaveAircraftSim(context, leave);
    if (form.focus == &form.txtSpeed) OnLeaveAircraftSpeed(context, leave);
    if (form.focus == &form.txtRadius) OnLeaveAircraftRadius(context, leave);
    return !leave.refused;
}

// The path of the file where it can't be written; empty where no class has moved, too.
std::string SaveClasses(Context& context) {
    Session& session = context.session;
    FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    FileSystem& files = context.services.files;
    if (session.rules.Classes == form.KeptClasses) return {};
    std::string path = AircraftClassesPath(session);
    const bool isDue = session.switches.BackupAircraft && !files.FileExists(BackupPath(path));
    const bool backedUp = isDue && BackUpOnce(files, path);
    if (!backedUp && !KeepWhatGoes(context, session.known, kSaveReason, path)) return path;
    if (!WriteAircraftClasses(session, files)) return path;
    form.KeptClasses = session.rules.Classes;
    return {};
}

std::string SaveAll(Context& context) {
    Session& session = context.session;
    BackUpFile backUp;
    if (session.switches.BackupAircraft)
        backUp = [&context](const std::string& path) { return BackUpOrKeep(context, kSaveReason, path); };
    std::string failed = SaveAircraft(session.fleet.FSAircrafts, context.forms.frmFSAircraftEdit.KeptAircraft,
                                      context.services.files, backUp);
    return failed.empty() ? SaveClasses(context) : failed;
}

void NoteProblems(Fleet& fleet) {
    fleet.FSAircraftProblems =
        std::any_of(fleet.FSAircrafts.begin(), fleet.FSAircrafts.end(),
                    [](const FSAircraft& aircraft) { return !aircraft.Problem.empty(); });
}

}  // namespace

void ShowFSAircraftEditor(Context& context) {
    Session& session = context.session;
    FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    const std::vector<FSAircraft> before = std::move(session.fleet.FSAircrafts);
    {
        BusyForm busy(context, context.forms.frmMain, kScanStages);
        busy.Stage("Detecting FS2002 Aircraft...", 1);
        ScanAircraft(session.fleet, session.rules.Classes, context.services.files,
                     SimulatorFolder(session, context.services.machineSettings), true);
        busy.Stage("Refreshing...", 2);
        FillDialog(context);
    }
    context.services.windows.ShowModal(form, &context.forms.frmMain);
    form.lvAircrafts.Clear();
    form.KeptAircraft = {};
    NoteProblems(session.fleet);
    if (!session.plan.PlanLoaded) return;
    ShowPlanAnew(context, session.fleet.FSAircrafts == before ? Views::Kept : Views::Reset);
}

bool SaveFSAircraft(Context& context) {
    FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    if (!TakesTypedValue(context)) return false;
    ForgetNotWritten(context);
    std::string failed;
    {
        const BusyForm busy(context, form);
        failed = SaveAll(context);
    }
    if (failed.empty()) {
        NothingToSave(form);
        return true;
    }
    ReportNotWritten(context, failed);
    ShowMessage(context.services.messages,
                "Error during writing changes. Please be sure that FS2002 is currently not running.",
                kMarkCritical, &form);
    return false;
}

void UndoFSAircraft(Context& context) {
    FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    const FSAircraft* edited = EditedAircraft(context);
    const std::ptrdiff_t place = edited != nullptr ? edited - context.session.fleet.FSAircrafts.data() : -1;
    PutBackKept(context);
    FillList(context);
    SelectAircraft(form.lvAircrafts, place);
    ShowAircraftFields(context);
    NothingToSave(form);
}

void CloseFSAircraftEditor(Context& context) {
    FSAircraftEditForm& form = context.forms.frmFSAircraftEdit;
    if (form.cmdSave.enabled) {
        const MessageAnswer answer =
            ShowMessage(context.services.messages, "Do you want to save your changes?",
                        kButtonsYesNoCancel | kMarkQuestion, &form);
        if (answer == MessageAnswer::Cancel) return;
        if (answer == MessageAnswer::Yes && !SaveFSAircraft(context)) return;
        if (answer != MessageAnswer::Yes) PutBackKept(context);
    }
    form.closeRequest = true;
}

}  // namespace orlo

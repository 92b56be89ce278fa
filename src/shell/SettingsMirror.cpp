#include "shell/SettingsMirror.h"

#include <array>
#include <span>

#include "core/Number.h"
#include "core/Settings.h"
#include "mainwindow/RecentLists.h"

namespace orlo {
namespace {

constexpr std::string_view kSettings = "Settings";
constexpr std::string_view kEditorSettings = "Settings\\Flight Editor";
constexpr std::string_view kRecentFlightplans = "Recent Flightplans";
constexpr std::string_view kRecentProjects = "Recent Projects";
constexpr std::string_view kSimulatorFolder = "SimulatorFolder";
constexpr std::int32_t kNoPlaceStored = -1;

// Checks the entry of the limit, or the first one, which stands for off. The result is the limit that holds.
std::int32_t CheckLimit(MainForm& form, std::span<const TurnAroundLimit> limits, std::int32_t value) {
    const TurnAroundLimit* found = &limits.front();
    for (const TurnAroundLimit& limit : limits) {
        if (limit.value == value) found = &limit;
    }
    for (const TurnAroundLimit& limit : limits) (form.*limit.entry).checked = &limit == found;
    return found->value;
}

constexpr std::array<TurnAroundLimit, 6> kMinimumLimits = {{{&MainForm::mnuTAOff, kNoTurnAroundLimit},
                                                            {&MainForm::mnuTA30, 30},
                                                            {&MainForm::mnuTA45, 45},
                                                            {&MainForm::mnuTA60, 60},
                                                            {&MainForm::mnuTA90, 90},
                                                            {&MainForm::mnuTA120, 120}}};
constexpr std::array<TurnAroundLimit, 8> kMaximumLimits = {{{&MainForm::mnuMaxTAOff, kNoTurnAroundLimit},
                                                            {&MainForm::mnuMaxTA1, 1},
                                                            {&MainForm::mnuMaxTA2, 2},
                                                            {&MainForm::mnuMaxTA4, 4},
                                                            {&MainForm::mnuMaxTA8, 8},
                                                            {&MainForm::mnuMaxTA12, 12},
                                                            {&MainForm::mnuMaxTA18, 18},
                                                            {&MainForm::mnuMaxTA24, 24}}};

void ReadPaths(Context& context, std::string_view section, std::array<std::string, 5>& paths) {
    const OwnSettings settings(context.services.userSettings, section);
    for (std::size_t i = 0; i < paths.size(); ++i) paths[i] = settings.Text(std::to_string(i + 1), "");
}

void WritePaths(Context& context, std::string_view section, const std::array<std::string, 5>& paths) {
    OwnSettings settings(context.services.userSettings, section);
    for (std::size_t i = 0; i < paths.size(); ++i) settings.Save(std::to_string(i + 1), paths[i]);
}

void WriteWindowPlace(Context& context, OwnSettings& settings) {
    if (!context.services.windows.KeepsWindowPlace()) return;
    const MainForm& form = context.forms.frmMain;
    settings.SaveNumber("MainState", static_cast<std::int32_t>(form.windowState));
    if (form.windowState != WindowState::Normal) return;
    settings.SaveNumber("MainLeft", form.box.left);
    settings.SaveNumber("MainTop", form.box.top);
    settings.SaveNumber("MainWidth", form.box.width);
    settings.SaveNumber("MainHeight", form.box.height);
}

}  // namespace

std::span<const TurnAroundLimit> MinimumTurnArounds() {
    return kMinimumLimits;
}
std::span<const TurnAroundLimit> MaximumTurnArounds() {
    return kMaximumLimits;
}

void SetTATime(Context& context, std::int32_t minutes) {
    context.session.switches.TATime = CheckLimit(context.forms.frmMain, kMinimumLimits, minutes);
}

void SetMaxTATime(Context& context, std::int32_t hours) {
    context.session.switches.MaxTATime = CheckLimit(context.forms.frmMain, kMaximumLimits, hours);
}

void ReadSwitches(Context& context) {
    Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    const OwnSettings settings(context.services.userSettings, kSettings);
    form.mnuToolsBackupPlan.checked = session.switches.BackupPlan = settings.Boolean("BackupPlan", true);
    form.mnuToolsBackupAircraft.checked = session.switches.BackupAircraft =
        settings.Boolean("BackupAircraft", true);
    form.mnuToolsDebug.checked = session.switches.DebugOn = settings.Boolean("DebugOn", false);
    form.mnuToolsShowCompiler.checked = session.switches.ShowCompiler =
        settings.Boolean("ShowCompiler", false);
    form.mnuToolsUndoOn.checked = session.switches.Undo = settings.Boolean("Undo", true);
    form.mnuToolsACCheck.checked = session.switches.ACCheck = settings.Boolean("ACCheck", true);

    form.ckOverwriteTailNumber.checked = settings.Boolean("GenerateTailNumber", true);
    form.ckRemoveMinus.checked = settings.Boolean("RemoveMinus", false);
    form.ckCheckFL.checked = settings.Boolean("CheckFL", true);
    form.ckIFRVFR.checked = settings.Boolean("ChangeIFRVFR", true);
    form.ckCheckVisitedAirports.checked = settings.Boolean("CheckVisitedAirports", true);
    // A value that doesn't read is one of those that mean off.
    SetTATime(context, ParseWholeNumber(settings.Text("TATime", "30")).value_or(kNoTurnAroundLimit));
    SetMaxTATime(context, ParseWholeNumber(settings.Text("MaxTATime", "24")).value_or(kNoTurnAroundLimit));

    const OwnSettings editor(context.services.userSettings, kEditorSettings);
    session.switches.CheckAircraftRange = editor.Boolean("CheckAircraftRange", true);
    session.switches.CheckFlightLevels = editor.Boolean("CheckFlightLevels", true);
    session.switches.CheckFlightTimes = editor.Boolean("CheckFlightTimes", true);

    session.switches.StartNumber = settings.Number("StartNumber", 1);
    form.txtStartNumber.text = std::to_string(session.switches.StartNumber);
    form.txtStartNumber.selectAllRequest = true;
}

void ReadRecentLists(Context& context) {
    ReadPaths(context, kRecentFlightplans, context.session.RecentFlightplans);
    ReadPaths(context, kRecentProjects, context.session.RecentProjects);
    RebuildRecentMenus(context);
}

void ReadSimulatorFolder(Context& context) {
    const OwnSettings settings(context.services.userSettings, kSettings);
    context.session.SimulatorFolder = settings.Text(kSimulatorFolder, "");
}

void ReadZones(Context& context) {
    Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    const OwnSettings settings(context.services.userSettings, kSettings);
    session.switches.TTZone = settings.Text("TTZone", "GMT");
    session.switches.EXZone = settings.Text("EXZone", "GMT");
    session.switches.FEditZone = settings.Text("FEditZone", "GMT");
    form.cmTTZone.SelectText(session.switches.TTZone);
    form.cmExZone.SelectText(session.switches.EXZone);
    form.cmTTDay.SelectFirst();
    form.txtTTStart.text = "00:00:00";
    form.txtTTEnd.text = "23:59:59";
    form.txtTTStart.selectAllRequest = true;
    form.txtTTEnd.selectAllRequest = true;
}

void ReadWindowPlace(Context& context) {
    if (!context.services.windows.KeepsWindowPlace()) return;
    MainForm& form = context.forms.frmMain;
    const OwnSettings settings(context.services.userSettings, kSettings);
    const bool maximised =
        settings.Number("MainState", 0) == static_cast<std::int32_t>(WindowState::Maximised);
    form.windowState = maximised ? WindowState::Maximised : WindowState::Normal;
    form.centreRequest = settings.Number("MainHeight", kNoPlaceStored) == kNoPlaceStored;
    if (form.centreRequest) return;
    // A place that was stored in part is completed by the one that the window has.
    form.box.left = settings.Number("MainLeft", form.box.left);
    form.box.top = settings.Number("MainTop", form.box.top);
    form.box.width = settings.Number("MainWidth", form.box.width);
    form.box.height = settings.Number("MainHeight", form.box.height);
}

void WriteSettings(Context& context) {
    const Session& session = context.session;
    const MainForm& form = context.forms.frmMain;
    OwnSettings settings(context.services.userSettings, kSettings);
    WriteWindowPlace(context, settings);
    settings.SaveNumber("TATime", session.switches.TATime);
    settings.SaveNumber("MaxTATime", session.switches.MaxTATime);
    settings.SaveBoolean("BackupPlan", session.switches.BackupPlan);
    settings.SaveBoolean("BackupAircraft", session.switches.BackupAircraft);
    settings.SaveNumber("StartNumber", session.switches.StartNumber);
    settings.SaveBoolean("DebugOn", session.switches.DebugOn);
    settings.SaveBoolean("ShowCompiler", session.switches.ShowCompiler);
    settings.SaveBoolean("Undo", session.switches.Undo);
    settings.SaveBoolean("ACCheck", session.switches.ACCheck);
    WritePaths(context, kRecentFlightplans, session.RecentFlightplans);
    WritePaths(context, kRecentProjects, session.RecentProjects);
    settings.Save("TTZone", session.switches.TTZone);
    settings.Save("EXZone", session.switches.EXZone);
    settings.Save("FEditZone", session.switches.FEditZone);
    settings.SaveBoolean("GenerateTailNumber", form.ckOverwriteTailNumber.checked);
    settings.SaveBoolean("RemoveMinus", form.ckRemoveMinus.checked);
    settings.SaveBoolean("CheckFL", form.ckCheckFL.checked);
    settings.SaveBoolean("ChangeIFRVFR", form.ckIFRVFR.checked);
    settings.SaveBoolean("CheckVisitedAirports", form.ckCheckVisitedAirports.checked);
    if (!session.SimulatorFolder.empty()) settings.Save(kSimulatorFolder, session.SimulatorFolder);
    OwnSettings editor(context.services.userSettings, kEditorSettings);
    editor.SaveBoolean("CheckAircraftRange", session.switches.CheckAircraftRange);
    editor.SaveBoolean("CheckFlightLevels", session.switches.CheckFlightLevels);
    editor.SaveBoolean("CheckFlightTimes", session.switches.CheckFlightTimes);
    context.services.userSettings.Flush();
}

}  // namespace orlo

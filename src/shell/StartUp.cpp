#include "shell/StartUp.h"

#include "config/AircraftClasses.h"
#include "config/AirlineSetsFile.h"
#include "config/FlightLevels.h"
#include "config/NameLists.h"
#include "core/Application.h"
#include "shell/PaneFacts.h"
#include "shell/SettingsMirror.h"
#include "shell/SystemEnd.h"
#include "shell/Tabs.h"
#include "shell/Title.h"

namespace orlo {
namespace {

constexpr int kSplashMilliseconds = 1000;
constexpr std::int32_t kSplashOpacity = 192;
constexpr std::int32_t kFirstMoveView = 1;
constexpr std::int32_t kFirstShufflerView = 2;

// In this order; each reader tells the user what is wrong. Stops at the first that fails.
bool ReadRuleFiles(Context& context) {
    Session& session = context.session;
    FileSystem& files = context.services.files;
    MessageHost& messages = context.services.messages;
    return ReadAircraftClasses(session, files, messages) && ReadAirlines(session, files, messages) &&
           ReadAirlineNames(session, files, messages) && ReadModelNames(session, files, messages) &&
           ReadTypeNames(session, files, messages) && ReadFlightLevels(session, files, messages);
}

void SelectFirstViews(MainForm& form) {
    form.cmMoveView.index = kFirstMoveView;
    form.cmMoveView.tag = std::to_string(kFirstMoveView);
    form.cmShufflerView.index = kFirstShufflerView;
    form.cmShufflerView.tag = std::to_string(kFirstShufflerView);
}

void ClearTimetableFields(MainForm& form) {
    form.cmTTDay.SelectFirst();
    form.txtTTStart.text = "00:00:00";
    form.txtTTEnd.text = "23:59:59";
    form.txtTTStart.selectAllRequest = true;
    form.txtTTEnd.selectAllRequest = true;
}

void ShowWindows(Context& context) {
    Forms& forms = context.forms;
    WindowHost& windows = context.services.windows;
    windows.ShowForm(forms.frmMain);
    windows.ProcessEvents();
    if (!windows.TimerArmed(kSplashTimer)) return;  // a slow start has used its time up
    forms.frmSplash.owner = &forms.frmMain;
    forms.frmSplash.opacity = kSplashOpacity;
    windows.ShowForm(forms.frmSplash);
    windows.ProcessEvents();
}

}  // namespace

bool StartUp(Context& context) {
    MainForm& form = context.forms.frmMain;
    WindowHost& windows = context.services.windows;
    form.visible = false;
    windows.ProcessEvents();
    if (!context.services.files.Available()) {
        ShowMessage(context.services.messages, "Microsoft Scripting Library not found.", kMarkExclamation);
        return false;
    }
    ReadSwitches(context);
    ReadRecentLists(context);
    ReadSimulatorFolder(context);
    windows.StartTimer(kSplashTimer, kSplashMilliseconds);
    context.session.switches.DebugOn = form.mnuToolsDebug.checked;
    SelectFirstViews(form);
    if (!ReadRuleFiles(context)) {
        windows.StopTimer(kSplashTimer);
        return false;
    }
    RegisterMainLayout(context.frame.layout, form, form.innerHeight, form.innerWidth);
    ReadZones(context);
    ClearTimetableFields(form);
    ReadWindowPlace(context);
    ActivateTab(context);
    ShowWindows(context);
    context.frame.limits.AddWindowLimits(form, kMainWindowLimits);
    form.systemMenuAbout = true;
    RefreshTitle(context);
    TellUnsavedEnd(context);
    return true;
}

void CloseSplash(Context& context) {
    context.services.windows.StopTimer(kSplashTimer);
    context.services.windows.UnloadForm(context.forms.frmSplash);
    context.services.windows.ProcessEvents();
}

}  // namespace orlo

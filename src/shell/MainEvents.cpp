#include <array>

#include "core/Text.h"
#include "mainwindow/SavePlan.h"
#include "operations/AirlineSkeleton.h"
#include "operations/CorrectFlightLevels.h"
#include "operations/CorrectFlightTimes.h"
#include "operations/EditFlights.h"
#include "operations/ExportFlights.h"
#include "operations/PrintFlights.h"
#include "operations/RemoveMinus.h"
#include "shell/EventTables.h"
#include "shell/ExportTab.h"
#include "shell/HelpMenu.h"
#include "shell/MenuSwitches.h"
#include "shell/OpenPlan.h"
#include "shell/ShuffleTab.h"
#include "shell/Shutdown.h"
#include "shell/StartUp.h"
#include "shell/Tabs.h"
#include "shell/TreeEvents.h"

namespace orlo {
namespace {

constexpr std::string_view kProjectExtension = ".orp";

void NoAction(Context&, Event&) {}

void OpenPlan(Context& context, Event&) {
    OpenFlightplan(context, "");
}

template <std::size_t Place>
void OpenRecentPlan(Context& context, Event&) {
    OpenFlightplan(context, context.session.RecentFlightplans[Place]);
}

// A project has an extension of its own, a plan any name.
void OpenDroppedFile(Context& context, Event& event) {
    if (EndsWithNoCase(event.path, kProjectExtension)) {
        context.services.windows.ShowNotBuilt(context.forms.frmMain.mnuFileOpenProject.name);
    } else {
        OpenFlightplan(context, event.path);
    }
}

void CloseMainWindow(Context& context, Event& event) {
    if (Shutdown(context)) {
        context.forms.frmMain.closeRequest = true;
    } else {
        event.refused = true;
    }
}

// The name is shared with the editor's entry.
void EditCurrentFlight(Context& context, Event&) {
    EditFlight(context);
}

template <SearchMode Mode>
void Report(Context& context, Event&) {
    ShowReport(context, Mode);
}

// Delete and Insert on the list stand for its buttons.
void OnProjectKey(Context& context, Event& event) {
    MainForm& form = context.forms.frmMain;
    if (event.value == kKeyDelete) RunButton(context, form.cmdProjectDelete);
    if (event.value == kKeyInsert) RunButton(context, form.cmdProjectAdd);
}

void LayOutControls(Context& context, Event&) {
    MainForm& form = context.forms.frmMain;
    context.frame.layout.Resize(form.innerHeight, form.innerWidth);
    ControlBox& status = form.sbMain.box;
    status = {0, form.innerHeight - status.height, form.innerWidth, status.height};
}

void SortByColumn(Context&, Event& event) {
    auto& list = static_cast<ListView&>(*event.control);
    list.SortByColumn(event.value);
    list.ensureVisibleRequest = true;
}

using enum EventKind;

constexpr std::array kMainEvents = {
    EventEntry{"", Close, CloseMainWindow},
    EventEntry{"", Resize, LayOutControls},
    EventEntry{"", SystemMenu, Run<ShowAbout>},
    EventEntry{"", Help, ShowHelpPage},
    EventEntry{"", DropFile, OpenDroppedFile},
    EventEntry{kSplashTimer, Timer, Run<CloseSplash>},
    EventEntry{"tabMain", SelectTab, Run<ActivateTab>},

    EventEntry{"cmShufflerView", Change, Run<OnShufflerView>},
    EventEntry{"cmMoveView", Change, Run<OnMoveView>},
    EventEntry{"tvShuffleAircraft", CheckNode, OnNodeCheck},
    EventEntry{"tvMoveAircrafts", CheckNode, OnNodeCheck},
    EventEntry{"tvShuffleAircraft", Hover, OnTreeHover},
    EventEntry{"tvMoveAircrafts", Hover, OnTreeHover},
    EventEntry{"tvShuffleAircraft", Popup, OnSelectPopup},
    EventEntry{"tvMoveAircrafts", Popup, OnSelectPopup},
    EventEntry{"lvExPreview", Popup, OnSelectPopup},
    EventEntry{"mnuSelectAll", Click, Run<OnSelectAll>},
    EventEntry{"mnuDeselectAll", Click, Run<OnDeselectAll>},
    EventEntry{"mnuInverseSelection", Click, Run<OnInverseSelection>},

    EventEntry{"txtStartNumber", Leave, OnLeaveStartNumber},
    EventEntry{"cmdCalcStartNumber", Click, Run<OnCalcStartNumber>},
    EventEntry{"cmdShuffle", Click, Run<OnShuffle>},
    EventEntry{"cmdACTypeDat", Click},

    EventEntry{"cmdMove", Click},
    EventEntry{"cmdMovePercent", Click},
    EventEntry{"cmdMoveSave", Click},
    EventEntry{"cmdMoveLoad", Click},
    EventEntry{"cmdMoveExecute", Click},

    EventEntry{"cmExZone", Change, Run<OnExportZone>},
    EventEntry{"cmdPreview", Click, Run<OnPreview>},
    EventEntry{"cmdExport", Click, Run<ExportFlights>},
    EventEntry{"cmdExportRemainder", Click, Run<ExportRemainder>},
    EventEntry{"cmdExportPrint", Click, Run<PrintFlights>},
    EventEntry{"cmdEditFlight", Click, EditCurrentFlight},
    EventEntry{"cmdAddFlight", Click, Run<AddFlight>},
    EventEntry{"cmdDeleteFlight", Click, Run<DeleteFlights>},
    EventEntry{"lvExPreview", DoubleClick, EditCurrentFlight},
    EventEntry{"lvExPreview", ClickColumn, SortByColumn},
    EventEntry{"lvExPreview", KeyUp, OnExportKey},

    EventEntry{"cmTTZone", Change},
    EventEntry{"cmdTTShow", Click},
    EventEntry{"cmdTTPrint", Click},
    EventEntry{"cmdTTSave", Click},
    EventEntry{"cmdTTStatistics", Click},
    EventEntry{"lvTimetable", ClickColumn, SortByColumn},

    EventEntry{"cmdProjectCompile", Click},
    EventEntry{"cmdProjectMerge", Click},
    EventEntry{"cmdProjectAdd", Click},
    EventEntry{"cmdProjectDelete", Click},
    EventEntry{"cmdProjectFile", Click},
    EventEntry{"cmdProjectAC", Click},
    EventEntry{"lvProject", ClickColumn, SortByColumn},
    EventEntry{"lvProject", KeyUp, OnProjectKey},

    EventEntry{"mnuFileLoad", Click, OpenPlan},
    EventEntry{"mnuFileSave", Click, Run<SaveFlightplanCommand>},
    EventEntry{"mnuFileSaveAs", Click, Run<SaveFlightplanAs>},
    EventEntry{"mnuFileNewProject", Click},
    EventEntry{"mnuFileOpenProject", Click},
    EventEntry{"mnuFileSaveProject", Click},
    EventEntry{"mnuFileSaveProjectAs", Click},
    EventEntry{"mnuRecentFlightPlan1", Click, OpenRecentPlan<0>},
    EventEntry{"mnuRecentFlightPlan2", Click, OpenRecentPlan<1>},
    EventEntry{"mnuRecentFlightPlan3", Click, OpenRecentPlan<2>},
    EventEntry{"mnuRecentFlightPlan4", Click, OpenRecentPlan<3>},
    EventEntry{"mnuRecentFlightPlan5", Click, OpenRecentPlan<4>},
    EventEntry{"mnuRecentProjects1", Click},
    EventEntry{"mnuRecentProjects2", Click},
    EventEntry{"mnuRecentProjects3", Click},
    EventEntry{"mnuRecentProjects4", Click},
    EventEntry{"mnuRecentProjects5", Click},
    EventEntry{"mnuFileExit", Click, CloseMainWindow},

    EventEntry{"mnuToolsUndo", Click, Run<RestoreUndoSnapshot>},
    EventEntry{"mnuToolsShuffle", Click, NoAction},
    EventEntry{"mnuToolsMove", Click, NoAction},
    EventEntry{"mnuToolsCompileCurrent", Click},
    EventEntry{"mnuToolsCompile", Click},
    EventEntry{"mnuToolsDecompile", Click},
    EventEntry{"mnuToolsEditPlanAircraft", Click},
    EventEntry{"mnuToolsAircraftEditor", Click},
    EventEntry{"mnuToolsAirportDistance", Click},
    EventEntry{"mnuToolsAirportSearch", Click},
    EventEntry{"mnuToolsResizeGates", Click},
    EventEntry{"mnuReportsNotFound", Click, Report<SearchMode::AircraftNotFound>},
    EventEntry{"mnuReportsDuplicateFlights", Click, Report<SearchMode::DuplicateFlights>},
    EventEntry{"mnuReportsUnknownAirports", Click, Report<SearchMode::UnknownAirports>},
    EventEntry{"mnuReportsWrongFL", Click, Report<SearchMode::WrongFlightLevel>},
    EventEntry{"mnuReportsWrongTime", Click, Report<SearchMode::WrongTime>},
    EventEntry{"mnuToolsCheckFL", Click, Run<OnCorrectFlightLevels>},
    EventEntry{"mnuToolsCheckFT", Click, Run<OnCorrectFlightTimes>},
    EventEntry{"mnuToolsRemoveMinus", Click, Run<OnRemoveMinusFromTailNumbers>},
    EventEntry{"mnuToolsRandPlan", Click},
    EventEntry{"mnuToolsRandPerc", Click},
    EventEntry{"mnuToolsRandFlightNumbers", Click},
    EventEntry{"mnuToolsAirlinesCFG", Click, Run<GenerateAirlineConfig>},
    EventEntry{"mnuToolsAirportsTXT", Click},
    EventEntry{"mnuToolsFPAirportsTXT", Click},
    EventEntry{"mnuToolsDeleteCache", Click, Run<DeleteSceneryCache>},

    EventEntry{"mnuToolsShowCompiler", Click, OnSwitch},
    EventEntry{"mnuToolsDebug", Click, OnSwitch},
    EventEntry{"mnuToolsUndoOn", Click, OnSwitch},
    EventEntry{"mnuToolsACCheck", Click, OnSwitch},
    EventEntry{"mnuToolsBackupPlan", Click, OnSwitch},
    EventEntry{"mnuToolsBackupAircraft", Click, OnSwitch},
    EventEntry{"mnuToolsSimulatorFolder", Click, Run<ChooseSimulatorFolder>},
    EventEntry{"mnuTAOff", Click, OnTurnAround},
    EventEntry{"mnuTA30", Click, OnTurnAround},
    EventEntry{"mnuTA45", Click, OnTurnAround},
    EventEntry{"mnuTA60", Click, OnTurnAround},
    EventEntry{"mnuTA90", Click, OnTurnAround},
    EventEntry{"mnuTA120", Click, OnTurnAround},
    EventEntry{"mnuMaxTAOff", Click, OnTurnAround},
    EventEntry{"mnuMaxTA1", Click, OnTurnAround},
    EventEntry{"mnuMaxTA2", Click, OnTurnAround},
    EventEntry{"mnuMaxTA4", Click, OnTurnAround},
    EventEntry{"mnuMaxTA8", Click, OnTurnAround},
    EventEntry{"mnuMaxTA12", Click, OnTurnAround},
    EventEntry{"mnuMaxTA18", Click, OnTurnAround},
    EventEntry{"mnuMaxTA24", Click, OnTurnAround},

    EventEntry{"mnuViewToolbar", Click, NoAction},
    EventEntry{"mnuViewStatusBar", Click, NoAction},
    EventEntry{"mnuViewRefresh", Click, NoAction},
    EventEntry{"mnuViewOptions", Click, NoAction},
    EventEntry{"mnuHelpContents", Click, Run<ShowHelp>},
    EventEntry{"mnuHelpSearchForHelpOn", Click, NoAction},
    EventEntry{"mnuHelpAbout", Click, Run<ShowAbout>},
};

}  // namespace

EventTable MainEvents() {
    return kMainEvents;
}

}  // namespace orlo

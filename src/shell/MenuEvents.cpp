#include "shell/EventTables.h"

#include <array>

#include "editors/AirportDistance.h"
#include "editors/AirportSearch.h"
#include "editors/FSAircraftEditor.h"
#include "editors/PlanAircraftEditor.h"
#include "editors/ResizeGates.h"
#include "mainwindow/SavePlan.h"
#include "operations/AirlineSkeleton.h"
#include "operations/CorrectFlightLevels.h"
#include "operations/CorrectFlightTimes.h"
#include "operations/GeneratedLists.h"
#include "operations/KeptFilesWindow.h"
#include "operations/Randomise.h"
#include "operations/RemoveMinus.h"
#include "projects/CompilePlan.h"
#include "projects/ProjectCommands.h"
#include "shell/ExportTab.h"
#include "shell/HelpMenu.h"
#include "shell/MenuSwitches.h"
#include "shell/OpenPlan.h"
#include "shell/PaneFacts.h"
#include "shell/ProjectTab.h"
#include "shell/TreeEvents.h"
#include "shuffler/SharesWindow.h"

namespace orlo {
namespace {

using M = MainForm;
using enum EventKind;

void NoAction(Context&, Event&) {}

void OpenPlan(Context& context, Event&) {
    OpenFlightplan(context, "");
}

template <std::size_t Place>
void OpenRecentPlan(Context& context, Event&) {
    OpenFlightplan(context, context.session.RecentFlightplans[Place]);
}

void ChooseAndOpenProject(Context& context, Event&) {
    OpenProjectAndShow(context, "");
}

template <std::size_t Place>
void OpenRecentProject(Context& context, Event&) {
    OpenProjectAndShow(context, context.session.RecentProjects[Place]);
}

template <auto Save>
void SaveTheProject(Context& context, Event&) {
    Save(context);
}

template <SearchMode Mode>
void Report(Context& context, Event&) {
    ShowReport(context, Mode);
}

constexpr std::array kMenuEvents = {
    EventEntry{InMain<&M::mnuSelectAll>, Click, Run<OnSelectAll>},
    EventEntry{InMain<&M::mnuDeselectAll>, Click, Run<OnDeselectAll>},
    EventEntry{InMain<&M::mnuInverseSelection>, Click, Run<OnInverseSelection>},
    EventEntry{InMain<&M::mnuFileLoad>, Click, OpenPlan},
    EventEntry{InMain<&M::mnuFileSave>, Click, Run<SaveFlightplanCommand>},
    EventEntry{InMain<&M::mnuFileSaveAs>, Click, Run<SaveFlightplanAs>},
    EventEntry{InMain<&M::mnuFileNewProject>, Click, Run<OnNewProject>},
    EventEntry{InMain<&M::mnuFileOpenProject>, Click, ChooseAndOpenProject},
    EventEntry{InMain<&M::mnuFileSaveProject>, Click, SaveTheProject<SaveProject>},
    EventEntry{InMain<&M::mnuFileSaveProjectAs>, Click, SaveTheProject<SaveProjectAs>},
    EventEntry{InMain<&M::mnuRecentFlightPlan1>, Click, OpenRecentPlan<0>},
    EventEntry{InMain<&M::mnuRecentFlightPlan2>, Click, OpenRecentPlan<1>},
    EventEntry{InMain<&M::mnuRecentFlightPlan3>, Click, OpenRecentPlan<2>},
    EventEntry{InMain<&M::mnuRecentFlightPlan4>, Click, OpenRecentPlan<3>},
    EventEntry{InMain<&M::mnuRecentFlightPlan5>, Click, OpenRecentPlan<4>},
    EventEntry{InMain<&M::mnuRecentProjects1>, Click, OpenRecentProject<0>},
    EventEntry{InMain<&M::mnuRecentProjects2>, Click, OpenRecentProject<1>},
    EventEntry{InMain<&M::mnuRecentProjects3>, Click, OpenRecentProject<2>},
    EventEntry{InMain<&M::mnuRecentProjects4>, Click, OpenRecentProject<3>},
    EventEntry{InMain<&M::mnuRecentProjects5>, Click, OpenRecentProject<4>},
    EventEntry{InMain<&M::mnuFileExit>, Click, CloseMainWindow},
    EventEntry{InMain<&M::mnuToolsUndo>, Click, Run<RestoreUndoSnapshot>},
    EventEntry{InMain<&M::mnuToolsShuffle>, Click, NoAction},
    EventEntry{InMain<&M::mnuToolsMove>, Click, NoAction},
    EventEntry{InMain<&M::mnuToolsCompileCurrent>, Click, Run<CompileCurrentFlightplan>},
    EventEntry{InMain<&M::mnuToolsCompile>, Click, Run<CompileFlightplan>},
    EventEntry{InMain<&M::mnuToolsDecompile>, Click, Run<DecompileFlightplan>},
    EventEntry{InMain<&M::mnuToolsEditPlanAircraft>, Click, Run<OnEditPlanAircraft>},
    EventEntry{InMain<&M::mnuToolsAircraftEditor>, Click, Run<ShowFSAircraftEditor>},
    EventEntry{InMain<&M::mnuToolsAirportDistance>, Click, Run<ShowAirportDistance>},
    EventEntry{InMain<&M::mnuToolsAirportSearch>, Click, Run<ShowAirportSearch>},
    EventEntry{InMain<&M::mnuToolsResizeGates>, Click, Run<ShowResizeGates>},
    EventEntry{InMain<&M::mnuReportsNotFound>, Click, Report<SearchMode::AircraftNotFound>},
    EventEntry{InMain<&M::mnuReportsDuplicateFlights>, Click, Report<SearchMode::DuplicateFlights>},
    EventEntry{InMain<&M::mnuReportsUnknownAirports>, Click, Report<SearchMode::UnknownAirports>},
    EventEntry{InMain<&M::mnuReportsWrongFL>, Click, Report<SearchMode::WrongFlightLevel>},
    EventEntry{InMain<&M::mnuReportsWrongTime>, Click, Report<SearchMode::WrongTime>},
    EventEntry{InMain<&M::mnuToolsCheckFL>, Click, Run<OnCorrectFlightLevels>},
    EventEntry{InMain<&M::mnuToolsCheckFT>, Click, Run<OnCorrectFlightTimes>},
    EventEntry{InMain<&M::mnuToolsRemoveMinus>, Click, Run<OnRemoveMinusFromTailNumbers>},
    EventEntry{InMain<&M::mnuToolsRandPlan>, Click, Run<OnRandomizePlanOrder>},
    EventEntry{InMain<&M::mnuToolsRandPerc>, Click, Run<OnRandomizePercent>},
    EventEntry{InMain<&M::mnuToolsRandFlightNumbers>, Click, Run<OnRandomizeFlightNumbers>},
    EventEntry{InMain<&M::mnuToolsAirlinesCFG>, Click, Run<GenerateAirlineConfig>},
    EventEntry{InMain<&M::mnuToolsAirportsTXT>, Click, Run<GenerateAirports>},
    EventEntry{InMain<&M::mnuToolsFPAirportsTXT>, Click, Run<GeneratePlanAirports>},
    EventEntry{InMain<&M::mnuToolsDeleteCache>, Click, Run<DeleteSceneryCache>},
    EventEntry{InMain<&M::mnuToolsShowCompiler>, Click, OnSwitch},
    EventEntry{InMain<&M::mnuToolsDebug>, Click, OnSwitch},
    EventEntry{InMain<&M::mnuToolsUndoOn>, Click, OnSwitch},
    EventEntry{InMain<&M::mnuToolsACCheck>, Click, OnSwitch},
    EventEntry{InMain<&M::mnuToolsBackupPlan>, Click, OnSwitch},
    EventEntry{InMain<&M::mnuToolsBackupAircraft>, Click, OnSwitch},
    EventEntry{InMain<&M::mnuToolsSimulatorFolder>, Click, Run<ChooseSimulatorFolder>},
    EventEntry{InMain<&M::mnuTAOff>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuTA30>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuTA45>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuTA60>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuTA90>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuTA120>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuMaxTAOff>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuMaxTA1>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuMaxTA2>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuMaxTA4>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuMaxTA8>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuMaxTA12>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuMaxTA18>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuMaxTA24>, Click, OnTurnAround},
    EventEntry{InMain<&M::mnuViewToolbar>, Click, NoAction},
    EventEntry{InMain<&M::mnuViewStatusBar>, Click, NoAction},
    EventEntry{InMain<&M::mnuViewRefresh>, Click, NoAction},
    EventEntry{InMain<&M::mnuViewOptions>, Click, NoAction},
    EventEntry{InMain<&M::mnuViewShares>, Click, Run<ShowShares>},
    EventEntry{InMain<&M::mnuHelpContents>, Click, Run<ShowHelp>},
    EventEntry{InMain<&M::mnuHelpSearchForHelpOn>, Click, NoAction},
    EventEntry{InMain<&M::mnuHelpKeptFiles>, Click, Run<ShowKeptFiles>},
    EventEntry{InMain<&M::mnuHelpAbout>, Click, Run<ShowAbout>},
};

}  // namespace

EventTable MenuEvents() {
    return kMenuEvents;
}

}  // namespace orlo

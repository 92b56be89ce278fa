#include "forms/MainMenus.h"

namespace orlo {

MainMenus::MainMenus(Form& form)
    : mnuFile{form, "mnuFile", "&File"},
      mnuTools{form, "mnuTools", "&Tools"},
      mnuView{form, "mnuView", "&View"},
      mnuHelp{form, "mnuHelp", "&Help"},
      mnuSelect{form, "mnuSelect", "Select"} {
    for (MenuEntry* entry : {&mnuToolsShowCompiler, &mnuToolsDebug, &mnuToolsUndoOn, &mnuToolsACCheck,
                             &mnuToolsBackupPlan, &mnuToolsBackupAircraft}) {
        entry->checkable = true;
    }
    for (MenuEntry* entry :
         {&mnuTAOff, &mnuTA30, &mnuTA45, &mnuTA60, &mnuTA90, &mnuTA120, &mnuMaxTAOff, &mnuMaxTA1, &mnuMaxTA2,
          &mnuMaxTA4, &mnuMaxTA8, &mnuMaxTA12, &mnuMaxTA18, &mnuMaxTA24}) {
        entry->checkable = true;
        entry->radio = true;
    }
    for (MenuEntry* entry :
         {&mnuFileNewProject, &mnuRecentFlightPlan, &mnuFileExit, &mnuToolsShuffle, &mnuToolsCompileCurrent,
          &mnuToolsEditPlanAircraft, &mnuToolsAirportDistance, &mnuToolsReports, &mnuToolsCheckFL,
          &mnuToolsRandPlan, &mnuToolsAirlinesCFG, &mnuToolsDeleteCache, &mnuToolsSwitches, &mnuTA,
          &mnuToolsBackupPlan, &mnuToolsSimulatorFolder, &mnuViewRefresh, &mnuViewShares, &mnuHelpAbout}) {
        entry->separatorBefore = true;
    }
    for (MenuEntry* entry :
         {&mnuRecentFlightPlan1, &mnuRecentFlightPlan2, &mnuRecentFlightPlan3, &mnuRecentFlightPlan4,
          &mnuRecentFlightPlan5, &mnuRecentProjects1, &mnuRecentProjects2, &mnuRecentProjects3,
          &mnuRecentProjects4, &mnuRecentProjects5}) {
        entry->visible = false;
        entry->plainCaption = true;
    }
    mnuSelect.popup = true;
    mnuFileLoad.shortcut = "Ctrl+O";
    mnuFileSave.shortcut = "Ctrl+S";
    mnuToolsUndo.shortcut = "Ctrl+Z";
#ifdef _WIN32
    // The registry tells it.
    mnuToolsSimulatorFolder.visible = false;
#endif
}

}  // namespace orlo

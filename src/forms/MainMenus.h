#pragma once

#include "forms/Form.h"

namespace orlo {

// The menus of the main window.
struct MainMenus {
    explicit MainMenus(Form& form);

    MenuEntry mnuFile;
    MenuEntry mnuFileLoad{mnuFile, "mnuFileLoad", "&Open Flightplan"};
    MenuEntry mnuFileSave{mnuFile, "mnuFileSave", "&Save Flightplan"};
    MenuEntry mnuFileSaveAs{mnuFile, "mnuFileSaveAs", "S&ave Flightplan as..."};
    MenuEntry mnuFileNewProject{mnuFile, "mnuFileNewProject", "&New Project"};
    MenuEntry mnuFileOpenProject{mnuFile, "mnuFileOpenProject", "Open &Project"};
    MenuEntry mnuFileSaveProject{mnuFile, "mnuFileSaveProject", "Sa&ve Project"};
    MenuEntry mnuFileSaveProjectAs{mnuFile, "mnuFileSaveProjectAs", "Sav&e Project as..."};
    MenuEntry mnuRecentFlightPlan{mnuFile, "mnuRecentFlightPlan", "Recent Flightplans"};
    MenuEntry mnuRecentFlightPlan1{mnuRecentFlightPlan, "mnuRecentFlightPlan1", ""};
    MenuEntry mnuRecentFlightPlan2{mnuRecentFlightPlan, "mnuRecentFlightPlan2", ""};
    MenuEntry mnuRecentFlightPlan3{mnuRecentFlightPlan, "mnuRecentFlightPlan3", ""};
    MenuEntry mnuRecentFlightPlan4{mnuRecentFlightPlan, "mnuRecentFlightPlan4", ""};
    MenuEntry mnuRecentFlightPlan5{mnuRecentFlightPlan, "mnuRecentFlightPlan5", ""};
    MenuEntry mnuRecentProjects{mnuFile, "mnuRecentProjects", "&Recent Projects"};
    MenuEntry mnuRecentProjects1{mnuRecentProjects, "mnuRecentProjects1", ""};
    MenuEntry mnuRecentProjects2{mnuRecentProjects, "mnuRecentProjects2", ""};
    MenuEntry mnuRecentProjects3{mnuRecentProjects, "mnuRecentProjects3", ""};
    MenuEntry mnuRecentProjects4{mnuRecentProjects, "mnuRecentProjects4", ""};
    MenuEntry mnuRecentProjects5{mnuRecentProjects, "mnuRecentProjects5", ""};
    MenuEntry mnuFileExit{mnuFile, "mnuFileExit", "E&xit"};

    MenuEntry mnuTools;
    MenuEntry mnuToolsUndo{mnuTools, "mnuToolsUndo", "&Undo"};
    MenuEntry mnuToolsShuffle{mnuTools, "mnuToolsShuffle", "&Shuffle"};
    MenuEntry mnuToolsMove{mnuTools, "mnuToolsMove", "&Move"};
    MenuEntry mnuToolsCompileCurrent{mnuTools, "mnuToolsCompileCurrent", "&Compile current Flightplan"};
    MenuEntry mnuToolsCompile{mnuTools, "mnuToolsCompile", "Com&pile Flightplan"};
    MenuEntry mnuToolsDecompile{mnuTools, "mnuToolsDecompile", "&Decompile Flightplan"};
    MenuEntry mnuToolsEditPlanAircraft{mnuTools, "mnuToolsEditPlanAircraft", "Flightplan Aircraft Editor"};
    MenuEntry mnuToolsAircraftEditor{mnuTools, "mnuToolsAircraftEditor", "Aircraft &Editor"};
    MenuEntry mnuToolsAirportDistance{mnuTools, "mnuToolsAirportDistance", "Airport Distance"};
    MenuEntry mnuToolsAirportSearch{mnuTools, "mnuToolsAirportSearch", "Airport Se&arch"};
    MenuEntry mnuToolsResizeGates{mnuTools, "mnuToolsResizeGates", "Resi&ze Gates"};
    MenuEntry mnuToolsReports{mnuTools, "mnuToolsReports", "Analyze"};
    MenuEntry mnuReportsNotFound{mnuToolsReports, "mnuReportsNotFound", "Aircraft not &found"};
    MenuEntry mnuReportsDuplicateFlights{mnuToolsReports, "mnuReportsDuplicateFlights", "&Duplicate Flights"};
    MenuEntry mnuReportsUnknownAirports{mnuToolsReports, "mnuReportsUnknownAirports", "&Unknown Airports"};
    MenuEntry mnuReportsWrongFL{mnuToolsReports, "mnuReportsWrongFL", "Incorrect Flight &Levels"};
    MenuEntry mnuReportsWrongTime{mnuToolsReports, "mnuReportsWrongTime", "Incorrect Flight &Times"};
    MenuEntry mnuToolsCheckFL{mnuTools, "mnuToolsCheckFL", "Correct Flight Le&vels"};
    MenuEntry mnuToolsCheckFT{mnuTools, "mnuToolsCheckFT", "Correct Flight &Times"};
    MenuEntry mnuToolsRemoveMinus{mnuTools, "mnuToolsRemoveMinus", "&Remove char '-' from all Tail numbers"};
    MenuEntry mnuToolsRandPlan{mnuTools, "mnuToolsRandPlan", "Randomize Flight Plan order"};
    MenuEntry mnuToolsRandPerc{mnuTools, "mnuToolsRandPerc", "Randomize AI percentage"};
    MenuEntry mnuToolsRandFlightNumbers{mnuTools, "mnuToolsRandFlightNumbers", "Randomize Flight Numbers"};
    MenuEntry mnuToolsAirlinesCFG{mnuTools, "mnuToolsAirlinesCFG", "&Create 'New ORLO_AL.CFG'"};
    MenuEntry mnuToolsAirportsTXT{mnuTools, "mnuToolsAirportsTXT", "Create 'New Airports.txt'"};
    MenuEntry mnuToolsFPAirportsTXT{mnuTools, "mnuToolsFPAirportsTXT",
                                    "Create 'Airports.txt' from Flightplan"};
    MenuEntry mnuToolsDeleteCache{mnuTools, "mnuToolsDeleteCache", "De&lete Cache"};
    MenuEntry mnuToolsSwitches{mnuTools, "mnuToolsSwitches", "&Switches"};
    MenuEntry mnuToolsShowCompiler{mnuToolsSwitches, "mnuToolsShowCompiler", "&Show Compiler"};
    MenuEntry mnuToolsDebug{mnuToolsSwitches, "mnuToolsDebug", "&Debug On/Off"};
    MenuEntry mnuToolsUndoOn{mnuToolsSwitches, "mnuToolsUndoOn", "&Undo On/Off"};
    MenuEntry mnuToolsACCheck{mnuToolsSwitches, "mnuToolsACCheck", "&Aircraft check On/Off"};
    MenuEntry mnuTA{mnuToolsSwitches, "mnuTA", "Minimum Turn-Around"};
    MenuEntry mnuTAOff{mnuTA, "mnuTAOff", "Off"};
    MenuEntry mnuTA30{mnuTA, "mnuTA30", "30 Minutes"};
    MenuEntry mnuTA45{mnuTA, "mnuTA45", "45 Minutes"};
    MenuEntry mnuTA60{mnuTA, "mnuTA60", "60 Minutes"};
    MenuEntry mnuTA90{mnuTA, "mnuTA90", "90 Minutes"};
    MenuEntry mnuTA120{mnuTA, "mnuTA120", "120 Minutes"};
    MenuEntry mnuMaxTA{mnuToolsSwitches, "mnuMaxTA", "Maximum Turn-Around"};
    MenuEntry mnuMaxTAOff{mnuMaxTA, "mnuMaxTAOff", "Off"};
    MenuEntry mnuMaxTA1{mnuMaxTA, "mnuMaxTA1", "1 hour"};
    MenuEntry mnuMaxTA2{mnuMaxTA, "mnuMaxTA2", "2 Hours"};
    MenuEntry mnuMaxTA4{mnuMaxTA, "mnuMaxTA4", "4 Hours"};
    MenuEntry mnuMaxTA8{mnuMaxTA, "mnuMaxTA8", "8 Hours"};
    MenuEntry mnuMaxTA12{mnuMaxTA, "mnuMaxTA12", "12 Hours"};
    MenuEntry mnuMaxTA18{mnuMaxTA, "mnuMaxTA18", "18 Hours"};
    MenuEntry mnuMaxTA24{mnuMaxTA, "mnuMaxTA24", "24 Hours"};
    MenuEntry mnuToolsBackupPlan{mnuToolsSwitches, "mnuToolsBackupPlan", "Backup Flightplan related files"};
    MenuEntry mnuToolsBackupAircraft{mnuToolsSwitches, "mnuToolsBackupAircraft",
                                     "Backup Aircraft related files"};
    MenuEntry mnuToolsSimulatorFolder{mnuToolsSwitches, "mnuToolsSimulatorFolder", "Simulator &Folder..."};

    MenuEntry mnuView;
    MenuEntry mnuViewToolbar{mnuView, "mnuViewToolbar", "&Toolbar"};
    MenuEntry mnuViewStatusBar{mnuView, "mnuViewStatusBar", "Status &Bar"};
    MenuEntry mnuViewRefresh{mnuView, "mnuViewRefresh", "&Refresh"};
    MenuEntry mnuViewOptions{mnuView, "mnuViewOptions", "&Options"};
    MenuEntry mnuViewShares{mnuView, "mnuViewShares", "S&hares..."};

    MenuEntry mnuHelp;
    MenuEntry mnuHelpContents{mnuHelp, "mnuHelpContents", "&Contents"};
    MenuEntry mnuHelpSearchForHelpOn{mnuHelp, "mnuHelpSearchForHelpOn", "&Search..."};
    MenuEntry mnuHelpKeptFiles{mnuHelp, "mnuHelpKeptFiles", "&Kept Files..."};
    MenuEntry mnuHelpAbout{mnuHelp, "mnuHelpAbout", "&About "};

    // The pop-up menu of both trees and lvExPreview.
    MenuEntry mnuSelect;
    MenuEntry mnuSelectAll{mnuSelect, "mnuSelectAll", "Select &all"};
    MenuEntry mnuDeselectAll{mnuSelect, "mnuDeselectAll", "&Deselect all"};
    MenuEntry mnuInverseSelection{mnuSelect, "mnuInverseSelection", "&Inverse Selection"};
};

}  // namespace orlo

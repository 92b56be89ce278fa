#pragma once

#include <cstdint>
#include <string>

#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/TreeView.h"

namespace orlo {

// The main window, as it stands before a plan is open. Members stand in the order that the eye and the tab
// key follow; docs/captions.md lists the captions that were chosen freely.
struct MainForm : Form {
    MainForm();

    // The menu bar.
    MenuEntry mnuFile{*this, "mnuFile", "&File"};
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

    MenuEntry mnuTools{*this, "mnuTools", "&Tools"};
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

    MenuEntry mnuView{*this, "mnuView", "&View"};
    MenuEntry mnuViewToolbar{mnuView, "mnuViewToolbar", "&Toolbar"};
    MenuEntry mnuViewStatusBar{mnuView, "mnuViewStatusBar", "Status &Bar"};
    MenuEntry mnuViewRefresh{mnuView, "mnuViewRefresh", "&Refresh"};
    MenuEntry mnuViewOptions{mnuView, "mnuViewOptions", "&Options"};

    MenuEntry mnuHelp{*this, "mnuHelp", "&Help"};
    MenuEntry mnuHelpContents{mnuHelp, "mnuHelpContents", "&Contents"};
    MenuEntry mnuHelpSearchForHelpOn{mnuHelp, "mnuHelpSearchForHelpOn", "&Search..."};
    MenuEntry mnuHelpAbout{mnuHelp, "mnuHelpAbout", "&About "};

    // The pop-up menu of both trees and lvExPreview.
    MenuEntry mnuSelect{*this, "mnuSelect", "Select"};
    MenuEntry mnuSelectAll{mnuSelect, "mnuSelectAll", "Select &all"};
    MenuEntry mnuDeselectAll{mnuSelect, "mnuDeselectAll", "&Deselect all"};
    MenuEntry mnuInverseSelection{mnuSelect, "mnuInverseSelection", "&Inverse Selection"};

    TabStrip tabMain{*this, "tabMain"};

    Picture picShuffle{*this, "picShuffle"};
    Label lblShufflerView{picShuffle, "lblShufflerView", "&View mode"};
    ComboBox cmShufflerView{picShuffle, "cmShufflerView"};
    Label lblShuffleAircraft{picShuffle, "lblShuffleAircraft",
                             "&Select Aircraft to use for the Flightplan (0 aircraft selected)"};
    TreeView tvShuffleAircraft{picShuffle, "tvShuffleAircraft"};
    Label lblStartNumber{picShuffle, "lblStartNumber", "Aircraft &numbers start with"};
    TextBox txtStartNumber{picShuffle, "txtStartNumber"};
    Button cmdCalcStartNumber{picShuffle, "cmdCalcStartNumber", "Auto Value"};
    CheckBox ckOverwriteTailNumber{picShuffle, "ckOverwriteTailNumber", "Generate &Tail number"};
    CheckBox ckRemoveMinus{picShuffle, "ckRemoveMinus", "&Remove char '-' from the Tail number"};
    CheckBox ckCheckFL{picShuffle, "ckCheckFL", "Correct &Flight Levels"};
    CheckBox ckIFRVFR{picShuffle, "ckIFRVFR", "Change &IFR/VFR"};
    CheckBox ckCheckVisitedAirports{picShuffle, "ckCheckVisitedAirports",
                                    "Include &visited Airports in search"};
    Button cmdShuffle{picShuffle, "cmdShuffle", "Sh&uffle"};
    Button cmdACTypeDat{picShuffle, "cmdACTypeDat", "Create 'AircraftTypes.dat'"};

    Picture picMove{*this, "picMove"};
    Label lblMoveView{picMove, "lblMoveView", "&View mode"};
    ComboBox cmMoveView{picMove, "cmMoveView"};
    Label lblMoveAircrafts{picMove, "lblMoveAircrafts",
                           "Select &Aircraft to move (red colored are not used in the plan)"};
    TreeView tvMoveAircrafts{picMove, "tvMoveAircrafts"};
    Label lblSource{picMove, "lblSource", "ICAO &Source"};
    ComboBox cmSource{picMove, "cmSource"};
    Label lblDest{picMove, "lblDest", "ICAO &Destination"};
    ComboBox cmDest{picMove, "cmDest"};
    Button cmdMove{picMove, "cmdMove", "&Move"};
    Button cmdMovePercent{picMove, "cmdMovePercent", "&Percent"};
    Button cmdMoveSave{picMove, "cmdMoveSave", "&Save Action"};
    Button cmdMoveLoad{picMove, "cmdMoveLoad", "&Load Action"};
    Button cmdMoveExecute{picMove, "cmdMoveExecute", "&Execute Action"};

    Picture picExport{*this, "picExport"};
    Label lblExDeparture{picExport, "lblExDeparture", "&Departure ICAO"};
    TextBox txtExDeparture{picExport, "txtExDeparture"};
    Label lblExLeg{picExport, "lblExLeg", "&Leg ICAO"};
    TextBox txtExLeg{picExport, "txtExLeg"};
    Label lblExContinent{picExport, "lblExContinent", "&Continent"};
    TextBox txtExContinent{picExport, "txtExContinent"};
    Label lblExCountry{picExport, "lblExCountry", "C&ountry"};
    TextBox txtExCountry{picExport, "txtExCountry"};
    Label lblExAirline{picExport, "lblExAirline", "&Airline"};
    TextBox txtExAirline{picExport, "txtExAirline"};
    Label lblExportAircraft{picExport, "lblExportAircraft", "Ai&rcraft"};
    ComboBox cmExportAircraft{picExport, "cmExportAircraft"};
    Label lblExClass{picExport, "lblExClass", "Ai&rcraft Class"};
    ComboBox cmExClass{picExport, "cmExClass"};
    Label lblExZone{picExport, "lblExZone", "&Time Zone"};
    ComboBox cmExZone{picExport, "cmExZone"};
    Frame frIFRVFR{picExport, "frIFRVFR", "Flight Type"};
    CheckBox ckExportIFR{frIFRVFR, "ckExportIFR", "&IFR"};
    CheckBox ckExportVFR{frIFRVFR, "ckExportVFR", "&VFR"};
    Frame frSearchType{picExport, "frSearchType", "Search T&ype"};
    OptionButton opANDSearch{frSearchType, "opANDSearch", "AND"};
    OptionButton opORSearch{frSearchType, "opORSearch", "OR"};
    Label lblExPreview{picExport, "lblExPreview", "Previe&w"};
    ListView lvExPreview{picExport, "lvExPreview"};
    Button cmdEditFlight{picExport, "cmdEditFlight", "&Edit Flight"};
    Button cmdAddFlight{picExport, "cmdAddFlight", "Add &new Flight"};
    Button cmdDeleteFlight{picExport, "cmdDeleteFlight", "Delete Fli&ght"};
    Button cmdPreview{picExport, "cmdPreview", "&Search"};
    Button cmdExport{picExport, "cmdExport", "E&xport"};
    Button cmdExportRemainder{picExport, "cmdExportRemainder", "Export re&mainder"};
    Button cmdExportPrint{picExport, "cmdExportPrint", "&Print"};

    Picture picTimetable{*this, "picTimetable"};
    Label lblTTAirport{picTimetable, "lblTTAirport",
                       "&Airport ICAO (Enter multiple overlays separated by commas)"};
    TextBox txtTTAirport{picTimetable, "txtTTAirport"};
    Label lblTTZone{picTimetable, "lblTTZone", "&Time Zone"};
    ComboBox cmTTZone{picTimetable, "cmTTZone"};
    Label lblTTDay{picTimetable, "lblTTDay", "Da&y"};
    ComboBox cmTTDay{picTimetable, "cmTTDay"};
    Label lblTTStart{picTimetable, "lblTTStart", "Start Ti&me"};
    TextBox txtTTStart{picTimetable, "txtTTStart"};
    Label lblTTEnd{picTimetable, "lblTTEnd", "&End Time"};
    TextBox txtTTEnd{picTimetable, "txtTTEnd"};
    Label lblTTPercent{picTimetable, "lblTTPercent", "A&I Percent"};
    TextBox txtTTPercent{picTimetable, "txtTTPercent"};
    CheckBox ckTTArrival{picTimetable, "ckTTArrival", "A&rrival"};
    CheckBox ckTTDeparture{picTimetable, "ckTTDeparture", "&Departure"};
    CheckBox ckTTIFR{picTimetable, "ckTTIFR", "&IFR"};
    CheckBox ckTTVFR{picTimetable, "ckTTVFR", "&VFR"};
    Label lblTTPreview{picTimetable, "lblTTPreview", "Previe&w"};
    ListView lvTimetable{picTimetable, "lvTimetable"};
    Button cmdTTShow{picTimetable, "cmdTTShow", "Sh&ow"};
    Button cmdTTPrint{picTimetable, "cmdTTPrint", "&Print"};
    Button cmdTTSave{picTimetable, "cmdTTSave", "&Save"};
    Button cmdTTStatistics{picTimetable, "cmdTTStatistics", "Statisti&cs"};

    Picture picProject{*this, "picProject"};
    ListView lvProject{picProject, "lvProject"};
    Picture picProjectDummy{picProject, "picProjectDummy"};  // the ground behind the frame
    Frame frProject{picProject, "frProject", "Edit Project Entry"};
    Label lblProjectDescription{frProject, "lblProjectDescription", "D&escription"};
    TextBox txtProjectDescription{frProject, "txtProjectDescription"};
    Label lblProjectFile{frProject, "lblProjectFile", "Flight&plan"};
    TextBox txtProjectFile{frProject, "txtProjectFile"};
    Button cmdProjectFile{frProject, "cmdProjectFile", "Chan&ge..."};
    Label lblProjectAC{frProject, "lblProjectAC", "Ai&rcraft file"};
    TextBox txtProjectAC{frProject, "txtProjectAC"};
    Button cmdProjectAC{frProject, "cmdProjectAC", "Cha&nge..."};
    Button cmdProjectAdd{picProject, "cmdProjectAdd", "&Add"};
    Button cmdProjectDelete{picProject, "cmdProjectDelete", "&Delete"};
    Button cmdProjectMerge{picProject, "cmdProjectMerge", "&Merge"};
    Button cmdProjectCompile{picProject, "cmdProjectCompile", "&Compile"};

    StatusBar sbMain{*this, "sbMain"};

    // What the window remembers besides its controls.
    std::string CurrentProjectKey;   // of the entry shown in frProject; empty for none
    std::int32_t MovePercent = -1;   // of the last or loaded mover action; -1 moves all
    bool ExecutingAction = false;    // a percentage move then takes MovePercent and asks nothing
    bool HandlingNodeCheck = false;  // further check events then do nothing
};

}  // namespace orlo

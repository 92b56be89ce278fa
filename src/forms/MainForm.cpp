#include "forms/MainForm.h"

#include <initializer_list>

#include "core/AircraftClassNames.h"
#include "core/Application.h"
#include "core/Text.h"
#include "core/TimeZoneNames.h"
#include "forms/EmptyHints.h"

namespace orlo {
namespace {

void SetColumns(ListView& list, std::initializer_list<std::string_view> captions) {
    for (const std::string_view caption : captions) list.AddColumn(UpperText(caption), caption);
}

void SetEntries(ComboBox& combo, std::initializer_list<ComboEntry> entries) {
    for (const ComboEntry& entry : entries) combo.Add(entry.text, entry.itemData);
}

void SetZones(ComboBox& combo) {
    for (const std::string_view zone : kTimeZoneNames) combo.Add(zone);
    combo.SelectText("GMT");
}

void Disable(std::initializer_list<Control*> controls) {
    for (Control* control : controls) control->enabled = false;
}

void SetUpMenus(MainForm& form) {
    for (MenuEntry* entry : {&form.mnuToolsShowCompiler, &form.mnuToolsDebug, &form.mnuToolsUndoOn,
                             &form.mnuToolsACCheck, &form.mnuToolsBackupPlan, &form.mnuToolsBackupAircraft}) {
        entry->checkable = true;
    }
    for (MenuEntry* entry :
         {&form.mnuTAOff, &form.mnuTA30, &form.mnuTA45, &form.mnuTA60, &form.mnuTA90, &form.mnuTA120,
          &form.mnuMaxTAOff, &form.mnuMaxTA1, &form.mnuMaxTA2, &form.mnuMaxTA4, &form.mnuMaxTA8,
          &form.mnuMaxTA12, &form.mnuMaxTA18, &form.mnuMaxTA24}) {
        entry->checkable = true;
        entry->radio = true;
    }
    for (MenuEntry* entry :
         {&form.mnuFileNewProject, &form.mnuRecentFlightPlan, &form.mnuFileExit, &form.mnuToolsShuffle,
          &form.mnuToolsCompileCurrent, &form.mnuToolsEditPlanAircraft, &form.mnuToolsAirportDistance,
          &form.mnuToolsReports, &form.mnuToolsCheckFL, &form.mnuToolsRandPlan, &form.mnuToolsAirlinesCFG,
          &form.mnuToolsDeleteCache, &form.mnuToolsSwitches, &form.mnuTA, &form.mnuToolsBackupPlan,
          &form.mnuToolsSimulatorFolder, &form.mnuViewRefresh, &form.mnuHelpAbout}) {
        entry->separatorBefore = true;
    }
    for (MenuEntry* entry : {&form.mnuRecentFlightPlan1, &form.mnuRecentFlightPlan2,
                             &form.mnuRecentFlightPlan3, &form.mnuRecentFlightPlan4,
                             &form.mnuRecentFlightPlan5, &form.mnuRecentProjects1, &form.mnuRecentProjects2,
                             &form.mnuRecentProjects3, &form.mnuRecentProjects4, &form.mnuRecentProjects5}) {
        entry->visible = false;
        entry->plainCaption = true;
    }
    form.mnuSelect.popup = true;
    form.mnuFileLoad.shortcut = "Ctrl+O";
    form.mnuFileSave.shortcut = "Ctrl+S";
    form.mnuToolsUndo.shortcut = "Ctrl+Z";
#ifdef _WIN32
    // The registry tells it.
    form.mnuToolsSimulatorFolder.visible = false;
#endif
}

void SetUpTabs(MainForm& form) {
    form.tabMain.pages = {{"SHUFFLE", "Shuffle"},
                          {"MOVE", "Move"},
                          {"EXPORT", "Export/Search"},
                          {"TIMETABLE", "Timetable"},
                          {"PROJECT", "Project"}};
    form.tabMain.selectedKey = "SHUFFLE";
    form.tabMain.accessibleName = "Views";
    for (Picture* pane : {&form.picMove, &form.picExport, &form.picTimetable, &form.picProject}) {
        pane->visible = false;
    }
    form.defaultButton = &form.cmdShuffle;
    form.takesFiles = true;
}

void SetUpLists(MainForm& form) {
    SetColumns(form.lvExPreview, {"Airline", "Aircraft", "AC#", "Registration", "Departure ICAO", "Legs",
                                  "Period", "Depart", "Arrive", "Flight Type", "Flight Level", "Percent"});
    SetColumns(form.lvTimetable,
               {"Time", "Arr./Dep.", "From/To", "Airline", "Flight Number", "Aircraft", "Registration"});
    SetColumns(form.lvProject, {"Description", "Flightplan", "Aircraft file"});

    SetEntries(form.cmShufflerView, {{"Aircraft Classes", 0}, {"Airlines", 0}, {"UI Manufacturer", 0}});
    SetEntries(form.cmMoveView, {{"Aircraft Classes", 0}, {"Airlines", 0}});
    form.cmExClass.Add("#None#", -1);
    for (std::int32_t code = kClassMicroProp; code <= kClassHugeJet; ++code) {
        form.cmExClass.Add(AircraftClassName(code, ""), code);
    }
    form.cmExClass.SelectFirst();
    SetEntries(form.cmTTDay, {{"#Week#", -1},
                              {"Sunday", 0},
                              {"Monday", 1},
                              {"Tuesday", 2},
                              {"Wednesday", 3},
                              {"Thursday", 4},
                              {"Friday", 5},
                              {"Saturday", 6}});
    form.cmTTDay.SelectFirst();
    SetZones(form.cmExZone);
    SetZones(form.cmTTZone);
}

void SetUpFields(MainForm& form) {
    form.opANDSearch.checked = true;
    form.txtTTStart.text = "00:00:00";
    form.txtTTEnd.text = "23:59:59";
    form.txtTTPercent.text = "100";
    for (CheckBox* box : {&form.ckTTArrival, &form.ckTTDeparture, &form.ckTTIFR, &form.ckTTVFR}) {
        box->checked = true;
    }
    form.txtProjectFile.readOnly = true;
    form.txtProjectAC.readOnly = true;
    form.lvProject.accessibleName = "Project entries";
    form.cmdProjectFile.accessibleName = "Change flightplan";
    form.cmdProjectAC.accessibleName = "Change aircraft file";
}

// No plan and no project are open.
void DisableForStart(MainForm& form) {
    Disable({&form.mnuFileSave, &form.mnuFileSaveAs, &form.mnuFileSaveProject, &form.mnuFileSaveProjectAs,
             &form.mnuRecentFlightPlan, &form.mnuRecentProjects, &form.mnuToolsUndo,
             &form.mnuToolsCompileCurrent, &form.mnuToolsFPAirportsTXT, &form.mnuToolsRemoveMinus,
             &form.mnuToolsRandPerc, &form.mnuToolsRandFlightNumbers, &form.mnuToolsRandPlan,
             &form.mnuToolsCheckFL, &form.mnuToolsCheckFT, &form.mnuToolsReports,
             &form.mnuToolsEditPlanAircraft});
    Disable({&form.cmdShuffle, &form.cmdACTypeDat, &form.cmdCalcStartNumber});
    Disable(
        {&form.cmdMove, &form.cmdMovePercent, &form.cmdMoveSave, &form.cmdMoveExecute, &form.cmdMoveLoad});
    Disable({&form.cmdPreview, &form.cmdExport, &form.cmdExportRemainder, &form.cmdExportPrint,
             &form.cmdEditFlight, &form.cmdAddFlight, &form.cmdDeleteFlight});
    Disable({&form.cmdTTShow, &form.cmdTTPrint, &form.cmdTTSave, &form.cmdTTStatistics});
    Disable({&form.cmdProjectAdd, &form.cmdProjectDelete, &form.cmdProjectMerge, &form.cmdProjectCompile,
             &form.frProject, &form.lblProjectFile, &form.lblProjectDescription, &form.lblProjectAC,
             &form.txtProjectDescription, &form.cmdProjectFile, &form.cmdProjectAC});
}

}  // namespace

MainForm::MainForm() : Form("frmMain", kApplicationTitle) {
    SetUpMenus(*this);
    SetUpTabs(*this);
    SetUpLists(*this);
    SetUpFields(*this);
    DisableForStart(*this);
    SetEmptyHints(*this);
}

}  // namespace orlo

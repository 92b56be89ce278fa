#include "mainwindow/PlanViews.h"

#include <array>

#include "core/Text.h"

namespace orlo {
namespace {

// Enabled as long as a plan is open, and by nothing else.
std::array<Control*, 13> PlanCommands(MainForm& form) {
    return {&form.mnuToolsCompileCurrent,
            &form.mnuToolsFPAirportsTXT,
            &form.cmdShuffle,
            &form.cmdACTypeDat,
            &form.cmdCalcStartNumber,
            &form.mnuToolsRemoveMinus,
            &form.mnuToolsRandPerc,
            &form.mnuToolsRandFlightNumbers,
            &form.mnuToolsRandPlan,
            &form.mnuToolsCheckFL,
            &form.mnuToolsCheckFT,
            &form.mnuToolsReports,
            &form.mnuToolsEditPlanAircraft};
}

void Enable(std::initializer_list<Control*> controls, bool enabled) {
    for (Control* control : controls) control->enabled = enabled;
}

}  // namespace

void ResetExportView(Context& context) {
    MainForm& form = context.forms.frmMain;
    Session& session = context.session;
    form.lvExPreview.Clear();
    EnableResultCommands(form);
    Enable({&form.cmdAddFlight, &form.cmdPreview}, true);
    form.lblExPreview.caption = "Previe&w";
    // No button reaches the results of a list that is empty, and they would keep the rows of the old plan
    // alive.
    session.search = {};

    form.cmExportAircraft.Clear();
    form.cmExportAircraft.Add("#None#", -1);
    for (std::int32_t i = 0; i < session.plan.PlanAircraftCount(); ++i) {
        const PlanAircraft& aircraft = session.plan.PlanAircrafts[static_cast<std::size_t>(i)];
        form.cmExportAircraft.Add(Concat(aircraft.Title, " (", aircraft.ACNumber, ")"), i);
    }
    form.cmExportAircraft.SelectFirst();
    form.cmExClass.SelectFirst();
}

void EnableResultCommands(MainForm& form) {
    Enable({&form.cmdExport, &form.cmdExportRemainder, &form.cmdExportPrint, &form.cmdEditFlight,
            &form.cmdDeleteFlight},
           form.lvExPreview.Count() > 0);
}

void ShowResultCount(MainForm& form) {
    form.lblExPreview.caption = Concat("Previe&w (", form.lvExPreview.Count(), " flights found)");
}

void ResetTimetableView(Context& context) {
    MainForm& form = context.forms.frmMain;
    form.lvTimetable.Clear();
    form.lblTTPreview.caption = "Previe&w";
    Enable({&form.cmdTTPrint, &form.cmdTTSave, &form.cmdTTStatistics}, false);
    form.cmdTTShow.enabled = true;
}

void ResetMoverView(Context& context) {
    MainForm& form = context.forms.frmMain;
    form.MovePercent = -1;
    form.cmSource.Clear();
    form.cmDest.Clear();
    for (const PlanAirport& airport : context.session.plan.PlanAirports) {
        form.cmSource.Add(airport.ICAO);
        form.cmDest.Add(airport.ICAO);
    }
    form.cmSource.SelectFirst();
    form.cmDest.SelectFirst();
    Enable({&form.cmdMoveSave, &form.cmdMoveExecute}, false);
    Enable({&form.cmdMove, &form.cmdMovePercent, &form.cmdMoveLoad}, form.cmSource.index >= 0);
}

void DisablePlanCommands(Context& context) {
    MainForm& form = context.forms.frmMain;
    for (Control* control : PlanCommands(form)) control->enabled = false;
    Enable({&form.mnuFileSave, &form.cmdMove, &form.cmdMovePercent, &form.cmdMoveSave, &form.cmdMoveExecute,
            &form.cmdMoveLoad},
           false);
    // The resets of the views enable them again.
    Enable({&form.cmdPreview, &form.cmdExport, &form.cmdExportRemainder, &form.cmdExportPrint,
            &form.cmdEditFlight, &form.cmdAddFlight, &form.cmdDeleteFlight},
           false);
    Enable({&form.cmdTTShow, &form.cmdTTPrint, &form.cmdTTSave, &form.cmdTTStatistics}, false);
    form.lblExPreview.caption = "Previe&w";
    form.lblTTPreview.caption = "Previe&w";
    form.mnuFileSaveAs.enabled = true;
}

void EnablePlanCommands(Context& context) {
    for (Control* control : PlanCommands(context.forms.frmMain)) control->enabled = true;
}

}  // namespace orlo

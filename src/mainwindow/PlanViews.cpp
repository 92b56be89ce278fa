#include "mainwindow/PlanViews.h"

#include "core/Text.h"
#include "mainwindow/EnabledControls.h"

namespace orlo {

void ResetExportView(Context& context) {
    MainForm& form = context.forms.frmMain;
    Session& session = context.session;
    form.lvExPreview.Clear();
    form.lblExPreview.caption = "Previe&w";
    // Results would keep the rows of the old plan in memory, and no button reaches them once the list is
    // empty.
    session.search = {};

    form.cmExportAircraft.Clear();
    form.cmExportAircraft.Add("#None#", -1);
    for (std::int32_t i = 0; i < session.plan.PlanAircraftCount(); ++i) {
        const PlanAircraft& aircraft = session.plan.PlanAircrafts[static_cast<std::size_t>(i)];
        form.cmExportAircraft.Add(Concat(aircraft.Title, " (", aircraft.ACNumber, ")"), i);
    }
    form.cmExportAircraft.SelectFirst();
    form.cmExClass.SelectFirst();
    EnableExportPane(context);
}

void ShowResultCount(MainForm& form) {
    form.lblExPreview.caption = Concat("Previe&w (", form.lvExPreview.Count(), " flights found)");
}

void ResetTimetableView(Context& context) {
    MainForm& form = context.forms.frmMain;
    form.lvTimetable.Clear();
    form.lblTTPreview.caption = "Previe&w";
    EnableTimetablePane(context);
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
    form.ActionToSave = false;
    form.ActionLoaded = false;
    EnableMovePane(context);
}

void ForgetResultCounts(MainForm& form) {
    form.lblExPreview.caption = "Previe&w";
    form.lblTTPreview.caption = "Previe&w";
}

}  // namespace orlo

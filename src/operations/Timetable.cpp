#include "operations/Timetable.h"

#include <memory>
#include <optional>
#include <string>

#include "core/Application.h"
#include "core/ClockTime.h"
#include "core/Number.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "editors/FlightEditor.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanChange.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"
#include "operations/EditFlights.h"
#include "operations/TimetableEvents.h"
#include "operations/TimetableText.h"

namespace orlo {
namespace {

std::int32_t ChosenDay(const MainForm& form) {
    const std::int32_t index = form.cmTTDay.index;
    return index < 0 ? kWholeWeek : form.cmTTDay.entries[static_cast<std::size_t>(index)].itemData;
}

// Nothing where a field can't be read.
std::optional<TimetableFilter> ReadFilter(const MainForm& form) {
    const auto start = ParseClockTime(form.txtTTStart.text);
    const auto end = ParseClockTime(form.txtTTEnd.text);
    const auto percent = ParseWholeNumber(form.txtTTPercent.text);
    if (!start || !end || !percent) return std::nullopt;
    TimetableFilter filter;
    filter.airports = form.txtTTAirport.text;
    filter.zone = form.cmTTZone.Text();
    filter.day = ChosenDay(form);
    filter.start = *start;
    filter.end = *end;
    filter.mostPercent = *percent;
    filter.arrivals = form.ckTTArrival.checked;
    filter.departures = form.ckTTDeparture.checked;
    filter.IFR = form.ckTTIFR.checked;
    filter.VFR = form.ckTTVFR.checked;
    return filter;
}

// The rows that the list shows, always TimetableRows; null where it shows none.
TimetableRows* RowsOf(MainForm& form) {
    return static_cast<TimetableRows*>(form.lvTimetable.Source());
}

void Refuse(Context& context, Event& event, std::string_view reason) {
    ShowMessage(context.services.messages, reason, kMarkExclamation, &context.forms.frmMain);
    event.refused = true;
}

}  // namespace

void ShowTimetable(Context& context) {
    const BusyForm busy(context, context.forms.frmMain);
    MainForm& form = context.forms.frmMain;
    ListView& list = form.lvTimetable;
    std::shared_ptr<TimetableRows> rows;
    if (const auto filter = ReadFilter(form))
        rows = FindTimetableEvents(context.session.plan, context.session.fleet, *filter);
    list.SwitchSorting(false);
    list.Clear();
    if (rows != nullptr) list.ShowSource(rows, rows->Count());
    list.SwitchSorting(true);
    form.lblTTPreview.caption = Concat("Previe&w (", list.Count(), " flights found)");
    list.SelectCurrentOnly();
    form.ShowsOneDay = ChosenDay(form) != kWholeWeek;
    EnableTimetablePane(context);
}

void PrintTimetable(Context& context) {
    Services& services = context.services;
    MainForm& form = context.forms.frmMain;
    if (!services.windows.ShowPrintDialog("Print Airport Timetable")) return;
    ForgetNotWritten(context);
    const std::int32_t count = form.lvTimetable.Count();
    {
        BusyForm busy(context, form, count);
        busy.Stage("Printing...", 0);
        const PrintOutcome outcome = services.windows.Print(TimetableText(context));
        busy.CloseProgress();
        if (outcome == PrintOutcome::Failed) ReportNotPrinted(context);
        if (outcome != PrintOutcome::Printed) return;
    }
    ShowMessage(services.messages, Concat("Successfully printed ", count, " flights."), kMarkInformation,
                &form);
}

void SaveTimetable(Context& context) {
    Services& services = context.services;
    MainForm& form = context.forms.frmMain;
    const std::string path = AskForSavePath(context, "Save Airport Timetable", "Airport Timetable.txt");
    if (path.empty()) return;
    ForgetNotWritten(context);
    bool written = false;
    {
        const BusyForm busy(context, form);
        written = ReplaceWholeFile(services.files, path, TimetableText(context));
    }
    if (!written) {
        ShowMessage(services.messages, "An error occured during writing the Airport Timetable.",
                    kMarkCritical, &form);
        return;
    }
    ShowMessage(services.messages, Concat("Successfully saved ", form.lvTimetable.Count(), " flights."),
                kMarkInformation, &form);
}

void EditTimetableFlight(Context& context) {
    MainForm& form = context.forms.frmMain;
    const std::int32_t row = form.lvTimetable.current;
    const TimetableRows* rows = RowsOf(form);
    if (rows == nullptr || row < 0) return;
    TakeFirstUndoSnapshot(context);
    const std::int32_t flight = rows->FlightPlace(row);
    if (EditFlight(context, flight, false, rows->LegPlace(row)).empty()) return;
    RefreshSearchResult(context, flight);
    MarkPlanModified(context);
}

void OnTimetableZone(Context& context) {
    MainForm& form = context.forms.frmMain;
    const std::string& zone = form.cmTTZone.Text();
    if (TimetableRows* rows = RowsOf(form)) {
        rows->ChangeZone(context.session.switches.TTZone, zone);
        form.lvTimetable.SourceChanged();
        form.lvTimetable.SwitchSorting(false);
        form.lvTimetable.SwitchSorting(true);
        form.lvTimetable.ensureVisibleRequest = true;
    }
    context.session.switches.TTZone = zone;
}

void OnLeaveTimetableTime(Context& context, Event& event) {
    const auto& field = static_cast<const TextBox&>(*event.control);
    if (!ParseClockTime(field.text)) Refuse(context, event, "Invalid time format.");
}

void OnLeaveTimetablePercent(Context& context, Event& event) {
    const auto percent = ParseWholeNumber(context.forms.frmMain.txtTTPercent.text);
    if (!percent) return Refuse(context, event, "Invalid numeric format.");
    if (*percent > 100) return Refuse(context, event, "Percent value should be not greater than 100.");
    if (*percent < 1) return Refuse(context, event, "Percent value should be not less than 1.");
}

}  // namespace orlo

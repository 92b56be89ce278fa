#include "operations/StatisticsWindow.h"

#include <optional>
#include <string>

#include "core/Application.h"
#include "core/ClockTime.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/ReportWindow.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"
#include "operations/StatisticsChart.h"
#include "operations/TimetableRows.h"
#include "operations/TimetableStatistics.h"
#include "operations/TimetableText.h"
#include "simulator/Scenery.h"

namespace orlo {
namespace {

// In front of the weekday behind it.
std::string_view TimeOfText(std::string_view text) {
    return TrimBlanks(text.substr(0, text.rfind('(')));
}

struct CountedRows {
    TimetableStatistics statistics;
    GroundSteps steps;
};

CountedRows CountRows(const Context& context) {
    const ListView& list = context.forms.frmMain.lvTimetable;
    const auto& rows = static_cast<const TimetableRows&>(*list.Source());
    CountedRows counted{TimetableStatistics(context.session.plan, context.session.fleet),
                        GroundSteps(list.Count())};
    std::string time;
    for (std::int32_t position = 0; position < list.Count(); ++position) {
        const std::int32_t row = list.PlaceAt(position);
        time.clear();
        rows.AppendText(row, kEventTime, time);
        const std::string_view clock = TimeOfText(time);
        const std::int32_t code = counted.statistics.Count(rows.Arrives(row), rows.FlightPlace(row), clock);
        counted.steps.Add(counted.statistics, code, ParseClockTime(clock).value_or(0));
    }
    return counted;
}

ReportHead HeadOf(const MainForm& form) {
    ReportHead head;
    head.airports = ShownAirports(form);
    head.day = form.cmTTDay.Text();
    head.start = form.txtTTStart.text;
    head.end = form.txtTTEnd.text;
    head.zone = form.cmTTZone.Text();
    if (const auto start = ParseClockTime(head.start)) head.firstHour = *start / kSecondsPerHour;
    if (const auto end = ParseClockTime(head.end)) head.lastHour = *end / kSecondsPerHour;
    return head;
}

// Of the airport where the timetable asks for one, and that is known without a question.
std::optional<std::int32_t> KnownStands(Context& context, std::string_view code) {
    Session& session = context.session;
    if (code.find(',') != std::string_view::npos) return std::nullopt;
    if (!ReadCachedScenery(session, context.services.files)) return std::nullopt;
    for (const AirportRecord& airport : session.scenery.Airports) {
        if (airport.ICAO == code) return static_cast<std::int32_t>(airport.Parkings.size());
    }
    return std::nullopt;
}

}  // namespace

void ShowTimetableStatistics(Context& context) {
    const MainForm& main = context.forms.frmMain;
    TTStatisticsForm& form = context.forms.frmTTStatistics;
    if (main.lvTimetable.Source() == nullptr) return;
    {
        const BusyForm busy(context, context.forms.frmMain);
        const CountedRows counted = CountRows(context);
        const ReportHead head = HeadOf(main);
        form.txtInfo.text = StatisticsReport(counted.statistics, head);
        form.chStatistics.Show(StatisticsChart(counted.statistics, counted.steps, head,
                                               KnownStands(context, AskedAirports(head))));
    }
    form.SetFocus(form.txtInfo);
    context.services.windows.ShowModal(form, &context.forms.frmMain);
}

void PrintTimetableStatistics(Context& context) {
    TTStatisticsForm& form = context.forms.frmTTStatistics;
    if (!AskAndPrint(context, form.caption, ReportText(form, form.txtInfo))) return;
    ShowMessage(context.services.messages, "Successfully printed the Airport Timetable Statistics.",
                kMarkInformation, &form);
}

void SaveTimetableStatistics(Context& context) {
    Services& services = context.services;
    TTStatisticsForm& form = context.forms.frmTTStatistics;
    const std::string path =
        AskForSavePath(context, "Save Airport Timetable Statistics", "Airport Timetable Statistics.txt");
    if (path.empty()) return;
    ForgetNotWritten(context);
    const bool written = ReplaceWholeFile(services.files, path, ReportText(form, form.txtInfo));
    ShowMessage(services.messages,
                written ? "Successfully saved the Airport Timetable Statistics."
                        : "An error occured during writing the Airport Timetable Statistics.",
                written ? kMarkInformation : kMarkCritical, &form);
}

void SaveTimetablePicture(Context& context) {
    TTStatisticsForm& form = context.forms.frmTTStatistics;
    SavePicture(context, form, "Airport Timetable Statistics.png", {&form.chStatistics});
}

void CloseTimetableStatistics(Context& context) {
    context.forms.frmTTStatistics.closeRequest = true;
}

}  // namespace orlo

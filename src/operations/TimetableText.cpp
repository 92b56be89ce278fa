#include "operations/TimetableText.h"

#include <array>

#include "core/Text.h"
#include "mainwindow/PrintedLeg.h"
#include "operations/TimetableRows.h"

namespace orlo {
namespace {

// What stands in front of the last column: names, columns of the list, and where the next one starts.
struct TextColumn {
    std::string_view name;
    TimetableColumn column;
    std::size_t end;
};
constexpr std::array<TextColumn, 5> kTextColumns = {{{"Time", kEventTime, 21},
                                                     {"Ar./Dp.", kEventKind, 29},
                                                     {"F/T", kEventOtherEnd, 35},
                                                     {"Airline", kEventAirline, 54},
                                                     {"No.", kEventFlightNumber, 60}}};
constexpr std::string_view kTwoLineEnds = "\r\n\r\n";

void FillUpTo(std::string& text, std::size_t lineStart, std::size_t end) {
    const std::size_t length = text.size() - lineStart;
    if (length < end) text.append(end - length, ' ');
}

void AppendHead(const Context& context, std::string& text) {
    const MainForm& form = context.forms.frmMain;
    text.append(Concat("Airport timetable for ", ShownAirports(form), " - ",
                       FromScreen(context.services.clock.ShortText()), " (", form.cmTTZone.Text(), ")",
                       kTwoLineEnds));
    const std::size_t start = text.size();
    for (const TextColumn& column : kTextColumns) {
        text.append(column.name);
        FillUpTo(text, start, column.end);
    }
    text.append("Aircraft (Registration)").append(kTwoLineEnds);
}

void AppendRow(const ListView& list, std::int32_t place, std::string& text) {
    const std::size_t start = text.size();
    for (const TextColumn& column : kTextColumns) {
        list.AppendText(place, column.column, text);
        FillUpTo(text, start, column.end);
    }
    list.AppendText(place, kEventAircraft, text);
    text.append(" (");
    list.AppendText(place, kEventRegistration, text);
    text.append(")").append(kPrintedLineEnd);
}

}  // namespace

std::string ShownAirports(const MainForm& form) {
    return UpperText(form.txtTTAirport.text);
}

std::string TimetableText(const Context& context) {
    const ListView& list = context.forms.frmMain.lvTimetable;
    std::string text;
    AppendHead(context, text);
    for (std::int32_t position = 0; position < list.Count(); ++position) {
        AppendRow(list, list.PlaceAt(position), text);
    }
    return text;
}

}  // namespace orlo

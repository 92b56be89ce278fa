#include "forms/FlightEditForm.h"

#include <array>

#include "core/ClockTime.h"
#include "core/Text.h"
#include "core/TimeZoneNames.h"

namespace orlo {
namespace {

struct PeriodEntry {
    std::string_view text;
    std::int32_t hours;
};

constexpr std::array kPeriods = {PeriodEntry{"1Hr", 1},   PeriodEntry{"2Hr", 2}, PeriodEntry{"4Hr", 4},
                                 PeriodEntry{"6Hr", 6},   PeriodEntry{"8Hr", 8}, PeriodEntry{"12Hr", 12},
                                 PeriodEntry{"24Hr", 24}, PeriodEntry{"WEEK", 0}};

constexpr std::array<std::string_view, 6> kColumns = {"From",          "To",          "Depart", "Arrive",
                                                      "Flight Number", "Flight Level"};

}  // namespace

FlightEditForm::FlightEditForm() : Form("frmFlightEdit", "Flight Editor") {
    for (const PeriodEntry& period : kPeriods) cmPeriod.Add(period.text, period.hours);
    for (const std::string_view zone : kTimeZoneNames) cmZone.Add(zone);
    cmZone.SelectText("GMT");
    for (const std::string_view day : kWeekdayNames) cmDay.Add(day);
    for (const std::string_view column : kColumns) lvLegs.AddColumn(UpperText(column), column);
    lvLegs.accessibleName = "Legs";
    defaultButton = &cmdOK;
    cancelButton = &cmdCancel;
    layout.columns = 3;
    layout.rows = {
        WideRow(cmAircraft),
        FieldRow({txtReg, txtPercent, cmPeriod}),
        FieldRow({Holding(frFlightType, {{LeftRow({opIFR, opVFR})}}), cmZone}),
        FillingRow(lvLegs),
        RightRow({cmdAdd, cmdDelete}),
        WideRow(Holding(frLeg,
                        {{FieldRow({cmDeparture, cmArrival, cmDay}), FieldRow({txtTime, txtETA, ckFixedETA}),
                          FieldRow({txtLevel, txtNumber, ckUseNumber})},
                         3})),
        LeftRow({ckAircraftRange, ckFlightLevel, ckFlightTimes}),
        RightRow({cmdOK, cmdCancel, cmdUndo, cmdPrint}),
    };
}

}  // namespace orlo

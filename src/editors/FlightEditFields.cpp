#include "editors/FlightEditFields.h"

#include <algorithm>
#include <optional>

#include "core/Application.h"
#include "core/ClockTime.h"
#include "core/Number.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "editors/FlightEditLegs.h"
#include "editors/FlightEditTimes.h"

namespace orlo {
namespace {

constexpr std::string_view kInvalidTime = "Invalid time format (hh:mm[:ss])";
constexpr std::string_view kInvalidLevel = "Flight Level has to be a value between 10 and 999";
constexpr std::string_view kInvalidPercent = "Percent has to be a value between 1 and 99.";

// Null while no leg is selected.
Leg* WorkingLeg(FlightEditForm& form) {
    const std::int32_t place = SelectedLeg(form);
    return place < 0 ? nullptr : &form.WorkingFlight.Legs[static_cast<std::size_t>(place)];
}

std::optional<std::int32_t> NumberWithin(std::string_view text, std::int32_t least, std::int32_t most) {
    const auto number = ParseWholeNumber(text);
    return number && *number >= least && *number <= most ? number : std::nullopt;
}

void Refuse(Context& context, Event& event, std::string_view reason) {
    ShowMessage(context.services.messages, reason, kMarkExclamation, &context.forms.frmFlightEdit);
    event.refused = true;
}

void StripDays(Flight& flight) {
    for (Leg& leg : flight.Legs) {
        leg.DepartTime = SplitDayPrefix(leg.DepartTime).Clock;
        leg.ETA = SplitDayPrefix(leg.ETA).Clock;
    }
}

void AddDays(Flight& flight) {
    for (Leg& leg : flight.Legs) {
        for (std::string* time : {&leg.DepartTime, &leg.ETA}) {
            if (SplitDayPrefix(*time).Prefix.empty()) *time = Concat("0/", *time);
        }
    }
}

// Without a choice in cmDay it is Sunday.
std::int32_t ChosenDay(const FlightEditForm& form) {
    return std::clamp(form.cmDay.index, 0, 6);
}

// The selected leg's stored arrival as txtETA shows it, in seconds since midnight.
std::optional<std::int32_t> ShownArrival(const Context& context) {
    const FlightEditForm& form = context.forms.frmFlightEdit;
    const Leg& leg = form.WorkingFlight.Legs[static_cast<std::size_t>(SelectedLeg(form))];
    return ParseClockTime(
        TimeForFields(leg.ETA, IsWeekly(form.WorkingFlight), context.session.switches.FEditZone).Clock);
}

void StoreAirport(Context& context, std::int32_t leg, const ComboBox& airports) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    if (airports.index < 0) return;
    form.WorkingFlight.Legs[static_cast<std::size_t>(leg)].Destination = airports.Text();
    ShowLegRow(context, leg);
    ShowLegRow(context, leg + 1 < form.WorkingFlight.LegCount() ? leg + 1 : 0);
    ShowLegCaption(context);
    ComputeArrivals(context);
}

}  // namespace

void OnFlightAircraft(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const std::int32_t place = ChosenAircraft(form, context.session);
    if (place < 0) return;
    form.WorkingFlight.ACNumber =
        context.session.plan.PlanAircrafts[static_cast<std::size_t>(place)].ACNumber;
    ComputeArrivals(context);
    ShowLegCaption(context);
}

void OnFlightRegistration(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    form.WorkingFlight.TailNumber = FieldText(form.txtReg.text);
}

void OnLeaveFlightPercent(Context& context, Event& event) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const auto percent = NumberWithin(form.txtPercent.text, 1, 99);
    if (!percent) return Refuse(context, event, kInvalidPercent);
    form.WorkingFlight.Percent = Concat(*percent, "%");
}

void OnFlightPeriod(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    Flight& flight = form.WorkingFlight;
    const std::string period = form.cmPeriod.Text();
    if (period.empty() || EqualNoCase(period, flight.Period)) return;
    const bool wasWeekly = IsWeekly(flight);
    if (wasWeekly) {
        if (!UserAgrees(context.services.messages, "Are you sure to remove the weekly flight?", &form)) {
            form.cmPeriod.SelectText("WEEK");
            return;
        }
        StripDays(flight);
    }
    flight.Period = period;
    if (IsWeekly(flight)) AddDays(flight);
    if (wasWeekly == IsWeekly(flight)) return;
    ShowAllLegRows(context);
    LoadSelectedLeg(context);
}

void OnFlightType(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    form.WorkingFlight.FlightType = form.opIFR.checked ? "IFR" : "VFR";
    ShowLegCaption(context);
}

void OnFlightZone(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    if (form.cmZone.index < 0) return;
    context.session.switches.FEditZone = form.cmZone.Text();
    ShowAllLegRows(context);
    LoadSelectedLeg(context);
}

void OnLegDeparture(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const std::int32_t leg = SelectedLeg(form);
    if (leg >= 0) StoreAirport(context, LegBefore(form.WorkingFlight, leg), form.cmDeparture);
}

void OnLegArrival(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const std::int32_t leg = SelectedLeg(form);
    if (leg >= 0) StoreAirport(context, leg, form.cmArrival);
}

void OnLegTime(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    Leg* leg = WorkingLeg(form);
    const auto seconds = ParseClockTime(form.txtTime.text);
    if (leg == nullptr || !seconds) return;
    leg->DepartTime = TimeForStorage(ChosenDay(form), *seconds, IsWeekly(form.WorkingFlight),
                                     context.session.switches.FEditZone);
    ComputeSelectedArrival(context);
    ShowLegRow(context, SelectedLeg(form));
}

void OnLegDay(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    Leg* leg = WorkingLeg(form);
    if (leg == nullptr) return;
    const auto before = ParseWeekTime(leg->DepartTime);
    OnLegTime(context);
    const auto after = ParseWeekTime(leg->DepartTime);
    auto arrival = ParseWeekTime(leg->ETA);
    if (!leg->FixedETA || !before || !after || !arrival) return;
    arrival->Day = (arrival->Day + after->Day - before->Day + 7) % 7;
    leg->ETA = FormatWeekTime(*arrival);
    ShowLegRow(context, SelectedLeg(form));
}

void OnLeaveLegTime(Context& context, Event& event) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    if (WorkingLeg(form) == nullptr) return;
    const auto seconds = ParseClockTime(form.txtTime.text);
    if (!seconds) return Refuse(context, event, kInvalidTime);
    OnLegTime(context);
    form.txtTime.text = FormatClockTime(*seconds);
}

void OnLegETA(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    Leg* leg = WorkingLeg(form);
    const auto seconds = ParseClockTime(form.txtETA.text);
    if (leg == nullptr || !leg->FixedETA || !seconds) return;
    const auto departure = ParseClockTime(form.txtTime.text);
    const std::int32_t dayStep = departure && *seconds < *departure ? 1 : 0;
    leg->ETA = TimeForStorage((ChosenDay(form) + dayStep) % 7, *seconds, IsWeekly(form.WorkingFlight),
                              context.session.switches.FEditZone);
    ShowLegRow(context, SelectedLeg(form));
}

void OnLeaveLegETA(Context& context, Event& event) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    if (WorkingLeg(form) == nullptr) return;
    const auto seconds = ParseClockTime(form.txtETA.text);
    if (!seconds) return Refuse(context, event, kInvalidTime);
    // An arrival that nobody changed keeps its day.
    if (*seconds != ShownArrival(context)) OnLegETA(context);
    form.txtETA.text = FormatClockTime(*seconds);
}

void OnLegFixedETA(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    Leg* leg = WorkingLeg(form);
    if (leg == nullptr) return;
    leg->FixedETA = form.ckFixedETA.checked;
    form.lblETA.enabled = leg->FixedETA;
    form.txtETA.enabled = leg->FixedETA;
    if (!leg->FixedETA) OnLegTime(context);
}

void OnLeaveLegLevel(Context& context, Event& event) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    Leg* leg = WorkingLeg(form);
    if (leg == nullptr) return;
    const auto level = NumberWithin(form.txtLevel.text, 10, 999);
    if (!level) return Refuse(context, event, kInvalidLevel);
    leg->FlightLevel = FormatDigits(*level, 3);
    ShowLegRow(context, SelectedLeg(form));
}

void OnLegNumber(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    Leg* leg = WorkingLeg(form);
    if (leg == nullptr) return;
    leg->FlightNumber = FieldText(form.txtNumber.text);
    ShowLegRow(context, SelectedLeg(form));
}

void OnLegUseNumber(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    if (Leg* leg = WorkingLeg(form)) leg->NumberMode = form.ckUseNumber.checked ? "F" : "R";
}

bool TakesTypedText(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    Event leave{&form, form.focus, EventKind::Leave};
    if (form.focus == &form.txtPercent) OnLeaveFlightPercent(context, leave);
    if (form.focus == &form.txtTime) OnLeaveLegTime(context, leave);
    if (form.focus == &form.txtETA) OnLeaveLegETA(context, leave);
    if (form.focus == &form.txtLevel) OnLeaveLegLevel(context, leave);
    return !leave.refused;
}

}  // namespace orlo

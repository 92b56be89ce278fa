#include "editors/FlightEditLegs.h"

#include <array>
#include <optional>

#include "core/Application.h"
#include "core/ClockTime.h"
#include "core/Text.h"
#include "editors/FlightEditTimes.h"
#include "simulator/FlightLevelMaths.h"
#include "simulator/Navigation.h"
#include "simulator/PlanPositions.h"
#include "simulator/TimeZones.h"

namespace orlo {
namespace {

constexpr std::string_view kLegCaption = "Edit Le&g properties";
constexpr std::string_view kDegreeSign = "\xB0";

std::array<Control*, 16> LegFields(FlightEditForm& form) {
    return {&form.lblDeparture, &form.lblArrival, &form.cmDeparture, &form.cmArrival,
            &form.lblDay,       &form.cmDay,      &form.lblTime,     &form.txtTime,
            &form.lblETA,       &form.txtETA,     &form.txtLevel,    &form.ckFixedETA,
            &form.lblLevel,     &form.txtNumber,  &form.ckUseNumber, &form.lblNumber};
}

void ClearLegFields(FlightEditForm& form) {
    for (ComboBox* combo : {&form.cmDeparture, &form.cmArrival, &form.cmDay}) combo->index = -1;
    for (TextBox* field : {&form.txtTime, &form.txtETA, &form.txtLevel, &form.txtNumber}) field->text.clear();
    form.ckFixedETA.checked = false;
    form.ckUseNumber.checked = false;
    for (Control* field : LegFields(form)) field->enabled = false;
    form.frLeg.caption = kLegCaption;
    form.cmdAdd.enabled = false;
    form.cmdDelete.enabled = false;
}

std::int32_t AirportEntry(const Session& session, const std::string& code) {
    const std::int32_t* place = session.plan.PlanAirportIndex.Find(code);
    return place == nullptr ? -1 : *place;
}

void LoadTimes(FlightEditForm& form, const Session& session, const Leg& leg) {
    const bool weekly = IsWeekly(form.WorkingFlight);
    const FieldTime departure = TimeForFields(leg.DepartTime, weekly, session.switches.FEditZone);
    form.cmDay.index = departure.Day;
    form.txtTime.text = departure.Clock;
    form.txtETA.text = TimeForFields(leg.ETA, weekly, session.switches.FEditZone).Clock;
}

void LoadLegFields(FlightEditForm& form, const Session& session, std::int32_t place) {
    const Flight& flight = form.WorkingFlight;
    const Leg& leg = flight.Legs[static_cast<std::size_t>(place)];
    for (Control* field : LegFields(form)) field->enabled = true;
    form.cmDeparture.index = AirportEntry(session, LegStart(flight, place));
    form.cmArrival.index = AirportEntry(session, leg.Destination);
    LoadTimes(form, session, leg);
    form.txtLevel.text = leg.FlightLevel;
    form.txtNumber.text = leg.FlightNumber;
    form.ckUseNumber.checked = leg.NumberMode == "F";
    form.ckFixedETA.checked = leg.FixedETA;
    form.lblETA.enabled = leg.FixedETA;
    form.txtETA.enabled = leg.FixedETA;
    form.cmdAdd.enabled = true;
    form.cmdDelete.enabled = place > 0 && place < flight.LegCount() - 1;
}

std::array<std::string, 6> RowTexts(const FlightEditForm& form, const Session& session, std::int32_t place) {
    const Leg& leg = form.WorkingFlight.Legs[static_cast<std::size_t>(place)];
    return {LegStart(form.WorkingFlight, place),
            leg.Destination,
            ConvertTimeText(leg.DepartTime, session.switches.FEditZone, false),
            ConvertTimeText(leg.ETA, session.switches.FEditZone, false),
            leg.FlightNumber,
            Concat("FL", leg.FlightLevel)};
}

// An hour after a time; in a weekly flight that may be the next day. Nothing where the time can't be read.
std::optional<std::string> OneHourLater(std::string_view time, bool weekly) {
    if (!weekly) {
        const auto seconds = ParseClockTime(time);
        if (!seconds) return std::nullopt;
        return FormatClockTime(*seconds + kSecondsPerHour);
    }
    auto moment = ParseWeekTime(time);
    if (!moment) return std::nullopt;
    moment->Seconds += kSecondsPerHour;
    if (moment->Seconds >= kSecondsPerDay) moment->Day = (moment->Day + 1) % 7;
    return FormatWeekTime(*moment);
}

// `place` is the new leg's. It starts as a copy of the leg that stood there.
void InsertLeg(Flight& flight, std::int32_t place) {
    const auto at = flight.Legs.begin() + place;
    const Leg shifted = *at;
    Leg& leg = *flight.Legs.insert(at, shifted);
    const Leg& before = flight.Legs[static_cast<std::size_t>(LegBefore(flight, place))];
    leg.FlightLevel = before.FlightLevel;
    leg.Destination = before.Destination;
    leg.FlightNumber = "0000";
    leg.NumberMode = "F";
    if (auto departure = OneHourLater(before.ETA, IsWeekly(flight))) leg.DepartTime = *departure;
    leg.ETA = leg.DepartTime;
}

void MakeCurrent(ListView& list, std::int32_t place) {
    list.current = place;
    list.SelectCurrentOnly();
    list.ensureVisibleRequest = true;
}

}  // namespace

std::int32_t SelectedLeg(const FlightEditForm& form) {
    const std::int32_t place = form.lvLegs.current;
    const bool stands = place >= 0 && place < form.lvLegs.Count() && place < form.WorkingFlight.LegCount();
    return stands && form.lvLegs.Selected(place) ? place : -1;
}

void FillLegRows(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    form.lvLegs.Clear();
    form.lvLegs.Reserve(form.WorkingFlight.LegCount());
    for (std::int32_t leg = 0; leg < form.WorkingFlight.LegCount(); ++leg) {
        const auto texts = RowTexts(form, context.session, leg);
        ListRow row;
        row.key = Concat("#", leg);
        row.texts.assign(texts.begin(), texts.end());
        form.lvLegs.Add(row);
    }
}

void ShowLegRow(Context& context, std::int32_t leg) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const auto texts = RowTexts(form, context.session, leg);
    for (std::size_t column = 0; column < texts.size(); ++column) {
        const auto place = static_cast<std::int32_t>(column);
        if (form.lvLegs.Text(leg, place) != texts[column]) form.lvLegs.SetText(leg, place, texts[column]);
    }
}

void ShowAllLegRows(Context& context) {
    for (std::int32_t leg = 0; leg < context.forms.frmFlightEdit.lvLegs.Count(); ++leg)
        ShowLegRow(context, leg);
}

void LoadSelectedLeg(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const std::int32_t leg = SelectedLeg(form);
    form.lblDay.visible = form.cmDay.visible = IsWeekly(form.WorkingFlight);
    if (leg < 0) return ClearLegFields(form);
    LoadLegFields(form, context.session, leg);
    ShowLegCaption(context);
}

void OnSelectLeg(Context& context) {
    LoadSelectedLeg(context);
    ComputeSelectedArrival(context);
}

void SelectLeg(Context& context, std::int32_t leg) {
    ListView& list = context.forms.frmFlightEdit.lvLegs;
    if (leg >= 0 && leg < list.Count()) MakeCurrent(list, leg);
    OnSelectLeg(context);
}

void ShowLegCaption(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const Session& session = context.session;
    form.frLeg.caption = kLegCaption;
    const std::int32_t leg = SelectedLeg(form);
    if (leg < 0) return;
    const std::string& from = LegStart(form.WorkingFlight, leg);
    const std::string& to = form.WorkingFlight.Legs[static_cast<std::size_t>(leg)].Destination;
    const std::int32_t distance = GetDistance(session.plan, from, to);
    const std::int32_t course = GetCourse(session.plan, from, to);
    if (distance != -1) form.frLeg.caption += Concat(" - Distance ", distance, "nm");
    if (course != -1) form.frLeg.caption += Concat(" - Course ", course, kDegreeSign);
    if (const FSAircraft* aircraft = InstalledAircraft(form, session)) {
        form.frLeg.caption += Concat(
            " - ", SuggestFlightLevelText(session.rules.FlightLevelRules, form.WorkingFlight.FlightType,
                                          distance, course, {aircraft->MinFL, aircraft->MaxFL}));
    }
}

void ComputeArrivals(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const Session& session = context.session;
    Flight& flight = form.WorkingFlight;
    const std::int32_t aircraft = ChosenAircraft(form, session);
    if (aircraft < 0) return;
    const PlanPositions positions(session.plan);
    for (std::int32_t place = 0; place < flight.LegCount(); ++place) {
        Leg& leg = flight.Legs[static_cast<std::size_t>(place)];
        if (leg.FixedETA) continue;
        const std::int32_t distance = positions.Distance(LegStart(flight, place), leg.Destination);
        leg.ETA = ArrivalOfLeg(session, distance, flight, place, aircraft);
        ShowLegRow(context, place);
    }
    const std::int32_t selected = SelectedLeg(form);
    if (selected < 0) return;
    const Leg& leg = flight.Legs[static_cast<std::size_t>(selected)];
    if (!leg.FixedETA)
        form.txtETA.text = TimeForFields(leg.ETA, IsWeekly(flight), session.switches.FEditZone).Clock;
}

void ComputeSelectedArrival(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const Session& session = context.session;
    Flight& flight = form.WorkingFlight;
    const std::int32_t place = SelectedLeg(form);
    const std::int32_t aircraft = ChosenAircraft(form, session);
    if (place < 0 || aircraft < 0) return;
    Leg& leg = flight.Legs[static_cast<std::size_t>(place)];
    if (leg.FixedETA) return;
    const std::int32_t distance = GetDistance(session.plan, LegStart(flight, place), leg.Destination);
    leg.ETA = ArrivalOfLeg(session, distance, flight, place, aircraft);
    form.txtETA.text = TimeForFields(leg.ETA, IsWeekly(flight), session.switches.FEditZone).Clock;
    ShowLegRow(context, place);
}

void AddLeg(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    std::int32_t place = SelectedLeg(form);
    if (place < 0) return;
    if (place < form.WorkingFlight.LegCount() - 1) ++place;
    InsertLeg(form.WorkingFlight, place);
    FillLegRows(context);
    SelectLeg(context, place);
}

void DeleteLeg(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    const std::int32_t place = SelectedLeg(form);
    if (place <= 0 || place >= form.WorkingFlight.LegCount() - 1) return;
    if (!UserAgrees(context.services.messages, "Are you sure to delete the leg?", &form)) return;
    form.WorkingFlight.Legs.erase(form.WorkingFlight.Legs.begin() + place);
    FillLegRows(context);
    SelectLeg(context, place);
    ComputeArrivals(context);
}

}  // namespace orlo

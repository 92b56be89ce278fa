#include "editors/FlightEditAccept.h"

#include <cstdlib>

#include "core/Application.h"
#include "core/ClockTime.h"
#include "core/FlightTimes.h"
#include "core/Number.h"
#include "core/Text.h"
#include "editors/FlightEditFields.h"
#include "editors/FlightEditLegs.h"
#include "editors/FlightEditTimes.h"
#include "editors/FlightEditor.h"
#include "simulator/FlightLevelMaths.h"
#include "simulator/PlanPositions.h"

namespace orlo {
namespace {

bool UserGoesOn(Context& context, std::string_view warning) {
    return ShowMessage(context.services.messages, Concat(warning, "\nContinue?"),
                       kButtonsYesNo | kMarkExclamation | kDefaultSecondButton,
                       &context.forms.frmFlightEdit) == MessageAnswer::Yes;
}

bool UserPassesLeg(Context& context, std::int32_t leg, std::string_view warning) {
    if (UserGoesOn(context, warning)) return true;
    SelectLeg(context, leg);
    return false;
}

bool PassesRange(Context& context, std::int32_t leg, const FSAircraft& aircraft, std::int32_t distance) {
    if (aircraft.MaxRange >= distance && aircraft.MinRange <= distance) return true;
    return UserPassesLeg(context, leg,
                         Concat("Warning! Aircraft range limits reached for leg ", leg + 1, " (",
                                aircraft.MinRange, "nm - ", aircraft.MaxRange, "nm)."));
}

bool PassesLevel(Context& context, std::int32_t leg, const FSAircraft& aircraft, std::int32_t distance,
                 std::int32_t course) {
    const Flight& flight = context.forms.frmFlightEdit.WorkingFlight;
    const std::string& level = flight.Legs[static_cast<std::size_t>(leg)].FlightLevel;
    // A level that is no number suits no leg.
    const LevelCheck check =
        CheckFlightLevel(context.session.rules.FlightLevelRules, flight.FlightType, distance, course,
                         {aircraft.MinFL, aircraft.MaxFL}, ParseWholeNumber(level).value_or(-1));
    if (check.Right) return true;
    return UserPassesLeg(context, leg,
                         Concat("Warning! Flight Level might be incorrect for leg ", leg + 1,
                                ". Suggestion: ", check.Suggestion));
}

bool PassesRangesAndLevels(Context& context) {
    const FlightEditForm& form = context.forms.frmFlightEdit;
    const FSAircraft* aircraft = InstalledAircraft(form, context.session);
    if (aircraft == nullptr) return true;
    const PlanPositions positions(context.session.plan);
    for (std::int32_t place = 0; place < form.WorkingFlight.LegCount(); ++place) {
        const std::string& from = LegStart(form.WorkingFlight, place);
        const std::string& to = form.WorkingFlight.Legs[static_cast<std::size_t>(place)].Destination;
        const std::int32_t distance = positions.Distance(from, to);
        const std::int32_t course = positions.Course(from, to);
        if (distance == -1 || course == -1) continue;
        if (form.ckAircraftRange.checked && !PassesRange(context, place, *aircraft, distance)) return false;
        if (form.ckFlightLevel.checked && !PassesLevel(context, place, *aircraft, distance, course))
            return false;
    }
    return true;
}

// Empty where the time on the ground is neither too short nor too long. `where` ends the warning of a short
// one, `whereTooLong` that of a long one.
std::string StandWarning(const Session& session, std::int64_t seconds, std::string_view where,
                         std::string_view whereTooLong) {
    switch (TestTurnAround(seconds, session.switches.TATime, session.switches.MaxTATime)) {
        case TurnAroundTest::TooShort:
            return Concat("Warning! Stand time is less than ", session.switches.TATime, " minutes for ",
                          where);
        case TurnAroundTest::TooLong:
            return Concat("Warning! Stand time is greater than ", session.switches.MaxTATime, " hours for ",
                          whereTooLong);
        case TurnAroundTest::Passes:
            break;
    }
    return {};
}

bool PassesStand(Context& context, std::int32_t leg, std::int64_t seconds) {
    const std::string where = Concat("leg number ", leg + 1, ".");
    const std::string warning = seconds < 0 ? Concat("Warning! Departure is earlier than arrival for ", where)
                                            : StandWarning(context.session, seconds, where, where);
    return warning.empty() || UserPassesLeg(context, leg, warning);
}

bool PassesLastStand(Context& context, std::int64_t seconds, bool weekly) {
    const std::string warning =
        StandWarning(context.session, seconds, "end of flight.", weekly ? "end of flight." : "end of flight");
    if (warning.empty()) return true;
    return UserPassesLeg(context, context.forms.frmFlightEdit.WorkingFlight.LegCount() - 1, warning);
}

// Tests the times on the ground between the legs, and adds all time from the first departure to the last
// arrival to `total`. A time that can't be read counts for nothing.
bool PassesStands(Context& context, const FlightTimes& times, std::int64_t& total) {
    for (std::int32_t leg = 0; leg < times.LegCount(); ++leg) {
        if (const auto stand = leg > 0 ? times.TurnAround(leg) : std::nullopt) {
            total += std::abs(*stand);
            if (!PassesStand(context, leg, *stand)) return false;
        }
        total += times.FlightTime(leg).value_or(0);
    }
    return true;
}

bool PassesTotal(Context& context, std::int64_t total, std::int64_t most, std::string_view mostText) {
    if (total < most) return true;
    if (UserGoesOn(context, Concat("Warning! Total flight time exceeds maximum allowed time of ", mostText)))
        return true;
    FlightEditForm& form = context.forms.frmFlightEdit;
    form.SetFocus(form.cmPeriod);
    return false;
}

std::int32_t ChosenHours(const FlightEditForm& form) {
    const auto entry = static_cast<std::size_t>(form.cmPeriod.index);
    const bool stands = form.cmPeriod.index >= 0 && entry < form.cmPeriod.entries.size();
    return stands ? form.cmPeriod.entries[entry].itemData : 0;
}

bool PassesTimes(Context& context) {
    const FlightEditForm& form = context.forms.frmFlightEdit;
    const FlightTimes times(form.WorkingFlight);
    std::int64_t total = 0;
    if (!PassesStands(context, times, total)) return false;
    if (times.Weekly()) {
        return PassesTotal(context, total, kSecondsPerWeek, "one week.") &&
               PassesLastStand(context, kSecondsPerWeek - total, true);
    }
    const std::int32_t hours = ChosenHours(form);
    if (!PassesTotal(context, total, std::int64_t{hours} * kSecondsPerHour, Concat(hours, " hours.")))
        return false;
    const auto stand = times.ClosingTurnAround(hours);
    return !stand || PassesLastStand(context, *stand, false);
}

// What the entry "Title (AC#1)" gives: the title of an installed aircraft, else the number.
std::string ResultText(const FlightEditForm& form, const Session& session) {
    const std::string& text = form.cmAircraft.Text();
    const std::size_t open = text.rfind('(');
    const std::size_t close = text.rfind(')');
    const std::string_view part =
        InstalledAircraft(form, session) != nullptr
            ? std::string_view(text).substr(0, open)
            : std::string_view(text).substr(open + 1, close > open ? close - open - 1 : 0);
    const std::string_view result = TrimBlanks(part);
    // An empty result would mean that the dialog was cancelled.
    return std::string(result.empty() ? std::string_view(text) : result);
}

}  // namespace

void AcceptFlight(Context& context) {
    FlightEditForm& form = context.forms.frmFlightEdit;
    if (!TakesTypedText(context)) return;
    if (ChosenAircraft(form, context.session) < 0) {
        ShowMessage(context.services.messages, "You need to select an aircraft to save the flight.",
                    kMarkExclamation, &form);
        return;
    }
    if (!PassesRangesAndLevels(context)) return;
    if (form.ckFlightTimes.checked && !PassesTimes(context)) return;
    form.Result = ResultText(form, context.session);
    StoreFlightEditSwitches(context);
    form.closeRequest = true;
}

}  // namespace orlo

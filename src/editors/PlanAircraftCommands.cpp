#include "editors/PlanAircraftCommands.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/Application.h"
#include "core/CodeNumbers.h"
#include "core/Number.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "editors/PlanAircraftEditor.h"
#include "editors/PlanAircraftRows.h"
#include "mainwindow/BusyForm.h"

namespace orlo {
namespace {

constexpr std::string_view kNumberMark = "AC#";

// Null without a current row.
PlanAircraft* CurrentAircraft(Context& context) {
    const std::int32_t place = context.forms.frmAircraftEdit.lvAircrafts.current;
    return place < 0 ? nullptr : &context.session.plan.PlanAircrafts[static_cast<std::size_t>(place)];
}

std::optional<std::string> AskFor(Context& context, std::string_view prompt, std::string_view present) {
    InputQuestion question;
    question.prompt = prompt;
    question.title = kApplicationTitle;
    question.text = present;
    return context.services.windows.InputBox(question);
}

// Marks the flights of these numbers as removed, in one pass; gives how many there are.
std::int32_t RemoveFlightsOf(const std::unordered_set<std::string_view>& numbers, FlightList& flights) {
    CodeMemo isOne;
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < flights.Count(); ++i) {
        if (isOne.Get(flights.At(i).ACNumber,
                      [&](std::string_view number) { return numbers.contains(number); }) == 0)
            continue;
        flights.SetRemoved(i, true);
        ++count;
    }
    return count;
}

// Gives the flights of one number another one; gives how many there are.
std::int32_t RenumberFlights(std::string_view from, std::string_view to, FlightList& flights) {
    std::int32_t count = 0;
    flights.Rewrite([&](std::int32_t, const FlightView& flight, LentFlight& changed) {
        if (flight.ACNumber != from) return false;
        changed = flight;
        changed.ACNumber = to;
        ++count;
        return true;
    });
    return count;
}

// Where lvAircrafts has its current row once the selected ones are gone: the row now at that position.
std::int32_t CurrentPositionWithoutSelected(const ListView& list) {
    std::int32_t position = 0;
    for (std::int32_t at = 0; at < list.Count() && list.PlaceAt(at) != list.current; ++at)
        position += list.Selected(list.PlaceAt(at)) ? 0 : 1;
    return position;
}

// Takes the selected aircraft out of the plan and its lists, in one pass.
void DropSelectedAircraft(Context& context) {
    AircraftEditForm& form = context.forms.frmAircraftEdit;
    ListView& list = form.lvAircrafts;
    const std::int32_t position = CurrentPositionWithoutSelected(list);
    std::vector<PlanAircraft>& aircrafts = context.session.plan.PlanAircrafts;
    std::vector<PlanAircraft> kept;
    kept.reserve(aircrafts.size());
    for (std::size_t i = 0; i < aircrafts.size(); ++i) {
        if (list.Selected(static_cast<std::int32_t>(i))) {
            InstalledRows(form).DropTitle(aircrafts[i].Title);
        } else {
            kept.push_back(std::move(aircrafts[i]));
        }
    }
    aircrafts = std::move(kept);
    form.lvFSAircraft.SourceChanged();
    ShowPlanAircraft(context);
    if (list.Count() == 0) return;
    list.current = list.PlaceAt(std::min(position, list.Count() - 1));
    list.SelectCurrentOnly();
    list.ensureVisibleRequest = true;
}

// Removes the selected aircraft with their flights; gives the number of flights.
std::int32_t RemoveSelected(Context& context) {
    AircraftEditForm& form = context.forms.frmAircraftEdit;
    const BusyForm busy(context, form);
    Plan& plan = context.session.plan;
    std::unordered_set<std::string_view> numbers;
    for (const std::int32_t place : form.lvAircrafts.SelectedPlaces())
        numbers.insert(plan.PlanAircrafts[static_cast<std::size_t>(place)].ACNumber);
    if (numbers.empty()) return 0;
    form.Changed = true;
    const std::int32_t count = RemoveFlightsOf(numbers, plan.Flights);
    DropSelectedAircraft(context);
    return count;
}

bool StandsInPlan(const Plan& plan, std::string_view acNumber) {
    return std::any_of(
        plan.PlanAircrafts.begin(), plan.PlanAircrafts.end(),
        [&](const PlanAircraft& aircraft) { return EqualNoCase(aircraft.ACNumber, acNumber); });
}

// Asks until the number is free. Nothing where the user gives up or types what is no new number.
std::optional<std::string> AskForFreeNumber(Context& context, const PlanAircraft& aircraft) {
    const std::string present =
        aircraft.ACNumber.size() > kNumberMark.size() ? aircraft.ACNumber.substr(kNumberMark.size()) : "";
    for (;;) {
        const auto answer = AskFor(context, "Enter a new number for the selected aircraft:", present);
        const auto number = ParseWholeNumber(answer.value_or(""));
        if (!number || number == ParseWholeNumber(present)) return std::nullopt;
        std::string acNumber = Concat(kNumberMark, *number);
        if (!StandsInPlan(context.session.plan, acNumber)) return acNumber;
        ShowMessage(context.services.messages, "Number already assigned to an aircraft.", kMarkExclamation,
                    &context.forms.frmAircraftEdit);
    }
}

}  // namespace

void DeletePlanAircraft(Context& context) {
    if (!UserAgrees(context, "Are you sure to delete the selected aircraft and all assigned flights?"))
        return;
    const std::int32_t count = RemoveSelected(context);
    ShowMessage(context.services.messages, Concat(count, " flights removed."), kMarkInformation,
                &context.forms.frmAircraftEdit);
}

void ChangeAircraftNumber(Context& context) {
    PlanAircraft* aircraft = CurrentAircraft(context);
    if (aircraft == nullptr) return;
    const auto acNumber = AskForFreeNumber(context, *aircraft);
    if (!acNumber) return;
    AircraftEditForm& form = context.forms.frmAircraftEdit;
    const BusyForm busy(context, form);
    form.Changed = true;
    RenumberFlights(aircraft->ACNumber, *acNumber, context.session.plan.Flights);
    aircraft->ACNumber = *acNumber;
    form.lvAircrafts.SourceChanged();
    FillSubstitutes(context);
}

void ChangeCruiseSpeed(Context& context) {
    PlanAircraft* aircraft = CurrentAircraft(context);
    if (aircraft == nullptr) return;
    const auto answer =
        AskFor(context, "Enter a new Cruise Speed for the selected aircraft:", aircraft->CruiseSpeed);
    const auto speed = ParseWholeNumber(answer.value_or(""));
    if (!speed || std::to_string(*speed) == aircraft->CruiseSpeed) return;
    aircraft->CruiseSpeed = std::to_string(*speed);
    context.forms.frmAircraftEdit.Changed = true;
    context.forms.frmAircraftEdit.lvAircrafts.SourceChanged();
}

void ChangeAircraftTitle(Context& context) {
    PlanAircraft* aircraft = CurrentAircraft(context);
    if (aircraft == nullptr) return;
    const auto answer = AskFor(context, "Enter a new Title for the selected aircraft:", aircraft->Title);
    const std::string typed = FieldText(answer.value_or(""));
    const std::string_view title = TrimBlanks(typed);
    if (title.empty() || title == aircraft->Title) return;
    AircraftEditForm& form = context.forms.frmAircraftEdit;
    form.Changed = true;
    InstalledRows(form).DropTitle(aircraft->Title);
    InstalledRows(form).AddTitle(title);
    aircraft->Title = title;
    form.lvAircrafts.SourceChanged();
    form.lvFSAircraft.SourceChanged();
    FillSubstitutes(context);
}

void SubstituteAircraft(Context& context) {
    AircraftEditForm& form = context.forms.frmAircraftEdit;
    const PlanAircraft* aircraft = CurrentAircraft(context);
    if (aircraft == nullptr || form.cmAircraft.index < 0) return;
    if (!UserAgrees(context, "Are you sure to substitute the aircraft?")) return;
    const std::string& from = aircraft->ACNumber;
    const std::string to =
        context.session.plan.PlanAircrafts[static_cast<std::size_t>(form.cmAircraft.index)].ACNumber;
    std::int32_t count = 0;
    {
        const BusyForm busy(context, form);
        count = RenumberFlights(from, to, context.session.plan.Flights);
    }
    form.Changed = form.Changed || (count > 0 && from != to);
    ShowMessage(context.services.messages, Concat(count, " flights modified."), kMarkInformation, &form);
}

}  // namespace orlo

#include "operations/CorrectFlightLevels.h"

#include <string>
#include <vector>

#include "core/CodeNumbers.h"
#include "mainwindow/PlanChange.h"
#include "simulator/FlightLevelMaths.h"
#include "simulator/MatchedAircraft.h"
#include "simulator/PlanPositions.h"

namespace orlo {
namespace {

// Draws the levels of one flight after the other.
class LevelDrawer {
  public:
    LevelDrawer(const Plan& plan, const std::vector<FlightLevelRule>& rules, RandomSource& random)
        : rules_(rules), positions_(plan), random_(random) {}

    // One level a leg, in the order of the legs; they hold until the next draw.
    const std::vector<std::string>& Draw(const FlightView& flight, LevelLimits limits) {
        levels_.resize(static_cast<std::size_t>(flight.LegCount));
        PlanPositions::End first;
        PlanPositions::End from;
        std::size_t number = 0;
        for (const LegView& leg : flight) {
            const PlanPositions::End to = Find(leg.Destination);
            if (number == 0) {
                first = to;
            } else {
                levels_[number] = DrawLevel(flight.FlightType, from, to, limits);
            }
            from = to;
            ++number;
        }
        // The first leg starts where the last one ended.
        if (number > 0) levels_[0] = DrawLevel(flight.FlightType, from, first, limits);
        return levels_;
    }

  private:
    PlanPositions::End Find(std::string_view code) {
        return {code, places_.Get(code, [this](std::string_view text) { return positions_.Place(text); })};
    }

    // A distance or course of -1 takes part like any other.
    std::string DrawLevel(std::string_view flightRules, const PlanPositions::End& from,
                          const PlanPositions::End& to, LevelLimits limits) {
        const RouteMeasure route = positions_.Measure(from, to);
        return SuggestFlightLevel(rules_, flightRules, route.Distance, route.Course, limits, false, random_);
    }

    const std::vector<FlightLevelRule>& rules_;
    PlanPositions positions_;
    CodeMemo places_;
    RandomSource& random_;
    std::vector<std::string> levels_;
};

}  // namespace

void CorrectFlightLevels(Plan& plan, const Fleet& fleet, const std::vector<FlightLevelRule>& rules,
                         RandomSource& random) {
    const MatchedAircraft matched(plan, fleet);
    CodeMemo installed;
    LevelDrawer drawer(plan, rules, random);
    plan.Flights.Rewrite([&](std::int32_t, const FlightView& flight, LentFlight& changed) {
        const std::int32_t place = installed.Get(
            flight.ACNumber, [&](std::string_view number) { return matched.PlaceNoCase(number); });
        if (place < 0) return false;
        const FSAircraft& aircraft = matched.At(place);
        changed = flight;
        const std::vector<std::string>& levels = drawer.Draw(flight, {aircraft.MinFL, aircraft.MaxFL});
        for (std::size_t leg = 0; leg < levels.size(); ++leg) changed.Legs[leg].FlightLevel = levels[leg];
        return true;
    });
}

void OnCorrectFlightLevels(Context& context) {
    Session& session = context.session;
    PlanChange change;
    change.work = [&](BusyForm&) -> std::string {
        CorrectFlightLevels(session.plan, session.fleet, session.rules.FlightLevelRules,
                            context.services.random);
        return "Successfully checked Flight Levels for all flights.";
    };
    ChangePlan(context, context.forms.frmMain, change);
}

}  // namespace orlo

#include "operations/CorrectFlightLevels.h"

#include <string>
#include <vector>

#include "core/CodeNumbers.h"
#include "operations/PlanCorrection.h"
#include "simulator/FlightLevelMaths.h"
#include "simulator/PlanPositions.h"
#include "simulator/TitleIndex.h"

namespace orlo {
namespace {

// What the installed aircraft of the plan can fly.
class InstalledLimits {
  public:
    explicit InstalledLimits(const Session& session) : index_(InstalledPlacesByNumber(session)) {
        limits_.reserve(session.FSAircrafts.size());
        for (const FSAircraft& aircraft : session.FSAircrafts) {
            limits_.push_back({aircraft.MinFL, aircraft.MaxFL});
        }
    }

    // Null when no aircraft of that number is installed.
    const LevelLimits* Find(std::string_view acNumber) {
        const std::int32_t place = places_.Get(acNumber, [this](std::string_view number) {
            const std::int32_t* found = index_.Find(number);
            return found == nullptr ? -1 : *found;
        });
        return place < 0 ? nullptr : &limits_[static_cast<std::size_t>(place)];
    }

  private:
    KeyedIndex<std::int32_t> index_;
    CodeMemo places_;
    std::vector<LevelLimits> limits_;  // one an installed aircraft
};

// Draws the levels of one flight after the other.
class LevelDrawer {
  public:
    LevelDrawer(const Session& session, RandomSource& random)
        : rules_(session.FlightLevelRules), positions_(session), random_(random) {}

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

void CorrectLevelsOfPlan(Context& context) {
    CorrectFlightLevels(context.session, context.services.random);
}

}  // namespace

void CorrectFlightLevels(Session& session, RandomSource& random) {
    InstalledLimits installed(session);
    LevelDrawer drawer(session, random);
    session.Flights.Rewrite([&](std::int32_t, const FlightView& flight, LentFlight& changed) {
        const LevelLimits* limits = installed.Find(flight.ACNumber);
        if (limits == nullptr) return false;
        changed = flight;
        const std::vector<std::string>& levels = drawer.Draw(flight, *limits);
        for (std::size_t leg = 0; leg < levels.size(); ++leg) changed.Legs[leg].FlightLevel = levels[leg];
        return true;
    });
}

void OnCorrectFlightLevels(Context& context) {
    RunPlanCorrection(context, CorrectLevelsOfPlan, "Successfully checked Flight Levels for all flights.");
}

}  // namespace orlo

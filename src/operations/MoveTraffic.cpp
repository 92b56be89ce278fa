#include "operations/MoveTraffic.h"

#include <algorithm>
#include <vector>

#include "core/CodeNumbers.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::int32_t kInNoList = -1;

// A flight with eligible legs.
struct EligibleFlight {
    std::int32_t place = 0;  // in the plan
    std::int32_t list = 0;
    std::int64_t firstLeg = 0;  // its first eligible leg, counted through the plan
    std::int64_t legCount = 0;  // of its eligible legs
};

// The first list that holds each aircraft number.
CodeMemo ListsOfNumbers(std::span<const std::string_view> numberLists) {
    CodeMemo lists;
    for (std::size_t list = 0; list < numberLists.size(); ++list) {
        std::string_view numbers = numberLists[list];
        if (numbers.size() < 2) continue;
        numbers.remove_prefix(1);
        numbers.remove_suffix(1);
        for (const std::string_view number : SplitText(numbers, ',')) {
            lists.Get(number, [list](std::string_view) { return static_cast<std::int32_t>(list); });
        }
    }
    return lists;
}

// In the order of the plan.
std::vector<EligibleFlight> FindEligible(const Plan& plan, const TrafficMove& move) {
    CodeMemo lists = ListsOfNumbers(move.numberLists);
    std::vector<EligibleFlight> eligible;
    std::int64_t legsSoFar = 0;
    for (std::int32_t place = 0; place < plan.FlightCount(); ++place) {
        const FlightView flight = plan.Flights.At(place);
        const std::int32_t list = lists.Get(flight.ACNumber, [](std::string_view) { return kInNoList; });
        // A search through the bytes is faster than reading the legs.
        if (list == kInNoList || flight.LegText.find(move.source) == std::string_view::npos) continue;
        std::int64_t legs = 0;
        for (const LegView& leg : flight) legs += leg.Destination == move.source ? 1 : 0;
        if (legs == 0) continue;
        eligible.push_back({place, list, legsSoFar, legs});
        legsSoFar += legs;
    }
    return eligible;
}

// Counts eligible legs and says which of them move.
class Quota {
  public:
    explicit Quota(std::int32_t percent) : percent_(percent) {}
    bool TakesNext() {
        ++legs_.seen;
        if (legs_.moved * 100 / legs_.seen >= percent_) return false;
        ++legs_.moved;
        return true;
    }
    const MovedLegs& Legs() const { return legs_; }

  private:
    std::int32_t percent_;
    MovedLegs legs_;
};

}  // namespace

MovedLegs MoveTraffic(Plan& plan, const TrafficMove& move) {
    const std::vector<EligibleFlight> eligible = FindEligible(plan, move);
    std::vector<EligibleFlight> walk = eligible;
    std::stable_sort(walk.begin(), walk.end(),
                     [](const EligibleFlight& a, const EligibleFlight& b) { return a.list < b.list; });
    const std::int64_t legCount = eligible.empty() ? 0 : eligible.back().firstLeg + eligible.back().legCount;
    std::vector<bool> moves(static_cast<std::size_t>(legCount));
    Quota quota(move.percent);
    for (const EligibleFlight& flight : walk) {
        for (std::int64_t leg = 0; leg < flight.legCount; ++leg) {
            moves[static_cast<std::size_t>(flight.firstLeg + leg)] = quota.TakesNext();
        }
    }

    auto next = eligible.begin();
    auto moving = moves.begin();
    plan.Flights.Rewrite([&](std::int32_t place, const FlightView& flight, LentFlight& changed) {
        if (next == eligible.end() || next->place != place) return false;
        const auto end = moving + static_cast<std::ptrdiff_t>(next->legCount);
        ++next;
        if (std::find(moving, end, true) == end) {
            moving = end;
            return false;
        }
        changed = flight;
        for (LegView& leg : changed.Legs) {
            if (leg.Destination == move.source && *moving++) leg.Destination = move.destination;
        }
        return true;
    });
    return quota.Legs();
}

}  // namespace orlo

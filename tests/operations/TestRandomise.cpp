#include "operations/Randomise.h"

#include <gtest/gtest.h>

#include "core/Text.h"
#include "support/FakeHosts.h"

namespace orlo {
namespace {

Plan PlanOf(int flights, int legs) {
    Plan plan;
    for (int i = 0; i < flights; ++i) {
        Flight flight{Concat("AC#", i), "N1", "50%", "24Hr", "IFR", {}, i % 2 == 1};
        flight.Legs.resize(static_cast<std::size_t>(legs));
        plan.Flights.Append(flight);
    }
    return plan;
}

std::string Numbers(const Plan& plan) {
    std::string numbers;
    for (std::int32_t i = 0; i < plan.FlightCount(); ++i) {
        for (const LegView& leg : plan.Flights.At(i)) numbers.append(leg.FlightNumber).append(" ");
        numbers.append("| ");
    }
    return numbers;
}

// A half goes to the even number, so the ends of a range get half of its width each.
TEST(Randomise, DrawsByTheTableOfValues) {
    test::FakeRandom random;
    random.draws = {0.0, 0.25, 0.5, 0.75, 0.999};
    Plan plan = PlanOf(5, 3);
    RandomizePercent(plan, {1, 3}, random);
    std::string percents;
    for (std::int32_t i = 0; i < 5; ++i) percents.append(plan.Flights.At(i).Percent).append(" ");
    EXPECT_EQ(percents, "1% 2% 2% 2% 3% ");
    EXPECT_TRUE(plan.Flights.Removed(1)) << "removed flights stay so";

    plan = PlanOf(2, 3);
    random.taken = 0;
    RandomizeFlightNumbers(plan, {0, 20000}, false, random);
    EXPECT_EQ(Numbers(plan), "0000 5000 10000 | 15000 19980 0000 | ");
    plan = PlanOf(2, 3);
    random.draws = {0.5, 0.05, 0.95, 0.11};
    random.taken = 0;
    RandomizeFlightNumbers(plan, {1, 99}, true, random);
    EXPECT_EQ(Numbers(plan), "0050 0051 0006 | 0094 0095 0012 | ") << "an odd draw is drawn anew";
}

TEST(Randomise, EveryFlightGetsOnePlaceInTheOrderOfTheDraws) {
    test::FakeRandom random;
    random.draws = {0.9, 0.9, 0.0, 0.4, 0.1, 0.6};
    Plan plan = PlanOf(4, 1);
    RandomizePlanOrder(plan, random);
    std::string order;
    for (std::int32_t i = 0; i < 4; ++i) order.append(plan.Flights.At(i).ACNumber);
    EXPECT_EQ(order, "AC#3AC#0AC#1AC#2");
    for (const int flights : {0, 1}) {
        plan = PlanOf(flights, 1);
        RandomizePlanOrder(plan, random);
        EXPECT_EQ(plan.FlightCount(), flights);
    }
}

}  // namespace
}  // namespace orlo

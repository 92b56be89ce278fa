// What is moved, by a plain walk of nodes times flights times legs, and the files of actions.

#include <gtest/gtest.h>

#include <random>

#include "core/Text.h"
#include "operations/MoveTraffic.h"
#include "operations/MoverAction.h"

namespace orlo {
namespace {

struct PlainMove {
    std::vector<Flight> flights;
    MovedLegs legs;
};

// As a user would do it by hand; a leg that was seen is not looked at again.
PlainMove MovePlainly(const FlightList& plan, const TrafficMove& move) {
    PlainMove result;
    for (std::int32_t i = 0; i < plan.Count(); ++i) result.flights.push_back(plan.Unpack(i));
    std::vector<bool> done(result.flights.size());
    for (const std::string_view numbers : move.numberLists) {
        for (std::size_t i = 0; i < result.flights.size(); ++i) {
            if (done[i] || numbers.find(Concat(",", result.flights[i].ACNumber, ",")) == std::string::npos)
                continue;
            done[i] = true;
            for (Leg& leg : result.flights[i].Legs) {
                if (leg.Destination != move.source) continue;
                ++result.legs.seen;
                if (result.legs.moved * 100 / result.legs.seen >= move.percent) continue;
                leg.Destination = move.destination;
                ++result.legs.moved;
            }
        }
    }
    return result;
}

Flight RandomFlight(std::mt19937& engine) {
    const auto below = [&](int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine); };
    Flight flight{Concat("AC#", below(5)), "N1", "50%", "24Hr", "IFR", {}, below(4) == 0};
    for (int leg = 1 + below(4); leg > 0; --leg) {
        const std::string code =
            std::array{"EDDF", "eddf", "EGLL", "EDDM"}[static_cast<std::size_t>(below(4))];
        flight.Legs.push_back({"10:00:00", "11:00:00", below(3) == 0, "350", "F", "1", code});
    }
    return flight;
}

TEST(MoveTraffic, MovesWhatAPlainWalkWouldMove) {
    const std::vector<std::string_view> lists = {",AC#1,AC#11,", "", ",AC#3,AC#1,", ",", ",AC#0,"};
    std::mt19937 engine(1);
    for (const std::int32_t percent : {-5, 0, 1, 30, 50, 99, 100, 250}) {
        for (const int flights : {0, 1, 7, 300}) {
            Plan plan;
            for (int i = 0; i < flights; ++i) plan.Flights.Append(RandomFlight(engine));
            const TrafficMove move{lists, "EDDF", "LFPG", percent};
            const PlainMove plain = MovePlainly(plan.Flights, move);
            const MovedLegs moved = MoveTraffic(plan, move);
            EXPECT_EQ(moved.seen, plain.legs.seen) << percent;
            EXPECT_EQ(moved.moved, plain.legs.moved) << percent;
            for (int i = 0; i < flights; ++i)
                EXPECT_EQ(plan.Flights.Unpack(i), plain.flights[static_cast<std::size_t>(i)]) << percent;
        }
    }
}

TEST(MoverAction, ReadsWhatAHandOrAnotherProgramMayHaveWritten) {
    struct Case {
        std::string_view text;
        std::string_view read;  // percent, source, destination and titles; "no action" without one
    };
    constexpr std::string_view kNone = "no action";
    for (const Case& test : {
             Case{"[GENERAL]\r\nTYPE=1\r\n", "-1|||"},
             Case{"\xEF\xBB\xBF; by hand\n\n [general] \n type = 1 \n[Options]\nPERCENT=100\n", "100|||"},
             Case{"[GENERAL]\nTYPE=1.4\n[OPTIONS]\nPERCENT=0.6\nSOURCE= EDDF \nDESTINATION=\n", "1|EDDF||"},
             Case{"[GENERAL]\nTYPE=1\n[OPTIONS]\nPERCENT=101\n[SELECTION]\nA=1\n\nB\na=\n[c=1\n[d]=1\n",
                  "-1|||A,a,[c,[d],"},
             Case{"[GENERAL]\nTYPE=1\n[SELECTION]\nA=1\n[SELECTION]\nB=1\n", "-1|||A,"},
             Case{"[GENERAL]\nTYPE=2\n", kNone},
             Case{"[GENERAL]\n[OPTIONS]\nTYPE=1\n", kNone},
             Case{"TYPE=1\n[GENERAL\nTYPE=1\n", kNone},
             Case{"", kNone},
         }) {
        const auto action = ReadMoverAction(std::string(test.text));
        std::string read(kNone);
        if (action) {
            read = Concat(action->Percent, "|", action->Source, "|", action->Destination, "|");
            for (const std::string& title : action->Selection) read += title + ",";
        }
        EXPECT_EQ(read, test.read) << test.text;
    }
}

}  // namespace
}  // namespace orlo

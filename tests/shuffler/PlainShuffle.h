#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/Session.h"
#include "services/RandomSource.h"

namespace orlo::test {

// What a plain reading of the shuffle's rules gives: loops over loops, each text looked up where it is
// needed. It shares with the engine the navigation and the text and number helpers alone.
struct PlainShuffleResult {
    bool succeeded = true;
    std::int32_t removed = 0;
    std::int32_t assigned = 0;
    std::vector<Flight> flights;
    AirlineSets sets;
    std::int32_t noAirlineFlights = 0;
    std::vector<std::int32_t> usageCounts;  // by plan aircraft
    std::string log;                        // lines of flights, with "\n"
};

PlainShuffleResult ShuffleByPlainRules(const Session& session, RandomSource& random);

}  // namespace orlo::test

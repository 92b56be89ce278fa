#pragma once

#include <cstdint>

#include "core/Plan.h"
#include "mainwindow/Context.h"
#include "services/RandomSource.h"

namespace orlo {

// Both ends included.
struct NumberRange {
    std::int32_t start = 0;
    std::int32_t end = 0;  // greater than start
};

// Draws are round((end - start) * random + start) with halves to even, so that the two ends come half as
// often as a number between them. Removed flights are treated like the others.

// Every flight's Percent.
void RandomizePercent(Plan& plan, const NumberRange& range, RandomSource& random);
// Every leg's FlightNumber, of at least four digits. In pairs: legs get an even number and the one behind it
// in turn, so that an odd number may be greater than the end by one.
void RandomizeFlightNumbers(Plan& plan, const NumberRange& range, bool inPairs, RandomSource& random);
// The order of the flights. Each place draws until the draw is a flight that has none yet.
void RandomizePlanOrder(Plan& plan, RandomSource& random);

// The menu entries: they ask for the range first; an answer that is no whole number ends the command.
void OnRandomizePercent(Context& context);
void OnRandomizeFlightNumbers(Context& context);
void OnRandomizePlanOrder(Context& context);

}  // namespace orlo

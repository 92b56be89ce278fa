#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Session.h"
#include "forms/FlightEditForm.h"

namespace orlo {

// Whether the flight repeats every week: the period "WEEK", case aside.
bool IsWeekly(const Flight& flight);

// A time as the fields show it.
struct FieldTime {
    std::int32_t Day = -1;  // 0 to 6 in a weekly flight; -1 in a daily one, and where the prefix is no day
    std::string Clock;
};
// A weekly time without a day prefix counts as Sunday's.
FieldTime TimeForFields(std::string_view time, bool weekly, std::string_view zone);

// The stored form of a time of the zone; `day` (0 to 6) counts in a weekly flight alone.
std::string TimeForStorage(std::int32_t day, std::int32_t seconds, bool weekly, std::string_view zone);

// The place of the leg in front of leg `leg`, of the last one for leg 0; and the code where leg `leg` starts.
// `leg` is the place of an existing leg, here and below.
std::int32_t LegBefore(const Flight& flight, std::int32_t leg);
const std::string& LegStart(const Flight& flight, std::int32_t leg);

// The place in PlanAircrafts of the aircraft chosen in cmAircraft; -1 without one.
std::int32_t ChosenAircraft(const FlightEditForm& form, const Session& session);
// The installed aircraft of ChosenAircraft; null without one, and where it isn't installed.
const FSAircraft* InstalledAircraft(const FlightEditForm& form, const Session& session);

// The stored form of the arrival of a leg of `distance` nautical miles, flown by `aircraft`, a place in
// PlanAircrafts. A weekly departure without a day counts as Sunday's.
std::string ArrivalOfLeg(const Session& session, std::int32_t distance, const Flight& flight,
                         std::int32_t leg, std::int32_t aircraft);

}  // namespace orlo

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
// A weekly time without a prefix is one of Sunday.
FieldTime TimeForFields(std::string_view time, bool weekly, std::string_view zone);

// The stored form of a time of the zone; `day` (0 to 6) counts in a weekly flight alone.
std::string TimeForStorage(std::int32_t day, std::int32_t seconds, bool weekly, std::string_view zone);

// Where leg `leg` starts. All places of legs are those of legs that stand.
std::int32_t LegBefore(const Flight& flight, std::int32_t leg);
const std::string& LegStart(const Flight& flight, std::int32_t leg);

// The place in PlanAircrafts of the aircraft chosen in cmAircraft; -1 without one.
std::int32_t ChosenAircraft(const FlightEditForm& form, const Session& session);
// What is installed for it; null without one, and where it isn't installed.
const FSAircraft* InstalledAircraft(const FlightEditForm& form, const Session& session);

// When the aircraft, a place in PlanAircrafts, arrives on a leg of so many miles. A weekly departure without
// a day is one of Sunday.
std::string ArrivalOfLeg(const Session& session, std::int32_t distance, const Flight& flight,
                         std::int32_t leg, std::int32_t aircraft);

}  // namespace orlo

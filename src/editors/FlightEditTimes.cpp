#include "editors/FlightEditTimes.h"

#include "core/ClockTime.h"
#include "core/FlightTimes.h"
#include "core/Number.h"
#include "core/Text.h"
#include "simulator/Navigation.h"
#include "simulator/TimeZones.h"

namespace orlo {
namespace {

std::int32_t DayOfPrefix(std::string_view prefix) {
    const auto day = ParseWholeNumber(BeforeFirst(prefix, "/"));
    return day && *day >= 0 && *day <= 6 ? *day : -1;
}

}  // namespace

bool IsWeekly(const Flight& flight) {
    return IsWeekPeriod(flight.Period);
}

FieldTime TimeForFields(std::string_view time, bool weekly, std::string_view zone) {
    if (!weekly) return {-1, ConvertZone(time, zone, false)};
    const SplitTime split = SplitDayPrefix(time);
    std::string prefix(split.Prefix.empty() ? "0/" : split.Prefix);
    std::string clock = ConvertZoneWeek(split.Clock, zone, prefix, false);
    return {DayOfPrefix(prefix), std::move(clock)};
}

std::string TimeForStorage(std::int32_t day, std::int32_t seconds, bool weekly, std::string_view zone) {
    const std::string local = weekly ? FormatWeekTime({day, seconds}) : FormatClockTime(seconds);
    return ConvertTimeText(local, zone, true);
}

std::int32_t LegBefore(const Flight& flight, std::int32_t leg) {
    return leg > 0 ? leg - 1 : flight.LegCount() - 1;
}

const std::string& LegStart(const Flight& flight, std::int32_t leg) {
    return flight.Legs[static_cast<std::size_t>(LegBefore(flight, leg))].Destination;
}

std::int32_t ChosenAircraft(const FlightEditForm& form, const Session& session) {
    const auto entry = static_cast<std::size_t>(form.cmAircraft.index);
    if (form.cmAircraft.index < 0 || entry >= form.cmAircraft.entries.size()) return -1;
    const std::int32_t place = form.cmAircraft.entries[entry].itemData;
    return place >= 0 && place < session.plan.PlanAircraftCount() ? place : -1;
}

const FSAircraft* InstalledAircraft(const FlightEditForm& form, const Session& session) {
    const std::int32_t chosen = ChosenAircraft(form, session);
    if (chosen < 0) return nullptr;
    const std::int32_t* place =
        form.AircraftIndex.Find(session.plan.PlanAircrafts[static_cast<std::size_t>(chosen)].ACNumber);
    if (place == nullptr || *place < 0 || *place >= session.fleet.FSAircraftCount()) return nullptr;
    return &session.fleet.FSAircrafts[static_cast<std::size_t>(*place)];
}

std::string ArrivalOfLeg(const Session& session, std::int32_t distance, const Flight& flight,
                         std::int32_t leg, std::int32_t aircraft) {
    const std::string& stored = flight.Legs[static_cast<std::size_t>(leg)].DepartTime;
    const bool dayless = IsWeekly(flight) && SplitDayPrefix(stored).Prefix.empty();
    return GetArrivalTime(session.plan, distance, dayless ? Concat("0/", stored) : stored, flight.Period,
                          aircraft, -1);
}

}  // namespace orlo

#include "core/FlightTimes.h"

#include <cstdlib>

#include "core/ClockTime.h"
#include "core/Number.h"
#include "core/Session.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::string_view kWeek = "WEEK";
constexpr std::size_t kPeriodUnit = 2;  // "Hr"

std::optional<std::int32_t> ReadDay(std::string_view prefix) {
    if (prefix.size() != 2 || prefix.front() < '0' || prefix.front() > '6') return std::nullopt;
    return prefix.front() - '0';
}

std::int64_t Wrap(std::int64_t seconds, std::int64_t length) {
    const std::int64_t rest = seconds % length;
    return rest < 0 ? rest + length : rest;
}

// Seconds from one moment to another, a day later where that would be before the first.
std::int64_t FromTo(std::int64_t from, std::int64_t to) {
    return to < from ? to + kSecondsPerDay - from : to - from;
}

}  // namespace

FlightTimes::FlightTimes(const FlightView& flight) : weekly_(IsWeekPeriod(flight.Period)) {
    legs_.reserve(static_cast<std::size_t>(flight.LegCount));
    for (const LegView& leg : flight) {
        legs_.push_back({ReadTime(leg.DepartTime, weekly_), ReadTime(leg.ETA, weekly_)});
    }
    FindTurnOfWeek();
}

FlightTimes::FlightTimes(const Flight& flight) : weekly_(IsWeekPeriod(flight.Period)) {
    legs_.reserve(flight.Legs.size());
    for (const Leg& leg : flight.Legs) {
        legs_.push_back({ReadTime(leg.DepartTime, weekly_), ReadTime(leg.ETA, weekly_)});
    }
    FindTurnOfWeek();
}

void FlightTimes::FindTurnOfWeek() {
    if (!weekly_) return;
    firstOff_ = 0;
    lastBeyond_ = LegCount() - 1;
    SettleFirstOff();
    SettleLastBeyond();
}

FlightTimes::Time FlightTimes::ReadTime(std::string_view text, bool weekly) {
    if (!weekly) return {std::nullopt, ParseClockTime(text)};
    const SplitTime split = SplitDayPrefix(text);
    return {ReadDay(split.Prefix), ParseClockTime(split.Clock)};
}

// Since the start of the day, or of the week; nothing when the time can't be read.
std::optional<std::int64_t> FlightTimes::SecondsOf(const Time& time) const {
    if (!time.clock || (weekly_ && !time.day)) return std::nullopt;
    return std::int64_t{*time.clock} + (weekly_ ? std::int64_t{*time.day} * kSecondsPerDay : 0);
}

FlightTimes::Time FlightTimes::TimeAt(std::int64_t seconds) const {
    const auto clock = static_cast<std::int32_t>(Wrap(seconds, kSecondsPerDay));
    if (!weekly_) return {std::nullopt, clock};
    return {static_cast<std::int32_t>(Wrap(seconds, kSecondsPerWeek) / kSecondsPerDay), clock};
}

std::string FlightTimes::TextOf(const Time& time) const {
    return weekly_ ? FormatWeekTime({time.day.value_or(0), time.clock.value_or(0)})
                   : FormatClockTime(time.clock.value_or(0));
}

std::string FlightTimes::DepartText(std::int32_t leg) const {
    return TextOf(LegAt(leg).depart);
}

std::string FlightTimes::ArriveText(std::int32_t leg) const {
    return TextOf(LegAt(leg).arrive);
}

// Week times are placed on a fortnight that starts with the week of the first departure. Whether a time
// belongs to its second week shows in the legs around it: `Off`, a leg in front has left the day of the first
// departure, so the round is under way; `Beyond`, a leg behind has a later day than that, so the round is not
// over yet. A day that can't be read counts for neither.
bool FlightTimes::Off(std::int32_t leg) const {
    const LegTimes& times = LegAt(leg);
    const auto first = legs_.front().depart.day;
    return first && ((times.arrive.day && *times.arrive.day != *first) ||
                     (times.depart.day && *times.depart.day > *first));
}

bool FlightTimes::Beyond(std::int32_t leg) const {
    const LegTimes& times = LegAt(leg);
    const auto first = legs_.front().depart.day;
    return first && ((times.arrive.day && *times.arrive.day > *first) ||
                     (times.depart.day && *times.depart.day > *first));
}

// Takes firstOff_ forward to the next leg for which Off holds, and lastBeyond_ back likewise for Beyond.
void FlightTimes::SettleFirstOff() {
    while (firstOff_ < LegCount() && !Off(firstOff_)) ++firstOff_;
}

void FlightTimes::SettleLastBeyond() {
    while (lastBeyond_ >= 0 && !Beyond(lastBeyond_)) --lastBeyond_;
}

// Whether the arrival in front of leg `nextLeg` is in the second week. This and the next need days that can
// be read.
bool FlightTimes::ArrivesNextWeek(std::int32_t nextLeg) const {
    const std::int32_t first = *legs_.front().depart.day;
    const std::int32_t arrives = *LegAt(nextLeg - 1).arrive.day;
    const std::int32_t departs = *LegAt(nextLeg).depart.day;
    if (departs < arrives && arrives < first) return true;
    return departs > arrives && arrives <= first && firstOff_ < nextLeg;
}

bool FlightTimes::DepartsNextWeek(std::int32_t leg) const {
    const std::int32_t first = *legs_.front().depart.day;
    const std::int32_t arrives = *LegAt(leg - 1).arrive.day;
    const std::int32_t departs = *LegAt(leg).depart.day;
    if (departs < arrives && departs < first) return true;
    return departs != arrives && departs <= first && lastBeyond_ <= leg;
}

std::optional<std::int64_t> FlightTimes::TurnAround(std::int32_t leg) const {
    const auto arrive = SecondsOf(LegAt(leg - 1).arrive);
    const auto depart = SecondsOf(LegAt(leg).depart);
    if (!arrive || !depart) return std::nullopt;
    if (!weekly_) return FromTo(*arrive, *depart);
    if (!legs_.front().depart.day) return std::nullopt;
    const std::int64_t arriveWeek = ArrivesNextWeek(leg) ? kSecondsPerWeek : 0;
    const std::int64_t departWeek = DepartsNextWeek(leg) ? kSecondsPerWeek : 0;
    return departWeek + *depart - (arriveWeek + *arrive);
}

std::optional<std::int64_t> FlightTimes::FlightTime(std::int32_t leg) const {
    const LegTimes& times = LegAt(leg);
    const auto depart = SecondsOf(times.depart);
    const auto arrive = SecondsOf(times.arrive);
    if (!depart || !arrive) return std::nullopt;
    if (!weekly_) return FromTo(*depart, *arrive);
    const std::int64_t arriveWeek = *times.arrive.day < *times.depart.day ? kSecondsPerWeek : 0;
    return std::abs(arriveWeek + *arrive - *depart);
}

std::optional<std::int64_t> FlightTimes::ClosingTurnAround(std::int64_t hours) const {
    if (legs_.empty()) return std::nullopt;
    const auto arrive = SecondsOf(legs_.back().arrive);
    const auto depart = SecondsOf(legs_.front().depart);
    if (!arrive || !depart) return std::nullopt;
    return std::abs(FromTo(*arrive + kSecondsPerDay, *depart + hours * kSecondsPerHour));
}

bool FlightTimes::Move(std::int32_t leg, std::int64_t seconds) {
    LegTimes& times = legs_[static_cast<std::size_t>(leg)];
    const auto depart = SecondsOf(times.depart);
    const auto arrive = SecondsOf(times.arrive);
    if (!depart || !arrive) return false;
    times = {TimeAt(*depart + seconds), TimeAt(*arrive + seconds), true};
    if (!weekly_) return true;

    if (leg < firstOff_ && Off(leg)) firstOff_ = leg;
    if (leg > lastBeyond_ && Beyond(leg)) lastBeyond_ = leg;
    SettleFirstOff();
    SettleLastBeyond();
    return true;
}

TurnAroundTest TestTurnAround(std::int64_t seconds, std::int32_t minimum, std::int32_t maximum) {
    if (seconds < 0) return TurnAroundTest::Passes;
    if (minimum != kNoTurnAroundLimit && seconds < std::int64_t{minimum} * kSecondsPerMinute) {
        return TurnAroundTest::TooShort;
    }
    if (maximum != kNoTurnAroundLimit && seconds > std::int64_t{maximum} * kSecondsPerHour) {
        return TurnAroundTest::TooLong;
    }
    return TurnAroundTest::Passes;
}

bool IsWeekPeriod(std::string_view period) {
    return EqualNoCase(period, kWeek);
}

std::int32_t PeriodHours(std::string_view period) {
    if (period.size() <= kPeriodUnit) return 0;
    return ParseWholeNumber(period.substr(0, period.size() - kPeriodUnit)).value_or(0);
}

}  // namespace orlo

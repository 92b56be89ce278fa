#include "operations/TimetableEvents.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "core/ClockTime.h"
#include "core/CodeNumbers.h"
#include "core/FlightTimes.h"
#include "core/Number.h"
#include "core/Text.h"
#include "simulator/MatchedAircraft.h"
#include "simulator/TimeZones.h"

namespace orlo {
namespace {

constexpr std::int32_t kNoTime = -1;
constexpr std::size_t kFewAirports = 3;

// The airports of a timetable. A code is compared exactly; those typed were turned to upper case.
class ChosenAirports {
  public:
    explicit ChosenAirports(std::string_view typed) : codes_(UpperText(RemoveAll(typed, ' '))) {
        if (codes_.empty()) return;
        std::string_view inside = codes_;
        if (inside.starts_with(',')) inside.remove_prefix(1);
        if (inside.ends_with(',')) inside.remove_suffix(1);
        // A lone "," names no airport, not even one without a code.
        if (codes_ == ",") return;
        for (const std::string_view code : SplitText(inside, ',')) chosen_.insert(code);
    }

    // False where none of the codes stands among these legs. For few codes this is faster than reading them.
    bool MayStandIn(std::string_view legText) const {
        if (chosen_.size() > kFewAirports) return true;
        return std::any_of(chosen_.begin(), chosen_.end(), [legText](std::string_view code) {
            return legText.find(code) != std::string_view::npos;
        });
    }

    // `code` must outlive this.
    bool Has(std::string_view code) {
        return known_.Get(code, [this](std::string_view text) { return chosen_.contains(text) ? 1 : 0; }) ==
               1;
    }

  private:
    std::string codes_;
    std::unordered_set<std::string_view> chosen_;
    CodeMemo known_;  // whether each code of the plan is chosen
};

// The number of each flight's aircraft in the rows. Many aircraft of a plan may share one installed one.
class ShownAircraftNumbers {
  public:
    ShownAircraftNumbers(const Plan& plan, const Fleet& fleet, TimetableRows& rows)
        : matched_(plan, fleet), rows_(rows), numberOfPlace_(fleet.FSAircrafts.size(), kAircraftNotFound) {}

    std::int32_t Of(std::string_view acNumber) {
        return numbers_.Get(acNumber, [this](std::string_view text) {
            const std::int32_t place = matched_.Place(text);
            if (place < 0) return kAircraftNotFound;
            std::int32_t& number = numberOfPlace_[static_cast<std::size_t>(place)];
            if (number == kAircraftNotFound) number = rows_.AddAircraft(matched_.At(place));
            return number;
        });
    }

  private:
    MatchedAircraft matched_;
    TimetableRows& rows_;
    std::vector<std::int32_t> numberOfPlace_;
    CodeMemo numbers_;
};

class EventFinder {
  public:
    EventFinder(const Plan& plan, const Fleet& fleet, const TimetableFilter& filter, TimetableRows& rows)
        : filter_(filter),
          rows_(rows),
          shift_(ParseZone(filter.zone, false)),
          airports_(filter.airports),
          aircraft_(plan, fleet, rows) {}

    void Add(std::int32_t place, const FlightView& flight) {
        if (!TakesFlight(flight) || !airports_.MayStandIn(flight.LegText)) return;
        legs_.clear();
        bool visits = false;
        for (const LegView& leg : flight) {
            legs_.push_back(leg);
            visits = airports_.Has(leg.Destination) || visits;
        }
        if (!visits) return;
        event_.flight = place;
        event_.aircraft = aircraft_.Of(flight.ACNumber);
        const bool weekly = IsWeekPeriod(flight.Period);
        const DailyRepeat repeat = weekly ? DailyRepeat() : RepeatOf(flight.Period);
        for (std::size_t leg = 0; leg < legs_.size(); ++leg) {
            if (!airports_.Has(legs_[leg].Destination)) continue;
            if (weekly) {
                AddWeekly(leg);
            } else {
                AddDaily(leg, repeat);
            }
        }
    }

  private:
    bool TakesFlight(const FlightView& flight) const {
        if (flight.Removed || flight.Percent.empty()) return false;
        const auto percent = ParseWholeNumber(flight.Percent.substr(0, flight.Percent.size() - 1));
        if (!percent || *percent > filter_.mostPercent) return false;
        return (filter_.IFR && flight.FlightType == "IFR") || (filter_.VFR && flight.FlightType == "VFR");
    }

    std::size_t Next(std::size_t leg) const { return leg + 1 < legs_.size() ? leg + 1 : 0; }
    std::size_t Before(std::size_t leg) const { return (leg > 0 ? leg : legs_.size()) - 1; }
    bool InWindow(std::int32_t seconds) const { return seconds >= filter_.start && seconds <= filter_.end; }

    void AddArrival(std::size_t leg, std::int32_t seconds, std::int32_t day) {
        event_.arrives = true;
        event_.otherEnd = legs_[Before(leg)].Destination;
        AddEvent(leg, seconds, day);
    }

    // `leg` is the one that departs.
    void AddDeparture(std::size_t leg, std::int32_t seconds, std::int32_t day) {
        event_.arrives = false;
        event_.otherEnd = legs_[leg].Destination;
        AddEvent(leg, seconds, day);
    }

    void AddEvent(std::size_t leg, std::int32_t seconds, std::int32_t day) {
        event_.leg = static_cast<std::int32_t>(leg);
        event_.flightNumber = legs_[leg].FlightNumber;
        event_.seconds = seconds;
        event_.day = day;
        rows_.Add(event_);
    }

    // In the zone of the list; kNoTime for one that can't be read.
    std::int32_t DailyTime(std::string_view text) const {
        const auto seconds = ParseClockTime(text);
        return seconds ? ShiftClock(*seconds, shift_).seconds : kNoTime;
    }

    bool DailyInWindow(std::int32_t first, std::int32_t& time, std::int64_t later) const {
        if (first == kNoTime) return false;
        time = static_cast<std::int32_t>((first + later) % kSecondsPerDay);
        return InWindow(time);
    }

    void AddDaily(std::size_t leg, const DailyRepeat& repeat) {
        const std::size_t next = Next(leg);
        const std::int32_t arrival = filter_.arrivals ? DailyTime(legs_[leg].ETA) : kNoTime;
        const std::int32_t departure = filter_.departures ? DailyTime(legs_[next].DepartTime) : kNoTime;
        std::int64_t later = 0;
        for (std::int32_t flown = 0; flown < repeat.count; ++flown) {
            std::int32_t time = 0;
            if (DailyInWindow(arrival, time, later)) AddArrival(leg, time, kNoWeekday);
            if (DailyInWindow(departure, time, later)) AddDeparture(next, time, kNoWeekday);
            later += std::int64_t{repeat.hours} * kSecondsPerHour;
        }
    }

    // In the zone of the list; nothing outside the day and the window.
    std::optional<WeekTime> WeekTimeInside(std::string_view text) const {
        const auto time = ParseWeekTime(text);
        if (!time) return std::nullopt;
        const ShiftedClock shifted = ShiftClock(time->Seconds, shift_);
        const std::int32_t day = (time->Day + shifted.dayStep + 7) % 7;
        if (filter_.day != kWholeWeek && filter_.day != day) return std::nullopt;
        if (!InWindow(shifted.seconds)) return std::nullopt;
        return WeekTime{day, shifted.seconds};
    }

    void AddWeekly(std::size_t leg) {
        const std::size_t next = Next(leg);
        const auto arrival = filter_.arrivals ? WeekTimeInside(legs_[leg].ETA) : std::nullopt;
        const auto departure = filter_.departures ? WeekTimeInside(legs_[next].DepartTime) : std::nullopt;
        if (arrival) AddArrival(leg, arrival->Seconds, arrival->Day);
        if (departure) AddDeparture(next, departure->Seconds, departure->Day);
    }

    const TimetableFilter& filter_;
    TimetableRows& rows_;
    std::optional<ZoneShift> shift_;
    ChosenAirports airports_;
    ShownAircraftNumbers aircraft_;
    std::vector<LegView> legs_;
    TimetableEvent event_;
};

}  // namespace

DailyRepeat RepeatOf(std::string_view period) {
    const std::int32_t hours = ParseWholeNumber(ReplaceAll(UpperText(period), "HR", "")).value_or(0);
    if (hours == 0) return {};
    return {hours, static_cast<std::int32_t>(RoundHalfEven(24.0 / hours))};
}

std::shared_ptr<TimetableRows> FindTimetableEvents(const Plan& plan, const Fleet& fleet,
                                                   const TimetableFilter& filter) {
    auto rows = std::make_shared<TimetableRows>(plan.Flights);
    EventFinder finder(plan, fleet, filter, *rows);
    for (std::int32_t place = 0; place < rows->Flights().Count(); ++place) {
        finder.Add(place, rows->Flights().At(place));
    }
    rows->AllAdded();
    return rows;
}

}  // namespace orlo

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "core/Flight.h"
#include "core/FlightRow.h"

namespace orlo {

inline constexpr int kFlightFields = 5;  // of a line in front of the legs
inline constexpr int kLegFields = 6;     // of each leg

// A leg whose texts are lent.
struct LegView {
    std::string_view DepartTime;
    std::string_view ETA;  // without the "@" mark
    bool FixedETA = false;
    std::string_view FlightLevel;
    std::string_view NumberMode;
    std::string_view FlightNumber;
    std::string_view Destination;
};

// The leg's own texts; they hold as long as it stands unchanged.
inline LegView ViewOf(const Leg& leg) {
    return {leg.DepartTime, leg.ETA,          leg.FixedETA,   leg.FlightLevel,
            leg.NumberMode, leg.FlightNumber, leg.Destination};
}

// A flight whose texts are lent by its row.
struct FlightView {
    std::string_view ACNumber;
    std::string_view TailNumber;
    std::string_view Percent;
    std::string_view Period;
    std::string_view FlightType;
    std::int32_t LegCount = 0;
    bool Removed = false;
    std::string_view LegText;  // the packed fields of all legs, for the walk over them

    // The legs in order, each read as the walk comes to it.
    class LegIterator {
      public:
        using value_type = LegView;
        using difference_type = std::ptrdiff_t;
        LegIterator(std::string_view text, std::int32_t left) : reader_(text), left_(left) {
            if (left_ > 0) ReadLeg();
        }
        const LegView& operator*() const { return leg_; }
        const LegView* operator->() const { return &leg_; }
        LegIterator& operator++() {
            if (--left_ > 0) ReadLeg();
            return *this;
        }
        bool operator==(const LegIterator& other) const { return left_ == other.left_; }

      private:
        void ReadLeg();

        RowReader reader_;
        std::int32_t left_;
        LegView leg_;
    };
    LegIterator begin() const { return {LegText, LegCount}; }
    LegIterator end() const { return {{}, 0}; }

    // Where the round starts: the Destination of the last leg. Empty without legs.
    std::string_view StartAirport() const;
    // All texts empty without legs.
    LegView LastLeg() const;
};

// A flight that is being changed: each text is lent by its old row, or by whoever changes it. Assigning a
// view reuses the memory of the legs.
struct LentFlight {
    std::string_view ACNumber;
    std::string_view TailNumber;
    std::string_view Percent;
    std::string_view Period;
    std::string_view FlightType;
    std::vector<LegView> Legs;

    LentFlight() = default;
    explicit LentFlight(const Flight& flight);
    LentFlight& operator=(const FlightView& flight);
};

}  // namespace orlo

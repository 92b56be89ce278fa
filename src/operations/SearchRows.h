#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/FlightList.h"
#include "forms/RowSource.h"
#include "simulator/MatchedAircraft.h"

namespace orlo {

// The columns of lvExPreview. The last one stands only after a search that tells errors.
enum SearchColumn : std::int32_t {
    kColumnAirline,
    kColumnAircraft,
    kColumnNumber,
    kColumnRegistration,
    kColumnDeparture,
    kColumnLegs,
    kColumnPeriod,
    kColumnDepart,
    kColumnArrive,
    kColumnFlightType,
    kColumnFlightLevel,
    kColumnPercent,
    kColumnErrors,
};

// The rows of lvExPreview, one a result; texts are made when they are asked for. They hold all that they
// show, so the list stands whatever becomes of the session. `zone` is that of the columns Depart and Arrive.
class SearchRows : public RowSource {
  public:
    SearchRows(FlightList flights, std::vector<std::string> errors, const MatchedAircraft& matched,
               std::string_view zone);

    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override;

    std::int32_t Count() const { return flights_.Count(); }
    // Bytes held for the rows beside the flights and the texts of errors.
    std::size_t MemoryBytes() const;
    void SetZone(std::string_view zone) { zone_ = zone; }
    // Puts the flight into an existing row, or adds the next row, and looks its aircraft up.
    void SetFlight(std::int32_t row, const Flight& flight, const MatchedAircraft& matched);

  private:
    struct ShownAircraft {
        std::string airline;
        std::string title;
    };

    FlightList flights_;
    std::vector<std::string> errors_;          // may be shorter than the list
    std::vector<ShownAircraft> shown_;         // "not found" first
    std::vector<std::int32_t> aircraftOfRow_;  // places in shown_
    std::string zone_;
};

// The column's form of a period, aircraft number and percent: "08Hr" for "8Hr", "WEEK" as it stands; "0012"
// for "AC#12"; "05%" for "5%". A part that is no number stands as it is, with "Hr" or "%" behind it.
std::string PeriodColumn(std::string_view period);
std::string NumberColumn(std::string_view acNumber);
std::string PercentColumn(std::string_view percent);

}  // namespace orlo

#include "simulator/AirportLists.h"

#include <cstdint>
#include <string_view>

#include "core/CodeNumbers.h"
#include "core/KeyedIndex.h"
#include "core/Text.h"
#include "simulator/Feet.h"

namespace orlo {
namespace {

void AppendAirport(std::string& out, std::string_view code, const AirportRecord& airport) {
    out.append(Concat(code, ",", airport.Latitude, ",", airport.Longitude, ",", WholeFeet(airport.Elevation),
                      "\r\n"));
}

// The codes that stand in a list, as one text: "|EDDF||EDDM|". A code counts as listed where it stands in
// that text between two bars, so a damaged code with bars in it covers its parts, too. The parts are kept by
// key, so that only a code with bars is looked for in the text.
class ListedCodes {
  public:
    bool Contains(std::string_view code) const {
        if (code.find('|') == std::string_view::npos) return parts_.Contains(code);
        return ContainsNoCase(text_, Concat("|", code, "|"));
    }

    void Add(std::string_view code) {
        if (!text_.empty()) parts_.Add("", true);  // between the bars of two codes
        for (const std::string_view part : SplitText(code, '|')) parts_.Add(part, true);
        text_.append(Concat("|", code, "|"));
    }

  private:
    std::string text_;
    KeyedIndex<bool> parts_;
};

// In the order in which they first appear, as they are spelled.
CodeNumbers DestinationsOf(const FlightList& flights) {
    CodeNumbers codes;
    for (std::int32_t place = 0; place < flights.Count(); ++place) {
        for (const LegView& leg : flights.At(place)) codes.Number(leg.Destination);
    }
    return codes;
}

}  // namespace

std::string FormatSceneryAirports(const std::vector<AirportRecord>& airports) {
    std::string out;
    for (const AirportRecord& airport : airports) AppendAirport(out, airport.ICAO, airport);
    return out;
}

std::string FormatPlanAirports(const FlightList& flights, const std::vector<AirportRecord>& airports) {
    KeyedIndex<const AirportRecord*> records;
    records.Reserve(airports.size());
    for (const AirportRecord& airport : airports) records.Add(airport.ICAO, &airport);

    std::string out;
    ListedCodes listed;
    const CodeNumbers codes = DestinationsOf(flights);
    for (std::int32_t number = 0; number < codes.Count(); ++number) {
        const std::string_view code = codes.Text(number);
        const auto* record = records.Find(code);
        if (record == nullptr || listed.Contains(code)) continue;
        listed.Add(code);
        AppendAirport(out, UpperText(code), **record);
    }
    return out;
}

}  // namespace orlo

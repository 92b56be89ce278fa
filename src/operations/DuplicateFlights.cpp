#include "operations/DuplicateFlights.h"

#include <array>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/PlaceIndex.h"
#include "core/Text.h"

namespace orlo {
namespace {

// Writes the duplicate keys of flights: their lines in upper case, without the marks of fixed arrivals.
class KeyWriter {
  public:
    void Write(const FlightList& flights, std::int32_t place, std::string& key) const {
        key.clear();
        flights.WriteLine(place, key);
        if (key.find(kFixedMark) != std::string::npos) WriteFields(flights.At(place), key);
        char* const end = key.data() + key.size();
        for (char* byte = key.data(); byte != end; ++byte) *byte = upper_[static_cast<unsigned char>(*byte)];
    }

  private:
    static std::array<char, 256> UpperBytes() {
        std::array<char, 256> bytes{};
        for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = UpperChar(static_cast<char>(i));
        return bytes;
    }
    static void WriteFields(const FlightView& flight, std::string& key) {
        key.clear();
        const auto append = [&key](std::initializer_list<std::string_view> fields) {
            for (const std::string_view field : fields) key.append(field).push_back(',');
        };
        append({flight.ACNumber, flight.TailNumber, flight.Percent, flight.Period, flight.FlightType});
        for (const LegView& leg : flight) {
            append({leg.DepartTime, leg.ETA, leg.FlightLevel, leg.NumberMode, leg.FlightNumber,
                    leg.Destination});
        }
        key.pop_back();
    }

    std::array<char, 256> upper_ = UpperBytes();
};

}  // namespace

std::vector<std::int32_t> FirstOfEqualFlights(const FlightList& flights) {
    std::vector<std::int32_t> first;
    first.reserve(static_cast<std::size_t>(flights.Count()));
    PlaceIndex index;
    index.Reserve(static_cast<std::size_t>(flights.Count()));
    const KeyWriter writer;
    std::string key;
    std::string earlierKey;
    for (std::int32_t place = 0; place < flights.Count(); ++place) {
        writer.Write(flights, place, key);
        first.push_back(index.FindOrAdd(std::hash<std::string_view>()(key), place, [&](std::int32_t earlier) {
            writer.Write(flights, earlier, earlierKey);
            return earlierKey == key;
        }));
    }
    return first;
}

}  // namespace orlo

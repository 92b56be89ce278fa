#include "operations/DuplicateFlights.h"

#include <array>
#include <bit>
#include <functional>
#include <string>
#include <string_view>

#include "core/Text.h"

namespace orlo {
namespace {

// Each byte of a row as its key has it: in upper case, with a comma between fields.
std::array<char, 256> KeyBytes() {
    std::array<char, 256> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = UpperChar(static_cast<char>(i));
    bytes[static_cast<unsigned char>(kFieldSeparator)] = ',';
    return bytes;
}

// Writes the duplicate keys of flights.
class KeyWriter {
  public:
    void Write(const FlightList& flights, std::int32_t place, std::string& key) {
        const std::string_view row = flights.Row(place);
        key.clear();
        if (row.find('@') == std::string_view::npos) {
            Append(row, key);
            return;
        }
        const FlightView flight = flights.At(place);
        Append(row.substr(0, row.size() - flight.LegText.size()), key);
        for (const LegView& leg : flight) {
            for (const std::string_view field : {leg.DepartTime, leg.ETA, leg.FlightLevel, leg.NumberMode,
                                                 leg.FlightNumber, leg.Destination}) {
                Append(field, key);
                key.push_back(',');
            }
        }
        if (flight.LegCount > 0) key.pop_back();
    }

  private:
    void Append(std::string_view text, std::string& key) const {
        const std::size_t start = key.size();
        key.resize(start + text.size());
        char* to = key.data() + start;
        for (const char byte : text) *to++ = bytes_[static_cast<unsigned char>(byte)];
    }

    std::array<char, 256> bytes_ = KeyBytes();
};

struct Slot {
    std::size_t hash = 0;
    std::int32_t place = -1;
};

}  // namespace

std::vector<std::int32_t> FirstOfEqualFlights(const FlightList& flights) {
    const std::int32_t count = flights.Count();
    std::vector<std::int32_t> first(static_cast<std::size_t>(count));
    std::vector<Slot> table(std::bit_ceil(static_cast<std::size_t>(count) * 2 + 1));
    KeyWriter writer;
    std::string key;
    std::string earlierKey;
    for (std::int32_t place = 0; place < count; ++place) {
        writer.Write(flights, place, key);
        const std::size_t hash = std::hash<std::string_view>()(key);
        std::size_t at = hash & (table.size() - 1);
        const auto holdsKey = [&](const Slot& slot) {
            if (slot.hash != hash) return false;
            writer.Write(flights, slot.place, earlierKey);
            return earlierKey == key;
        };
        while (table[at].place >= 0 && !holdsKey(table[at])) at = (at + 1) & (table.size() - 1);
        if (table[at].place < 0) table[at] = {hash, place};
        first[static_cast<std::size_t>(place)] = table[at].place;
    }
    return first;
}

}  // namespace orlo

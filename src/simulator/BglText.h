#pragma once

#include <cstdint>
#include <string>

namespace orlo {

constexpr double kFullTurn = 4294967296.0;  // of an angle or a longitude
constexpr std::int32_t kHelipad = 4;        // a runway's kind, for a helipad

// Texts made of the numbers in an airport's body.

// A coordinate as letter, whole degrees, "*", whole minutes, ".", four digits and "'", all by truncation. A
// latitude is stored in parts of a quadrant (10001750 of them), a longitude as a fraction of the circle.
std::string LatitudeText(std::int32_t value);
std::string LongitudeText(std::int32_t value);

// The digits of a frequency are those of its hexadecimal text: 0x118300 is "118.300".
std::string FrequencyText(std::uint32_t value);

// Number, blank and kind of a parking, from its name code: bits 0 to 6 the kind, 7 to 15 the number.
std::string ParkingName(std::uint32_t nameCode);

// The first end of a runway: its number with the letter of its kind, or "Helipad".
std::string RunwayName(std::int32_t number, std::int32_t kind);
// The second end: the opposite number with the letter as seen from there. Empty for a helipad and for a
// number that isn't 1 to 36.
std::string OtherRunwayName(std::int32_t number, std::int32_t kind);

}  // namespace orlo

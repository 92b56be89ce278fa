#include "simulator/BglText.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>

#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr double kLatitudeUnitsPerDegree = 10001750.0 / 90;

constexpr std::array<std::string_view, 12> kParkingKinds = {
    "",          "Parking",    "Parking N", "Parking NE", "Parking E", "Parking SE",
    "Parking S", "Parking SW", "Parking W", "Parking NW", "Gate",      "Dock"};
constexpr std::uint32_t kGateLetterShift = 53;  // kind 12 is gate A

std::string CoordinateText(char letter, double degrees) {
    const double wholeDegrees = std::trunc(degrees);
    const double minutes = (degrees - wholeDegrees) * 60;
    const double wholeMinutes = std::trunc(minutes);
    const double decimals = std::trunc((minutes - wholeMinutes) * 10000);
    return Concat(letter, static_cast<int>(wholeDegrees), '*', static_cast<int>(wholeMinutes), '.',
                  FormatDigits(static_cast<std::int64_t>(decimals), 4), '\'');
}

// Left, right and centre; blank for any other kind.
char RunwayLetter(std::int32_t kind) {
    return kind == 1 ? 'L' : kind == 2 ? 'R' : kind == 3 ? 'C' : ' ';
}

std::string NumberWithLetter(std::int32_t number, char letter) {
    return letter == ' ' ? Concat(number) : Concat(number, letter);
}

}  // namespace

std::string LatitudeText(std::int32_t value) {
    return CoordinateText(value < 0 ? 'S' : 'N',
                          std::abs(static_cast<double>(value)) / kLatitudeUnitsPerDegree);
}

std::string LongitudeText(std::int32_t value) {
    return CoordinateText(value < 0 ? 'W' : 'E', std::abs(static_cast<double>(value)) / kFullTurn * 360);
}

std::string FrequencyText(std::uint32_t value) {
    std::array<char, 9> text{};
    const int length = std::snprintf(text.data(), text.size(), "%X", static_cast<unsigned>(value));
    const std::string_view digits(text.data(), static_cast<std::size_t>(length));
    const std::string_view decimals = digits.size() > 3 ? digits.substr(3, 3) : std::string_view();
    return Concat(digits.substr(0, 3), '.', decimals);
}

std::string ParkingName(std::uint32_t nameCode) {
    const std::uint32_t kind = nameCode & 0x7F;
    std::string name = Concat(nameCode >> 7, ' ');
    if (kind > 0 && kind < kParkingKinds.size()) {
        name.append(kParkingKinds[kind]);
    } else {
        name.append("Gate ");
        name.push_back(static_cast<char>(kind + kGateLetterShift));
    }
    return name;
}

std::string RunwayName(std::int32_t number, std::int32_t kind) {
    return kind == kHelipad ? "Helipad" : NumberWithLetter(number, RunwayLetter(kind));
}

std::string OtherRunwayName(std::int32_t number, std::int32_t kind) {
    if (kind == kHelipad || number < 1 || number > 36) return {};
    const char letter = RunwayLetter(kind);
    return NumberWithLetter(number > 18 ? number - 18 : number + 18, letter == 'L'   ? 'R'
                                                                     : letter == 'R' ? 'L'
                                                                                     : letter);
}

}  // namespace orlo

#include "editors/AirportReport.h"

#include <gtest/gtest.h>

#include <string_view>

#include "core/Text.h"
#include "simulator/BglText.h"

namespace orlo {
namespace {

constexpr std::string_view kRunways = "Runways:\r\n";
constexpr std::string_view kILS = "ILS:\r\n";
constexpr std::string_view kFrequencies = "Frequencies:\r\n";
constexpr std::string_view kParkings = "Ramp Mil Combat:  ";

// The rows of the table behind a heading, without the table's own header.
std::string RowsBehind(const std::string& report, std::string_view heading) {
    const std::size_t header = report.find("\tName", report.find(heading));
    const std::size_t ils = report.find("\tRunway", report.find(heading));
    const std::size_t rows = report.find("\r\n", std::min(header, ils)) + 2;
    const std::size_t end = report.find("\r\n\r\n", rows - 2);
    return report.substr(rows, end == std::string::npos ? end : end + 2 - rows);
}

std::string_view FieldAt(std::string_view row, std::size_t at, std::size_t width) {
    return TrimBlanks(row.substr(at, width));
}

TEST(AirportReport, EachCodeHasItsWord) {
    const struct {
        std::int32_t code;
        std::string_view surface, frequency, parking;
    } cases[] = {{-1, "Unknown", "Unkown", ""},
                 {0, "Unknown", "Unkown", ""},
                 {1, "Dirt", "ATIS", ""},
                 {2, "Concrete", "Unkown", "Ramp GA Small"},
                 {3, "Asphalt", "UNICOM", "Ramp GA Medium"},
                 {4, "Grass", "ATF", "Ramp GA Large"},
                 {5, "Gravel", "Ground", "Ramp Cargo"},
                 {6, "Oil Treated", "Tower", "Ramp Mil Cargo"},
                 {7, "Mats", "Clearance", "Ramp Mil Combat"},
                 {8, "Snow", "Arrival", "Gate Small"},
                 {9, "Coral", "Departure", "Gate Medium"},
                 {10, "Water", "Center", "Gate Heavy"},
                 {11, "Unknown", "FSS", "Dock GA"},
                 {12, "Unknown", "AWOS", ""},
                 {13, "Unknown", "ASOS", ""},
                 {14, "Unknown", "Unkown", ""}};
    for (const auto& [code, surface, frequency, parking] : cases) {
        AirportRecord airport;
        airport.Runways.resize(1);
        airport.Runways[0].Surface = airport.Runways[0].Pattern1 = code;
        airport.Runways[0].Kind = kHelipad;
        airport.Frequencies.push_back({"", "", code});
        airport.Parkings.resize(3);
        for (ParkingRecord& record : airport.Parkings) record.Class = code;
        const std::string report = AirportReport(airport);
        const std::string runway = RowsBehind(report, kRunways);
        EXPECT_EQ(FieldAt(runway, 47, 12), surface) << code;
        EXPECT_EQ(FieldAt(runway, 69, 8), code == 1 ? "Left" : code == 2 ? "Right" : "None") << code;
        EXPECT_EQ(FieldAt(RowsBehind(report, kFrequencies), 46, 11), frequency) << code;
        EXPECT_EQ(FieldAt(RowsBehind(report, kParkings), 16, 17), parking) << code;
        const std::string count = "\r\n\t" + PadRight(Concat(parking, ":"), 18) + "3\r\n";
        EXPECT_EQ(report.find(count) != std::string::npos, !parking.empty()) << code;
        EXPECT_NE(report.find("Parking (3):"), std::string::npos);
    }
}

TEST(AirportReport, EachEndOfARunwayHasARowAndAHelipadHasOne) {
    AirportRecord airport;
    EXPECT_EQ(RowsBehind(AirportReport(airport), kRunways) + RowsBehind(AirportReport(airport), kILS) +
                  RowsBehind(AirportReport(airport), kFrequencies) +
                  RowsBehind(AirportReport(airport), kParkings),
              "");
    airport.Elevation = 100;
    airport.Runways.resize(3);
    RunwayRecord& left = airport.Runways[0];
    left.Number = 9;
    left.Kind = 1;
    left.Heading = 89.996F;
    left.MagVar = -0.001F;
    left.Length = 1000;
    left.Width = 30;
    left.Surface = 3;
    left.Takeoff1 = left.Landing2 = true;
    left.Pattern1 = 1;
    left.Pattern2 = 2;
    left.ILSName2 = "IXX";
    left.ILSHeading2 = 270.5F;
    left.ILSFrequency2 = "110.300";
    RunwayRecord& centre = airport.Runways[1];
    centre.Number = 36;
    centre.Kind = 3;
    centre.Heading = 180;
    centre.MagVar = -12.5F;
    centre.ILSName2 = "ISECOND";
    centre.ILSName1 = "IFIRST";
    RunwayRecord& helipad = airport.Runways[2];
    helipad.Number = 5;
    helipad.Kind = kHelipad;
    helipad.ILSName2 = "INONE";
    const std::string report = AirportReport(airport);
    EXPECT_EQ(RowsBehind(report, kRunways),
              "\t9L      328ft     90.00   0.00  3281ft  98ft  Asphalt     Yes  No   Left    \r\n"
              "\t27R     328ft     270.00  0.00  3281ft  98ft  Asphalt     No   Yes  Right   \r\n"
              "\t36C     328ft     180.00  -12.500ft     0ft   Unknown     No   No   None    \r\n"
              "\t18C     328ft     0.00    -12.500ft     0ft   Unknown     No   No   None    \r\n"
              "\tHelipad 328ft     0.00    0.00  0ft     0ft   Unknown     No   No   None    \r\n");
    EXPECT_EQ(RowsBehind(report, kILS),
              "\t27R     IXX     270.50  110.300 \r\n"
              "\t36C     IFIRST  0.00            \r\n"
              "\t18C     ISECOND 0.00            \r\n");
}

}  // namespace
}  // namespace orlo

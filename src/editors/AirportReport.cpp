#include "editors/AirportReport.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "core/Number.h"
#include "core/ParkingClassNames.h"
#include "core/Text.h"
#include "simulator/BglText.h"
#include "simulator/Feet.h"

namespace orlo {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kHeadWidth = 17;
constexpr std::size_t kCountWidth = 18;

struct ReportColumn {
    std::string_view name;
    std::size_t width;
};
// "Lenght" and "Unkown" (below) are what these reports have always said.
constexpr std::array<ReportColumn, 10> kRunwayColumns = {{{"Name", 8},
                                                          {"Elevation", 10},
                                                          {"Heading", 8},
                                                          {"Var.", 6},
                                                          {"Lenght", 8},
                                                          {"Width", 6},
                                                          {"Surface", 12},
                                                          {"TO", 5},
                                                          {"Land", 5},
                                                          {"Pattern", 8}}};
constexpr std::array<ReportColumn, 4> kILSColumns = {
    {{"Runway", 8}, {"Ident.", 8}, {"Heading", 8}, {"Freq.", 8}}};
constexpr std::array<ReportColumn, 3> kFrequencyColumns = {{{"Name", 45}, {"Type", 11}, {"Freq.", 8}}};
constexpr std::array<ReportColumn, 4> kParkingColumns = {
    {{"Name", 15}, {"Type", 17}, {"Radius", 10}, {"Heading", 8}}};

// By code, from 0.
constexpr std::array<std::string_view, 11> kSurfaces = {"Unknown", "Dirt",   "Concrete",    "Asphalt",
                                                        "Grass",   "Gravel", "Oil Treated", "Mats",
                                                        "Snow",    "Coral",  "Water"};
constexpr std::array<std::string_view, 14> kFrequencyTypes = {
    "Unkown",    "ATIS",    "Unkown",    "UNICOM", "ATF", "Ground", "Tower",
    "Clearance", "Arrival", "Departure", "Center", "FSS", "AWOS",   "ASOS"};
constexpr std::array<std::string_view, 3> kPatterns = {"None", "Left", "Right"};
// The classes of parkings in the order in which they are counted.
constexpr std::array<std::int32_t, 10> kCountedClasses = {10, 9, 8, 11, 4, 3, 2, 5, 6, 7};

// A code that isn't in the table reads as its first word.
std::string_view WordOf(std::span<const std::string_view> words, std::int32_t code) {
    const auto place = static_cast<std::size_t>(code);
    return code >= 0 && place < words.size() ? words[place] : words.front();
}

std::string_view YesOrNo(bool is) {
    return is ? "Yes" : "No";
}

std::string Feet(std::int32_t metres) {
    return Concat(WholeFeet(metres), "ft");
}

std::string Degrees(double degrees) {
    return FormatFixed(degrees, 2);
}

void AppendHeader(std::string& out, std::span<const ReportColumn> columns) {
    out.push_back('\t');
    for (const ReportColumn& column : columns) out.append(PadRight(column.name, column.width));
    out.append(kLineEnd);
}

template <std::size_t Count>
void AppendRow(std::string& out, const std::array<ReportColumn, Count>& columns,
               const std::array<std::string, Count>& fields) {
    out.push_back('\t');
    for (std::size_t i = 0; i < Count; ++i) out.append(PadRight(fields[i], columns[i].width));
    out.append(kLineEnd);
}

void AppendHead(std::string& out, const AirportRecord& airport) {
    const auto line = [&](std::string_view name, std::string_view text) {
        out.append(PadRight(name, kHeadWidth)).append(text).append(kLineEnd);
    };
    const std::string state = airport.State.empty() ? "" : "/" + airport.State;
    line("Airport:", Concat(airport.Name, " (", airport.ICAO, ")"));
    line("Location:", Concat(airport.City, " - ", airport.Country, state, " (", airport.Region, ")"));
    line("Reference Point:", Concat(airport.Latitude, " ", airport.Longitude));
    line("Elevation:", Feet(airport.Elevation));
}

// What differs between the two ends of a runway.
struct ReportedEnd {
    std::string Name;
    double Heading;
    bool Takeoff;
    bool Landing;
    std::int32_t Pattern;
    std::string_view ILSName;
    double ILSHeading;
    std::string_view ILSFrequency;
};

ReportedEnd FirstEnd(const RunwayRecord& runway) {
    return {RunwayName(runway.Number, runway.Kind),
            runway.Heading,
            runway.Takeoff1,
            runway.Landing1,
            runway.Pattern1,
            runway.ILSName1,
            runway.ILSHeading1,
            runway.ILSFrequency1};
}

ReportedEnd SecondEnd(const RunwayRecord& runway) {
    return {OtherRunwayName(runway.Number, runway.Kind),
            runway.Heading < 180 ? runway.Heading + 180.0 : runway.Heading - 180.0,
            runway.Takeoff2,
            runway.Landing2,
            runway.Pattern2,
            runway.ILSName2,
            runway.ILSHeading2,
            runway.ILSFrequency2};
}

// `visit(runway, end)` for each end of each runway, the first before the second. A helipad has only one.
template <typename Visit>
void ForEachEnd(const AirportRecord& airport, Visit visit) {
    for (const RunwayRecord& runway : airport.Runways) {
        visit(runway, FirstEnd(runway));
        if (runway.Kind != kHelipad) visit(runway, SecondEnd(runway));
    }
}

void AppendRunways(std::string& out, const AirportRecord& airport) {
    out.append("\r\nRunways:\r\n");
    AppendHeader(out, kRunwayColumns);
    ForEachEnd(airport, [&](const RunwayRecord& runway, const ReportedEnd& end) {
        AppendRow(out, kRunwayColumns,
                  {end.Name, Feet(airport.Elevation), Degrees(end.Heading), Degrees(runway.MagVar),
                   Feet(runway.Length), Feet(runway.Width), std::string(SurfaceWord(runway.Surface)),
                   std::string(YesOrNo(end.Takeoff)), std::string(YesOrNo(end.Landing)),
                   std::string(WordOf(kPatterns, end.Pattern))});
    });
    out.append(Concat("\r\nMaximum Runway length for Takeoff: ", airport.TakeoffLength, "ft\r\n",
                      "Maximum Runway length for Landing: ", airport.LandingLength, "ft\r\n"));
}

void AppendILS(std::string& out, const AirportRecord& airport) {
    out.append("\r\nILS:\r\n");
    AppendHeader(out, kILSColumns);
    ForEachEnd(airport, [&](const RunwayRecord&, const ReportedEnd& end) {
        if (end.ILSName.empty()) return;
        AppendRow(
            out, kILSColumns,
            {end.Name, std::string(end.ILSName), Degrees(end.ILSHeading), std::string(end.ILSFrequency)});
    });
}

void AppendFrequencies(std::string& out, const AirportRecord& airport) {
    out.append("\r\nFrequencies:\r\n");
    AppendHeader(out, kFrequencyColumns);
    for (const FrequencyRecord& frequency : airport.Frequencies) {
        AppendRow(
            out, kFrequencyColumns,
            {frequency.Name, std::string(WordOf(kFrequencyTypes, frequency.Type)), frequency.Frequency});
    }
}

void AppendParkings(std::string& out, const AirportRecord& airport) {
    out.append(Concat("\r\nParking (", airport.Parkings.size(), "):\r\n\r\n"));
    for (const std::int32_t counted : kCountedClasses) {
        const auto count =
            std::count_if(airport.Parkings.begin(), airport.Parkings.end(),
                          [&](const ParkingRecord& parking) { return parking.Class == counted; });
        const std::string label = Concat(ParkingClassWord(counted), ":");
        out.append(Concat("\t", PadRight(label, kCountWidth), count, kLineEnd));
    }
    out.append(kLineEnd);
    AppendHeader(out, kParkingColumns);
    for (const ParkingRecord& parking : airport.Parkings) {
        AppendRow(out, kParkingColumns,
                  {parking.Name, std::string(ParkingClassWord(parking.Class)),
                   Concat(FormatFixed(parking.Radius * kFeetPerMetre, 1), "ft"), Degrees(parking.Heading)});
    }
}

}  // namespace

std::string_view SurfaceWord(std::int32_t code) {
    return WordOf(kSurfaces, code);
}

std::string_view ParkingClassWord(std::int32_t code) {
    return WordOf(kParkingClassNames, code);
}

std::string AirportReport(const AirportRecord& airport) {
    std::string out;
    AppendHead(out, airport);
    AppendRunways(out, airport);
    AppendILS(out, airport);
    AppendFrequencies(out, airport);
    AppendParkings(out, airport);
    return out;
}

}  // namespace orlo

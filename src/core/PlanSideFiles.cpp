#include "core/PlanSideFiles.h"

#include <algorithm>

#include "core/Application.h"
#include "core/ContentHash.h"
#include "core/FlightplanFile.h"
#include "core/Number.h"
#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::size_t kNumberStart = 3;          // behind "AC#"
constexpr std::uint64_t kUsualAirportLine = 32;  // bytes
constexpr std::uint64_t kMostReserved = 64 * 1024;

// Hands each line that is no comment and has exactly `fieldCount` fields to `take`; `known` hears whether
// those were all lines but blank ones. False where the file can't be opened.
template <typename Take>
bool ReadRecords(FileSystem& files, const std::string& path, std::size_t fieldCount, KnownFiles& known,
                 Take take) {
    const auto stamp = files.Stamp(path);
    const auto file = files.OpenForReading(path);
    if (!file) return false;
    bool whole = true;
    HashedInput hashed(*file);
    LineReader lines(hashed);
    while (const auto line = lines.Next()) {
        const std::string_view trimmed = TrimBlanks(*line);
        const std::string_view text = CutComments(trimmed);
        if (text.size() != trimmed.size()) whole = false;
        if (text.empty()) continue;
        if (static_cast<std::size_t>(std::count(text.begin(), text.end(), ',')) + 1 != fieldCount) {
            whole = false;
            continue;
        }
        take(SplitText(text, ','));
    }
    known.Know(path, stamp, hashed.Hash(), whole);
    return true;
}

// Quotes go before blanks, so a quote behind a leading blank stays.
std::string TitleOf(std::string_view field) {
    if (!field.empty() && field.front() == '"') field.remove_prefix(1);
    if (!field.empty() && field.back() == '"') field.remove_suffix(1);
    return std::string(TrimBlanks(field));
}

std::string BesidePlan(const Plan& plan, std::string_view name) {
    return JoinPath(ParentFolder(plan.FlightplanPath), name);
}

}  // namespace

std::string PlanAircraftPath(const Plan& plan) {
    return BesidePlan(plan, "Aircraft.txt");
}
std::string PlanAirportsPath(const Plan& plan) {
    return BesidePlan(plan, "Airports.txt");
}

std::int32_t AircraftNumber(std::string_view acNumber) {
    if (acNumber.size() <= kNumberStart) return 0;
    return ParseWholeNumber(acNumber.substr(kNumberStart)).value_or(0);
}

void ReadPlanAircraft(Plan& plan, Services& services) {
    plan.PlanAircrafts.clear();
    plan.MaxACNumber = 0;
    const bool read =
        ReadRecords(services.files, PlanAircraftPath(plan), 3, plan.Known, [&](const auto& fields) {
            PlanAircraft aircraft;
            aircraft.ACNumber = TrimBlanks(fields[0]);
            aircraft.CruiseSpeed = TrimBlanks(fields[1]);
            aircraft.Title = TitleOf(fields[2]);
            plan.MaxACNumber = std::max(plan.MaxACNumber, AircraftNumber(fields[0]));
            plan.PlanAircrafts.push_back(std::move(aircraft));
        });
    if (!read) {
        ShowMessage(services.messages,
                    "File 'AIRCRAFT.TXT' not found.  Please copy the file to the Flightplan folder.",
                    kMarkCritical);
    }
}

void ReadPlanAirports(Plan& plan, Services& services) {
    plan.PlanAirports.clear();
    plan.PlanAirportIndex.Clear();
    const std::uint64_t size = services.files.FileSize(PlanAirportsPath(plan)).value_or(0);
    plan.PlanAirportIndex.Reserve(std::min<std::uint64_t>(size / kUsualAirportLine, kMostReserved));
    const bool read =
        ReadRecords(services.files, PlanAirportsPath(plan), 4, plan.Known, [&](const auto& fields) {
            PlanAirport airport;
            airport.ICAO = TrimBlanks(fields[0]);
            airport.Latitude = TrimBlanks(fields[1]);
            airport.Longitude = TrimBlanks(fields[2]);
            airport.Altitude = TrimBlanks(fields[3]);
            plan.PlanAirportIndex.Add(airport.ICAO, plan.PlanAirportCount());
            plan.PlanAirports.push_back(std::move(airport));
        });
    if (!read) {
        ShowMessage(services.messages,
                    "File 'AIRPORTS.TXT' not found. Please copy the file to the Flightplan folder.",
                    kMarkCritical);
    }
}

std::string FormatPlanAircraft(const Plan& plan) {
    std::string text;
    for (const PlanAircraft& aircraft : plan.PlanAircrafts) {
        text.append(Concat(aircraft.ACNumber, ",", aircraft.CruiseSpeed, ",\"", aircraft.Title, "\"\r\n"));
    }
    return text;
}

bool WritePlanAircraft(Plan& plan, FileSystem& files) {
    return plan.Known.Replace(files, PlanAircraftPath(plan), FormatPlanAircraft(plan));
}

}  // namespace orlo

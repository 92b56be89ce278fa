#include "simulator/BglAirport.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "core/Number.h"
#include "core/TextLines.h"
#include "simulator/BglText.h"
#include "simulator/ByteReader.h"

namespace orlo {
namespace {

constexpr std::uint64_t kTextStart = 8;  // of a text, from the sub-record's start
constexpr std::uint64_t kRunwayStart = 28;
constexpr std::uint64_t kILSStart = 32;

// An angle is stored as a fraction of the circle.
float CircleHeading(std::int32_t value) {
    const double degrees = value / kFullTurn * 360;
    return static_cast<float>(degrees < 0 ? degrees + 360 : degrees);
}

// Stored with the opposite sign. Adding 0 turns the -0 of no variation into 0.
float MagneticVariation(std::int32_t value) {
    return static_cast<float>(value / kFullTurn * -360 + 0.0);
}

void ReadReferencePoint(const BglSubRecord& subRecord, AirportRecord& record) {
    ByteReader reader(subRecord.Bytes, 12);
    const std::int32_t latitude = reader.Int32();
    reader.Skip(4);
    const std::int32_t longitude = reader.Int32();
    reader.Skip(4);
    const std::int32_t elevation = reader.Int32();
    if (!reader.Ok()) return;
    record.Latitude = LatitudeText(latitude);
    record.Longitude = LongitudeText(longitude);
    record.Elevation = elevation;
}

// Two bits of the flags word: 0 none, 1 left, 2 right; 3 has no meaning and is read as none.
std::int32_t TrafficPattern(std::uint32_t flags, int shift) {
    const std::uint32_t pattern = flags >> shift & 3;
    return pattern == 3 ? 0 : static_cast<std::int32_t>(pattern);
}

void ReadRunway(const BglSubRecord& subRecord, AirportRecord& record) {
    ByteReader reader(subRecord.Bytes, kRunwayStart);
    RunwayRecord runway;
    runway.Number = reader.Int32();
    runway.Heading = CircleHeading(reader.Int32());
    runway.MagVar = MagneticVariation(reader.Int32());
    runway.Length = reader.Int32();
    runway.Width = reader.Int32();
    runway.Kind = reader.Int32();
    runway.Further1 = reader.Int32();
    runway.Surface = reader.Int32();
    const std::uint32_t flags = reader.Dword();
    runway.Further2 = reader.Int32();
    if (!reader.Ok()) return;
    runway.Takeoff1 = (flags & 1) != 0;
    runway.Landing1 = (flags & 2) != 0;
    runway.Takeoff2 = (flags & 4) != 0;
    runway.Landing2 = (flags & 8) != 0;
    runway.Pattern1 = TrafficPattern(flags, 4);
    runway.Pattern2 = TrafficPattern(flags, 6);
    runway.Name = RunwayName(runway.Number, runway.Kind);
    runway.Ident = OtherRunwayName(runway.Number, runway.Kind);
    record.Runways.push_back(std::move(runway));
}

// Belongs to the runway before it.
void ReadILS(const BglSubRecord& subRecord, AirportRecord& record) {
    ByteReader reader(subRecord.Bytes, kILSStart);
    const std::uint32_t frequency = reader.Dword();
    reader.Skip(4);
    const std::uint32_t end = reader.Dword();
    const std::int32_t heading = reader.Int32();
    reader.Skip(4);  // its kind
    const std::string_view name = ReadZeroText(reader);
    if (!reader.Ok() || record.Runways.empty()) return;
    RunwayRecord& runway = record.Runways.back();
    if (end == 1) {
        runway.ILSFrequency1 = FrequencyText(frequency);
        runway.ILSHeading1 = CircleHeading(heading);
        runway.ILSName1 = name;
    } else if (end == 2) {
        runway.ILSFrequency2 = FrequencyText(frequency);
        runway.ILSHeading2 = CircleHeading(heading);
        runway.ILSName2 = name;
    }
}

void ReadICAO(const BglSubRecord& subRecord, AirportRecord& record) {
    ByteReader reader(subRecord.Bytes, kTextStart);
    const std::string_view code = ReadZeroText(reader);
    if (reader.Ok()) record.ICAO = code.substr(0, kLongestBglText);
}

void ReadParkings(const BglSubRecord& subRecord, AirportRecord& record) {
    const BglParkingBlock block = FindParkingEntries(subRecord);
    ByteReader reader(subRecord.Bytes, block.Start);
    record.Parkings.reserve(record.Parkings.size() + block.Count);
    for (std::size_t i = 0; i < block.Count; ++i) {
        ParkingRecord& parking = record.Parkings.emplace_back();
        parking.Number = reader.Int32();
        parking.Reserved = reader.Int32();
        parking.Radius = reader.Single();
        parking.Heading = CircleHeading(reader.Int32());
        const std::uint32_t word = reader.Dword();
        parking.Class = static_cast<std::int32_t>(word >> 20 & 15);
        parking.Name = ParkingName(word & 0xFFFF);
        parking.Raw = static_cast<std::int32_t>(word);
    }
}

void ReadFrequency(const BglSubRecord& subRecord, AirportRecord& record) {
    ByteReader reader(subRecord.Bytes, kTextStart);
    FrequencyRecord frequency;
    frequency.Frequency = FrequencyText(reader.Dword());
    frequency.Type = reader.Int32();
    frequency.Name = ReadZeroText(reader);
    if (reader.Ok()) record.Frequencies.push_back(std::move(frequency));
}

void ReadSubRecord(const BglSubRecord& subRecord, AirportRecord& record) {
    switch (subRecord.Type) {
        case kBglReferencePoint:
            return ReadReferencePoint(subRecord, record);
        case kBglRunway:
            return ReadRunway(subRecord, record);
        case kBglILS:
            return ReadILS(subRecord, record);
        case kBglICAO:
            return ReadICAO(subRecord, record);
        case kBglParking:
            return ReadParkings(subRecord, record);
        case kBglFrequency:
            return ReadFrequency(subRecord, record);
        default:
            return;
    }
}

SurfaceClass ClassOfSurface(std::int32_t code) {
    switch (code) {
        case 1:
        case 4:
        case 5:
        case 6:
        case 7:
            return kSurfaceSoft;
        case 8:
            return kSurfaceSnow;
        case 9:
        case 10:
            return kSurfaceWater;
        default:
            return kSurfaceHard;
    }
}

// Whether the radius is a 32-bit number; any other counts for no limit.
bool IsWholeRadius(float radius) {
    return std::abs(static_cast<double>(radius)) < std::numeric_limits<std::int32_t>::max();
}

}  // namespace

bool EnterLevel(const BglEntry& entry, AirportRecord& place) {
    switch (entry.Type) {
        case kBglRegion:
            place.Region = entry.Text;
            place.Country.clear();
            place.State.clear();
            place.City.clear();
            return true;
        case kBglCountry:
            place.Country = entry.Text;
            place.State.clear();
            place.City.clear();
            return true;
        case kBglState:
            place.State = entry.Text;
            place.City.clear();
            return true;
        case kBglCity:
            place.City = entry.Text;
            return true;
        default:
            return false;
    }
}

bool ReadAFDFile(FileSystem& files, const std::string& path, std::vector<AirportRecord>& records) {
    const auto bytes = ReadWholeFile(files, path);
    return bytes && ReadAFDBytes(*bytes, records);
}

bool ReadAFDBytes(std::string_view bytes, std::vector<AirportRecord>& records) {
    BglFile file(bytes);
    AirportRecord place;  // holds the hierarchy at the present entry, and nothing else
    return file.WalkEntries([&](const BglEntry& entry) {
        if (EnterLevel(entry, place) || entry.Type != kBglAirport) return true;
        AirportRecord& record = records.emplace_back(place);
        record.Name = entry.Text;
        ReadAirportBody(file, entry.Value, record);
        ComputeAirportLimits(record);
        return true;
    });
}

void ReadAirportBody(BglFile& file, std::uint32_t bodyPosition, AirportRecord& record) {
    file.WalkBody(bodyPosition, [&](const BglSubRecord& subRecord) {
        ReadSubRecord(subRecord, record);
        return true;
    });
}

void ComputeAirportLimits(AirportRecord& record) {
    const AirportRecord none;
    record.MaxParkingRadius = none.MaxParkingRadius;
    record.MinParkingRadius = none.MinParkingRadius;
    for (const ParkingRecord& parking : record.Parkings) {
        if (!IsWholeRadius(parking.Radius)) continue;
        const auto radius = static_cast<std::int32_t>(RoundHalfEven(parking.Radius));
        record.MaxParkingRadius = std::max(record.MaxParkingRadius, radius);
        record.MinParkingRadius = std::min(record.MinParkingRadius, radius);
    }
    record.TakeoffLength = record.LandingLength = 0;
    record.TakeoffSurface = record.LandingSurface = kSurfaceNone;
    for (const RunwayRecord& runway : record.Runways) {
        if (runway.Kind == kHelipad) continue;
        if ((runway.Takeoff2 || runway.Takeoff1) && runway.Length > record.TakeoffLength) {
            record.TakeoffLength = runway.Length;
            record.TakeoffSurface = ClassOfSurface(runway.Surface);
        }
        if ((runway.Landing2 || runway.Landing1) && runway.Length > record.LandingLength) {
            record.LandingLength = runway.Length;
            record.LandingSurface = ClassOfSurface(runway.Surface);
        }
    }
}

}  // namespace orlo

#include "SceneryWriter.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <string>
#include <tuple>

#include "Output.h"

namespace orlo::world {

namespace {

constexpr std::uint32_t PointerToSection = 156, FirstBody = 256;
constexpr std::size_t AirportsPerFile = 1000;

// The scenery's units: 10001750 for a right angle of latitude, 2^32 for a full turn of longitude. One unit
// more than the whole number of units, so that a reader that cuts the minutes off behind their decimals meets
// the same hundredths of a minute.
std::int32_t LatitudeUnits(int angle) {
    const std::int64_t size = std::abs(angle) * std::int64_t{10001750} / (90 * 6000) + 1;
    return static_cast<std::int32_t>(angle < 0 ? -size : size);
}

std::int32_t LongitudeUnits(int angle) {
    const std::int64_t size = std::abs(angle) * (std::int64_t{1} << 32) / (360 * 6000) + 1;
    return static_cast<std::int32_t>(angle < 0 ? -size : size);
}

std::uint32_t TurnUnits(int degrees) {
    return static_cast<std::uint32_t>(degrees % 360 * (std::int64_t{1} << 32) / 360);
}

// 118025 kHz is stored as 0x118025.
std::uint32_t FrequencyDigits(int kHz) {
    std::uint32_t value = 0;
    for (int shift = 0; kHz > 0; shift += 4, kHz /= 10)
        value |= static_cast<std::uint32_t>(kHz % 10) << shift;
    return value;
}

// A sub-record: its type, its size without these eight bytes, its content.
class SubRecord {
  public:
    SubRecord(Bytes& bytes_, std::uint32_t type) : bytes(bytes_), start(bytes_.Size()) {
        bytes.Put32(type);
        bytes.Put32(0);
    }
    ~SubRecord() { bytes.Set32(start + 4, bytes.Size() - start - 8); }
    SubRecord(const SubRecord&) = delete;
    SubRecord& operator=(const SubRecord&) = delete;

  private:
    Bytes& bytes;
    std::uint32_t start;
};

void PutPosition(Bytes& bytes, const Airport& airport) {
    bytes.Put32(0);
    bytes.PutSigned(LatitudeUnits(airport.Latitude));
    bytes.Put32(0);
    bytes.PutSigned(LongitudeUnits(airport.Longitude));
}

// The reference point must come first: with its size of 28 it brings the code to byte 60 of the body, where
// the resizing of gates looks for it.
void PutReferencePoint(Bytes& bytes, const Airport& airport) {
    const SubRecord record(bytes, 0x00010001);
    PutPosition(bytes, airport);
    bytes.Put32(0);
    bytes.PutSigned(airport.Elevation);
    bytes.Put32(0);
}

void PutCode(Bytes& bytes, const Airport& airport) {
    const SubRecord record(bytes, 0x00010006);
    bytes.PutZeroText(airport.Code);
}

void PutRunway(Bytes& bytes, const Airport& airport, const Runway& runway) {
    const SubRecord record(bytes, 0x00010002);
    PutPosition(bytes, airport);
    bytes.PutSigned(airport.Elevation);
    bytes.PutSigned(runway.Number);
    bytes.Put32(TurnUnits(runway.Number * 10));  // as painted; the true heading is not known here
    bytes.Put32(TurnUnits(360 - runway.MagneticVariation));
    bytes.PutSigned(runway.Length);
    bytes.PutSigned(runway.Width);
    bytes.PutSigned(runway.Designator);
    bytes.Put32(0);
    bytes.PutSigned(runway.SurfaceCode);
    bytes.Put32(runway.Flags);
    bytes.Put32(0);
}

// The landing aid of one end (1 or 2) of the runway written last. Counted from the sub-record's start: 24
// bytes that tell nothing, at 32 the frequency in the digits of FrequencyDigits, at 36 nothing, at 40 the
// end, at 44 the heading as a fraction of the turn, at 48 the kind (1 localizer alone, 2 with a glide path),
// from 52 the name.
void PutIls(Bytes& bytes, const Airport& airport, const Runway& runway, int end) {
    static const char letters[] = {'\0', 'L', 'R', 'C'};
    static const char otherLetters[] = {'\0', 'R', 'L', 'C'};
    const int number = end == 1 ? runway.Number : (runway.Number + 17) % 36 + 1;
    const char letter = (end == 1 ? letters : otherLetters)[runway.Designator % 4];
    std::string name = "IS" + PadNumber(number, 2);
    if (letter != '\0') name += letter;

    const SubRecord record(bytes, 0x00010004);
    bytes.Fill(24);
    bytes.Put32(FrequencyDigits(108100 + (number * 7 + airport.Code.back() + end) % 19 * 200));
    bytes.Put32(0);
    bytes.PutSigned(end);
    bytes.Put32(TurnUnits(number * 10));
    bytes.Put32(runway.Length >= 2500 ? 2 : 1);
    bytes.PutZeroText(name);
}

void PutParkings(Bytes& bytes, const Airport& airport) {
    if (airport.Parkings.empty()) return;
    const SubRecord record(bytes, 0x00011001);
    bytes.Put32(3);  // three blocks of eight bytes to skip
    bytes.Put32(8);
    bytes.Fill(24);
    bytes.Put32(0);
    bytes.Put32(static_cast<std::uint32_t>(airport.Parkings.size()));
    for (const Parking& parking : airport.Parkings) {
        bytes.PutSigned(parking.Number);
        bytes.Put32(0);
        bytes.PutSingle(static_cast<float>(parking.Radius));
        bytes.Put32(TurnUnits(parking.Heading));
        bytes.Put32(static_cast<std::uint32_t>(parking.Class << 20 | parking.Number << 7 | parking.Kind));
    }
}

void PutFrequencies(Bytes& bytes, const Airport& airport) {
    for (const Frequency& frequency : airport.Frequencies) {
        const SubRecord record(bytes, 0x00020001);
        bytes.Put32(FrequencyDigits(frequency.KHz));
        bytes.PutSigned(frequency.Type);
        bytes.PutZeroText(airport.City);
    }
}

// The body: a tag of 1, its length up to the end mark, sub-records from byte 16, an end mark of type 0.
void PutBody(Bytes& bytes, const Airport& airport) {
    const std::uint32_t start = bytes.Size();
    bytes.Put32(1);
    bytes.Put32(0);
    bytes.Fill(8);
    PutReferencePoint(bytes, airport);
    PutCode(bytes, airport);
    for (const Runway& runway : airport.Runways) {
        PutRunway(bytes, airport, runway);
        if (!runway.Ils) continue;
        PutIls(bytes, airport, runway, 1);
        if (runway.Length >= 2500) PutIls(bytes, airport, runway, 2);
    }
    PutParkings(bytes, airport);
    PutFrequencies(bytes, airport);
    bytes.Set32(start + 4, bytes.Size() - start);
    bytes.Put32(0);
    bytes.Put32(0);
}

// One link of the chain of places. Both link values point behind the entry; they are 0 in the last one.
void PutEntry(Bytes& bytes, std::uint32_t type, std::uint32_t value, const std::string& text,
              bool last = false) {
    bytes.Put32(type);
    bytes.Put32(value);
    bytes.PutZeroText(text);
    const std::uint32_t next = last ? 0 : bytes.Size() + 8;
    bytes.Put32(next);
    bytes.Put32(next);
}

// Writes the levels on which the airport's place differs from the one before. A level that is named clears
// those below.
void PutPlace(Bytes& bytes, const Airport& airport, const Airport* before) {
    bool differs = before == nullptr || airport.Region != before->Region;
    if (differs) PutEntry(bytes, 0x00010001, 0, airport.Region);
    differs = differs || airport.Country != before->Country;
    if (differs) PutEntry(bytes, 0x00020001, 0, airport.Country);
    differs = differs || airport.State != before->State;
    if (differs && !airport.State.empty()) PutEntry(bytes, 0x00030001, 0, airport.State);
    differs = differs || airport.City != before->City;
    if (differs) PutEntry(bytes, 0x00040001, 0, airport.City);
}

void PutSection(Bytes& bytes, const std::vector<const Airport*>& airports,
                const std::vector<std::uint32_t>& bodies) {
    bytes.Set32(PointerToSection, bytes.Size());
    bytes.Put32(0x00030001);
    bytes.Fill(16);
    bytes.Put32(static_cast<std::uint32_t>(airports.size()));
    bytes.Fill(8);
    for (std::size_t i = 0; i < airports.size(); ++i) {
        PutPlace(bytes, *airports[i], i == 0 ? nullptr : airports[i - 1]);
        PutEntry(bytes, 0x00050001, bodies[i], airports[i]->Name);
        if (i % 7 == 3) PutEntry(bytes, i % 2 == 0 ? 0x00050003 : 0x00050004, 5, "passed over");
    }
    PutEntry(bytes, 0x00050004, 0, "", true);
}

void WriteSceneryFile(const std::filesystem::path& path, const std::vector<const Airport*>& airports) {
    Bytes bytes;
    bytes.Fill(FirstBody);
    std::vector<std::uint32_t> bodies;
    for (const Airport* airport : airports) {
        bodies.push_back(bytes.Size());
        PutBody(bytes, *airport);
    }
    PutSection(bytes, airports, bodies);
    WriteBytes(path, bytes.Data());
}

// A file whose section begins with another value than a reader expects.
void WriteOtherFile(const std::filesystem::path& path) {
    Bytes bytes;
    bytes.Fill(FirstBody);
    bytes.Set32(PointerToSection, FirstBody);
    bytes.Put32(0x00030002);
    bytes.Fill(28);
    WriteBytes(path, bytes.Data());
}

}  // namespace

void WriteScenery(const std::filesystem::path& folder, const std::vector<Airport>& airports) {
    std::vector<const Airport*> sorted;
    for (const Airport& airport : airports) sorted.push_back(&airport);
    std::sort(sorted.begin(), sorted.end(), [](const Airport* left, const Airport* right) {
        return std::tie(left->Region, left->Country, left->State, left->City, left->Code) <
               std::tie(right->Region, right->Country, right->State, right->City, right->Code);
    });
    // A small world still gets several files.
    const std::size_t perFile = std::min(AirportsPerFile, sorted.size() / 4 + 1);
    for (std::size_t first = 0, number = 0; first < sorted.size(); first += perFile, ++number) {
        const auto from = sorted.begin() + static_cast<std::ptrdiff_t>(first);
        const auto to =
            sorted.begin() + static_cast<std::ptrdiff_t>(std::min(sorted.size(), first + perFile));
        const std::string name =
            "AF" + PadNumber(static_cast<int>(number), 3) + (number % 2 == 0 ? ".BGL" : ".bgl");
        WriteSceneryFile(folder / name, {from, to});
    }
    WriteOtherFile(folder / "OTHER.BGL");
}

}  // namespace orlo::world

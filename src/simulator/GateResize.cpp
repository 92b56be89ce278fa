#include "simulator/GateResize.h"

#include <algorithm>
#include <bit>

#include "core/LittleEndian.h"
#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "simulator/BglAirport.h"
#include "simulator/BglFile.h"
#include "simulator/ByteReader.h"
#include "simulator/Scenery.h"

namespace orlo {
namespace {

constexpr std::uint64_t kCodePosition = 60;  // within an airport's body
constexpr std::size_t kRadiusInEntry = 8;    // the radius, and behind it
constexpr std::size_t kWordInEntry = 16;     // the word with the class
constexpr std::size_t kRadiusSize = 4;

bool PlaceContains(const AirportRecord& place, std::string_view text) {
    for (const std::string* name : {&place.City, &place.Region, &place.Country, &place.Name, &place.State}) {
        if (ContainsNoCase(*name, text)) return true;
    }
    return false;
}

bool CodeContains(std::string_view bytes, std::uint32_t body, std::string_view text) {
    ByteReader reader(bytes, body + kCodePosition);
    const std::string_view code = reader.Bytes(std::min<std::size_t>(reader.Left(), kLongestBglText));
    return ContainsNoCase(code.substr(0, code.find('\0')), text);
}

bool Qualifies(std::string_view bytes, std::uint32_t body, const AirportRecord& place,
               const GateResize& resize) {
    return (!resize.Search.empty() && PlaceContains(place, resize.Search)) ||
           (!resize.ICAO.empty() && CodeContains(bytes, body, resize.ICAO));
}

// The first block of parkings in the body; without bytes where there is none.
BglSubRecord FirstParkings(BglFile& file, std::uint32_t body) {
    BglSubRecord found;
    file.WalkBody(body, [&found](const BglSubRecord& subRecord) {
        if (subRecord.Type == kBglParking) found = subRecord;
        return subRecord.Type != kBglParking;
    });
    return found;
}

// Of the entry that starts there, from the third byte of its word.
std::int32_t ClassOfEntry(std::string_view block, std::size_t entry) {
    return static_cast<unsigned char>(block[entry + kWordInEntry + 2]) >> 4;
}

// From the first to the last radius of the class in the block.
void AddPatch(const BglSubRecord& parkings, const BglParkingBlock& block, const GateResize& resize,
              ResizedGates& gates) {
    std::string radius;
    AppendLittleEndian(radius, std::bit_cast<std::uint32_t>(resize.Radius), 4);
    FilePatch patch;
    std::size_t start = 0;  // of the patch, counted from the sub-record's start
    std::size_t entry = block.Start;
    for (std::size_t i = 0; i < block.Count; ++i, entry += kBglParkingEntrySize) {
        if (ClassOfEntry(parkings.Bytes, entry) != resize.Class) continue;
        const std::size_t place = entry + kRadiusInEntry;
        if (patch.bytes.empty()) start = place;
        const std::size_t patched = start + patch.bytes.size();
        patch.bytes.append(parkings.Bytes, patched, place - patched).append(radius);
        ++gates.count;
    }
    if (patch.bytes.empty()) return;
    patch.position = parkings.Start + start;
    gates.patches.push_back(std::move(patch));
}

bool ResizeFile(FileSystem& files, const std::string& path, const GateResize& resize,
                const BackUpFile& backUp, ResizeOutcome& outcome) {
    if (backUp && !backUp(path)) return false;
    const auto bytes = ReadWholeFile(files, path);
    if (!bytes) return false;
    const ResizedGates gates = FindGates(*bytes, resize);
    if (!gates.patches.empty() && !files.PatchFile(path, gates.patches)) return false;
    outcome.count += gates.count;
    if (!gates.skippedAirport.empty() && outcome.notWritten.empty())
        outcome.notWritten = Concat(path, ", ", gates.skippedAirport);
    return true;
}

}  // namespace

ResizedGates FindGates(std::string_view bytes, const GateResize& resize) {
    ResizedGates gates;
    BglFile file(bytes);
    const bool all = resize.Search.empty() && resize.ICAO.empty();
    AirportRecord place;
    file.WalkEntries([&](const BglEntry& entry) {
        if (!all) EnterLevel(entry, place);
        if (entry.Type != kBglAirport) return true;
        place.Name = entry.Text;
        if (!all && !Qualifies(bytes, entry.Value, place, resize)) return true;
        const BglSubRecord parkings = FirstParkings(file, entry.Value);
        if (parkings.Bytes.empty()) return true;
        const BglParkingBlock block = FindParkingEntries(parkings);
        if (block.Complete) {
            AddPatch(parkings, block, resize, gates);
        } else if (gates.skippedAirport.empty()) {
            gates.skippedAirport = place.Name;
        }
        return true;
    });
    return gates;
}

ResizeOutcome ResizeAllFiles(FileSystem& files, const std::string& sceneryFolder, const GateResize& resize,
                             const BackUpFile& backUp) {
    ResizeOutcome outcome;
    for (const std::string& name : SceneryFileNames(files, sceneryFolder)) {
        const std::string path = JoinPath(sceneryFolder, name);
        if (!ResizeFile(files, path, resize, backUp, outcome) && outcome.notWritten.empty())
            outcome.notWritten = path;
    }
    return outcome;
}

}  // namespace orlo

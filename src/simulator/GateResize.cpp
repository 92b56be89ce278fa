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

// Writes one radius at places of a file, mostly from the front to the back. Places close together become one
// patch, with the file's bytes between them; behind a place that lies in front of the last, as damaged data
// have it, each is a patch of its own, so that no patch puts back what another wrote.
class RadiusWriter {
  public:
    RadiusWriter(std::string_view bytes, float radius, std::vector<FilePatch>& patches)
        : bytes_(bytes), patches_(patches) {
        AppendLittleEndian(radius_, std::bit_cast<std::uint32_t>(radius), 4);
    }

    void Write(std::size_t place) {
        forward_ = forward_ && place >= end_;
        if (patches_.empty() || !forward_ || place - end_ > kLargestGap) {
            patches_.push_back({place, radius_});
        } else {
            patches_.back().bytes.append(bytes_, end_, place - end_).append(radius_);
        }
        end_ = place + radius_.size();
    }

  private:
    static constexpr std::size_t kLargestGap = 256;

    std::string_view bytes_;
    std::vector<FilePatch>& patches_;
    std::string radius_;
    std::size_t end_ = 0;  // of the last patch
    bool forward_ = true;
};

// Gives how many parkings of the block are of the class.
std::int32_t WriteBlock(const BglSubRecord& parkings, const BglParkingBlock& block, std::int32_t classCode,
                        RadiusWriter& writer) {
    std::int32_t count = 0;
    std::size_t entry = block.Start;
    for (std::size_t i = 0; i < block.Count; ++i, entry += kBglParkingEntrySize) {
        if (ClassOfEntry(parkings.Bytes, entry) != classCode) continue;
        writer.Write(parkings.Start + entry + kRadiusInEntry);
        ++count;
    }
    return count;
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
    RadiusWriter writer(bytes, resize.Radius, gates.patches);
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
            gates.count += WriteBlock(parkings, block, resize.Class, writer);
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

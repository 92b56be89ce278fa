#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

namespace orlo {

// The walk over the airport facility data of a scenery file: the entries of its AFD section, and the
// sub-records of an airport's body. docs/scenery-files.md shows the layout. Positions and sizes are checked
// against the file's bytes; a wrong one ends the walk.

enum BglEntryType : std::uint32_t {
    kBglRegion = 0x00010001,
    kBglCountry = 0x00020001,
    kBglState = 0x00030001,
    kBglCity = 0x00040001,
    kBglAirport = 0x00050001,
};

// One entry of the AFD section.
struct BglEntry {
    std::uint32_t Type = 0;   // a BglEntryType, or any other
    std::uint32_t Value = 0;  // of an airport: position of its body in the file
    std::string_view Text;    // at most kLongestBglText bytes
};

enum BglSubRecordType : std::uint32_t {
    kBglBodyEnd = 0,
    kBglReferencePoint = 0x00010001,
    kBglRunway = 0x00010002,
    kBglILS = 0x00010004,
    kBglICAO = 0x00010006,
    kBglParking = 0x00011001,
    kBglFrequency = 0x00020001,
};

// One sub-record of an airport's body.
struct BglSubRecord {
    std::uint32_t Type = 0;  // a BglSubRecordType other than kBglBodyEnd, or any other
    std::size_t Start = 0;   // position in the file
    std::string_view Bytes;  // from Start on, its own header included, up to its end or the end of the file
};

// The entries of a parking sub-record.
struct BglParkingBlock {
    std::size_t Start = 0;  // of the first entry, counted from the sub-record's start
    std::size_t Count = 0;  // whole entries that the sub-record really holds
    bool Complete = false;  // as many as it tells
};

// A longer text is cut: texts of the hierarchy are copied into each airport below them.
inline constexpr std::size_t kLongestBglText = 255;
inline constexpr std::size_t kBglParkingEntrySize = 20;

// The walks over one scenery file, whose bytes the owner keeps. In a true file sub-records never overlap, so
// together they are no longer than the file. All walks together therefore see no more bytes than that, so a
// file whose entries share bodies can't keep the reader busy.
class BglFile {
  public:
    // A visitor that gives false ends the walk.
    using EntryVisitor = std::function<bool(const BglEntry&)>;
    using SubRecordVisitor = std::function<bool(const BglSubRecord&)>;

    explicit BglFile(std::string_view bytes) : bytes_(bytes), unseen_(bytes.size()) {}

    // The entries of the AFD section in their order. False when the file has no such section.
    bool WalkEntries(const EntryVisitor& visit) const;

    // The sub-records of the airport's body at a position of the file, up to the end mark, which is not
    // shown. False when no body stands there.
    bool WalkBody(std::uint32_t bodyPosition, const SubRecordVisitor& visit);

  private:
    std::string_view bytes_;
    std::uint64_t unseen_;
};

// Where the entries of a parking sub-record stand; a count of 0 where its header is cut.
BglParkingBlock FindParkingEntries(const BglSubRecord& subRecord);

}  // namespace orlo

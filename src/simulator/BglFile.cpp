#include "simulator/BglFile.h"

#include <algorithm>

#include "simulator/ByteReader.h"

namespace orlo {
namespace {

constexpr std::uint64_t kSectionPointer = 156;  // where the position of the AFD section stands
constexpr std::uint32_t kSectionTag = 0x00030001;
constexpr std::uint64_t kSectionCount = 20;  // within the section's header
constexpr std::uint64_t kSectionHeaderSize = 32;

constexpr std::uint32_t kBodyTag = 1;
constexpr std::uint64_t kFirstSubRecord = 16;  // within the body
constexpr std::uint64_t kBodyLengthSlack = 9;  // a sub-record starts at most this far behind the length
constexpr std::uint64_t kSubRecordHeaderSize = 8;

}  // namespace

bool BglFile::WalkEntries(const EntryVisitor& visit) const {
    const std::uint32_t section = ByteReader(bytes_, kSectionPointer).Dword();
    if (ByteReader(bytes_, section).Dword() != kSectionTag) return false;

    std::uint32_t link = ByteReader(bytes_, section + kSectionCount).Dword();
    ByteReader reader(bytes_, section + kSectionHeaderSize);
    while (link != 0) {
        BglEntry entry;
        entry.Type = reader.Dword();
        entry.Value = reader.Dword();
        entry.Text = ReadZeroText(reader).substr(0, kLongestBglText);
        if (!reader.Ok() || !visit(entry)) break;
        const std::uint32_t firstLink = reader.Dword();
        const std::uint32_t secondLink = reader.Dword();
        link = firstLink == 0 ? 0 : secondLink;
    }
    return true;
}

bool BglFile::WalkBody(std::uint32_t bodyPosition, const SubRecordVisitor& visit) {
    ByteReader body(bytes_, bodyPosition);
    const std::uint32_t tag = body.Dword();
    const std::uint64_t length = body.Dword();
    if (!body.Ok() || tag != kBodyTag) return false;

    std::uint64_t offset = kFirstSubRecord;  // within the body
    while (offset <= length + kBodyLengthSlack) {
        ByteReader header(bytes_, bodyPosition + offset);
        BglSubRecord subRecord;
        subRecord.Type = header.Dword();
        const std::uint64_t size = header.Dword() + kSubRecordHeaderSize;
        if (!header.Ok() || subRecord.Type == kBglBodyEnd) break;
        subRecord.Start = static_cast<std::size_t>(bodyPosition + offset);
        subRecord.Bytes = bytes_.substr(subRecord.Start, static_cast<std::size_t>(size));
        if (subRecord.Bytes.size() > unseen_) break;
        unseen_ -= subRecord.Bytes.size();
        if (!visit(subRecord)) break;
        offset += size;
    }
    return true;
}

BglParkingBlock FindParkingEntries(const BglSubRecord& subRecord) {
    ByteReader reader(subRecord.Bytes, kSubRecordHeaderSize);
    const std::uint64_t factor = reader.Dword();
    reader.Skip(factor * reader.Dword());
    reader.Skip(4);
    const std::uint32_t count = reader.Dword();
    if (!reader.Ok()) return {};
    const std::size_t held = std::min<std::size_t>(count, reader.Left() / kBglParkingEntrySize);
    return {reader.Position(), held, held == count};
}

}  // namespace orlo

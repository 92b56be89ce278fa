#include "simulator/AfdCache.h"

#include <bit>
#include <type_traits>
#include <utility>

#include "core/LittleEndian.h"
#include "core/TextLines.h"
#include "simulator/ByteReader.h"

namespace orlo {
namespace {

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr std::int64_t kDaysTo1970 = 25569;  // from 1899-12-30

// The fields of each record are listed once, in the file's order, for the writer and the reader.

template <typename Type, typename Record>
concept RecordOf = std::is_same_v<std::remove_const_t<Type>, Record>;

void WalkFields(auto& walk, RecordOf<ParkingRecord> auto& record) {
    walk(record.Number);
    walk(record.Reserved);
    walk(record.Radius);
    walk(record.Heading);
    walk(record.Class);
    walk(record.Name);
    walk(record.Raw);
}

void WalkFields(auto& walk, RecordOf<FrequencyRecord> auto& record) {
    walk(record.Name);
    walk(record.Frequency);
    walk(record.Type);
}

void WalkFields(auto& walk, RecordOf<RunwayRecord> auto& record) {
    walk(record.Name);
    walk(record.Ident);
    walk(record.Number);
    walk(record.Heading);
    walk(record.MagVar);
    walk(record.Length);
    walk(record.Width);
    walk(record.Kind);
    walk(record.Further1);
    walk(record.Surface);
    walk(record.Landing1);
    walk(record.Takeoff1);
    walk(record.Pattern1);
    walk(record.Landing2);
    walk(record.Takeoff2);
    walk(record.Pattern2);
    walk(record.Further2);
    walk(record.ILSFrequency2);
    walk(record.ILSHeading2);
    walk(record.ILSName2);
    walk(record.ILSHeading1);
    walk(record.ILSFrequency1);
    walk(record.ILSName1);
}

void WalkFields(auto& walk, RecordOf<AirportRecord> auto& record) {
    walk(record.Name);
    walk(record.ICAO);
    walk(record.Latitude);
    walk(record.Longitude);
    walk(record.Elevation);
    walk(record.Region);
    walk(record.Country);
    walk(record.State);
    walk(record.City);
    walk(record.LandingLength);
    walk(record.TakeoffLength);
    walk(record.LandingSurface);
    walk(record.TakeoffSurface);
    walk.List(record.Runways);
    walk.List(record.Parkings);
    walk.List(record.Frequencies);
    walk(record.MaxParkingRadius);
    walk(record.MinParkingRadius);
}

class CacheWriter {
  public:
    std::string bytes;

    void operator()(const std::string& text) {
        const std::size_t length = text.size() < 0xFFFF ? text.size() : 0xFFFF;
        Put(length, 2);
        bytes.append(text, 0, length);
    }
    void operator()(std::int32_t value) { Put(static_cast<std::uint32_t>(value), 4); }
    void operator()(float value) { Put(std::bit_cast<std::uint32_t>(value), 4); }
    void operator()(double value) { Put(std::bit_cast<std::uint64_t>(value), 8); }
    void operator()(bool value) { Put(value ? 0xFFFF : 0, 2); }

    // The list and, behind it, its count as a field of its own.
    template <typename Record>
    void List(const std::vector<Record>& list) {
        const auto count = static_cast<std::int32_t>(list.size());
        Put(list.empty() ? 0 : 1, 2);
        if (!list.empty()) {
            (*this)(count);
            (*this)(std::int32_t{0});
        }
        for (const Record& record : list) WalkFields(*this, record);
        (*this)(count);
    }

  private:
    void Put(std::uint64_t value, int size) { AppendLittleEndian(bytes, value, size); }
};

// Bytes of a record whose texts and lists are all empty: the least that one takes.
template <typename Record>
std::size_t SmallestSize() {
    static const std::size_t size = [] {
        CacheWriter writer;
        const Record empty;
        WalkFields(writer, empty);
        return writer.bytes.size();
    }();
    return size;
}

class CacheReader {
  public:
    explicit CacheReader(std::string_view file) : bytes(file) {}

    ByteReader bytes;
    bool damaged = false;  // it holds something that the writer never writes

    bool Good() const { return bytes.Ok() && !damaged; }

    void operator()(std::string& text) { text = bytes.Bytes(bytes.Word()); }
    void operator()(std::int32_t& value) { value = bytes.Int32(); }
    void operator()(float& value) { value = bytes.Single(); }
    void operator()(double& value) { value = bytes.Double(); }
    void operator()(bool& value) { value = bytes.Word() != 0; }

    template <typename Record>
    void List(std::vector<Record>& list) {
        const std::uint16_t dimensions = bytes.Word();
        if (dimensions == 1) {
            const std::uint32_t count = bytes.Dword();
            if (bytes.Dword() != 0) damaged = true;  // the lower bound
            Records(list, count);
        } else if (dimensions != 0) {
            damaged = true;
        }
        if (bytes.Dword() != list.size()) damaged = true;
    }

    // Reads so many records. A count that the bytes left can't hold is damage, and no memory is reserved for
    // it.
    template <typename Record>
    void Records(std::vector<Record>& list, std::uint32_t count) {
        if (count > bytes.Left() / SmallestSize<Record>()) damaged = true;
        if (!Good()) return;
        list.reserve(count);
        for (std::uint32_t i = 0; i < count && Good(); ++i) WalkFields(*this, list.emplace_back());
    }
};

}  // namespace

double DayCount(std::int64_t seconds) {
    return static_cast<double>(kDaysTo1970) +
           static_cast<double>(seconds) / static_cast<double>(kSecondsPerDay);
}

bool WriteAFDCache(FileSystem& files, const std::string& path, const std::vector<AirportRecord>& records,
                   const AFDCacheHeader& header) {
    CacheWriter writer;
    writer(header.Version);
    writer(header.Date);
    writer(static_cast<std::int32_t>(records.size()));
    const auto file = files.CreateReplacing(path);
    if (!file) return false;
    constexpr std::size_t kPieceSize = 1024 * 1024;
    for (const AirportRecord& record : records) {
        WalkFields(writer, record);
        if (writer.bytes.size() < kPieceSize) continue;
        if (!file->Write(writer.bytes)) return false;
        writer.bytes.clear();
    }
    return file->Write(writer.bytes) && file->Commit();
}

bool ReadAFDCache(FileSystem& files, const std::string& path, std::vector<AirportRecord>& records,
                  AFDCacheHeader& header) {
    const auto file = ReadWholeFile(files, path);
    if (!file) return false;
    CacheReader reader(*file);
    AFDCacheHeader found;
    reader(found.Version);
    if (found.Version != kAFDCacheVersion) return false;
    reader(found.Date);
    reader(found.Count);
    if (found.Count < 0) return false;
    std::vector<AirportRecord> airports;
    reader.Records(airports, static_cast<std::uint32_t>(found.Count));
    if (!reader.Good() || reader.bytes.Left() != 0) return false;
    records = std::move(airports);
    header = std::move(found);
    return true;
}

}  // namespace orlo

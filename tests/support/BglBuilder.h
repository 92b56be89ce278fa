#pragma once

#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlo::test {

// Bytes written one value after the other, little-endian.
struct ByteText {
    std::string bytes;

    ByteText& Word(std::uint32_t value) { return Put(value, 2); }
    ByteText& Dword(std::uint32_t value) { return Put(value, 4); }
    ByteText& Int(std::int32_t value) { return Put(static_cast<std::uint32_t>(value), 4); }
    ByteText& Single(float value) { return Put(std::bit_cast<std::uint32_t>(value), 4); }
    ByteText& ZeroText(std::string_view text) {
        bytes.append(text).push_back('\0');
        return *this;
    }
    ByteText& Fill(std::size_t count) {
        bytes.append(count, 'Z');
        return *this;
    }

  private:
    ByteText& Put(std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i) bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
        return *this;
    }
};

struct BglRunwayFields {
    std::int32_t number = 9;
    std::int32_t kind = 0;
    std::int32_t length = 3000;
    std::int32_t surface = 3;
    std::uint32_t flags = 0x0F;
    std::uint32_t heading = 0x40000000;  // 90 degrees
    std::int32_t magVar = 0;
};

struct BglParkingFields {
    std::int32_t number = 1;
    float radius = 10;
    std::uint32_t word = 0;
    std::uint32_t heading = 0;
};

// An airport's body, sub-record by sub-record. Each method appends one in the layout of the scenery files.
class BglBody {
  public:
    // A size that is given need not be true, nor a count below.
    BglBody& Raw(std::uint32_t type, const std::string& content, std::optional<std::uint32_t> size = {}) {
        records_.Dword(type)
            .Dword(size.value_or(static_cast<std::uint32_t>(content.size())))
            .bytes.append(content);
        return *this;
    }
    BglBody& ReferencePoint(std::int32_t latitude, std::int32_t longitude, std::int32_t elevation) {
        ByteText content;
        content.Fill(4).Int(latitude).Fill(4).Int(longitude).Fill(4).Int(elevation).Fill(4);
        return Raw(0x00010001, content.bytes);
    }
    BglBody& ICAO(std::string_view code) { return Raw(0x00010006, ByteText().ZeroText(code).bytes); }
    BglBody& Runway(const BglRunwayFields& fields = {}) {
        ByteText content;
        content.Fill(20).Int(fields.number).Dword(fields.heading).Int(fields.magVar).Int(fields.length);
        content.Int(45).Int(fields.kind).Int(7).Int(fields.surface).Dword(fields.flags).Int(8);
        return Raw(0x00010002, content.bytes);
    }
    BglBody& ILS(std::uint32_t frequency, std::uint32_t end, std::uint32_t heading, std::string_view name) {
        ByteText content;
        content.Fill(24).Dword(frequency).Fill(4).Dword(end).Dword(heading).Dword(1).ZeroText(name);
        return Raw(0x00010004, content.bytes);
    }
    BglBody& Parkings(const std::vector<BglParkingFields>& parkings,
                      std::optional<std::uint32_t> count = {}) {
        ByteText content;
        content.Dword(3).Dword(8).Fill(24).Dword(7).Dword(
            count.value_or(static_cast<std::uint32_t>(parkings.size())));
        for (const BglParkingFields& parking : parkings) {
            content.Int(parking.number).Int(-1).Single(parking.radius);
            content.Dword(parking.heading).Dword(parking.word);
        }
        return Raw(0x00011001, content.bytes);
    }
    BglBody& Frequency(std::uint32_t value, std::int32_t type, std::string_view name) {
        return Raw(0x00020001, ByteText().Dword(value).Int(type).ZeroText(name).bytes);
    }

    std::string Build(std::uint32_t tag = 1) const {
        const std::size_t length = 16 + records_.bytes.size();
        ByteText body;
        body.Dword(tag).Dword(static_cast<std::uint32_t>(length)).Fill(8).bytes.append(records_.bytes);
        return body.Dword(0).Dword(0).bytes;
    }

  private:
    ByteText records_;
};

// A scenery file: bodies first, then the section with the entries in the order of the calls.
class BglBuilder {
  public:
    std::uint32_t sectionTag = 0x00030001;
    std::uint32_t entryCount = 1;  // of the header

    BglBuilder& Entry(std::uint32_t type, std::uint32_t value, std::string_view text) {
        entries_.push_back({type, value, std::string(text)});
        return *this;
    }
    BglBuilder& Airport(std::string_view name, const std::string& body) {
        Entry(0x00050001, static_cast<std::uint32_t>(kFirstBody + bodies_.size()), name);
        bodies_.append(body);
        return *this;
    }
    BglBuilder& Airport(std::string_view name, const BglBody& body) { return Airport(name, body.Build()); }

    std::string Build() const {
        ByteText file;
        file.Fill(156).Dword(static_cast<std::uint32_t>(kFirstBody + bodies_.size())).bytes.append(bodies_);
        file.Dword(sectionTag).Fill(16).Dword(entryCount).Fill(8);
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            const bool last = i + 1 == entries_.size();  // its links are 0
            file.Dword(entries_[i].type).Dword(entries_[i].value).ZeroText(entries_[i].text);
            const auto next = last ? 0 : static_cast<std::uint32_t>(file.bytes.size() + 8);
            file.Dword(next).Dword(next);
        }
        return file.bytes;
    }

  private:
    static constexpr std::size_t kFirstBody = 160;

    struct EntryFields {
        std::uint32_t type;
        std::uint32_t value;
        std::string text;
    };

    std::vector<EntryFields> entries_;
    std::string bodies_;
};

}  // namespace orlo::test

#include <gtest/gtest.h>

#include "simulator/AfdCache.h"
#include "support/BglBuilder.h"
#include "support/MemoryFileSystem.h"

namespace orlo::test {
namespace {

std::vector<AirportRecord> SampleAirports() {
    AirportRecord full;
    full.Name = "Touat";
    full.ICAO = "DAUA";
    full.Latitude = "N27*50.2558'";
    full.Longitude = "W0*11.0000'";
    full.Elevation = 280;
    full.Region = "Africa";
    full.Country = "Algeria";
    full.State = "-";
    full.City = std::string("A\0\r\n\xFF", 5);
    full.LandingLength = 3000;
    full.TakeoffLength = 3100;
    full.LandingSurface = kSurfaceHard;
    full.TakeoffSurface = kSurfaceSnow;
    RunwayRecord runway{"4L", "22R", 4,    40.5F, -3.25F, 3100,      45,  1,     -1, 3,         true, false,
                        1,    false, true, 2,     -9,     "109.500", 225, "ICD", 45, "110.300", "IAB"};
    full.Runways = {runway, RunwayRecord()};
    full.Parkings = {{1, -1, 14.5F, 359.5F, 8, "21 Gate A", 0x00800A8C}};
    full.Frequencies = {{"Tower", "118.300", 6}, {}};
    full.MaxParkingRadius = 14;
    full.MinParkingRadius = 14;
    AirportRecord none;
    none.Name = "Strip";
    return {full, none};
}

bool Reads(const std::string& bytes) {
    MemoryFileSystem files;
    files.files["cache"] = bytes;
    std::vector<AirportRecord> records(3);
    AFDCacheHeader header;
    header.Count = 77;
    const bool result = ReadAFDCache(files, "cache", records, header);
    // A failure leaves what was there.
    EXPECT_EQ(records.size() == 3 && header.Count == 77, !result);
    return result;
}

TEST(AfdCache, WhatIsWrittenReadsBackEqual) {
    MemoryFileSystem files;
    AFDCacheHeader header;
    header.Date = 45000.25;
    const auto records = SampleAirports();
    ASSERT_TRUE(WriteAFDCache(files, "cache", records, header));
    std::vector<AirportRecord> back;
    AFDCacheHeader headerBack;
    ASSERT_TRUE(ReadAFDCache(files, "cache", back, headerBack));
    EXPECT_EQ(back, records);
    EXPECT_EQ(headerBack.Version, "1.2");
    EXPECT_EQ(headerBack.Date, 45000.25);
    EXPECT_EQ(headerBack.Count, 2);
}

TEST(AfdCache, TheBytesAreThoseOfTheTable) {
    AirportRecord airport;
    airport.ICAO = "AB";
    airport.Runways.resize(1);
    airport.Runways[0].Landing1 = true;
    airport.Runways[0].ILSFrequency2 = "x";
    ByteText expected;
    expected.Word(3).bytes.append("1.2");
    expected.Dword(0).Dword(0x40D00000);  // 16384.0 as a double
    expected.Dword(1);
    expected.Word(0).Word(2).bytes.append("AB");
    expected.Word(0).Word(0).Int(0).Word(0).Word(0).Word(0).Word(0);
    expected.Int(0).Int(0).Int(0).Int(0);
    expected.Word(1).Dword(1).Dword(0);                    // one runway from place 0
    expected.Word(0).Word(0);                              // names
    for (int i = 0; i < 8; ++i) expected.Int(0);           // number to surface
    expected.Word(0xFFFF).Word(0).Int(0);                  // first end
    expected.Word(0).Word(0).Int(0).Int(0);                // second end and the further value
    expected.Word(1).bytes.append("x");                    // frequency, heading, name of the second end
    expected.Single(0).Word(0).Single(0).Word(0).Word(0);  // name; heading, frequency, name of the first
    expected.Int(1).Word(0).Int(0).Word(0).Int(0);         // counts, with two empty lists
    expected.Int(0).Int(9999);
    MemoryFileSystem files;
    AFDCacheHeader header;
    header.Date = 16384;
    ASSERT_TRUE(WriteAFDCache(files, "cache", {airport}, header));
    EXPECT_EQ(files.files["cache"], expected.bytes);
}

TEST(AfdCache, ACutAnywhereAndOtherVersionsAndCountsThatLieAreFailures) {
    MemoryFileSystem files;
    ASSERT_TRUE(WriteAFDCache(files, "cache", SampleAirports(), {}));
    const std::string bytes = files.files["cache"];
    for (std::size_t length = 0; length < bytes.size(); ++length)
        ASSERT_FALSE(Reads(bytes.substr(0, length))) << length;
    EXPECT_TRUE(Reads(bytes));
    EXPECT_FALSE(Reads(bytes + "x"));
    const std::size_t count = 2 + 3 + 8;
    const std::size_t runways = bytes.find("W0*11.0000'") + 11 + 4 + 2 + 6 + 2 + 7 + 2 + 1 + 2 + 5 + 16;
    ASSERT_EQ(bytes.substr(runways, 6), std::string("\1\0\2\0\0\0", 6));
    const struct {
        const char* fault;
        std::size_t at;
        std::string change;
    } cases[] = {
        {"version", 2, "1.1"},
        {"fewer airports", count, ByteText().Int(1).bytes},
        {"more airports", count, ByteText().Int(3).bytes},
        {"airports beyond memory", count, ByteText().Int(INT32_MAX).bytes},
        {"negative count", count, ByteText().Int(-1).bytes},
        {"two dimensions", runways, ByteText().Word(2).bytes},
        {"no dimension", runways, ByteText().Word(0).bytes},
        {"runways beyond memory", runways + 2, ByteText().Dword(0xFFFFFFFF).bytes},
        {"fewer runways", runways + 2, ByteText().Dword(1).bytes},
        {"lower bound", runways + 6, ByteText().Dword(1).bytes},
    };
    for (const auto& one : cases) {
        std::string damaged = bytes;
        damaged.replace(one.at, one.change.size(), one.change);
        EXPECT_FALSE(Reads(damaged)) << one.fault;
    }
}

}  // namespace
}  // namespace orlo::test

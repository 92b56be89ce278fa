#include <gtest/gtest.h>

#include <limits>
#include <map>

#include "core/Settings.h"
#include "core/TextLines.h"
#include "platform/TemporaryFolder.h"
#include "simulator/AfdCache.h"
#include "simulator/BglAirport.h"
#include "simulator/GreatCircle.h"
#include "simulator/Scenery.h"
#include "support/BglBuilder.h"
#include "support/FakeHosts.h"

namespace orlo::test {
namespace {

std::vector<AirportRecord> Read(const std::string& bytes) {
    std::vector<AirportRecord> records;
    ReadAFDBytes(bytes, records);
    return records;
}

AirportRecord ReadOne(const BglBody& body) {
    const auto records = Read(BglBuilder().Airport("One", body).Build());
    return records.empty() ? AirportRecord() : records.front();
}

// One airport with a sub-record of each kind.
BglBody FullBody() {
    BglBody body;
    body.ReferencePoint(3093608, -1 << 30, 280).ICAO("DAUA");
    body.Runway({.number = 4,
                 .kind = 1,
                 .length = 3000,
                 .surface = 3,
                 .flags = 0x95,
                 .heading = 0xC0000000,
                 .magVar = 0x40000000});
    body.ILS(0x110300, 1, 0x20000000, "IAB").ILS(0x109500, 2, 0xA0000000, "ICD");
    body.Parkings({{12, 14.5F, 0x00800000 | 21 << 7 | 12}, {13, 20.5F, 0x00A00000 | 22 << 7 | 1}});
    body.Frequency(0x118300, 6, "Tower");
    return body;
}

BglBuilder FullFile() {
    BglBuilder file;
    file.Entry(0x00010001, 0, "Africa").Entry(0x00020001, 0, "Algeria").Entry(0x00040001, 0, "Adrar");
    file.Airport("Touat", FullBody());
    return file;
}

TEST(Scenery, AnAirportsBodyGivesAllItsFields) {
    const auto records = Read(FullFile().Build());
    ASSERT_EQ(records.size(), 1u);
    const AirportRecord& airport = records.front();
    EXPECT_EQ(Concat(airport.Name, ":", airport.ICAO, ":", airport.Region, "/", airport.Country, "/",
                     airport.State, "/", airport.City, ":", airport.Elevation),
              "Touat:DAUA:Africa/Algeria//Adrar:280");
    EXPECT_EQ(airport.Latitude + " " + airport.Longitude, "N27*50.2560' W90*0.0000'");
    // Flags of 0x95: takeoff at both ends, left at the first end, right at the second.
    const RunwayRecord runway{"4L", "22R", 4,    270, -90, 3000,      45,  1,     7,  3,         false, true,
                              1,    false, true, 2,   8,   "109.500", 225, "ICD", 45, "110.300", "IAB"};
    EXPECT_EQ(airport.Runways, std::vector{runway});
    const std::int32_t first = 0x00800000 | 21 << 7 | 12, second = 0x00A00000 | 22 << 7 | 1;
    EXPECT_EQ(airport.Parkings, (std::vector<ParkingRecord>{{12, -1, 14.5F, 0, 8, "21 Gate A", first},
                                                            {13, -1, 20.5F, 0, 10, "22 Parking", second}}));
    EXPECT_EQ(airport.Frequencies, (std::vector<FrequencyRecord>{{"Tower", "118.300", 6}}));
    // Halves go to the even number.
    EXPECT_EQ(airport.MinParkingRadius, 14);
    EXPECT_EQ(airport.MaxParkingRadius, 20);
    EXPECT_EQ(Concat(airport.TakeoffLength, " ", airport.TakeoffSurface, " ", airport.LandingLength, " ",
                     airport.LandingSurface),
              "3000 1 0 0");
}

TEST(Scenery, AnUpperLevelOfTheHierarchyClearsTheLowerOnes) {
    BglBuilder file;
    const BglBody none;
    file.Entry(0x00010001, 0, "R").Entry(0x00020001, 0, "C").Entry(0x00030001, 0, "S");
    file.Entry(0x00040001, 0, "T").Airport("A", none).Entry(0x00050003, 9, "over").Airport("B", none);
    file.Entry(0x00030001, 0, "S2").Airport("C", none).Entry(0x00040001, 0, "T2").Entry(0x00050004, 9, "");
    file.Entry(0x00020001, 0, "C2").Airport("D", none).Entry(0x00010001, 0, "R2").Airport("E", none);
    std::string places;
    for (const AirportRecord& airport : Read(file.Build())) {
        places += Concat(airport.Name, ":", airport.Region, "/", airport.Country, "/", airport.State, "/",
                         airport.City, " ");
    }
    EXPECT_EQ(places, "A:R/C/S/T B:R/C/S/T C:R/C/S2/ D:R/C2// E:R2/// ");
}

TEST(Scenery, CoordinatesAndFrequenciesAreCutAndNotRounded) {
    const struct {
        std::int32_t latitude, longitude;
        std::string text;
    } cases[] = {
        {0, 0, "N0*0.0000' E0*0.0000'"},
        {-5000875, 1 << 29, "S45*0.0000' E45*0.0000'"},
        {10001750, -1, "N90*0.0000' W0*0.0000'"},
        {111130, INT32_MIN, "N0*59.9997' W180*0.0000'"},
        {1, INT32_MAX, "N0*0.0005' E179*59.9999'"},
    };
    for (const auto& one : cases) {
        const AirportRecord airport = ReadOne(BglBody().ReferencePoint(one.latitude, one.longitude, 0));
        EXPECT_EQ(airport.Latitude + " " + airport.Longitude, one.text);
    }
    const std::pair<std::uint32_t, std::string> frequencies[] = {
        {0x118300, "118.300"}, {0x1183, "118.3"}, {0, "0."}, {0x12345678, "123.456"}, {0xABCDEF, "ABC.DEF"}};
    for (const auto& [value, text] : frequencies) {
        const AirportRecord airport = ReadOne(BglBody().Frequency(value, 1, ""));
        ASSERT_EQ(airport.Frequencies.size(), 1u);
        EXPECT_EQ(airport.Frequencies[0].Frequency, text);
    }
}

TEST(Scenery, AParkingIsNamedByNumberAndKind) {
    const std::pair<std::uint32_t, std::string> cases[] = {
        {1, "3 Parking"},    {2, "3 Parking N"},  {3, "3 Parking NE"}, {4, "3 Parking E"},
        {5, "3 Parking SE"}, {6, "3 Parking S"},  {7, "3 Parking SW"}, {8, "3 Parking W"},
        {10, "3 Gate"},      {9, "3 Parking NW"}, {11, "3 Dock"},      {12, "3 Gate A"},
        {37, "3 Gate Z"},    {0, "3 Gate 5"},     {127, "3 Gate \xB4"}};
    for (const auto& [kind, name] : cases) {
        const AirportRecord airport = ReadOne(BglBody().Parkings({{1, 1, 0xFF0F0000 | 3 << 7 | kind}}));
        ASSERT_EQ(airport.Parkings.size(), 1u);
        EXPECT_EQ(airport.Parkings[0].Name, name);
        EXPECT_EQ(airport.Parkings[0].Class, 0);
    }
    // The number takes the 9 bits that are left of the 16.
    EXPECT_EQ(ReadOne(BglBody().Parkings({{1, 1, 0x00BFFF81}})).Parkings.at(0).Name, "511 Parking");
    EXPECT_EQ(ReadOne(BglBody().Parkings({{1, 1, 0x00BFFF81}})).Parkings.at(0).Class, 11);
}

TEST(Scenery, TheLongestRunwayOfEachUseGivesTheLimitsWithItsSurface) {
    enum : std::uint32_t { kTakeoff1 = 1, kLanding1 = 2, kTakeoff2 = 4, kLanding2 = 8 };
    BglBody body;
    body.Runway({.length = 2000, .surface = 4, .flags = kTakeoff1 | kLanding2});
    body.Runway({.length = 2500, .surface = 8, .flags = kTakeoff2});
    body.Runway({.length = 2500, .surface = 3, .flags = kTakeoff1});
    body.Runway({.length = 2200, .surface = 9, .flags = kLanding1});
    body.Runway({.length = 9000, .surface = 3, .flags = 0});
    body.Runway({.kind = 4, .length = 9000, .flags = 0x0F});
    const AirportRecord airport = ReadOne(body);
    EXPECT_EQ(airport.TakeoffLength, 2500);
    EXPECT_EQ(airport.TakeoffSurface, kSurfaceSnow);
    EXPECT_EQ(airport.LandingLength, 2200);
    EXPECT_EQ(airport.LandingSurface, kSurfaceWater);
    EXPECT_EQ(airport.Runways.back().Name + "/" + airport.Runways.back().Ident, "Helipad/");
    EXPECT_EQ(airport.MaxParkingRadius, 0);
    EXPECT_EQ(airport.MinParkingRadius, 9999);

    std::string classes;
    for (int code = -1; code <= 12; ++code) {
        classes += Concat(ReadOne(BglBody().Runway({.surface = code})).LandingSurface);
    }
    EXPECT_EQ(classes, "11211222243311");
}

TEST(Scenery, RadiiThatAreNoNumbersCountForNoLimit) {
    using Limits = std::numeric_limits<float>;
    std::vector<BglParkingFields> parkings;
    for (float radius : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), 3e9F, -3e9F, 15.5F})
        parkings.push_back({1, radius});
    const AirportRecord airport = ReadOne(BglBody().Parkings(parkings));
    EXPECT_EQ(airport.Parkings.size(), 6u);
    EXPECT_EQ(airport.MaxParkingRadius, 16);
    EXPECT_EQ(airport.MinParkingRadius, 16);
}

TEST(Scenery, AFileWithAnotherHeaderAndAWrongBodyArePassedOver) {
    BglBuilder wrongTag = FullFile();
    wrongTag.sectionTag = 0x00020001;
    std::string farSection = FullFile().Build();
    farSection.replace(156, 4, "\xFF\xFF\xFF\xFF");
    for (const std::string& bytes : {wrongTag.Build(), farSection, std::string(), std::string(159, 'w')}) {
        std::vector<AirportRecord> records;
        EXPECT_FALSE(ReadAFDBytes(bytes, records));
        EXPECT_TRUE(records.empty());
    }
    BglBuilder noEntries = FullFile();
    noEntries.entryCount = 0;
    EXPECT_TRUE(Read(noEntries.Build()).empty());
    // A wrong body leaves the airport with its name.
    BglBuilder file;
    file.Airport("Tag", FullBody().Build(2)).Entry(0x00050001, 0xFFFFFFF0, "Outside");
    file.Airport("Good", FullBody());
    const auto records = Read(file.Build());
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0].Name + records[0].ICAO, "Tag");
    EXPECT_EQ(records[1].Name + records[1].ICAO, "Outside");
    EXPECT_EQ(records[2].Name + records[2].ICAO, "GoodDAUA");
}

TEST(Scenery, WrongSubRecordsLoseThemselvesAlone) {
    ByteText hugeFactor;
    hugeFactor.Dword(0xFFFFFFFF).Dword(0xFFFFFFFF).Fill(24).Dword(7).Dword(1);
    const struct {
        const char* fault;
        BglBody body;
    } cases[] = {
        {"skipped block longer than the file", BglBody().Raw(0x00011001, hugeFactor.bytes)},
        {"count without entries", BglBody().Parkings({}, 0xFFFFFFFF)},
        {"unknown types", BglBody().Raw(0x00010003, "abcd").Raw(0xFFFFFFFF, "")},
        {"text without an end", BglBody().Raw(0x00010006, "XXXX")},
        {"cut runway", BglBody().Raw(0x00010002, std::string(20, 'x'))},
        {"cut reference point", BglBody().Raw(0x00010001, "xx")},
        {"cut frequency", BglBody().Raw(0x00020001, "xxxxx")},
    };
    for (const auto& one : cases) {
        BglBody body = one.body;
        EXPECT_EQ(ReadOne(body.ICAO("GOOD")), ReadOne(BglBody().ICAO("GOOD"))) << one.fault;
    }
    // So do an ILS without a runway, one of no end, and one that is cut in its name.
    ByteText cutILS;
    cutILS.Fill(24).Dword(0x110300).Fill(4).Dword(1).Dword(0).Dword(1).bytes.append("I");
    BglBody body;
    body.ILS(0x110300, 1, 0, "I").Runway().ILS(0x110300, 3, 0, "I").Raw(0x00010004, cutILS.bytes);
    EXPECT_EQ(ReadOne(body).Runways, ReadOne(BglBody().Runway()).Runways);
    // A count that is too large still gives the entries that are there.
    EXPECT_EQ(ReadOne(BglBody().Parkings({{1, 5}, {2, 6}}, 1000000)).Parkings.size(), 2u);
    // A size that leads out of the file ends the body there.
    EXPECT_EQ(ReadOne(BglBody().ICAO("GOOD").Raw(0x00010003, "", 0xFFFFFFFF).Runway()).Runways.size(), 0u);
}

TEST(Scenery, AFileCutAnywhereGivesWhatStandsInFront) {
    // The section stands in front of the bodies here, so that every cut leaves something to read.
    const std::string file = FullFile().Build();
    const AirportRecord whole = Read(file).at(0);
    const std::size_t section = 160 + FullBody().Build().size();
    std::string turned = file.substr(0, 160) + file.substr(section) + file.substr(160, section - 160);
    const auto bodyStart = static_cast<std::uint32_t>(160 + file.size() - section);
    turned.replace(156, 4, ByteText().Dword(160).bytes);
    const std::size_t entry = turned.find("Touat");
    turned.replace(entry - 4, 4, ByteText().Dword(bodyStart).bytes);
    ASSERT_EQ(Read(turned), std::vector<AirportRecord>{whole});

    std::size_t fields = 0;
    for (std::size_t length = 0; length <= turned.size(); ++length) {
        const auto records = Read(turned.substr(0, length));
        ASSERT_EQ(records.size(), length >= entry + 6 ? 1u : 0u) << length;
        if (records.empty()) continue;
        const AirportRecord& airport = records.front();
        const std::size_t found = airport.Runways.size() + airport.Parkings.size() +
                                  airport.Frequencies.size() + (airport.ICAO.empty() ? 0 : 1) +
                                  (airport.Latitude.empty() ? 0 : 1);
        ASSERT_GE(found, fields) << length;
        fields = found;
    }
    EXPECT_EQ(fields, 6u);
}

TEST(Scenery, EntriesThatShareABodyCantMultiplyTheFile) {
    std::vector<BglParkingFields> parkings(2000, BglParkingFields{1, 5});
    BglBuilder file;
    file.Airport("First", BglBody().Parkings(parkings));
    for (int i = 0; i < 2000; ++i) file.Entry(0x00050001, 160, "A");
    std::size_t total = 0;
    for (const AirportRecord& airport : Read(file.Build())) total += airport.Parkings.size();
    EXPECT_GE(total, 2000u);
    EXPECT_LE(total, file.Build().size() / 20);
}

// The program's world with a scenery folder of two files that count and some that don't.
struct SceneryWorld : FakeWorld {
    Session session;
    const std::string cachePath = NativePath("\\orlo\\AFDCache.dat");
    void SetSimulator(const std::string& path) {
        machineSettings.Set(kSimulatorKeyPath, kSimulatorValue, path);
    }
    SceneryWorld() {
        session.ProgramFolder = NativePath("\\orlo");
        SetSimulator(NativePath(" \\fs "));
        const std::string folder = NativePath("\\fs\\SCENEDB\\AFDFILES\\SCENERY\\");
        BglBuilder wrong = FullFile();
        wrong.sectionTag = 1;
        files.files[folder + "a.bgl"] = FullFile().Build();
        files.files[folder + "b.BGL"] = wrong.Build();
        files.files[folder + "cBGL"] = BglBuilder().Airport("Second", FullBody()).Build();
        files.files[folder + "BGL"] = files.files[folder + "d.BGL.bak"] = FullFile().Build();
    }
};

TEST(Scenery, IsReadFromTheSimulatorOnceAndThenFromTheCacheWhileThatIsWhole) {
    SceneryWorld world;
    world.clock.now = 86400 / 2;
    EXPECT_FALSE(ReadCachedScenery(world.session, world.files));
    ASSERT_TRUE(ReadScenery(world.session, world.services));
    const auto airports = world.session.scenery.Airports;
    ASSERT_EQ(airports.size(), 2u);
    EXPECT_EQ(airports[1].Name, "Second");
    EXPECT_EQ(airports[1].Region, "");  // the hierarchy starts anew in each file
    EXPECT_EQ(world.progress.lines.size(), 3u) << "files";

    ASSERT_TRUE(ReadScenery(world.session, world.services));  // from memory
    world.session.scenery.Airports.clear();
    world.machineSettings.values.clear();
    ASSERT_TRUE(ReadScenery(world.session, world.services));  // from the cache
    EXPECT_EQ(world.session.scenery.Airports, airports);
    EXPECT_EQ(world.progress.lines.size(), 3u);

    std::vector<AirportRecord> records;
    AFDCacheHeader header;
    ASSERT_TRUE(ReadAFDCache(world.files, world.cachePath, records, header));
    EXPECT_EQ(header.Count, 2);
    EXPECT_EQ(header.Date, 25569.5);

    const std::string good = world.files.files[world.cachePath];
    world.files.files[world.cachePath] = good.substr(0, good.size() - 1);  // damaged
    world.SetSimulator(NativePath("\\fs"));
    world.session.scenery.Airports.clear();
    EXPECT_FALSE(ReadCachedScenery(world.session, world.files));
    ASSERT_TRUE(ReadScenery(world.session, world.services));
    EXPECT_EQ(world.session.scenery.Airports, airports);
    EXPECT_EQ(world.files.files[world.cachePath], good);
    world.session.scenery.Airports.clear();
    EXPECT_TRUE(ReadCachedScenery(world.session, world.files));
    EXPECT_EQ(world.session.scenery.Airports, airports);
}

TEST(Scenery, WithoutASimulatorNothingIsReadAndNoCacheWritten) {
    SceneryWorld world;
    world.machineSettings.values.clear();
    EXPECT_FALSE(ReadScenery(world.session, world.services));
    world.SetSimulator(NativePath("\\nowhere"));
    EXPECT_FALSE(ReadScenery(world.session, world.services));
    EXPECT_EQ(world.messages.shown,
              (std::vector{std::pair(int{kMarkCritical}, std::string("Couldn't find FS2002 Path."))}));
    EXPECT_FALSE(world.files.FileExists(world.cachePath));
}

// Against the plan, which tells heights in feet.
TEST(Scenery, TheWorldOfRealAirportsIsReadWhole) {
    const std::string world = ORLO_SOURCE_DIR "/../shared/real/";
    SystemFileSystem disk;
    const std::string folder = SceneryFolder(world + "simulator");
    if (!disk.FolderExists(folder)) GTEST_SKIP() << "no scenery of real airports lies beside the checkout";
    std::vector<AirportRecord> records;
    for (const std::string& name : SceneryFileNames(disk, folder)) {
        ReadAFDFile(disk, JoinPath(folder, name), records);
    }
    std::map<std::string, const AirportRecord*, std::less<>> byCode;
    for (const AirportRecord& airport : records) {
        EXPECT_FALSE(airport.ICAO.empty() || airport.Latitude.empty() || airport.Region.empty());
        EXPECT_FALSE(airport.Runways.empty()) << airport.ICAO;
        byCode[airport.ICAO] = &airport;
    }

    const auto plan = ReadWholeFile(disk, world + "plan/Airports.txt");
    ASSERT_TRUE(plan);
    for (const std::string_view line : SplitText(*plan, '\n')) {
        const auto fields = SplitText(line, ',');
        if (fields.size() < 4) continue;
        const auto found = byCode.find(fields[0]);
        ASSERT_NE(found, byCode.end()) << line;
        const AirportRecord& airport = *found->second;
        const auto place = ParsePosition(airport.Latitude, airport.Longitude);
        EXPECT_LE(GreatCircleDistance(place.value(), ParsePosition(fields[1], fields[2]).value()), 2) << line;
        EXPECT_NEAR(airport.Elevation / 0.3048, std::stoi(std::string(fields[3])), 3) << line;
    }
}

}  // namespace
}  // namespace orlo::test

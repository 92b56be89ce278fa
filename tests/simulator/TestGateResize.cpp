#include "simulator/GateResize.h"

#include <gtest/gtest.h>

#include "core/Path.h"
#include "simulator/BglAirport.h"
#include "support/BglBuilder.h"
#include "support/MemoryFileSystem.h"

namespace orlo {
namespace {

constexpr std::uint32_t kGateMedium = 9;

test::BglParkingFields Gate(std::uint32_t code, float radius) {
    return {.number = 1, .radius = radius, .word = code << 20};
}

// The code stands at byte 60 of the body: behind its head and a reference point.
test::BglBody Body(std::string_view code, const std::vector<test::BglParkingFields>& gates,
                   std::optional<std::uint32_t> count = {}) {
    return test::BglBody().ReferencePoint(0, 0, 0).ICAO(code).Parkings(gates, count);
}

std::string World() {
    test::BglBuilder file;
    file.Entry(kBglRegion, 0, "Europe").Entry(kBglCountry, 0, "Germany").Entry(kBglCity, 0, "Frankfurt");
    file.Airport("Rhein-Main", Body("EDDF", {Gate(9, 20), Gate(8, 21), Gate(9, 22)}));
    file.Airport("Egelsbach", Body("EDFE", {Gate(8, 10)}).Parkings({Gate(9, 11)}));
    file.Entry(kBglCountry, 0, "France").Entry(kBglState, 0, "Alsace").Entry(kBglCity, 0, "Mulhouse");
    file.Airport("Bale", Body("LFSB", {Gate(9, 30)}));
    file.Airport("Nowhere", test::BglBody().Raw(kBglFrequency, "cut").Build(2));
    return file.Build();
}

std::vector<float> Radii(const std::string& bytes) {
    std::vector<AirportRecord> records;
    ReadAFDBytes(bytes, records);
    std::vector<float> radii;
    for (const AirportRecord& airport : records) {
        for (const ParkingRecord& parking : airport.Parkings) radii.push_back(parking.Radius);
    }
    return radii;
}

TEST(GateResize, TheFiltersChooseTheAirportsAndTheClassTheGatesOfTheFirstBlock) {
    const std::string world = World();
    ASSERT_EQ(Radii(world), (std::vector<float>{20, 21, 22, 10, 11, 30}));
    const struct {
        std::string_view search, code;
        std::int32_t count;
        std::vector<float> radii;
    } cases[] = {
        {"", "", 3, {5, 21, 5, 10, 11, 5}},         {"rhein", "", 2, {5, 21, 5, 10, 11, 30}},
        {"GERMANY", "", 2, {5, 21, 5, 10, 11, 30}}, {"alsace", "", 1, {20, 21, 22, 10, 11, 5}},
        {"europe", "", 3, {5, 21, 5, 10, 11, 5}},   {"", "lf", 1, {20, 21, 22, 10, 11, 5}},
        {"main", "lfs", 3, {5, 21, 5, 10, 11, 5}},  {"eddf", "", 0, {20, 21, 22, 10, 11, 30}},
        {"", "rhein", 0, {20, 21, 22, 10, 11, 30}},
    };
    for (const auto& c : cases) {
        test::MemoryFileSystem files;
        std::string& file = files.files[JoinPath("s", "AP1.Bgl")];
        file = world;
        const GateResize resize{kGateMedium, 5, std::string(c.search), std::string(c.code)};
        const ResizeOutcome outcome = ResizeAllFiles(files, "s", resize, nullptr);
        EXPECT_EQ(outcome.count, c.count) << c.search << '|' << c.code;
        EXPECT_EQ(outcome.notWritten, "");
        EXPECT_EQ(Radii(file), c.radii) << c.search << '|' << c.code;
        std::size_t changed = 0;
        for (std::size_t i = 0; i < file.size(); ++i) changed += file[i] != world[i] ? 1 : 0;
        EXPECT_LE(changed, 4u * static_cast<std::size_t>(c.count));
        EXPECT_EQ(file.size(), world.size());
    }
}

TEST(GateResize, AnAirportThatCountsMoreThanItHoldsIsLeftAloneAndNamed) {
    test::BglBuilder builder;
    builder.Airport("Liar", Body("AAAA", {Gate(9, 1)}, 2)).Airport("True", Body("BBBB", {Gate(9, 2)}));
    builder.Airport("Cut", test::BglBody().Raw(kBglParking, "short"));
    test::MemoryFileSystem files;
    std::string& file = files.files[JoinPath("s", "a.bgl")];
    file = builder.Build();
    const ResizeOutcome outcome = ResizeAllFiles(files, "s", {kGateMedium, 7, "", ""}, nullptr);
    EXPECT_EQ(outcome.count, 1);
    EXPECT_EQ(outcome.notWritten, Concat(JoinPath("s", "a.bgl"), ", Liar"));
    EXPECT_EQ(Radii(file), (std::vector<float>{1, 7}));
}

// A patch behind another may not bring back what stood between its radii.
TEST(GateResize, AirportsThatShareABodyGetTheirRadiiOnce) {
    constexpr std::uint32_t kFirstBody = 160;
    test::BglBuilder builder;
    builder.Airport("One", Body("AAAA", {Gate(9, 1), Gate(9, 2), Gate(9, 3)}));
    builder.Entry(kBglAirport, kFirstBody, "Twin");
    test::MemoryFileSystem files;
    std::string& file = files.files[JoinPath("s", "a.bgl")];
    file = builder.Build();
    EXPECT_EQ(ResizeAllFiles(files, "s", {kGateMedium, 7, "", ""}, nullptr).count, 6);
    EXPECT_EQ(Radii(file), (std::vector<float>{7, 7, 7, 7, 7, 7}));
}

TEST(GateResize, EachSceneryFileIsBackedUpOnceAndOneWithoutABackupIsNotWritten) {
    test::MemoryFileSystem files;
    const std::string path = JoinPath("s", "a.bgl");
    const BackUpFile backUp = [&files](const std::string& file) { return BackUpOnce(files, file); };
    files.files[path] = World();
    files.files[JoinPath("s", "empty.BGL")] = "";
    files.files[JoinPath("s", "readme.txt")] = "text";
    EXPECT_EQ(ResizeAllFiles(files, "s", {kGateMedium, 5, "", ""}, backUp).count, 3);
    EXPECT_EQ(ResizeAllFiles(files, "s", {kGateMedium, 6, "", ""}, backUp).count, 3);
    EXPECT_EQ(files.files[path + ".orlo.bak"], World());
    EXPECT_TRUE(files.FileExists(JoinPath("s", "empty.BGL.orlo.bak")));
    EXPECT_EQ(files.files.size(), 5u);

    files.files.erase(path + ".orlo.bak");
    files.failCreate = true;
    const std::string before = files.files[path];
    const ResizeOutcome outcome = ResizeAllFiles(files, "s", {kGateMedium, 7, "", ""}, backUp);
    EXPECT_EQ(outcome.count, 0);
    EXPECT_EQ(outcome.notWritten, path);
    EXPECT_EQ(files.files[path], before);
}

}  // namespace
}  // namespace orlo

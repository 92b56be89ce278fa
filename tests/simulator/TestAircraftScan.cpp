#include <gtest/gtest.h>

#include <set>

#include "core/TextLines.h"
#include "platform/TemporaryFolder.h"
#include "simulator/AircraftClassLookup.h"
#include "simulator/AircraftFiles.h"
#include "simulator/AircraftScan.h"
#include "simulator/ModelRadius.h"
#include "support/BglBuilder.h"
#include "support/FakeHosts.h"

namespace orlo::test {
namespace {

// A simulator in memory with one aircraft's folder.
struct ScanWorld {
    MemoryFileSystem files;
    Session session;
    const std::string folder = NativePath("\\fs\\Aircraft\\b737");

    void Put(const std::string& name, const std::string& content) {
        files.files[JoinPath(folder, NativePath(name))] = content;
    }
    const std::vector<FSAircraft>& Scan(const std::string& config, bool detailed = true) {
        Put("aircraft.cfg", config);
        EXPECT_TRUE(ScanAircraft(session.fleet, session.rules.Classes, files, NativePath("\\fs"), detailed));
        return session.fleet.FSAircrafts;
    }
};

ClassLists SampleClasses() {
    ClassLists lists;
    for (std::int32_t code = kClassMicroProp; code <= kClassHugeJet; ++code) {
        const std::int32_t base = code * 100;
        lists.Profiles[static_cast<std::size_t>(code)] = {base + 1, base + 2, base + 3, base + 4, base + 5,
                                                          base + 6, "HARD",   base + 7, "GATE",   base + 8};
    }
    const auto add = [&](AircraftClass code, std::string_view id) {
        lists.Entries[code].emplace_back().ID = id;
    };
    add(kClassNotUsed, "OLD");
    add(kClassMicroProp, "172");
    for (std::string_view id : {"", "737", "OLDER"}) add(kClassSmallJet, id);
    for (std::string_view id : {"747", "7"}) add(kClassHugeJet, id);
    ClassEntry& own = lists.Entries[kClassHugeJet].front();
    own.CruiseSpeed = 490;
    own.MaxRange = 7000;
    own.RunwayTypes = "SOFT";
    return lists;
}

std::string Limits(const FSAircraft& aircraft) {
    return Concat(aircraft.CruiseSpeed, ",", aircraft.MinFL, ",", aircraft.MaxFL, ",", aircraft.MinRange, ",",
                  aircraft.MaxRange, ",", aircraft.RunwayLength, ",", aircraft.RunwayTypes, ",",
                  aircraft.MinParkingRadius, ",", aircraft.ParkingTypes, ",", aircraft.IFRPercent);
}

TEST(AircraftScan, EachTitledFltsimSectionIsAVariantWithItsFields) {
    const std::string config =
        "[FltSim.0]\r\ntitle = One ; red\r\nsim=b737 \r\nmodel=x\r\npanel=p\r\nsound=s\r\ntexture=1\r\n"
        "kb_checklists=c\r\nkb_reference=r\r\natc_id=N1\r\natc_flight_number=12\r\natc_airline=WORLD\r\n"
        "atc_heavy=1\r\nvisual_damage=0\r\nui_manufacturer=Boeing\r\nui_type=737\r\nui_variation=v\r\n"
        "description=\"d\"\r\n[FLTSIM]\r\ntitle=~Two\r\n[fltsim.2]\r\nui_type=no title\r\n"
        "[fltsim.3]\r\ntitle=One\r\n[fltsim.0]\r\ntitle=hidden by the first of that name\r\n[Other]\r\n"
        "title=none\r\n[General]\r\natc_type=BOEING\r\natc_model=737\r\nPerformance=fast\r\n"
        "[reference speeds]\r\ncruise_speed=250.5\t; knots\r\n";
    ScanWorld world;
    const auto& variants = world.Scan(config);
    ASSERT_EQ(variants.size(), 4u);
    const FSAircraft& one = variants[0];
    using Texts = std::vector<std::string>;
    EXPECT_EQ((Texts{one.Title, one.Section, one.Sim, one.Model, one.Panel, one.Sound, one.Texture,
                     one.KbChecklists, one.KbReference, one.ATCID, one.ATCFlightNumber, one.Airline,
                     one.UIManufacturer, one.UIType, one.UIVariation, one.Description, one.Performance,
                     one.ATCType, one.ATCModel}),
              (Texts{"One", "FltSim.0", "b737", "x", "p", "s", "1", "c", "r", "N1", "12", "WORLD", "Boeing",
                     "737", "v", "d", "fast", "BOEING", "737"}));
    EXPECT_EQ(one.ConfigFile, NativePath("\\fs\\Aircraft\\b737\\aircraft.cfg"));
    EXPECT_TRUE(one.ATCHeavy && !one.VisualDamage);
    EXPECT_EQ(one.FileCruiseSpeed, 250);
    EXPECT_EQ(one.CruiseSpeed, 250);  // no class
    EXPECT_EQ(variants[1].Title + variants[2].Title + variants[3].Title, "~TwoOneOne");

    world.Scan(config, false);
    EXPECT_EQ(variants[0].Sim + variants[0].Model + variants[0].Description + variants[0].Problem, "");
    EXPECT_EQ(variants[0].Title + variants[0].Airline, "OneWORLD");
    EXPECT_FALSE(variants[0].ATCHeavy);
}

TEST(AircraftScan, BrokenConfigurationsGiveWhatTheyHold) {
    const struct {
        const char* fault;
        std::string config, titles;
        std::int32_t speed;
    } cases[] = {
        {"empty", "", "", -1},
        {"half a line", "[fltsim.0]\ntitle=A\n[fltsim.1]\ntit", "A;", -1},
        {"half a section", "[fltsim.0]\ntitle=A\n[fltsim.1", "A;", -1},
        {"bytes of 0", std::string("[fltsim.0]\ntitle=A\n\0\0[General]\0\ntitle=B\n\0", 42), "A;", -1},
        {"speed of no number", "[fltsim.0]\ntitle=A\n[Reference Speeds]\ncruise_speed=fast", "A;", -1},
        {"speed out of range", "[fltsim.0]\ntitle=A\n[Reference Speeds]\ncruise_speed=99999999999", "A;", -1},
        {"only a comment", "[fltsim.0]\ntitle=;A\n[fltsim.1]\ntitle=B", "B;", -1},
        {"speed", "[fltsim.0]\ntitle=A\n[Reference Speeds]\nCRUISE_SPEED = 120", "A;", 120},
    };
    for (const auto& one : cases) {
        ScanWorld world;
        std::string titles;
        for (const FSAircraft& aircraft : world.Scan(one.config)) {
            titles += aircraft.Title + ";";
            EXPECT_EQ(aircraft.FileCruiseSpeed, one.speed) << one.fault;
        }
        EXPECT_EQ(titles, one.titles) << one.fault;
    }
}

TEST(AircraftScan, AScanReplacesTheListAndFailsWithoutAFolder) {
    ScanWorld world;
    world.files.files[NativePath("\\fs\\Aircraft\\a320\\AIRCRAFT.CFG")] = "[fltsim.0]\ntitle=First\n";
    world.files.files[NativePath("\\fs\\Aircraft\\readme.txt")] = "[fltsim.0]\ntitle=None\n";
    ASSERT_EQ(world.Scan("[fltsim.0]\ntitle=Second\n").size(), 2u);
    EXPECT_EQ(world.session.fleet.FSAircrafts[0].Title, "First");
    EXPECT_TRUE(world.session.fleet.FSAircraftProblems);
    for (const std::string& simulator : {NativePath("\\nowhere"), std::string()}) {
        EXPECT_FALSE(ScanAircraft(world.session.fleet, {}, world.files, simulator, true));
        EXPECT_TRUE(world.session.fleet.FSAircrafts.empty());
        EXPECT_FALSE(world.session.fleet.FSAircraftProblems);
    }
}

FSAircraft ScanOne(const std::string& config) {
    ScanWorld world;
    world.session.rules.Classes = SampleClasses();
    const auto& variants = world.Scan("[fltsim.0]\ntitle=A\n" + config);
    EXPECT_EQ(variants.size(), 1u);
    return variants.at(0);
}

TEST(AircraftScan, ClassValuesComeFromTheEntryOrTheProfile) {
    // Speed, levels, ranges, runway, parking, IFR share.
    const struct {
        const char* model;
        std::int32_t code;
        const char* limits;
    } cases[] = {
        // A Micro Prop's shortest range is its lowest level; every IFR share is Large Jet's.
        {"172", kClassMicroProp, "205,202,201,202,203,206,HARD,207,GATE,708"},
        {"737", kClassSmallJet, "605,602,601,604,603,606,HARD,607,GATE,708"},
        // One value is enough for an entry to give them all.
        {"747", kClassHugeJet, "490,-1,-1,-1,7000,-1,SOFT,-1,,-1"},
        // The first entry within the text gives the class, and Not Used comes first.
        {"Older", kClassNotUsed, "333,-1,-1,-1,-1,-1,,-1,,-1"},
        {"B757-200", kClassHugeJet, "805,802,801,804,803,806,HARD,807,GATE,708"},
        {"A320", kClassNone, "333,-1,-1,-1,-1,-1,,-1,,-1"},
    };
    for (const auto& one : cases) {
        const FSAircraft aircraft =
            ScanOne(Concat("[General]\natc_model=", one.model, "\n[Reference Speeds]\ncruise_speed=333\n"));
        EXPECT_EQ(aircraft.Class, one.code) << one.model;
        EXPECT_EQ(Limits(aircraft), one.limits) << one.model;
    }
}

TEST(AircraftScan, ModelAndTypeOfTheFileWinOverThoseOfTheSection) {
    const struct {
        const char* general;
        const char* modelAndType;
        std::int32_t code;
    } cases[] = {
        {"atc_model=747\natc_type=BOEING\n", "747 BOEING", kClassHugeJet},
        {"atc_model=747\n", "747 X172", kClassHugeJet},
        {"", "737 X172", kClassSmallJet},
        // The class of the file's type stands, though the section tells a model.
        {"atc_type=747\n", "737 X172", kClassHugeJet},
        {"atc_type=BOEING\n", "737 X172", kClassSmallJet},
        {"atc_model=A320\n", "A320 X172", kClassNone},
    };
    for (const auto& one : cases) {
        const FSAircraft aircraft = ScanOne(Concat("atc_model=737\natc_type=X172\n[General]\n", one.general));
        EXPECT_EQ(aircraft.ATCModel + " " + aircraft.ATCType, one.modelAndType);
        EXPECT_EQ(aircraft.Class, one.code) << one.general;
    }
}

std::string OldModel(std::size_t position, std::int32_t radius) {
    ByteText model;
    model.Fill(position).Int(radius).Dword(0x003A0076).Word(0xFF84);
    return model.bytes;
}

TEST(AircraftScan, TheModelsRadiusIsReadFromThreeLayouts) {
    ByteText riff;
    riff.bytes = "rIfF";
    riff.Fill(24).Int(12);
    const struct {
        const char* layout;
        std::string model;
        std::int32_t format, radius;
    } cases[] = {
        {"RIFF in any case", riff.bytes, 1, 12},
        {"RIFF cut in the radius", riff.bytes.substr(0, 31), 0, -1},
        {"first old layout", OldModel(4264, 34), 2, 34},
        {"second old layout", OldModel(4608, -5), 3, -5},
        {"old layout cut in its mark", OldModel(4264, 34).substr(0, 4273), 0, -1},
        {"neither", std::string(5000, 'x'), 0, -1},
    };
    for (const auto& one : cases) {
        ScanWorld world;
        world.Put("model.x\\model.cfg", "[models]\nnormal=main ; the only one\n");
        world.Put("model.x\\main.mdl", one.model);
        const ModelRadius model = ReadModelRadius(world.files, world.folder, "x");
        EXPECT_EQ(model.Path, JoinPath(world.folder, NativePath("model.x\\main.mdl"))) << one.layout;
        EXPECT_EQ(model.Format, one.format) << one.layout;
        EXPECT_EQ(model.Radius, one.radius) << one.layout;
    }
    ScanWorld empty;
    empty.Put("model\\model.cfg", "[models]\nnormal=main\n");
    empty.Put("model\\main.mdl", "");
    for (const char* name : {"", "y"}) EXPECT_EQ(ReadModelRadius(empty.files, empty.folder, name).Path, "");
}

TEST(AircraftScan, ProblemsNameAllThatIsMissing) {
    ScanWorld world;
    world.Put("Texture\\t.bmp", "t");
    world.Put("TEXTURE.RED\\t.bmp", "t");
    world.Put("craft.AIR", "a");
    world.Put("bare", "a");
    world.Put("model\\model.cfg", "[models]\nnormal=main\n");
    world.Put("model\\main.mdl", "m");
    world.Scan(
        "[fltsim.0]\ntitle=0\nsim=Craft\n[fltsim.1]\ntitle=1\nsim=bare\ntexture=red\n"
        "[fltsim.2]\ntitle=2\ntexture=blue\nmodel=none\n[fltsim.3]\ntitle=3\nsim=other\n");
    std::string problems;
    for (const FSAircraft& aircraft : world.session.fleet.FSAircrafts) problems += aircraft.Problem + "\n";
    EXPECT_EQ(problems,
              "\n\nTexture folder not found | No model defined | No AIR file defined\nAIR file not found\n");
    EXPECT_TRUE(world.session.fleet.FSAircraftProblems);

    world.Scan("[fltsim.0]\ntitle=0\nsim=Craft\n");
    EXPECT_FALSE(world.session.fleet.FSAircraftProblems);
    world.files.DeleteFile(JoinPath(world.folder, NativePath("model\\main.mdl")));
    CheckAircraftFiles(world.session.fleet, world.files);
    EXPECT_EQ(world.session.fleet.FSAircrafts[0].Problem, "Model folder not found");
    EXPECT_TRUE(world.session.fleet.FSAircraftProblems);
}

TEST(AircraftScan, ManySectionsOfOneNameCantMultiplyALongText) {
    std::string config = "[fltsim.0]\ntitle=" + std::string(200000, 'x') + "\n";
    for (int i = 0; i < 20000; ++i) config += "[fltsim.0]\n";
    ScanWorld world;
    const std::size_t count = world.Scan(config).size();
    EXPECT_GE(count, 1u);
    EXPECT_LE(count * 200000, 66 * config.size() + 2 * 1024 * 1024);
}

// Against the list of its fleet: number, title, airline, maker, model and so on.
TEST(AircraftScan, TheWorldOfRealAircraftIsReadWhole) {
    SystemFileSystem disk;
    const std::string world = ORLO_SOURCE_DIR "/../shared/real/";
    const auto fleet = ReadWholeFile(disk, world + "facts/fleet.csv");
    if (!fleet) GTEST_SKIP() << "no aircraft of a real world lie beside the checkout";
    Session session;
    session.rules.Classes.Entries[kClassSmallJet].emplace_back().ID = "A319";
    ASSERT_TRUE(ScanAircraft(session.fleet, session.rules.Classes, disk, world + "simulator", true));
    std::multiset<std::string> read, listed;
    for (const FSAircraft& aircraft : session.fleet.FSAircrafts) {
        EXPECT_EQ(aircraft.Problem, "") << aircraft.Title;
        EXPECT_GT(aircraft.Radius, 0) << aircraft.Title;
        EXPECT_GT(aircraft.FileCruiseSpeed, 0) << aircraft.Title;
        read.insert(Concat(aircraft.Title, ",", aircraft.Airline, ",", aircraft.Class == kClassSmallJet));
    }
    for (const std::string_view line : SplitText(*fleet, '\n')) {
        const auto fields = SplitText(line, ',');
        if (fields.size() < 5 || !fields[0].starts_with("AC#")) continue;
        listed.insert(Concat(fields[1], ",", fields[2], ",", ContainsNoCase(fields[4], "A319")));
    }
    EXPECT_FALSE(listed.empty());
    EXPECT_EQ(read, listed);
}

}  // namespace
}  // namespace orlo::test

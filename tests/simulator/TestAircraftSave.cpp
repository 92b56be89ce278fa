#include "simulator/AircraftSave.h"

#include <gtest/gtest.h>

#include "config/AircraftClasses.h"
#include "core/Application.h"
#include "core/Path.h"
#include "simulator/AircraftScan.h"
#include "simulator/ModelRadius.h"
#include "support/MemoryFileSystem.h"

namespace orlo {
namespace {

// Two aircraft folders as scanned.
struct AircraftSave : testing::Test {
    test::MemoryFileSystem files;
    Fleet fleet;
    std::vector<FSAircraft> kept;

    static std::string In(std::string_view folder, std::string_view name) {
        return JoinPath(folder, NativePath(name));
    }
    void Scan() {
        fleet = {};
        for (const std::string folder : {"a", "b"}) ReadAircraftFolder(fleet, {}, files, folder, true);
        kept = fleet.FSAircrafts;
    }
    std::string Save(bool backup = true) {
        BackUpFile backUp;
        if (backup) backUp = [this](const std::string& path) { return BackUpOnce(files, path); };
        return SaveAircraft(fleet.FSAircrafts, kept, files, backUp);
    }
    FSAircraft& Edit(std::size_t place) {
        fleet.FSAircrafts[place].Changed = true;
        return fleet.FSAircrafts[place];
    }
    std::string& Config(std::string_view folder) { return files.files[In(folder, "aircraft.cfg")]; }
    std::string& Model(std::string_view folder) { return files.files[In(folder, "model\\m.mdl")]; }
    void PutModel(std::string_view folder, std::int32_t format) {
        files.files[In(folder, "model\\model.cfg")] = "[models]\nnormal=m\n";
        std::string& model = Model(folder);
        model = format == 1 ? "RIFF" : "OLD ";
        model.resize(static_cast<std::size_t>(ModelRadiusPosition(format)), 'x');
        model.append(std::string("\x2C\x01\0\0", 4)).append("\x76\0\x3A\0\x84\xFF", 6).append("end");
    }
};

TEST_F(AircraftSave, AChangedValueChangesItsLineAloneAndASecondSaveNothing) {
    const struct {
        std::string_view config;
        void (*edit)(FSAircraft&);
        std::string_view expected;
    } cases[] = {
        {"[fltsim.0]\ntitle = A ; first\n", [](FSAircraft& a) { a.Title = "B"; },
         "[fltsim.0]\ntitle = B ; first\n"},
        {"[fltsim.0]\ntitle=A\natc_id=N1;old\n", [](FSAircraft& a) { a.ATCID.clear(); },
         "[fltsim.0]\ntitle=A\natc_id=;old\n"},
        {"[fltsim.0]\ntitle=A\natc_id=;none\n", [](FSAircraft& a) { a.ATCID = "N2"; },
         "[fltsim.0]\ntitle=A\natc_id=N2;none\n"},
        {"[fltsim.0]\ntitle=A\nsim=x\nSIM=y", [](FSAircraft& a) { a.Sim = "z"; },
         "[fltsim.0]\ntitle=A\nsim=z\nSIM=y"},
        {"[fltsim.0]\r\ntitle=A\r\n[fltsim.0]\r\ntitle=B\r\n", [](FSAircraft& a) { a.ATCHeavy = true; },
         "[fltsim.0]\r\ntitle=A\r\natc_heavy=1\r\n[fltsim.0]\r\ntitle=B\r\n"},
        {"[fltsim.0]\ntitle=A\n", [](FSAircraft& a) { a.FileCruiseSpeed = 250; },
         "[fltsim.0]\ntitle=A\n[Reference Speeds]\ncruise_speed=250\n"},
        {"[fltsim.0]\ntitle=A\natc_type=own\n[General]\natc_type=x\n", [](FSAircraft& a) { a.ATCType = "T"; },
         "[fltsim.0]\ntitle=A\natc_type=T\n[General]\natc_type=T\n"},
        {"[fltsim.0]\rtitle=A\r[GENERAL]\ratc_type=x\r", [](FSAircraft& a) { a.ATCModel = "M"; },
         "[fltsim.0]\rtitle=A\r[GENERAL]\ratc_type=x\ratc_model=M\r"},
    };
    for (const auto& c : cases) {
        files.files.clear();
        Config("a") = c.config;
        Scan();
        c.edit(Edit(0));
        EXPECT_EQ(Save(), "") << c.config;
        EXPECT_EQ(Config("a"), c.expected);
        EXPECT_EQ(files.files[In("a", "aircraft.cfg.orlo.bak")], c.config);
        files.failCreate = true;
        Edit(0);
        EXPECT_EQ(Save(), "") << "wrote again";
        files.failCreate = false;
    }
}

TEST_F(AircraftSave, OfFiftyVariantsTheChangedKeyDiffersAndTheFirstBackupStays) {
    std::string config;
    for (int i = 0; i < 50; ++i)
        config += Concat("; paint ", i, "\r\n[fltsim.", i, "]\r\n\ttitle = T", i, "\r\n");
    Config("a") = config;
    Scan();
    Edit(31).Title = "New";
    EXPECT_EQ(Save(), "");
    std::string expected = config;
    expected.replace(expected.find("T31"), 3, "New");
    EXPECT_EQ(Config("a"), expected);
    Edit(32).Title = "Newer";
    EXPECT_EQ(Save(), "");
    EXPECT_EQ(files.files[In("a", "aircraft.cfg.orlo.bak")], config);
}

TEST_F(AircraftSave, ARadiusIsWrittenWhereItWasReadAndNothingElse) {
    for (std::int32_t format = 1; format <= 3; ++format) {
        files.files.clear();
        Config("a") = "[fltsim.0]\ntitle=A\n[fltsim.1]\ntitle=B\n";
        PutModel("a", format);
        Scan();
        ASSERT_EQ(fleet.FSAircrafts[1].ModelFormat, format);
        ASSERT_EQ(fleet.FSAircrafts[1].Radius, 300);
        for (FSAircraft& aircraft : fleet.FSAircrafts) {
            aircraft.Radius = -2;
            aircraft.RadiusChanged = true;
        }
        std::string expected = Model("a");
        const std::string before = expected;
        expected.replace(static_cast<std::size_t>(ModelRadiusPosition(format)), 4, "\xFE\xFF\xFF\xFF");
        EXPECT_EQ(Save(), "");
        EXPECT_EQ(Model("a"), expected) << format;
        EXPECT_EQ(files.files[In("a", "model\\m.mdl.orlo.bak")], before);
        EXPECT_FALSE(fleet.FSAircrafts[0].RadiusChanged);
        EXPECT_EQ(kept[1].Radius, -2);
    }
}

TEST_F(AircraftSave, AModelThatIsNoLongerWhatWasReadIsLeftAlone) {
    const struct {
        std::string_view model;
        bool saved;
    } cases[] = {{"OLD", false}, {"RIFF too short", false}, {"", true}};
    for (const auto& c : cases) {
        Config("a") = "[fltsim.0]\ntitle=A\n";
        PutModel("a", 2);
        Scan();
        fleet.FSAircrafts[0].Radius = 7;
        fleet.FSAircrafts[0].RadiusChanged = true;
        Model("a") = c.model;
        if (c.model.empty()) files.files.erase(In("a", "model\\m.mdl"));
        EXPECT_EQ(Save().empty(), c.saved) << c.model;
        EXPECT_EQ(fleet.FSAircrafts[0].RadiusChanged, !c.saved);
        EXPECT_EQ(files.files.count(In("a", "model\\m.mdl")), c.model.empty() ? 0u : 1u);
    }
}

TEST_F(AircraftSave, TheFirstFileThatCantBeWrittenEndsTheSaveAndKeepsTheMarksBehindIt) {
    Config("a") = "[fltsim.0]\ntitle=A\n";
    Config("b") = "[fltsim.0]\ntitle=B\n";
    Scan();
    Edit(0).Title = "New A";
    Edit(1).Title = "New B";
    files.commitsBeforeKill = 1;
    EXPECT_EQ(Save(false), In("b", "aircraft.cfg"));
    EXPECT_EQ(Config("a"), "[fltsim.0]\ntitle=New A\n");
    EXPECT_EQ(Config("b"), "[fltsim.0]\ntitle=B\n");
    EXPECT_FALSE(fleet.FSAircrafts[0].Changed);
    EXPECT_TRUE(fleet.FSAircrafts[1].Changed);
    EXPECT_EQ(kept[0].Title, "New A");
    EXPECT_EQ(kept[1].Title, "B");

    files.commitsBeforeKill = -1;
    files.files.erase(In("b", "aircraft.cfg"));
    EXPECT_EQ(Save(), In("b", "aircraft.cfg"));
    EXPECT_FALSE(files.FileExists(In("b", "aircraft.cfg")));
    files.failCreate = true;
    Edit(0).Title = "Newer A";
    EXPECT_EQ(Save(), In("a", "aircraft.cfg"));
    EXPECT_FALSE(files.FileExists(In("a", "aircraft.cfg.orlo.bak")));
}

}  // namespace
}  // namespace orlo

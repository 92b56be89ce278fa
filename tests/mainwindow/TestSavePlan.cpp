#include "mainwindow/SavePlan.h"

#include <gtest/gtest.h>

#include "core/ContentHash.h"
#include "core/FlightplanFile.h"
#include "core/KeptFiles.h"
#include "core/PlanSideFiles.h"
#include "mainwindow/StatusTexts.h"
#include "shell/OpenPlan.h"
#include "shell/Title.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr std::string_view kFlight =
    "AC#1,N1,50%,24Hr,IFR,00:00:00,01:00:00,100,F,0001,BBBB,02:00:00,03:00:00,100,F,0002,AAAA";

// A plan in a folder, read as an open reads it.
struct SavePlan : testing::Test {
    test::FakeProgram program;
    std::map<std::string, std::string>& files = program.world.files.files;
    Session& session = program.session;

    SavePlan() {
        files["/p/Aircraft.txt"] = "AC#1,300,\"Jet\"\r\n";
        session.switches.BackupPlan = false;
    }
    void Read(const std::string& text) {
        files["/p/Plan.txt"] = text;
        session.plan = {};
        session.plan.FlightplanPath = "/p/Plan.txt";
        ReadPlanAircraft(session.plan, program.world.services);
        ReadFlightplan(session.plan, program.world.services);
        session.plan.PlanLoaded = true;
    }
    // What the store holds: "path: text" of each kept file, the newest entry first.
    std::vector<std::string> Kept() {
        std::vector<std::string> kept;
        for (const KeptEntry& entry : ReadKeptEntries(program.world.files, session.StateFolder)) {
            for (const KeptFile& file : entry.Files)
                kept.push_back(Concat(file.Path, ": ", files[KeptContentPath(session.StateFolder, file)]));
        }
        return kept;
    }
};

TEST_F(SavePlan, WhatAReadLosesIsKeptAtTheFirstSaveAndNothingElse) {
    const std::string line = Concat(kFlight, "\r\n");
    const struct {
        std::string_view what;
        std::string text;
        bool kept;
    } cases[] = {
        {"as the writer writes it", line, false},
        {"blanks and blank lines", Concat(" ", kFlight, " \n\n", line), false},
        {"a comment line", Concat("; mine\r\n", line), true},
        {"a comment behind", Concat(kFlight, "; mine\r\n"), true},
        {"a short line", Concat(line, "AC#2,N2\r\n"), true},
        {"fields left over", Concat(kFlight, ",04:00:00\r\n"), true},
        {"a percent of 100", ReplaceAll(line, "50%", "100%"), true},
        {"a level in feet", ReplaceAll(line, ",100,F,0001", ",10000,F,0001"), true},
        {"a long number", ReplaceAll(line, "0001", "00012"), true},
    };
    for (const auto& c : cases) {
        files.clear();
        files["/p/Aircraft.txt"] = "AC#1,300,\"Jet\"\r\n";
        Read(c.text);
        SaveFlightplan(program.context);
        EXPECT_EQ(Kept(), c.kept ? std::vector{Concat("/p/Plan.txt: ", c.text)} : std::vector<std::string>())
            << c.what;
        SaveFlightplan(program.context);
        EXPECT_EQ(Kept().size(), c.kept ? 1u : 0u) << c.what;
    }
}

TEST_F(SavePlan, FilesOfOthersAreKeptAsOneEntryUnlessTheyAreBackedUp) {
    Read(std::string(kFlight));
    files["/q/Plan.txt"] = "other plan";
    files["/q/Aircraft.txt"] = "other aircraft";
    files["/q/Removed Flights.txt"] = "other removed";
    session.plan.FlightplanPath = "/q/Plan.txt";
    session.switches.BackupPlan = true;
    files["/q/Plan.txt.orlo.bak"] = "older";
    SaveFlightplan(program.context);
    EXPECT_EQ(Kept(),
              (std::vector<std::string>{"/q/Plan.txt: other plan", "/q/Removed Flights.txt: other removed"}));
    EXPECT_EQ(files["/q/Aircraft.txt.orlo.bak"], "other aircraft");

    files["/q/Plan.txt"] = "of a second program";
    session.plan.Flights.SetRemoved(0, true);
    SaveFlightplan(program.context);
    EXPECT_EQ(Kept().front(), "/q/Plan.txt: of a second program");
    EXPECT_EQ(Kept().size(), 3u);
    session.plan.Flights.SetRemoved(0, false);
    SaveFlightplan(program.context);
    EXPECT_EQ(Kept().size(), 3u) << "the removed flights are this session's own";
}

TEST_F(SavePlan, AFileThatWasOnlyTouchedIsNotKept) {
    const std::string text = Concat(kFlight, "\r\n");
    Read(text);
    ++program.world.files.touches;
    SaveFlightplan(program.context);
    ++program.world.files.touches;
    SaveFlightplan(program.context);
    EXPECT_EQ(Kept(), std::vector<std::string>());

    std::string& aircraft = files["/p/Aircraft.txt"];
    aircraft = ReplaceAll(aircraft, "Jet", "Jot");
    SaveFlightplan(program.context);
    EXPECT_EQ(Kept(), std::vector<std::string>{"/p/Aircraft.txt: AC#1,300,\"Jot\"\r\n"});

    // Without regard to how the bytes come.
    for (std::size_t length = 0; length < 100; ++length) {
        const std::string bytes = (text + text).substr(0, length);
        for (std::size_t cut = 0; cut <= length; cut += 7) {
            ContentHash hash;
            hash.Add(std::string_view(bytes).substr(0, cut));
            hash.Add(std::string_view(bytes).substr(cut));
            ASSERT_EQ(hash.Value(), HashOf(bytes)) << length << ' ' << cut;
        }
        ASSERT_NE(HashOf(bytes), HashOf(bytes + '\0'));
    }
}

TEST_F(SavePlan, ASaveThatFailsIsRememberedAskedForAndKeptFromMemory) {
    Read(Concat("; mine\r\n", kFlight));
    session.plan.Flights.SetRemoved(0, true);
    session.plan.PlanModified = true;
    const std::string state = std::exchange(session.StateFolder, "");
    SaveFlightplan(program.context);
    EXPECT_EQ(files["/p/Plan.txt"], Concat("; mine\r\n", kFlight));
    EXPECT_FALSE(session.plan.PlanModified);
    EXPECT_TRUE(session.plan.DiffersFromFile);
    session.project.ProjectPath = "/q/One.orp";
    for (const bool differs : {false, true}) {
        session.project.DiffersFromFile = differs;
        RefreshTitle(program.context);
        EXPECT_EQ(program.form.documentName, differs ? "Plan.txt, One.orp" : "Plan.txt");
        EXPECT_TRUE(program.form.documentModified);
    }
    session.project = {};
    EXPECT_EQ(program.form.sbMain.text, "Not written: [/p/Plan.txt].");
    program.world.files.heldFile = "/p/Plan.txt";
    SaveFlightplan(program.context);
    EXPECT_EQ(program.form.sbMain.text, "Not written: [/p/Plan.txt], which another program has open.");

    program.world.messages.answers = {MessageAnswer::Yes};
    files["/p/Other.txt"] = std::string(kFlight);
    OpenFlightplan(program.context, "/p/Other.txt");
    EXPECT_EQ(session.plan.FlightplanPath, "/p/Plan.txt") << "neither saved nor kept: it stays";

    session.StateFolder = state;
    program.world.files.failCommit = true;
    program.world.messages.answers = {MessageAnswer::Yes};
    OpenFlightplan(program.context, "/p/Other.txt");
    EXPECT_EQ(session.plan.FlightplanPath, "/p/Plan.txt");

    program.world.files.failCommit = false;
    SaveFlightplan(program.context);
    EXPECT_FALSE(session.plan.DiffersFromFile);
}

TEST_F(SavePlan, AFailureIsToldInFrontOfWhatTheSameEventSaysAfterwards) {
    ReportNotWritten(program.context, "/p/Plan.txt");
    program.form.sbMain.text = "Flightplan loaded.";
    session.kept.Notes.Kept = {"/p/Plan.txt"};
    TellNotes(program.context);
    EXPECT_EQ(program.form.sbMain.text,
              "Not written: [/p/Plan.txt]. Flightplan loaded. Kept a copy of [/p/Plan.txt].");
}

}  // namespace
}  // namespace orlo

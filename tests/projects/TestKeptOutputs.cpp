// Each step that replaces or deletes files of the user, with the store of kept files and without it.

#include <gtest/gtest.h>

#include <map>

#include "core/KeptFiles.h"
#include "operations/ExportFlights.h"
#include "operations/GeneratedLists.h"
#include "projects/CompilePlan.h"
#include "projects/MergeProject.h"
#include "projects/ProjectCommands.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

using Contents = std::map<std::string, std::string>;  // by path

struct Step {
    const char* name;
    void (*run)(test::FakeProgram& fake);
    Contents old;  // what stands there before
};

void AddProject(test::FakeProgram& fake, const std::string& plan) {
    fake.session.project.ProjectBegun = true;
    fake.session.project.ProjectPath = "/p/Project.orp";
    fake.session.project.ProjectEntries = {{plan, "/p/One/Aircraft.txt", "", 0}};
    fake.world.files.files["/p/Airports.txt"] = "KAAA,N0,E0,0";
    fake.world.files.files["/p/One/Aircraft.txt"] = "AC#1,300,\"Jet\"";
}

const std::vector<Step> kSteps = {
    {"a merge",
     [](test::FakeProgram& fake) {
         fake.world.files.files["/p/One/Plan.txt"] = "AC#1,N1,1%,WEEK,IFR";
         AddProject(fake, "/p/One/Plan.txt");
         OnProjectMerge(fake.context);
     },
     {{"/p/FlightPlans.txt", "merged before"}, {"/p/Aircraft.txt", "aircraft before"}}},
    {"a merge that fails",
     [](test::FakeProgram& fake) {
         AddProject(fake, "/p/missing.txt");
         OnProjectMerge(fake.context);
     },
     {{"/p/FlightPlans.txt", "merged before"}, {"/p/Aircraft.txt", "aircraft before"}}},
    {"a compile",
     [](test::FakeProgram& fake) {
         fake.world.files.files["/program/TCOMPILER.EXE"] = "tool";
         fake.world.files.files["/q/Aircraft.txt"] = fake.world.files.files["/q/Airports.txt"] = "list";
         fake.world.files.files["/q/Plan.txt"] = "plan";
         fake.world.windows.paths = {"/q/Plan.txt"};
         CompileFlightplan(fake.context);
     },
     {{"/temp/FlightPlans.txt", "of another"}, {"/temp/TCOMPILER.EXE", "planted"}}},
    {"a decompile",
     [](test::FakeProgram& fake) {
         fake.world.files.files["/program/TDECOMPILER.EXE"] = "tool";
         fake.world.windows.paths = {"/d/Out.txt"};
         DecompileFlightplan(fake.context);
     },
     {{"/d/Out.txt", "mine"}, {"/d/Aircraft.txt", "my aircraft"}}},
    {"a project over another file",
     [](test::FakeProgram& fake) {
         AddProject(fake, "/p/One/Plan.txt");
         SaveProject(fake.context);
     },
     {{"/p/Project.orp", "no project"}}},
    {"an export",
     [](test::FakeProgram& fake) {
         fake.session.switches.BackupPlan = false;
         fake.world.windows.paths = {"/e/Export.txt"};
         ExportFlights(fake.context);
     },
     {{"/e/Export.txt", "mine"}, {"/e/Removed Flights.txt", "removed by me"}}},
    {"a generated list",
     [](test::FakeProgram& fake) {
         fake.session.scenery.Airports.resize(1);
         GenerateAirports(fake.context);
     },
     {{"/program/New Airports.txt", "edited by me"}}},
};

Contents Kept(test::FakeProgram& fake) {
    Contents kept;
    for (const KeptEntry& entry : ReadKeptEntries(fake.world.files, "/state")) {
        for (const KeptFile& file : entry.Files)
            kept[file.Path] = fake.world.files.files[KeptContentPath("/state", file)];
    }
    return kept;
}

TEST(KeptOutputs, WhatAStepReplacesOrDeletesIsKeptByteForByte) {
    for (const Step& step : kSteps) {
        SCOPED_TRACE(step.name);
        test::FakeProgram fake;
        fake.world.files.files.insert(step.old.begin(), step.old.end());
        step.run(fake);
        EXPECT_EQ(Kept(fake), step.old);
        EXPECT_LE(ReadKeptEntries(fake.world.files, "/state").size(), 2u) << "one for each thing done";
        for (const auto& [path, text] : step.old)
            EXPECT_TRUE(!fake.world.files.files.contains(path) || fake.world.files.files[path] != text ||
                        path == "/d/Aircraft.txt")
                << path << " was to go";
    }
}

TEST(KeptOutputs, OfALinkInTheTemporaryFolderNothingIsKept) {
    test::FakeProgram fake;
    fake.world.files.files["/temp/Aircraft.txt"] = "of another user";
    fake.world.files.links = {"/temp/Aircraft.txt"};
    kSteps[2].run(fake);
    EXPECT_EQ(fake.world.processes.started.size(), 1u);
    EXPECT_TRUE(Kept(fake).empty());
}

TEST(KeptOutputs, WhereNothingCanBeKeptTheStepIsNotDone) {
    for (const Step& step : kSteps) {
        SCOPED_TRACE(step.name);
        test::FakeProgram fake;
        fake.session.StateFolder.clear();
        fake.world.files.files.insert(step.old.begin(), step.old.end());
        step.run(fake);
        for (const auto& [path, text] : step.old) EXPECT_EQ(fake.world.files.files[path], text) << path;
        EXPECT_TRUE(fake.form.sbMain.text.starts_with("Not written: [")) << fake.form.sbMain.text;
    }
}

TEST(KeptOutputs, AKillAtAnyMomentLeavesTheOldFileInPlaceOrKept) {
    for (const Step& step : kSteps) {
        for (int written = 0; written < 8; ++written) {
            SCOPED_TRACE(testing::Message() << step.name << ", after " << written);
            test::FakeProgram fake;
            fake.world.files.files.insert(step.old.begin(), step.old.end());
            fake.world.files.commitsBeforeKill = written;
            step.run(fake);
            Contents found = Kept(fake);
            for (const auto& [path, text] : step.old)
                EXPECT_TRUE(found[path] == text || fake.world.files.files[path] == text) << path;
        }
    }
}

}  // namespace
}  // namespace orlo

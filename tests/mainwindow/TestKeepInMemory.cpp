// A plan and a project that are kept from memory are the files that a save would have written.

#include <gtest/gtest.h>

#include <map>

#include "core/KeptFiles.h"
#include "mainwindow/KeepInMemory.h"
#include "mainwindow/SavePlan.h"
#include "projects/KeepProject.h"
#include "projects/ProjectFile.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

using Contents = std::map<std::string, std::string>;  // by path

Contents NewestKept(test::FakeProgram& program) {
    Contents contents;
    const auto entries = ReadKeptEntries(program.world.files, "/state");
    if (entries.empty()) return contents;
    for (const KeptFile& file : entries.front().Files)
        contents[file.Path] = program.world.files.files[KeptContentPath("/state", file)];
    return contents;
}

TEST(KeepInMemory, IsWhatASaveWouldWrite) {
    test::FakeProgram program;
    Plan& plan = program.session.plan;
    plan.FlightplanPath = "/w/My Plan.txt";
    plan.PlanAircrafts.push_back({"AC#1", "450", "One"});
    program.AddFlight(
        "AC#1,N1,9%,1Hr,IFR,00:10:00,00:40:00,100,F,0001,KBBB,01:10:00,01:40:00,120,F,0002,KAAA");
    program.AddFlight(
        "AC#1,N2,9%,1Hr,IFR,00:10:00,00:40:00,100,F,0001,KBBB,01:10:00,01:40:00,120,F,0002,KAAA");
    plan.Flights.SetRemoved(1, true);
    ProjectState& project = program.session.project;
    project.ProjectPath = "/w/One.orp";
    project.ProjectEntries = {{"/w/My Plan.txt", "", "first", 0}};
    const Contents before = {program.world.files.files.begin(), program.world.files.files.end()};

    ASSERT_TRUE(KeepPlanInMemory(program.context, "Exit"));
    const Contents keptPlan = NewestKept(program);
    ASSERT_TRUE(KeepProjectInMemory(program.context, "Exit"));
    const Contents keptProject = NewestKept(program);
    for (const auto& [path, text] : program.world.files.files)
        EXPECT_TRUE(path.starts_with("/state/") || before.contains(path)) << path;

    SaveFlightplan(program.context);
    ASSERT_TRUE(WriteProject(project, program.world.files, project.ProjectPath));
    Contents& disk = program.world.files.files;
    EXPECT_EQ(keptPlan, (Contents{{"/w/My Plan.txt", disk["/w/My Plan.txt"]},
                                  {"/w/Aircraft.txt", disk["/w/Aircraft.txt"]},
                                  {"/w/Removed Flights.txt", disk["/w/Removed Flights.txt"]}}));
    EXPECT_EQ(keptProject, (Contents{{"/w/One.orp", disk["/w/One.orp"]}}));
    EXPECT_EQ(disk["/w/Removed Flights.txt"].substr(0, 7), "AC#1,N2");

    program.session.StateFolder.clear();
    EXPECT_FALSE(KeepPlanInMemory(program.context, "Exit"));
}

}  // namespace
}  // namespace orlo

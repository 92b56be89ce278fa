#include "platform/windows/WindowsProcesses.h"

#include <gtest/gtest.h>

#include "platform/TemporaryFolder.h"

namespace orlo {
namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20'000;  // milliseconds

TEST(WindowsProcesses, AToolRunsInItsFolderAndEndsByItselfOrAsAsked) {
    const test::TemporaryFolder folder;
    fs::copy_file(ORLO_STAND_IN, folder.Place("Tool.exe"));
    WindowsProcesses processes;
    for (const char* name : {"FlightPlans.txt", "Aircraft.txt", "Airports.txt"})
        folder.Put(std::string("work/") + name, "line\r\n");
    const struct {
        const char *argument, *wanted;
        std::int32_t code;
    } cases[] = {
        {"/NP", "0", 0}, {"/NP", "70000", 70000}, {"/EP", "259", 259}, {"/a b", "0", 3}, {"", "0", 3}};
    for (const auto& c : cases) {
        folder.Put("work/exit-code.txt", c.wanted);
        for (const bool shown : {false, true}) {
            const auto tool =
                processes.Start({folder.Path("Tool.exe"), c.argument, folder.Path("work"), shown});
            ASSERT_TRUE(tool);
            EXPECT_TRUE(tool->Wait(kPatience));
            EXPECT_EQ(tool->ExitCode(), c.code) << c.argument << ' ' << c.wanted;
        }
    }
    EXPECT_TRUE(folder.Content("work/Traffic Listing.txt").starts_with("switch /EP\n"));

    folder.Put("work/exit-code.txt", "never");
    const auto tool = processes.Start({folder.Path("Tool.exe"), "/NP", folder.Path("work")});
    ASSERT_TRUE(tool);
    EXPECT_FALSE(tool->Wait(500));
    tool->End();
    EXPECT_TRUE(tool->Wait(0));
    EXPECT_NE(tool->ExitCode(), 0);

    EXPECT_FALSE(processes.Start({folder.Path("missing.exe"), "/NP", folder.Path("work")}));
    EXPECT_FALSE(processes.Start({folder.Path("work/Aircraft.txt"), "/NP", folder.Path("work")}));
    EXPECT_FALSE(processes.Start({folder.Path("Tool.exe"), "/NP", folder.Path("nowhere")}));
    EXPECT_TRUE(fs::exists(folder.Place("Tool.exe")));
}

}  // namespace
}  // namespace orlo

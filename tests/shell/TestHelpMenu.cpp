#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace orlo {
namespace {

TEST(HelpMenu, SystemInformationStartsTheProgramThatTheMachineNamesOrSaysThatThereIsNone) {
    const std::string shared = "SOFTWARE\\MICROSOFT\\SHARED TOOLS";
    const struct {
        const char* name;
        std::string path, folder, file;
        bool canStart;
        const char* started;
    } cases[] = {
        {"by its path", "/info/a.exe", "/other", "/info/a.exe", true, "/info/a.exe  in /info shown"},
        {"by its folder", "", "/info", "/info/MSINFO32.EXE", true, "/info/MSINFO32.EXE  in /info shown"},
        {"no value", "", "", "", true, nullptr},
        {"no such file", "/info/a.exe", "/info", "/info/MSINFO32.EXE", true, nullptr},
        {"can't be started", "/info/a.exe", "", "/info/a.exe", false, nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        test::FakeProgram fake;
        test::FakeWorld& world = fake.world;
        auto& values = world.machineSettings.values;
        if (!c.path.empty()) values[shared + "\\MSINFO\\PATH"] = c.path;
        if (!c.folder.empty()) values[shared + " LOCATION\\MSINFO"] = c.folder;
        if (!c.file.empty()) world.files.files[c.file] = "";
        world.processes.canStart = c.canStart;
        AboutForm& about = fake.program.forms.frmAbout;
        fake.program.pump.Windows().Show(about);
        fake.Press(about.cmdSysInfo);
        const bool starts = c.started != nullptr;
        EXPECT_EQ(world.processes.started,
                  starts ? std::vector<std::string>{c.started} : decltype(world.processes.started)());
        EXPECT_EQ(world.messages.shown.size(), starts ? 0u : 1u);
    }
}

}  // namespace
}  // namespace orlo

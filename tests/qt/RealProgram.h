#pragma once

#include <QProcess>
#include <memory>
#include <string>

#include "core/Path.h"
#include "desktop/DesktopHost.h"
#include "desktop/MainLayout.h"
#include "desktop/ScreenText.h"
#include "platform/Platform.h"
#include "platform/common/SystemRandom.h"
#include "shell/Program.h"
#include "shell/StartUp.h"
#include "support/FakeHosts.h"

namespace orlo::test {

// Makes a sample world in a folder that doesn't stand yet. False when the tool fails.
inline bool MakeSampleWorld(const std::string& folder, int flights) {
    const QStringList words = {PathToQString(folder), "--flights", QString::number(flights), "--seed", "7"};
    QProcess tool;
    tool.setStandardOutputFile(QProcess::nullDevice());
    tool.start(ORLO_SAMPLE_WORLD_TOOL, words);
    return tool.waitForFinished(-1) && tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
}

// The desktop program on a sample world, with the services that its main makes. The settings are a text file
// in the world, the clock stands, and each seeding starts the same row of random values.
struct RealProgram {
    std::unique_ptr<FileSystem> files = MakeFileSystem();
    std::unique_ptr<SettingsStore> userSettings;
    std::unique_ptr<SettingsStore> machineSettings;
    FakeClock clock;
    SystemRandom random{1};
    DesktopHost host;
    Services services;
    Program program;
    MainForm& form = program.forms.frmMain;

    explicit RealProgram(const std::string& world)
        : userSettings(MakeUserSettings(*files, JoinPath(world, "settings.txt"))),
          machineSettings(MakeMachineSettings(*files, JoinPath(world, "Simulator"))),
          services{*files, *userSettings, *machineSettings, host, host, host, random, clock},
          program(services, JoinPath(world, "Program")) {
        host.Attach(program.pump, program.forms.frmProgress);
        DesignMainForm(form);
    }
    ~RealProgram() { host.Detach(); }
};

}  // namespace orlo::test

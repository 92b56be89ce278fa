#pragma once

#include <QProcess>
#include <memory>
#include <string>

#include "core/Application.h"
#include "core/Path.h"
#include "desktop/DesktopHost.h"
#include "desktop/MainLayout.h"
#include "desktop/ScreenText.h"
#include "platform/SystemServices.h"
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

// The system's services on a sample world: the settings are a text file in it, the clock stands, and each
// seeding starts the same row of random values. `simulator` is its folder in the world.
inline SystemServices ServicesOn(const std::string& world, const std::string& simulator = "Simulator") {
    SystemServices system(JoinPath(world, "settings.txt"), JoinPath(world, simulator), 1);
    system.clock = std::make_unique<FakeClock>();
    return system;
}

// The desktop program on a sample world, with the services that its main makes.
struct RealProgram {
    SystemServices system;
    std::unique_ptr<DesktopHost> owned;
    DesktopHost& host;
    Services services = system.Behind(host);
    Program program;
    MainForm& form = program.forms.frmMain;

    explicit RealProgram(const std::string& world)
        : RealProgram(world, ServicesOn(world), std::make_unique<DesktopHost>()) {}
    RealProgram(const std::string& world, SystemServices systemOf, std::unique_ptr<DesktopHost> hostOf)
        : system(std::move(systemOf)),
          owned(std::move(hostOf)),
          host(*owned),
          program(services, JoinPath(world, "Program"), JoinPath(world, kKeptFolderName)) {
        host.Attach(program.pump, program.forms.frmProgress);
        DesignMainForm(form);
    }
    ~RealProgram() { host.Detach(); }
};

}  // namespace orlo::test

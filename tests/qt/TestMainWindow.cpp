// The program as its main runs it, on a sample world.

#include <gtest/gtest.h>

#include <QFile>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/Platform.h"
#include "platform/common/SystemRandom.h"
#include "qt/DesktopProgram.h"
#include "shell/StartUp.h"

namespace orlo {
namespace {

using test::DesktopProgram;

constexpr std::string_view kSettings = "SOFTWARE\\Brantel Data Service\\Orlo\\1.0\\Settings";

struct World {
    QTemporaryDir root;
    World() { EXPECT_EQ(QProcess::execute(ORLO_SAMPLE_WORLD_TOOL, {root.path()}), 0); }
    std::string Path(const char* name) const { return Concat(root.path().toStdString(), "/", name); }
    static const World& Made() {
        static const World kMade;
        return kMade;
    }
};

struct MainProgram {
    const World& world = World::Made();
    std::unique_ptr<FileSystem> files = MakeFileSystem();
    std::unique_ptr<Clock> clock = MakeClock();
    test::FakeSettings settings;
    test::FakeSettings machine;
    SystemRandom random;
    DesktopHost host;
    Services services{*files, settings, machine, host, host, host, random, *clock};
    Program program{services, world.Path("Program")};
    MainForm& form = program.forms.frmMain;

    MainProgram() {
        settings.Set(kSettings, "SimulatorFolder", world.Path("Simulator"));
        settings.Set("SOFTWARE\\Brantel Data Service\\Orlo\\1.0\\Recent Flightplans", "1",
                     world.Path("Plan/R&D.txt"));
        settings.Set(kSettings, "ACCheck", "0");
        host.Attach(program.pump, program.forms.frmProgress);
        EXPECT_TRUE(StartUp(program.context));
    }
    ~MainProgram() { host.Detach(); }
    void EndSplash() {
        CloseSplash(program.context);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&DesktopProgram::WindowOf(form)));
    }
    bool WaitForPlan() {
        return QTest::qWaitFor([this] { return program.session.PlanLoaded && form.enabled; }, 20000);
    }
};

TEST(MainWindow, APlanOpensByItsShortcutAndTheCloseBoxEndsTheProgramWithItsSettings) {
    MainProgram desktop;
    desktop.EndSplash();
    const std::string plan = desktop.world.Path("Plan/FlightPlans.txt");
    test::InDialog<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Open Flightplan");
        test::Choose(dialog, plan);
    });
    DesktopProgram::Key(desktop.form, Qt::Key_O, Qt::ControlModifier);
    ASSERT_TRUE(desktop.WaitForPlan());
    EXPECT_TRUE(desktop.form.sbMain.text.starts_with("Flightplan loaded with "));
    EXPECT_GT(desktop.form.tvShuffleAircraft.Count(), 0);
    DesktopProgram::Settle();
    auto& window = DesktopProgram::WindowOf(desktop.form);
    EXPECT_EQ(window.findChild<QAction*>("mnuRecentFlightPlan1")->text().toStdString(), plan);
    EXPECT_EQ(window.findChild<QAction*>("mnuRecentFlightPlan2")->text().toStdString(),
              desktop.world.Path("Plan/R&&D.txt"));

    window.setGeometry(40, 30, 700, 500);
    QTimer::singleShot(50, [&] { window.close(); });
    desktop.host.RunUntilClosed(desktop.form);
    EXPECT_EQ(desktop.settings.Get(kSettings, "SimulatorFolder"), desktop.world.Path("Simulator"));
    EXPECT_EQ(desktop.settings.Get(kSettings, "MainLeft"), "40");
    EXPECT_EQ(desktop.program.session.FlightCount(), 0);
}

TEST(MainWindow, APlanDroppedOnItOpens) {
    MainProgram desktop;
    desktop.EndSplash();
    Event drop{&desktop.form, nullptr, EventKind::DropFile};
    drop.path = desktop.world.Path("Plan/FlightPlans.txt");
    desktop.host.Post(drop);
    EXPECT_TRUE(desktop.WaitForPlan());
    EXPECT_EQ(desktop.program.session.FlightplanPath, drop.path);
}

TEST(MainWindow, TheSplashGoesByTimeByAnyKeyAndByAClick) {
    struct Way {
        const char* name;
        std::function<void(MainProgram&)> act;
    };
    const std::vector<Way> ways = {
        {"time", [](MainProgram& d) { d.host.StartTimer(kSplashTimer, 1); }},
        {"a letter", [](MainProgram& d) { DesktopProgram::Key(d.program.forms.frmSplash, Qt::Key_X); }},
        {"Escape", [](MainProgram& d) { DesktopProgram::Key(d.program.forms.frmSplash, Qt::Key_Escape); }},
        {"a key with Alt",
         [](MainProgram& d) { DesktopProgram::Key(d.program.forms.frmSplash, Qt::Key_F, Qt::AltModifier); }},
        {"a click", [](MainProgram& d) { DesktopProgram::Click(d.program.forms.frmSplash.picSplash); }},
    };
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        MainProgram desktop;
        const SplashForm& splash = desktop.program.forms.frmSplash;
        ASSERT_TRUE(splash.visible);
        const FormWindow& window = DesktopProgram::WindowOf(splash);
        EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
        EXPECT_NEAR(window.windowOpacity(), 192 / 255.0, 0.01);
        const QPoint off =
            window.geometry().center() - DesktopProgram::WindowOf(desktop.form).geometry().center();
        EXPECT_LE(off.manhattanLength(), 4);
        way.act(desktop);
        DesktopProgram::Settle();
        EXPECT_FALSE(splash.visible);
        EXPECT_FALSE(desktop.host.TimerArmed(kSplashTimer));
        EXPECT_TRUE(desktop.form.visible);
    }
}

// A dialog that the splash owned would go with it.
TEST(MainWindow, ADialogOutlivesTheSplash) {
    MainProgram desktop;
    desktop.host.StartTimer(kSplashTimer, 20);
    bool stands = false;
    QTimer::singleShot(150, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        stands = box != nullptr && !desktop.program.forms.frmSplash.visible;
        if (box != nullptr) box->close();
    });
    desktop.host.ShowNotBuilt("cmdMove");
    EXPECT_TRUE(stands);
}

TEST(MainWindow, AboutIsModalOverTheMainWindowAndItsButtonClosesIt) {
    MainProgram desktop;
    desktop.EndSplash();
    const AboutForm& about = desktop.program.forms.frmAbout;
    bool modal = false;
    QTimer::singleShot(100, [&] {
        modal = desktop.program.pump.Windows().TopModal() == &about;
        EXPECT_EQ(DesktopProgram::WindowOf(about).parentWidget(), &DesktopProgram::WindowOf(desktop.form));
        DesktopProgram::Key(about, Qt::Key_Return);
    });
    DesktopProgram::WindowOf(desktop.form).findChild<QAction*>("mnuHelpAbout")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return modal && !about.visible; }, 2000));
}

}  // namespace
}  // namespace orlo

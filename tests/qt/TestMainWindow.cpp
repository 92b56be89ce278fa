// The program as its main runs it, on a sample world.

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>

#include "qt/DesktopProgram.h"
#include "qt/RealProgram.h"
#include "shell/OpenPlan.h"

namespace orlo {
namespace {

using test::DesktopProgram;

std::string WorldOnce() {
    static const QTemporaryDir kRoot;
    static const std::string kWorld = [] {
        std::string path = PathFromQString(kRoot.filePath("world"));
        EXPECT_TRUE(test::MakeSampleWorld(path, 20));
        return path;
    }();
    return kWorld;
}

struct StartedProgram : test::RealProgram {
    const SplashForm& splash = program.forms.frmSplash;

    StartedProgram() : RealProgram(WorldOnce()) { EXPECT_TRUE(StartUp(program.context)); }
};

TEST(MainWindow, TheCloseBoxEndsTheProgramAndStoresThePlaceOfTheWindow) {
    StartedProgram desktop;
    CloseSplash(desktop.program.context);
    FormWindow& window = DesktopProgram::WindowOf(desktop.form);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    window.setGeometry(40, 30, 700, 500);
    QTimer::singleShot(50, [&] { window.close(); });
    desktop.host.RunUntilClosed(desktop.form);
    EXPECT_EQ(
        desktop.system.userSettings->Get("SOFTWARE\\Brantel Data Service\\Orlo\\1.0\\Settings", "MainLeft"),
        "40");
}

// Here with a menu of the test's own; the system's is tested with the platform.
TEST(MainWindow, AboutInTheSystemMenuOpensTheDialogAndGoesWithTheWindow) {
    int standing = 0;
    bool seen = false;
    {
        StartedProgram desktop;
        std::function<void()> chosen;
        desktop.host.addAboutToSystemMenu = [&](WId window, std::function<void()> choose) {
            EXPECT_EQ(window, DesktopProgram::WindowOf(desktop.form).winId());
            chosen = std::move(choose);
            ++standing;
            return std::shared_ptr<void>(&standing, [](void* count) { --*static_cast<int*>(count); });
        };
        CloseSplash(desktop.program.context);
        DesktopProgram::Settle();
        ASSERT_EQ(standing, 1);
        QTimer::singleShot(100, &desktop.host, [&] {
            const AboutForm& about = desktop.program.forms.frmAbout;
            seen = desktop.program.pump.Windows().TopModal() == &about;
            test::PressKeys(DesktopProgram::WindowOf(about), "Escape");
        });
        chosen();
        QTest::qWait(200);
    }
    EXPECT_TRUE(seen);
    EXPECT_EQ(standing, 0);
}

TEST(MainWindow, TheSplashStandsInTheMiddleAndGoesByAnyKey) {
    for (const char* keys : {"X", "Alt+F"}) {
        SCOPED_TRACE(keys);
        StartedProgram desktop;
        ASSERT_TRUE(desktop.splash.visible);
        FormWindow& window = DesktopProgram::WindowOf(desktop.splash);
        EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
        EXPECT_NEAR(window.windowOpacity(), 192 / 255.0, 0.01);
        const QPoint off =
            window.geometry().center() - DesktopProgram::WindowOf(desktop.form).geometry().center();
        EXPECT_LE(off.manhattanLength(), 4);
        test::PressKeys(window, keys);
        DesktopProgram::Settle();
        EXPECT_FALSE(desktop.splash.visible);
        EXPECT_FALSE(desktop.host.TimerArmed(kSplashTimer));
        EXPECT_TRUE(desktop.form.visible);
    }
}

// On the system's window, where the mark of a change stands for the toolkit's "[*]". The name is one of code
// page 1252.
TEST(MainWindow, TheTitleTellsThePlanAndWhetherItIsChanged) {
    StartedProgram desktop;
    CloseSplash(desktop.program.context);
    const std::string folder = JoinPath(WorldOnce(), "Plan");
    const std::string plan = JoinPath(folder, "Caf\xE9 [*].txt");
    std::filesystem::copy_file(JoinPath(folder, "FlightPlans.txt"), plan);
    QTimer answering;
    QObject::connect(&answering, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->defaultButton()->click();
    });
    answering.start(20);
    const auto title = [&](Control* control, EventKind kind, const std::string& path = {}) {
        Event event{&desktop.form, control, kind, 0, {}, path};
        desktop.host.DeliverNow(event);
        DesktopProgram::Settle();
        return DesktopProgram::WindowOf(desktop.form).windowHandle()->title().toStdString();
    };
    EXPECT_EQ(title(nullptr, EventKind::Resize), "Orlo");
    EXPECT_EQ(title(nullptr, EventKind::DropFile, plan), "Café [*].txt - Orlo");
    EXPECT_EQ(title(&desktop.form.cmdShuffle, EventKind::Click), "Café [*].txt* - Orlo");
    EXPECT_EQ(title(&desktop.form.mnuFileSave, EventKind::Click), "Café [*].txt - Orlo");
    EXPECT_EQ(title(&desktop.form.cmdShuffle, EventKind::Click), "Café [*].txt* - Orlo");
    // Nothing of a plan stands beside it. The question before is answered with Yes.
    const std::string alone = JoinPath(JoinPath(WorldOnce(), "Program"), "ORLO_AL.CFG");
    EXPECT_EQ(title(nullptr, EventKind::DropFile, alone), "Orlo");
    EXPECT_EQ(desktop.form.caption, "Orlo");
    for (const std::string& file : {plan, plan + ".orlo.bak"}) std::filesystem::remove(file);
}

TEST(MainWindow, EmptyViewsSayHowToBeginUntilAPlanWasOpened) {
    StartedProgram real;
    real.program.session.switches.ACCheck = false;  // asks nothing
    const std::string empty = JoinPath(WorldOnce(), "Plan/Empty.txt");
    std::ofstream(empty) << "no flight\r\n";
    const auto hints = [&] {
        for (Picture* pane :
             {&real.form.picShuffle, &real.form.picMove, &real.form.picExport, &real.form.picTimetable})
            pane->visible = true;
        real.host.CatchUp(DesktopProgram::WindowOf(real.form));
        int count = 0;
        for (const Control* control :
             std::initializer_list<const Control*>{&real.form.tvShuffleAircraft, &real.form.tvMoveAircrafts,
                                                   &real.form.lvExPreview, &real.form.lvTimetable}) {
            const QString told = DesktopProgram::Find<QWidget>(*control).accessibleDescription();
            if (control->EffectivelyVisible() && told.startsWith("Open a flightplan")) ++count;
        }
        return count;
    };
    EXPECT_EQ(hints(), 4);
    OpenFlightplan(real.program.context, empty);
    EXPECT_EQ(hints(), 2) << "the trees stay hidden";
    OpenFlightplan(real.program.context, JoinPath(WorldOnce(), "Plan/FlightPlans.txt"));
    ASSERT_TRUE(real.program.session.plan.PlanLoaded);
    EXPECT_EQ(hints(), 0);
    OpenFlightplan(real.program.context, empty);
    EXPECT_EQ(hints(), 0) << "they don't come back";
    EXPECT_FALSE(real.form.lvProject.emptyHint.empty());
}

// A dialog that the splash owned would go with it.
TEST(MainWindow, ADialogOutlivesTheSplash) {
    StartedProgram desktop;
    desktop.host.StartTimer(kSplashTimer, 20);
    bool stands = false;
    QTimer::singleShot(150, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        stands = box != nullptr && !desktop.splash.visible;
        if (box != nullptr) box->close();
    });
    desktop.host.ShowMessage("Said.", kMarkInformation, "Orlo", nullptr);
    EXPECT_TRUE(stands);
}

}  // namespace
}  // namespace orlo

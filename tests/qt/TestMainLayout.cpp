#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QGuiApplication>
#include <QPalette>
#include <QScopeGuard>
#include <QScreen>
#include <cmath>

#include "desktop/ControlSizes.h"
#include "desktop/EdgeStyle.h"
#include "desktop/MainLayout.h"
#include "desktop/ScreenText.h"
#include "qt/DesktopProgram.h"
#include "shell/PaneFacts.h"
#include "shell/Tabs.h"

namespace orlo {
namespace {

constexpr std::array kTabs = {"SHUFFLE", "MOVE", "EXPORT", "TIMETABLE", "PROJECT"};
constexpr int kTolerance = 4;  // pixels, of controls of unlike heights in one row

// The main window as the start leaves it.
struct MainWindow {
    DesktopHost host;
    test::FakeWorld world{{.frontEnd = &host}};
    Program program{world.services, "/program", "/state"};
    MainForm& form = program.forms.frmMain;

    explicit MainWindow(WindowBox stored = {}) {
        host.Attach(program.pump, program.forms.frmProgress);
        DesignMainForm(form);
        RegisterMainLayout(program.frame.layout, form, form.innerHeight, form.innerWidth);
        program.frame.limits.AddWindowLimits(form, kMainWindowLimits);
        if (stored.height >= 0) form.box = stored;
        host.ShowForm(form);
        test::DesktopProgram::Settle();
    }
    ~MainWindow() { host.Detach(); }

    FormWindow& Window() { return test::DesktopProgram::WindowOf(form); }
    void ResizeTo(int width, int height) {
        Window().resize(width, height);
        test::DesktopProgram::Settle();
    }
    void ShowTab(std::string_view key) {
        form.tabMain.selectedKey = key;
        ActivateTab(program.context);
        host.CatchUp(Window());
    }
};

struct Shown {
    const Control* control;
    QRect place;  // in the window
    QRect room;   // of what holds it
};

// What the window shows at present, but panes, frames and the tab strip behind them.
std::vector<Shown> ShownIn(const Form& form) {
    std::vector<Shown> shown;
    FormWindow& window = test::DesktopProgram::WindowOf(form);
    for (const Control* control : form.Controls()) {
        if (control->kind == ControlKind::MenuEntry || control->kind == ControlKind::Picture) continue;
        const QWidget* widget = &test::WidgetOf(*control);
        if (control->kind == ControlKind::Frame || !widget->isVisible()) continue;
        const QRect room(widget->parentWidget()->mapTo(&window, QPoint()), widget->parentWidget()->size());
        shown.push_back({control, QRect(widget->mapTo(&window, QPoint()), widget->size()), room});
    }
    return shown;
}

void ExpectApartAndWhole(const Form& form, const std::string& when) {
    const std::vector<Shown> shown = ShownIn(form);
    EXPECT_GT(shown.size(), 5u) << when;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const Control& control = *shown[i].control;
        EXPECT_TRUE(shown[i].room.contains(shown[i].place)) << control.name << " leaves its pane, " << when;
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(shown[i].place.intersects(shown[j].place))
                << control.name << " and " << shown[j].control->name << ", " << when;
        }
        const QSize natural = NaturalSize(control);
        EXPECT_GE(shown[i].place.height(), natural.height()) << control.name << ", " << when;
        const bool showsCaption = control.kind != ControlKind::TextBox &&
                                  control.kind != ControlKind::ComboBox &&
                                  control.kind != ControlKind::StatusBar;
        const int least = showsCaption ? natural.width() : 0;
        EXPECT_GE(shown[i].place.width(), least) << control.name << ", " << when;
    }
}

TEST(MainLayout, NothingOverlapsIsCutOrLeavesItsPaneAtAnySizeAndFont) {
    const QFont before = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(before); });
    for (const int points : {8, 9, 14}) {
        QApplication::setFont(QFont(before.family(), points));
        MainWindow main;
        const QSize least(main.form.leastWidth, main.form.leastHeight);
        const QSize opening(main.form.innerWidth, main.form.innerHeight);
        // A window asked to be smaller stays at its least size.
        for (const QSize size :
             {QSize(1, 1), opening, QSize(least.width(), 900), opening + QSize(301, 200)}) {
            main.ResizeTo(size.width(), size.height());
            EXPECT_EQ(main.Window().size(), size.expandedTo(least));
            for (const char* tab : kTabs) {
                main.ShowTab(tab);
                ExpectApartAndWhole(main.form, Concat(tab, " at ", size.width(), " x ", size.height(), ", ",
                                                      points, " points"));
            }
        }
    }
}

TEST(MainLayout, AStoredPlaceIsTakenIfItCanBeSeenButNeverBelowTheLeastSize) {
    MainWindow large({30, 40, 1400, 1000});
    EXPECT_EQ(large.Window().geometry(), QRect(30, 40, 1400, 1000));
    EXPECT_EQ(large.form.sbMain.box.top + large.form.sbMain.box.height, 1000);
    EXPECT_EQ(large.form.picShuffle.box.width, 1400);

    MainWindow small({0, 0, 300, 200});
    EXPECT_EQ(small.Window().size(), QSize(small.form.leastWidth, small.form.leastHeight));
    small.ShowTab("EXPORT");
    ExpectApartAndWhole(small.form, "a place that was too small");

    MainWindow lost({-9000, 40, 900, 700});
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(lost.Window().geometry().center()));
    EXPECT_EQ(lost.Window().size(), QSize(lost.form.leastWidth, 700));  // as wide as the screen lets it be
}

// Each control stands below the one before, or right of it, and has a name where it takes the focus.
void ExpectReadingOrderAndNames(const Form& form, std::string_view when) {
    const Shown* before = nullptr;
    const std::vector<Shown> shown = ShownIn(form);
    for (const Shown& next : shown) {
        const bool follows = before == nullptr || before->control->parent == nullptr ||
                             next.place.top() >= before->place.bottom() - kTolerance ||
                             next.place.left() >= before->place.right() - kTolerance;
        EXPECT_TRUE(follows) << next.control->name << " after " << before->control->name << ", " << when;
        before = &next;
        QWidget& widget = test::WidgetOf(*next.control);
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
        EXPECT_TRUE(widget.focusPolicy() == Qt::NoFocus || !spoken->text(QAccessible::Name).isEmpty())
            << next.control->name << " has no name";
    }
}

TEST(MainLayout, TheTabKeyFollowsTheEyeAndEachFieldHasAName) {
    MainWindow main;
    for (const char* tab : kTabs) {
        main.ShowTab(tab);
        ExpectReadingOrderAndNames(main.form, tab);
    }
    FlightEditForm& editor = main.program.forms.frmFlightEdit;
    main.host.ShowForm(editor);
    test::DesktopProgram::Settle();
    ExpectReadingOrderAndNames(editor, "the editor");
    ExpectApartAndWhole(editor, "the editor");
    test::DesktopProgram::WindowOf(editor).resize(1, 1);
    test::DesktopProgram::Settle();
    ExpectApartAndWhole(editor, "the smallest editor");
}

// Of two colours as a reader sees them, from 1 to 21.
double Contrast(const QColor& a, const QColor& b) {
    const auto light = [](const QColor& colour) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const double first = light(a) + 0.05;
    const double second = light(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

TEST(MainLayout, ColouredTextsCanBeReadOnDarkAndLightGround) {
    const QPalette before = QGuiApplication::palette();
    for (const QColor ground : {QColor(Qt::white), QColor(0x1E, 0x1E, 0x1E), QColor(0x30, 0x32, 0x36)}) {
        QPalette palette = before;
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, ground.lightness() < 128 ? Qt::white : Qt::black);
        QGuiApplication::setPalette(palette);
        for (const Colour colour : {Colour::Black, Colour::Red, Colour::Blue, Colour::Gray}) {
            const QColor shown = ScreenColour(colour).value_or(palette.color(QPalette::Text));
            EXPECT_GE(Contrast(shown, ground), 3.9)
                << ColourWord(colour) << " on " << ground.name().toStdString();
        }
    }
    QGuiApplication::setPalette(before);
}

TEST(MainLayout, AnEmptyCheckBoxIsSeenOnDarkGround) {
    UseVisibleEdges();
    QPalette palette(QColor(0x3A, 0x3A, 0x3A), QColor(0x2B, 0x2B, 0x2B));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    QCheckBox box;
    box.setPalette(palette);
    box.resize(box.sizeHint());
    const QImage image = box.grab().toImage();
    double most = 0;
    for (int x = 0; x < image.width(); ++x)
        most = std::max(most, Contrast(image.pixelColor(x, image.height() / 2), QColor(0x2B, 0x2B, 0x2B)));
    EXPECT_GE(most, 3);
}

}  // namespace
}  // namespace orlo

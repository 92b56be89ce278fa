#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QTemporaryDir>
#include <fstream>

#include "qt/DesktopProgram.h"
#include "qt/RealProgram.h"
#include "shell/OpenPlan.h"

namespace orlo {
namespace {

using test::DesktopProgram;
using EmptyHints = test::DesktopTest;

// The columns of pixels in which something is painted on the ground of the view.
int PaintedWidth(const QAbstractItemView& view) {
    const QImage image = view.viewport()->grab().toImage();
    const QRgb ground = view.palette().color(QPalette::Base).rgb();
    int width = 0;
    for (int x = 0; x < image.width(); ++x) {
        bool painted = false;
        for (int y = 0; y < image.height(); ++y) painted = painted || image.pixel(x, y) != ground;
        width += painted ? 1 : 0;
    }
    return width;
}

TEST_F(EmptyHints, AHintIsDrawnWhileThereAreNoRowsAndNeverWiderThanTheView) {
    const QString hint = "Open something & begin (File, Open).";
    form.tvNodes.Clear();
    desktop.CatchUp();
    for (Control* control : {static_cast<Control*>(&form.lvRows), static_cast<Control*>(&form.tvNodes)}) {
        auto& view = DesktopProgram::Find<QAbstractItemView>(*control);
        std::string& text = control == &form.lvRows ? form.lvRows.emptyHint : form.tvNodes.emptyHint;
        EXPECT_EQ(PaintedWidth(view), 0) << control->name;
        text = hint.toStdString();
        desktop.CatchUp();
        EXPECT_GT(PaintedWidth(view), view.fontMetrics().horizontalAdvance(hint) / 2) << control->name;
        EXPECT_EQ(view.accessibleDescription(), hint);
        text = QString(1000, 'x').toStdString();
        desktop.CatchUp();
        EXPECT_LT(PaintedWidth(view), view.viewport()->width() - 8) << control->name;
    }
    form.lvRows.Add({"", "", "", Colour::WindowText, {"a", "b"}});
    form.tvNodes.Add(-1, "#A", "a", Colour::WindowText);
    desktop.CatchUp();
    for (Control* control : {static_cast<Control*>(&form.lvRows), static_cast<Control*>(&form.tvNodes)}) {
        auto& view = DesktopProgram::Find<QAbstractItemView>(*control);
        EXPECT_EQ(view.accessibleDescription(), "");
        const QImage image = view.viewport()->grab().toImage();
        const QPoint middle = image.rect().center();
        for (int x = 0; x < image.width(); ++x)
            EXPECT_EQ(image.pixelColor(x, middle.y()), view.palette().color(QPalette::Base)) << control->name;
    }
}

TEST(EmptyHintsOfTheMainWindow, SayHowToBeginUntilAPlanWasOpened) {
    QTemporaryDir folder;
    const std::string world = PathFromQString(folder.filePath("world"));
    ASSERT_TRUE(test::MakeSampleWorld(world, 20));
    const std::string empty = JoinPath(world, "Plan/Empty.txt");
    std::ofstream(empty) << "no flight\r\n";
    test::RealProgram real(world);
    ASSERT_TRUE(StartUp(real.program.context));
    real.program.session.switches.ACCheck = false;  // asks nothing

    const auto hints = [&] {
        DesktopProgram::Settle();
        int count = 0;
        for (const Control* control :
             std::initializer_list<const Control*>{&real.form.tvShuffleAircraft, &real.form.tvMoveAircrafts,
                                                   &real.form.lvExPreview, &real.form.lvTimetable}) {
            real.form.picShuffle.visible = real.form.picMove.visible = true;
            real.form.picExport.visible = real.form.picTimetable.visible = true;
            real.host.CatchUp(DesktopProgram::WindowOf(real.form));
            const QString told = DesktopProgram::Find<QAbstractItemView>(*control).accessibleDescription();
            if (control->EffectivelyVisible() && told.startsWith("Open a flightplan")) ++count;
        }
        return count;
    };
    EXPECT_EQ(hints(), 4);
    OpenFlightplan(real.program.context, empty);
    EXPECT_EQ(hints(), 2) << "the trees stay hidden";
    OpenFlightplan(real.program.context, JoinPath(world, "Plan/FlightPlans.txt"));
    ASSERT_TRUE(real.program.session.plan.PlanLoaded);
    EXPECT_EQ(hints(), 0);
    OpenFlightplan(real.program.context, empty);
    EXPECT_EQ(hints(), 0) << "they don't come back";
    EXPECT_FALSE(real.form.lvProject.emptyHint.empty());
}

}  // namespace
}  // namespace orlo

#include <gtest/gtest.h>

#include <QAbstractItemView>

#include "qt/DesktopProgram.h"

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
    const std::pair<Control*, std::string*> views[] = {{&form.lvRows, &form.lvRows.emptyHint},
                                                       {&form.tvNodes, &form.tvNodes.emptyHint}};
    for (const auto& [control, text] : views) {
        auto& view = DesktopProgram::Find<QAbstractItemView>(*control);
        EXPECT_EQ(PaintedWidth(view), 0) << control->name;
        *text = hint.toStdString();
        desktop.CatchUp();
        EXPECT_GT(PaintedWidth(view), view.fontMetrics().horizontalAdvance(hint) / 2) << control->name;
        EXPECT_EQ(view.accessibleDescription(), hint);
        *text = QString(1000, 'x').toStdString();
        desktop.CatchUp();
        EXPECT_LT(PaintedWidth(view), view.viewport()->width() - 8) << control->name;
    }
    form.lvRows.Add({"", "", "", Colour::WindowText, {"a", "b"}});
    form.tvNodes.Add(-1, "#A", "a", Colour::WindowText);
    desktop.CatchUp();
    for (const auto& [control, text] : views) {
        auto& view = DesktopProgram::Find<QAbstractItemView>(*control);
        EXPECT_EQ(view.accessibleDescription(), "");
        const QImage image = view.viewport()->grab().toImage();
        const QPoint middle = image.rect().center();
        for (int x = 0; x < image.width(); ++x)
            EXPECT_EQ(image.pixelColor(x, middle.y()), view.palette().color(QPalette::Base)) << control->name;
    }
}

}  // namespace
}  // namespace orlo

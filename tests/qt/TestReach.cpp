#include <gtest/gtest.h>

#include <QAccessible>
#include <QMenu>

#include "desktop/ScreenPlace.h"
#include "desktop/ScreenText.h"
#include "qt/DesktopProgram.h"

namespace orlo {
namespace {

using test::DesktopProgram;
using Reach = test::DesktopTest;

TEST_F(Reach, ABlankIsAPartOfANameThatIsBeingTypedAndElseACheckMark) {
    form.tvNodes.Add(-1, "#A", "Air Cargo", Colour::WindowText);
    form.tvNodes.Add(-1, "#B", "Air Dune", Colour::WindowText);
    desktop.CatchUp();
    desktop.Focus(form.tvNodes);
    desktop.Type(form, "air d");
    EXPECT_EQ(form.tvNodes.At(form.tvNodes.current).text, "Air Dune");
    EXPECT_EQ(form.Ran("CheckNode tvNodes"), 0);
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    desktop.Type(form, " ");
    EXPECT_EQ(form.Ran("CheckNode tvNodes"), 1);
}

TEST_F(Reach, AListIsUsedByKeysAlone) {
    for (const char* name : {"b", "a", "c"}) form.lvRows.Add({"", "", "", Colour::WindowText, {name, ""}});
    form.on["Popup lvRows"] = [&](Context&, Event& event) { event.menu = &form.mnuSelect; };
    std::int32_t column = -1;
    form.on["ClickColumn lvRows"] = [&](Context&, Event& event) { column = event.value; };
    desktop.CatchUp();
    desktop.Focus(form.lvRows);
    desktop.Key(form, Qt::Key_End);
    EXPECT_EQ(form.lvRows.current, 2);
    EXPECT_EQ(form.lvRows.SelectedPlaces(), std::vector{2});
    desktop.Key(form, Qt::Key_Right);
    desktop.Key(form, Qt::Key_F3);
    EXPECT_EQ(column, 1);
    // The column stays when the rows are drawn anew.
    form.lvRows.SortByColumn(0);
    desktop.CatchUp();
    desktop.Key(form, Qt::Key_F3);
    EXPECT_EQ(column, 1);
    EXPECT_EQ(form.Ran("ClickColumn lvRows"), 2);

    // Of the keys with another held none is a command.
    desktop.Key(form, Qt::Key_Insert, Qt::ControlModifier);
    desktop.Key(form, Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(form.Ran("KeyUp lvRows"), 0);
    desktop.Key(form, Qt::Key_Delete);
    EXPECT_EQ(form.Ran("KeyUp lvRows"), 1);
    // A quick hand presses the next key before it lets go of the last.
    QWindow* window = DesktopProgram::WindowOf(form).windowHandle();
    QTest::keyPress(window, Qt::Key_Delete);
    QTest::keyPress(window, Qt::Key_Down);
    QTest::keyRelease(window, Qt::Key_Delete);
    QTest::keyRelease(window, Qt::Key_Down);
    DesktopProgram::Settle();
    EXPECT_EQ(form.Ran("KeyUp lvRows"), 2);
    // A key that was pressed elsewhere is no command here.
    desktop.Focus(form.txtName);
    QTest::keyPress(window, Qt::Key_Delete);
    desktop.Focus(form.lvRows);
    QTest::keyRelease(window, Qt::Key_Delete);
    DesktopProgram::Settle();
    EXPECT_EQ(form.Ran("KeyUp lvRows"), 2);

    desktop.Key(form, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(desktop.WindowOf(form).findChild<QMenu*>("mnuSelectMenu")->isVisible());
}

TEST_F(Reach, AMenuOfTheBarGoesBeforeAControlOfTheSameLetter) {
    form.mnuFile.caption = "&Gone";
    desktop.CatchUp();
    desktop.Key(form, Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(desktop.WindowOf(form).findChild<QMenu*>("mnuFileMenu")->isVisible());
    DesktopProgram::Settle();
    EXPECT_EQ(form.Ran("Click cmdGo"), 0);
}

TEST_F(Reach, KeysAndAClickOnTheShownTabSelectTabs) {
    desktop.Focus(form.txtName);
    for (const auto& [key, tab] : {std::pair(Qt::Key_PageDown, "TWO"), std::pair(Qt::Key_PageDown, "ONE"),
                                   std::pair(Qt::Key_PageUp, "TWO"), std::pair(Qt::Key_Tab, "ONE")}) {
        desktop.Key(form, key, Qt::ControlModifier);
        EXPECT_EQ(form.tabViews.selectedKey, tab);
    }
    EXPECT_EQ(form.Ran("SelectTab tabViews"), 4);
    // A field that refuses to be left keeps its tab.
    form.on["Leave txtName"] = [](Context&, Event& event) { event.refused = true; };
    desktop.Focus(form.txtName);
    desktop.Key(form, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(form.tabViews.selectedKey, "ONE");
    form.on.clear();
    desktop.Click(form.tabViews);
    EXPECT_EQ(form.tabViews.selectedKey, "ONE");
    EXPECT_EQ(form.Ran("SelectTab tabViews"), 5);
}

TEST_F(Reach, WhatAScreenReaderWritesStandsInTheForm) {
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&desktop.Find<QWidget>(form.txtName));
    ASSERT_NE(field, nullptr);
    field->setText(QAccessible::Value, "spoken");
    DesktopProgram::Settle();
    EXPECT_EQ(form.txtName.text, "spoken");
    EXPECT_EQ(form.Ran("Change txtName"), 1);
}

TEST(OnScreen, ALongTextIsCutWithinNoCharacterAndNoTextIsMarkup) {
    std::string text(999, 'x');
    text.append("\xC3\xA9").append(1000000, 'y');
    EXPECT_EQ(ShownText(text), QString(999, 'x') + QChar(0x2026));
    EXPECT_EQ(ShownText(std::string(1000, 'x')), QString(1000, 'x'));
    EXPECT_EQ(TipText("plain & simple"), "plain & simple");
    EXPECT_EQ(TipText("<b>a</b>\nb"), "<span>&lt;b&gt;a&lt;/b&gt;<br>b</span>");
}

TEST(OnScreen, AWindowIsPutWhereItsTitleBarCanBeSeen) {
    QWidget window;
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize least(100, 80);
    const struct {
        QRect place;
        bool reachable;
    } kCases[] = {
        {QRect(room.center(), QSize(300, 200)), true},
        {QRect(QPoint(room.right() - 20, 100), QSize(300, 200)), false},
        {QRect(room.topLeft() - QPoint(0, 20), QSize(300, 200)), false},
        {QRect(QPoint(3000, 100), QSize(2400, 1400)), false},
        {QRect(room.topLeft() + QPoint(0, 40), QSize(9000, 9000)), true},
    };
    for (const auto& one : kCases) {
        EXPECT_EQ(TitleBarReachable(window, one.place), one.reachable)
            << one.place.x() << ' ' << one.place.y();
        const QRect put = PlaceOnScreen(window, one.place, least);
        EXPECT_TRUE(TitleBarReachable(window, put));
        EXPECT_TRUE(room.contains(put));
    }
    // The least size may be larger than the screen; the corner with the menu is seen all the same.
    const QRect large = PlaceOnScreen(window, QRect(-50, -50, 10, 10), room.size() + QSize(50, 50));
    EXPECT_TRUE(TitleBarReachable(window, large));
    EXPECT_EQ(large.left(), room.left());
}

}  // namespace
}  // namespace orlo

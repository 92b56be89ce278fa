#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>

#include "qt/DesktopProgram.h"

namespace orlo {
namespace {

using test::DesktopProgram;
using Focus = test::DesktopTest;
using test::SampleForm;

void Refuse(Context&, Event& event) {
    event.refused = true;
}

// How a user may try to leave a field.
struct Way {
    const char* name;
    std::function<void(DesktopProgram&)> act;
    const char* event;  // that it causes where the field lets go
};

TEST(Leaving, ARefusedLeaveKeepsTheFocusAndDropsWhatCausedIt) {
    const std::vector<Way> ways = {
        {"a click on a button", [](DesktopProgram& d) { d.Click(d.form.cmdGo); }, "Click cmdGo"},
        {"a click on a check box", [](DesktopProgram& d) { d.Click(d.form.ckSwitch); }, "Click ckSwitch"},
        {"a click on an option", [](DesktopProgram& d) { d.Click(d.form.opSecond); }, "Click opSecond"},
        {"a click on a list's header", [](DesktopProgram& d) { test::ClickColumn(d.form.lvRows, 0); },
         "ClickColumn lvRows"},
        {"a click on another tab", [](DesktopProgram& d) { test::ClickTab(d.form.tabViews, 1); },
         "SelectTab tabViews"},
        {"the tab key", [](DesktopProgram& d) { d.Key(d.form, Qt::Key_Tab); }, nullptr},
        {"the tab key backwards",
         [](DesktopProgram& d) { d.Key(d.form, Qt::Key_Backtab, Qt::ShiftModifier); }, nullptr},
        {"a label's mnemonic", [](DesktopProgram& d) { d.Key(d.form, Qt::Key_R, Qt::AltModifier); }, nullptr},
        {"a button's mnemonic",
         [](DesktopProgram& d) {
             d.Key(d.form, Qt::Key_G, Qt::AltModifier);
             QTest::qWait(200);  // the toolkit shows the button pressed for a while
         },
         "Click cmdGo"},
    };
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        DesktopProgram desktop;
        SampleForm& form = desktop.form;
        form.on["Leave txtName"] = Refuse;
        desktop.Focus(form.txtName);
        form.ran.clear();
        way.act(desktop);
        DesktopProgram::Settle();
        EXPECT_EQ(form.ran, std::vector<std::string>{"Leave txtName"});
        EXPECT_EQ(form.focus, &form.txtName);
        EXPECT_TRUE(desktop.Find<QLineEdit>(form.txtName).hasFocus());
        EXPECT_FALSE(form.ckSwitch.checked);
        EXPECT_TRUE(form.opFirst.checked);
        EXPECT_EQ(form.tabViews.selectedKey, "ONE");
        EXPECT_EQ(desktop.Find<QTabBar>(form.tabViews).currentIndex(), 0);

        // The next try asks again.
        form.on.erase("Leave txtName");
        form.ran.clear();
        way.act(desktop);
        DesktopProgram::Settle();
        EXPECT_EQ(form.Ran("Leave txtName"), 1);
        EXPECT_NE(form.focus, &form.txtName);
        ASSERT_EQ(form.ran.size(), way.event == nullptr ? 1u : 2u);
        EXPECT_EQ(form.ran.front(), "Leave txtName");
        if (way.event != nullptr) {
            EXPECT_EQ(form.ran.back(), way.event);
        }
    }
}

TEST(Leaving, MenusEnterEscapeAndTheCloseBoxAreNoLeaves) {
    const std::vector<Way> ways = {
        {"a menu",
         [](DesktopProgram& d) {
             auto* menu = d.WindowOf(d.form).findChild<QMenu*>("mnuFileMenu");
             menu->popup(d.WindowOf(d.form).mapToGlobal(QPoint(5, 20)));
             QTest::keyClick(menu, Qt::Key_T);
         },
         "Click mnuTick"},
        {"Enter", [](DesktopProgram& d) { d.Key(d.form, Qt::Key_Return); }, "Click cmdGo"},
        {"Escape", [](DesktopProgram& d) { d.Key(d.form, Qt::Key_Escape); }, "Click cmdStop"},
        {"the close box", [](DesktopProgram& d) { d.WindowOf(d.form).close(); }, "Close form"},
        {"a right click on the field",
         [](DesktopProgram& d) { d.ClickAt(d.Find<QWidget>(d.form.txtName), QPoint(5, 5), Qt::RightButton); },
         nullptr},
        {"a click beside all controls",
         [](DesktopProgram& d) { d.ClickAt(d.WindowOf(d.form), QPoint(2, 2)); }, nullptr},
    };
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        DesktopProgram desktop;
        desktop.form.on["Leave txtName"] = Refuse;
        desktop.Focus(desktop.form.txtName);
        way.act(desktop);
        DesktopProgram::Settle();
        EXPECT_EQ(desktop.form.Ran("Leave txtName"), 0);
        EXPECT_EQ(desktop.form.focus, &desktop.form.txtName);
        if (way.event != nullptr) {
            EXPECT_EQ(desktop.form.Ran(way.event), 1);
        }
    }
}

TEST_F(Focus, ALeaveMayShowItsMessageAndTheNextClickWorks) {
    form.on["Leave txtName"] = [&](Context& context, Event& event) {
        QTimer::singleShot(50, [] { QApplication::activeModalWidget()->close(); });
        context.services.messages.ShowMessage("Number should be a numeric value.", kMarkExclamation, "Orlo",
                                              &form);
        event.refused = form.txtName.text.empty();
    };
    desktop.Focus(form.txtName);
    desktop.Click(form.cmdGo);
    EXPECT_EQ(form.ran, std::vector<std::string>{"Leave txtName"});
    EXPECT_EQ(form.focus, &form.txtName);
    form.txtName.text = "5";
    form.ran.clear();
    desktop.Click(form.cmdGo);
    EXPECT_EQ(form.Ran("Leave txtName"), 1);
}

TEST_F(Focus, RequestsAreTakenOnceAndWaitForAControlThatIsHidden) {
    auto& name = desktop.Find<QLineEdit>(form.txtName);
    auto& other = desktop.Find<QLineEdit>(form.txtOther);
    form.txtName.text = "name";
    form.txtOther.text = "other";
    form.txtOther.visible = false;
    form.txtName.selectAllRequest = form.txtOther.selectAllRequest = true;
    form.SetFocus(form.txtName);
    desktop.CatchUp();
    EXPECT_TRUE(name.hasFocus());
    EXPECT_EQ(name.selectedText(), "name");
    EXPECT_FALSE(form.txtName.selectAllRequest);
    EXPECT_FALSE(form.focusRequest);
    EXPECT_TRUE(form.txtOther.selectAllRequest);
    name.deselect();
    form.txtOther.visible = true;
    form.SetFocus(form.txtOther);
    desktop.CatchUp();
    EXPECT_EQ(other.selectedText(), "other");
    EXPECT_EQ(name.selectedText(), "");
    EXPECT_FALSE(form.txtOther.selectAllRequest);
    // A text that grows is seen at its end.
    auto& notes = desktop.Find<QPlainTextEdit>(form.txtNotes);
    form.txtOther.text = std::string(500, 'o');
    for (int i = 0; i < 100; ++i) form.txtNotes.text.append("line\r\n");
    form.txtOther.goToEndRequest = form.txtNotes.goToEndRequest = true;
    desktop.CatchUp();
    EXPECT_EQ(other.cursorPosition(), 500);
    EXPECT_EQ(notes.verticalScrollBar()->value(), notes.verticalScrollBar()->maximum());
    EXPECT_GT(notes.verticalScrollBar()->value(), 0);
    EXPECT_FALSE(form.txtOther.goToEndRequest || form.txtNotes.goToEndRequest);
    // The focus moved by code: no handler ran.
    form.SetFocus(form.cmZone);
    desktop.CatchUp();
    EXPECT_EQ(form.focus, &form.cmZone);
    // One for a control that can't have it is given up.
    form.ckSwitch.enabled = false;
    form.SetFocus(form.ckSwitch);
    desktop.CatchUp();
    EXPECT_EQ(form.focus, &form.cmZone);
    // A focus that the toolkit moves gives way to one that was asked for.
    form.cmZone.visible = false;
    form.SetFocus(form.cmdStop);
    desktop.CatchUp();
    EXPECT_EQ(form.focus, &form.cmdStop);
    EXPECT_TRUE(form.ran.empty());
}

TEST_F(Focus, TheTabKeyFollowsTheOrderOfTheControls) {
    desktop.Focus(form.tabViews);
    std::vector<std::string> order;
    for (int i = 0; i < 10; ++i) {
        desktop.Key(form, Qt::Key_Tab);
        order.push_back(form.focus->name);
    }
    EXPECT_EQ(order, (std::vector<std::string>{"txtName", "txtOther", "txtNotes", "cmZone", "cmFree",
                                               "ckSwitch", "opFirst", "lvRows", "tvNodes", "cmdGo"}));
}

}  // namespace
}  // namespace orlo

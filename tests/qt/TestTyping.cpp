#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>

#include "qt/DesktopProgram.h"

namespace orlo {
namespace {

using test::DesktopProgram;
using Typing = test::DesktopTest;

TEST_F(Typing, TypingWhileTheWindowIsRedrawnLosesNoCharacter) {
    form.on["Change txtName"] = [&](Context& context, Event&) {
        form.sbState.text = Concat("Typed ", form.txtName.text);
        form.lvRows.Add({"", "", "", Colour::Black, {form.txtName.text, "x"}});
        form.txtOther.text = form.txtName.text;
        context.services.windows.ProcessEvents();
    };
    desktop.Focus(form.txtName);
    std::string typed;
    for (int i = 0; i < 200; ++i) {
        const char character = static_cast<char>('a' + i % 26);
        typed.push_back(character);
        QTest::keyClick(desktop.WindowOf(form).windowHandle(), character);
        if (i % 7 == 0) DesktopProgram::Settle();
        EXPECT_EQ(form.txtName.text, typed);
    }
    DesktopProgram::Settle();
    EXPECT_EQ(desktop.Find<QLineEdit>(form.txtName).text().toStdString(), typed);
    EXPECT_EQ(desktop.Find<QLineEdit>(form.txtOther).text().toStdString(), typed);
    EXPECT_EQ(form.Ran("Change txtName"), 200);
}

TEST_F(Typing, AHandlerThatChangesTheFieldIsSeenBeforeTheNextKey) {
    form.on["Change txtName"] = [&](Context&, Event&) { form.txtName.text = UpperText(form.txtName.text); };
    desktop.Focus(form.txtName);
    desktop.Type(form, "abc");
    DesktopProgram::Settle();
    EXPECT_EQ(form.txtName.text, "ABC");
    auto& line = desktop.Find<QLineEdit>(form.txtName);
    EXPECT_EQ(line.text(), "ABC");

    line.setCursorPosition(1);
    desktop.Type(form, "xy");
    DesktopProgram::Settle();
    EXPECT_EQ(line.text(), "AXYBC");
    EXPECT_EQ(line.cursorPosition(), 3);
}

TEST_F(Typing, TextsAreBytesInsideAndCharactersOnTheScreen) {
    form.txtName.text = "Malm\xF6";
    desktop.CatchUp();
    auto& line = desktop.Find<QLineEdit>(form.txtName);
    EXPECT_EQ(line.text(), QString::fromUtf8("Malm\xC3\xB6"));
    EXPECT_EQ(form.txtName.text, "Malm\xF6");
    desktop.Focus(form.txtName);
    line.setCursorPosition(0);
    desktop.Type(form, "x");
    EXPECT_EQ(form.txtName.text, "xMalm\xF6");

    form.txtNotes.text = "one\r\ntwo";
    desktop.CatchUp();
    auto& notes = desktop.Find<QPlainTextEdit>(form.txtNotes);
    EXPECT_EQ(notes.toPlainText(), "one\ntwo");
    desktop.Focus(form.txtNotes);
    desktop.Key(form, Qt::Key_Return);
    DesktopProgram::Settle();
    EXPECT_EQ(form.txtNotes.text, "\r\none\r\ntwo");
    EXPECT_EQ(form.Ran("Change txtNotes"), 1);
    EXPECT_EQ(form.Ran("Click cmdGo"), 0);
}

TEST_F(Typing, KeysTypedWhileAnOperationRunsReachNoField) {
    desktop.Focus(form.txtName);
    form.on["Click cmdGo"] = [&](Context& context, Event&) {
        form.enabled = false;
        desktop.Type(form, "lost");
        context.services.windows.ProcessEvents();
        form.enabled = true;
    };
    desktop.Key(form, Qt::Key_Return);
    DesktopProgram::Settle();
    EXPECT_EQ(form.Ran("Click cmdGo"), 1);
    EXPECT_EQ(form.txtName.text, "");
    EXPECT_EQ(form.focus, &form.txtName);
    desktop.Type(form, "kept");
    DesktopProgram::Settle();
    EXPECT_EQ(form.txtName.text, "kept");
    EXPECT_EQ(form.Ran("Change txtName"), 4);
}

}  // namespace
}  // namespace orlo

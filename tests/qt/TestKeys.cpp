#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTableView>
#include <QUrl>

#include "qt/DesktopProgram.h"

namespace orlo {
namespace {

using test::DesktopProgram;
using Keys = test::DesktopTest;
using Typing = test::DesktopTest;

TEST_F(Keys, AShortcutChoosesItsEntryButATextFieldKeepsItsOwnUndo) {
    desktop.Focus(form.cmdGo);
    desktop.Key(form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.ran, std::vector<std::string>{"Click mnuTick"});

    for (Control* field : std::initializer_list<Control*>{&form.txtName, &form.txtNotes, &form.cmFree}) {
        SCOPED_TRACE(field->name);
        desktop.Focus(*field);
        desktop.Type(form, "x");
        form.ran.clear();
        desktop.Key(form, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(form.ran, std::vector<std::string>{Concat("Change ", field->name)});
    }
    EXPECT_EQ(form.txtName.text, "");

    form.mnuTick.enabled = false;
    desktop.CatchUp();
    desktop.Focus(form.cmdGo);
    form.ran.clear();
    desktop.Key(form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(form.ran.empty());
}

TEST_F(Keys, WhatIsTypedIntoAnEditableComboBoxStandsInTheForm) {
    auto& combo = desktop.Find<QComboBox>(form.cmFree);
    form.cmFree.index = 1;
    desktop.CatchUp();
    EXPECT_EQ(combo.currentText(), "Green");
    desktop.Focus(form.cmFree);
    combo.lineEdit()->end(false);
    desktop.Type(form, "er");
    EXPECT_EQ(form.Ran("Change cmFree"), 2);
    EXPECT_EQ(form.cmFree.index, -1);
    EXPECT_EQ(form.cmFree.Text(), "Greener");
    EXPECT_EQ(combo.currentText(), "Greener");
    // Nothing is completed, and the entries stay.
    combo.lineEdit()->selectAll();
    desktop.Type(form, "R");
    EXPECT_EQ(form.cmFree.Text(), "R");
    EXPECT_EQ(combo.count(), 2);
    // Code and a choice take its place.
    form.cmFree.Type("Blue");
    desktop.CatchUp();
    EXPECT_EQ(combo.currentText(), "Blue");
    desktop.Key(form, Qt::Key_Down);
    EXPECT_EQ(form.cmFree.index, 0);
    EXPECT_EQ(form.cmFree.Text(), "Red");
}

TEST_F(Keys, AListCopiesItsSelectionSelectsAllAndFindsWhatIsTyped) {
    for (const char* name : {"Delta", "Alpha", "Malm\xF6", "Bravo"})
        form.lvRows.Add({"", "", "", Colour::WindowText, {name, "a\tb"}});
    desktop.CatchUp();
    desktop.Focus(form.lvRows);
    desktop.Type(form, "br");
    EXPECT_EQ(form.lvRows.current, 3);
    EXPECT_EQ(form.lvRows.SelectedPlaces(), std::vector{3});
    desktop.Key(form, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "First\tSecond\r\nBravo\ta b\r\n");

    desktop.Key(form, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.lvRows.SelectedPlaces().size(), 4u);
    desktop.Key(form, Qt::Key_C, Qt::ControlModifier);
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_EQ(copied.count('\n'), 5);
    EXPECT_TRUE(copied.contains(QString::fromUtf8("\r\nMalm\xC3\xB6\t")));

    // Without a selection the clipboard stays.
    form.lvRows.SelectAll(false);
    desktop.CatchUp();
    desktop.Key(form, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), copied);
}

TEST_F(Keys, AWidthThatTheUserChoseStaysForTheNextWindow) {
    desktop.Find<QTableView>(form.lvRows).horizontalHeader()->resizeSection(0, 231);
    desktop.host.UnloadForm(form);
    DesktopProgram::Settle();
    desktop.host.ShowForm(form);
    DesktopProgram::Settle();
    EXPECT_EQ(desktop.Find<QTableView>(form.lvRows).columnWidth(0), 231);
    EXPECT_EQ(form.lvRows.columnWidths.count("B"), 0u) << "drawing a width chooses none";
}

TEST_F(Keys, AFileDroppedAnywhereOnTheWindowIsItsOwn) {
    std::string path;
    form.on["DropFile form"] = [&](Context&, Event& event) { path = event.path; };
    const auto drop = [](QWidget& widget, const QMimeData& data) {
        const Qt::DropAction taken = test::DropOn(widget, data);
        DesktopProgram::Settle();
        return taken;
    };
    QMimeData file, text;
    file.setUrls({QUrl("http://somewhere/plan.txt"), QUrl::fromLocalFile("/plans/a b.txt")});
    for (QWidget* widget :
         {static_cast<QWidget*>(&desktop.WindowOf(form)), &desktop.Find<QWidget>(form.txtName)}) {
        path.clear();
        EXPECT_EQ(drop(*widget, file), Qt::CopyAction);
        EXPECT_EQ(path, "/plans/a b.txt");
    }
    EXPECT_EQ(form.txtName.text, "");

    text.setText("text");
    EXPECT_EQ(drop(desktop.WindowOf(form), text), Qt::IgnoreAction);
    form.enabled = false;
    EXPECT_EQ(drop(desktop.WindowOf(form), file), Qt::IgnoreAction);
    EXPECT_EQ(form.Ran("DropFile form"), 2);
}

TEST_F(Typing, TypingWhileTheWindowIsRedrawnLosesNoCharacter) {
    form.on["Change txtName"] = [&](Context& context, Event&) {
        form.sbState.text = Concat("Typed ", form.txtName.text);
        form.lvRows.Add({"", "", "", Colour::Black, {form.txtName.text, "x"}});
        form.txtOther.text = form.txtName.text;
        context.services.windows.ProcessEvents();
    };
    desktop.Focus(form.txtName);
    std::string typed;
    for (int i = 0; i < 30; ++i) {
        typed.append("abcdefg");
        desktop.Type(form, "abcdefg");
        EXPECT_EQ(form.txtName.text, typed);
    }
    EXPECT_EQ(desktop.Find<QLineEdit>(form.txtName).text().toStdString(), typed);
    EXPECT_EQ(desktop.Find<QLineEdit>(form.txtOther).text().toStdString(), typed);
    EXPECT_EQ(form.Ran("Change txtName"), 210);
}

TEST_F(Typing, AHandlerThatChangesTheFieldIsSeenBeforeTheNextKey) {
    form.on["Change txtName"] = [&](Context&, Event&) { form.txtName.text = UpperText(form.txtName.text); };
    desktop.Focus(form.txtName);
    desktop.Type(form, "abc");
    EXPECT_EQ(form.txtName.text, "ABC");
    auto& line = desktop.Find<QLineEdit>(form.txtName);
    EXPECT_EQ(line.text(), "ABC");

    line.setCursorPosition(1);
    desktop.Type(form, "xy");
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
    EXPECT_EQ(form.txtNotes.text, "\r\none\r\ntwo");
    EXPECT_EQ(form.Ran("Change txtNotes"), 1);
    EXPECT_EQ(form.Ran("Click cmdGo"), 0);

    // As a script types it.
    test::ReplaceText(form.txtNotes, "C:\\new\r\n\r\nend");
    desktop.LetRun();
    EXPECT_EQ(form.txtNotes.text, "C:\\new\r\n\r\nend");
}

}  // namespace
}  // namespace orlo

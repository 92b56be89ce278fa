#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTableView>
#include <QUrl>

#include "qt/DesktopProgram.h"

namespace orlo {
namespace {

using test::DesktopProgram;
using Keys = test::DesktopTest;

void AddNames(ListView& list) {
    for (const char* name : {"Delta", "Alpha", "Malm\xF6", "Bravo"})
        list.Add({"", "", "", Colour::WindowText, {name, "a\tb"}});
}

TEST_F(Keys, AShortcutChoosesItsEntryButATextFieldKeepsItsOwnUndo) {
    desktop.Focus(form.cmdGo);
    desktop.Key(form, Qt::Key_Z, Qt::ControlModifier);
    DesktopProgram::Settle();
    EXPECT_EQ(form.ran, std::vector<std::string>{"Click mnuTick"});

    for (Control* field : std::initializer_list<Control*>{&form.txtName, &form.txtNotes, &form.cmFree}) {
        SCOPED_TRACE(field->name);
        desktop.Focus(*field);
        desktop.Type(form, "x");
        form.ran.clear();
        desktop.Key(form, Qt::Key_Z, Qt::ControlModifier);
        DesktopProgram::Settle();
        EXPECT_EQ(form.ran, std::vector<std::string>{Concat("Change ", field->name)});
    }
    EXPECT_EQ(form.txtName.text, "");

    form.mnuTick.enabled = false;
    desktop.CatchUp();
    desktop.Focus(form.cmdGo);
    form.ran.clear();
    desktop.Key(form, Qt::Key_Z, Qt::ControlModifier);
    DesktopProgram::Settle();
    EXPECT_TRUE(form.ran.empty());
}

TEST_F(Keys, F1AsksForHelpWhereverTheFocusIs) {
    for (Control* control :
         std::initializer_list<Control*>{&form.txtName, &form.cmFree, &form.lvRows, &form.cmdGo}) {
        desktop.Focus(*control);
        form.ran.clear();
        desktop.Key(form, Qt::Key_F1);
        DesktopProgram::Settle();
        EXPECT_EQ(form.Ran("Help form"), 1) << control->name;
    }
}

TEST_F(Keys, WhatIsTypedIntoAnEditableComboBoxStandsInTheForm) {
    auto& combo = desktop.Find<QComboBox>(form.cmFree);
    form.cmFree.index = 1;
    desktop.CatchUp();
    EXPECT_EQ(combo.currentText(), "Green");
    desktop.Focus(form.cmFree);
    combo.lineEdit()->end(false);
    desktop.Type(form, "er");
    DesktopProgram::Settle();
    EXPECT_EQ(form.Ran("Change cmFree"), 2);
    EXPECT_EQ(form.cmFree.index, -1);
    EXPECT_EQ(form.cmFree.Text(), "Greener");
    EXPECT_EQ(combo.currentText(), "Greener");
    // Nothing is completed, and the entries stay.
    combo.lineEdit()->selectAll();
    desktop.Type(form, "R");
    DesktopProgram::Settle();
    EXPECT_EQ(form.cmFree.Text(), "R");
    EXPECT_EQ(combo.count(), 2);
    // Code and a choice take its place.
    form.cmFree.Type("Blue");
    desktop.CatchUp();
    EXPECT_EQ(combo.currentText(), "Blue");
    desktop.Key(form, Qt::Key_Down);
    DesktopProgram::Settle();
    EXPECT_EQ(form.cmFree.index, 0);
    EXPECT_EQ(form.cmFree.Text(), "Red");
}

TEST_F(Keys, AListCopiesItsSelectionSelectsAllAndFindsWhatIsTyped) {
    AddNames(form.lvRows);
    desktop.CatchUp();
    desktop.Focus(form.lvRows);
    desktop.Type(form, "br");
    DesktopProgram::Settle();
    EXPECT_EQ(form.lvRows.current, 3);
    EXPECT_EQ(form.lvRows.SelectedPlaces(), std::vector{3});
    desktop.Key(form, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "First\tSecond\r\nBravo\ta b\r\n");

    desktop.Key(form, Qt::Key_A, Qt::ControlModifier);
    DesktopProgram::Settle();
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
        QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(&widget, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent event(QPointF(3, 3), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction);
        DesktopProgram::Settle();
        return true;
    };
    QMimeData file;
    file.setUrls({QUrl("http://somewhere/plan.txt"), QUrl::fromLocalFile("/plans/a b.txt")});
    for (QWidget* widget :
         {static_cast<QWidget*>(&desktop.WindowOf(form)), &desktop.Find<QWidget>(form.txtName)}) {
        path.clear();
        EXPECT_TRUE(drop(*widget, file));
        EXPECT_EQ(path, "/plans/a b.txt");
    }
    EXPECT_EQ(form.txtName.text, "");

    QMimeData text;
    text.setText("text");
    EXPECT_FALSE(drop(desktop.WindowOf(form), text));
    form.enabled = false;
    EXPECT_FALSE(drop(desktop.WindowOf(form), file));
    EXPECT_EQ(form.Ran("DropFile form"), 2);
}

TEST_F(Keys, APathInAMenuKeepsItsAmpersands) {
    form.mnuTick.plainCaption = true;
    form.mnuTick.caption = "/R&D/plan.txt";
    desktop.CatchUp();
    EXPECT_EQ(desktop.WindowOf(desktop.form).findChild<QAction*>("mnuTick")->text(), "/R&&D/plan.txt");
}

}  // namespace
}  // namespace orlo

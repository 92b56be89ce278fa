#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QTableView>

#include "mainwindow/BusyForm.h"
#include "projects/RunTool.h"
#include "qt/DesktopProgram.h"

namespace orlo {
namespace {

using Operations = test::DesktopTest;
using test::SampleForm;

// Runs in the loop that waits for the user, as a user's act would.
void Later(std::function<void()> act) {
    QTimer::singleShot(50, std::move(act));
}

TEST_F(Operations, WhatTheUserDoesWhileEventsRunIsDroppedTheCloseBoxIncluded) {
    form.on["Click cmdGo"] = [&](Context& context, Event&) {
        form.enabled = false;
        desktop.Type(form, "lost");
        context.services.windows.ProcessEvents();
        desktop.Click(form.cmdStop);
        desktop.Click(form.ckSwitch);
        desktop.Close(form);
        desktop.Find<QCheckBox>(form.ckSwitch).click();
        context.services.windows.ProcessEvents();
        form.enabled = true;
        // Not disabled, and yet an operation runs.
        desktop.Click(form.cmdStop);
        desktop.Close(form);
        context.services.windows.ProcessEvents();
        // Not kept for afterwards.
        desktop.host.Post({&form, &form.cmdStop, EventKind::Click});
    };
    desktop.Focus(form.txtName);
    desktop.Key(form, Qt::Key_Return);
    EXPECT_EQ(form.ran, std::vector<std::string>{"Click cmdGo"});
    EXPECT_EQ(form.focus, &form.txtName);
    EXPECT_EQ(form.txtName.text, "");
    EXPECT_FALSE(form.ckSwitch.checked);
    EXPECT_FALSE(desktop.Find<QCheckBox>(form.ckSwitch).isChecked());
    desktop.Type(form, "kept");
    EXPECT_EQ(form.txtName.text, "kept");
    desktop.Click(form.cmdStop);
    EXPECT_EQ(form.Ran("Click cmdStop"), 1);
}

TEST_F(Operations, ADisabledWindowStillClosesWhereNoOperationRuns) {
    form.enabled = false;
    desktop.Click(form.cmdGo);
    desktop.Close(form);
    EXPECT_EQ(form.ran, std::vector<std::string>{"Close form"});
    // The procedure decides.
    EXPECT_TRUE(desktop.WindowOf(form).isVisible());
    form.on["Close form"] = [&](Context&, Event&) { form.closeRequest = true; };
    Later([&] { desktop.Close(form); });
    desktop.host.RunUntilClosed(form);
    EXPECT_EQ(form.Ran("Close form"), 2);
}

TEST_F(Operations, AModalFormInsideAnOperationTakesItsEventsAlone) {
    SampleForm dialog("frmDialog");
    desktop.program.pump.AddTable(dialog, test::SampleEvents());
    dialog.on["Click cmdGo"] = [&](Context& context, Event&) {
        // An operation of the dialog's own: its form still takes events.
        desktop.Click(dialog.ckSwitch);
        desktop.Click(form.ckSwitch);
        context.services.windows.ProcessEvents();
    };
    dialog.on["Click cmdStop"] = [&](Context&, Event&) { dialog.closeRequest = true; };
    bool returned = false;
    form.on["Click cmdGo"] = [&](Context& context, Event&) {
        form.enabled = false;
        Later([&] {
            desktop.Click(form.ckSwitch);
            desktop.Close(form);
            desktop.Type(dialog, "a");
            desktop.Click(dialog.cmdGo);
            desktop.Key(dialog, Qt::Key_Escape);
        });
        context.services.windows.ShowModal(dialog, &form);
        returned = true;
        EXPECT_FALSE(dialog.closeRequest);
        EXPECT_FALSE(dialog.visible);
        form.enabled = true;
        context.services.windows.ProcessEvents();
        desktop.Click(form.cmdStop);
    };
    desktop.Click(form.cmdGo);
    EXPECT_TRUE(returned);
    EXPECT_EQ(form.ran, std::vector<std::string>{"Click cmdGo"});
    EXPECT_EQ(dialog.ran, (std::vector<std::string>{"Click cmdGo", "Click ckSwitch", "Click cmdStop"}));
    EXPECT_TRUE(dialog.ckSwitch.checked);
    EXPECT_FALSE(form.ckSwitch.checked);
}

TEST_F(Operations, ModalFormsUnwindFromTheTop) {
    SampleForm outer("frmOuter");
    SampleForm inner("frmInner");
    desktop.program.pump.AddTable(outer, test::SampleEvents());
    std::vector<std::string> closed;
    outer.on["Click cmdGo"] = [&](Context& context, Event&) {
        Later([&] {
            // Asked for while the other one stands above it.
            outer.closeRequest = true;
            desktop.Close(outer);
            closed.push_back("asked");
            // A form without a procedure for its close box closes by it.
            desktop.Close(inner);
        });
        context.services.windows.ShowModal(inner, &outer);
        closed.push_back("inner");
    };
    Later([&] { desktop.Click(outer.cmdGo); });
    desktop.host.ShowModal(outer, &desktop.form);
    closed.push_back("outer");
    EXPECT_EQ(closed, (std::vector<std::string>{"asked", "inner", "outer"}));
    EXPECT_EQ(outer.ran, std::vector<std::string>{"Click cmdGo"});
    desktop.Click(form.cmdGo);
    EXPECT_EQ(form.Ran("Click cmdGo"), 1);
}

TEST_F(Operations, AMessageAnswersAndTakesNoOtherEventsMeanwhile) {
    struct Case {
        int flags;
        QMessageBox::StandardButton press, standard;  // the first whatever the desktop's order
        MessageAnswer answer;
    };
    for (const Case& which : std::initializer_list<Case>{
             {kButtonsYesNo | kDefaultSecondButton, QMessageBox::Yes, QMessageBox::No, MessageAnswer::Yes},
             {kButtonsYesNo, QMessageBox::No, QMessageBox::Yes, MessageAnswer::No},
             {kButtonsYesNoCancel, QMessageBox::Cancel, QMessageBox::Yes, MessageAnswer::Cancel},
             {kButtonsOk, QMessageBox::Ok, QMessageBox::Ok, MessageAnswer::Ok}}) {
        MessageAnswer answer = MessageAnswer::None;
        form.on["Click cmdGo"] = [&](Context& context, Event&) {
            test::InDialog<QMessageBox>([&](QMessageBox& box) {
                EXPECT_EQ(box.focusWidget(), box.button(which.standard));
                EXPECT_EQ(box.defaultButton(), box.button(which.standard));
                desktop.Click(form.ckSwitch);
                desktop.Close(form);
                box.button(which.press)->click();
            });
            answer = context.services.messages.ShowMessage("Text & more", which.flags, "Orlo", &form);
        };
        desktop.Click(form.cmdGo);
        EXPECT_EQ(answer, which.answer);
    }
    EXPECT_EQ(form.ran, std::vector<std::string>(4, "Click cmdGo"));
    EXPECT_EQ(desktop.host.ShowMessage("  ", kMarkCritical, "Orlo", nullptr), MessageAnswer::None);
}

TEST_F(Operations, ProgressIsDrawnWhileAnOperationRunsAndTimersFire) {
    std::vector<std::string> seen;
    form.on["Click cmdGo"] = [&](Context& context, Event&) {
        form.pointer = PointerShape::Hourglass;
        context.services.windows.StartTimer("tmrSplash", 1);
        ProgressHost& progress = context.services.progress;
        progress.SetText("Reading...");
        progress.SetMax(4);
        progress.SetValue(1);
        progress.Show(&form);
        for (const int value : {2, 3}) {
            progress.SetValue(value);
            QTest::qSleep(45);
            context.services.windows.ProcessEvents();
            FormWindow& window = desktop.WindowOf(form);
            auto* shown = window.findChild<QWidget*>("frmProgress");
            ASSERT_NE(shown, nullptr);
            EXPECT_TRUE(shown->isVisible());
            seen.push_back(Concat(shown->findChild<QLabel*>("lblProgress")->text().toStdString(),
                                  shown->findChild<QProgressBar*>("pbProgress")->value()));
            EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
        }
        EXPECT_FALSE(context.services.windows.TimerArmed("tmrSplash"));
        progress.Close();
        form.pointer = PointerShape::Normal;
    };
    desktop.Click(form.cmdGo);
    EXPECT_EQ(seen, (std::vector<std::string>{"Reading...2", "Reading...3"}));
    EXPECT_EQ(desktop.WindowOf(form).findChild<QWidget*>("frmProgress"), nullptr);
    EXPECT_EQ(desktop.WindowOf(form).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Operations, TheCloseBoxOfTheDisabledMainWindowAsksWhetherToEndATool) {
    MainForm& main = desktop.program.forms.frmMain;
    desktop.host.ShowForm(main);
    desktop.world.processes.neverEnds = true;
    QStringList asked;
    std::int32_t code = 0;
    form.on["Click cmdGo"] = [&](Context& context, Event&) {
        main.enabled = false;
        std::function<void(QMessageBox::StandardButton)> closeAndAnswer = [&](auto answer) {
            test::InDialog<QMessageBox>([&, answer](QMessageBox& box) {
                asked.append(box.text());
                test::DesktopProgram::WindowOf(main).close();  // once more, while the question stands
                if (answer == QMessageBox::No) Later([&] { closeAndAnswer(QMessageBox::Yes); });
                box.button(answer)->click();
            });
            test::DesktopProgram::WindowOf(main).close();
        };
        Later([&] { closeAndAnswer(QMessageBox::No); });
        code = RunAndWait(context, {"/temp/TCOMPILER.EXE", "/NP", "/temp"});
        main.enabled = true;
    };
    desktop.Click(form.cmdGo);
    test::DesktopProgram::Settle();
    EXPECT_EQ(asked, QStringList(2, "'TCOMPILER.EXE' is still running. Would you like to end it?"));
    EXPECT_NE(code, 0);
    EXPECT_TRUE(test::DesktopProgram::WindowOf(main).isVisible());
    EXPECT_FALSE(main.closeRequest);
}

TEST_F(Operations, WhatIsFrozenOrHiddenIsNotDrawn) {
    auto& line = desktop.Find<QLineEdit>(form.txtName);
    auto& table = desktop.Find<QTableView>(form.lvRows);
    {
        const FrozenForm frozen(form);
        form.txtName.text = "new";
        form.lvRows.Add({"", "", "", Colour::WindowText, {"row"}});
        desktop.CatchUp();
        desktop.host.ProcessEvents();
        EXPECT_EQ(line.text(), "");
        EXPECT_FALSE(table.updatesEnabled());
    }
    form.lvRows.visible = false;
    desktop.CatchUp();
    EXPECT_EQ(line.text(), "new");
    EXPECT_TRUE(desktop.WindowOf(form).updatesEnabled());
    EXPECT_FALSE(table.isVisible());
    EXPECT_EQ(table.model()->rowCount(), 0);
    form.lvRows.visible = true;
    desktop.CatchUp();
    EXPECT_EQ(table.model()->rowCount(), 1);
}

TEST_F(Operations, AWindowIsDrawnAtMost25TimesASecond) {
    auto& label = desktop.Find<QLabel>(form.sbState);
    int drawn = 0;
    QElapsedTimer time;
    time.start();
    QString last = label.text();
    while (time.elapsed() < 400) {
        form.sbState.text = std::to_string(time.nsecsElapsed());
        desktop.host.ProcessEvents();
        drawn += label.text() != last ? 1 : 0;
        last = label.text();
    }
    EXPECT_GE(drawn, 2);
    EXPECT_LE(drawn, time.elapsed() / 40 + 1);
}

// The procedure of an event fails in the middle of an operation.
TEST_F(Operations, AFailureLeavesTheFormUsable) {
    form.on["Click cmdGo"] = [&](Context& context, Event&) {
        form.enabled = false;
        ++form.frozen;
        context.services.progress.Show(&form);
        throw std::bad_alloc();
    };
    desktop.Click(form.cmdGo);
    desktop.Click(form.ckSwitch);
    EXPECT_TRUE(form.ckSwitch.checked);
    EXPECT_EQ(desktop.program.forms.frmMain.sbMain.text, "The operation ended early: not enough memory.");
}

}  // namespace
}  // namespace orlo

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>

#include "desktop/TextPrinter.h"
#include "qt/DesktopProgram.h"

namespace orlo {
namespace {

using Dialogs = test::DesktopTest;
using test::InDialog;
using test::SampleForm;

struct Folders {
    QTemporaryDir root;
    Folders() {
        for (const char* name : {"plans", "exports"}) {
            QDir(root.path()).mkdir(name);
            QFile file(root.path() + "/" + name + "/file.txt");
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    std::string Path(const char* name) const { return Concat(root.path().toStdString(), "/", name); }
};

TEST_F(Dialogs, AFileDialogOpensWhereItIsToldElseWhereTheLastOfItsKindEnded) {
    const Folders folders;
    FileDialog dialog;
    dialog.title = "Open";
    dialog.filter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
    dialog.fileMustExist = true;
    // A plan's own path may stand for its folder.
    dialog.startFolder = folders.Path("plans/file.txt");
    InDialog<QFileDialog>([&](QFileDialog& shown) {
        EXPECT_EQ(shown.directory().dirName(), "plans");
        EXPECT_EQ(shown.nameFilters().size(), 2);
        test::Choose(shown, folders.Path("plans/file.txt"));
    });
    EXPECT_EQ(desktop.host.ShowOpenDialog(dialog), folders.Path("plans/file.txt"));

    dialog.startFile = folders.Path("exports/new.txt");
    InDialog<QFileDialog>([](QFileDialog& shown) {
        EXPECT_EQ(shown.directory().dirName(), "exports");
        QMetaObject::invokeMethod(&shown, "accept");
    });
    EXPECT_EQ(desktop.host.ShowSaveDialog(dialog), folders.Path("exports/new.txt"));

    dialog.startFolder.clear();
    for (const bool save : {false, true}) {
        dialog.startFile = save ? "other.txt" : "";
        InDialog<QFileDialog>([&](QFileDialog& shown) {
            EXPECT_EQ(shown.directory().dirName(), save ? "exports" : "plans");
            shown.reject();
        });
        EXPECT_EQ(save ? desktop.host.ShowSaveDialog(dialog) : desktop.host.ShowOpenDialog(dialog), "");
    }
}

TEST_F(Dialogs, ASaveDialogAsksAboutANameThatDiffersOnlyInCase) {
    const Folders folders;
    FileDialog dialog;
    dialog.overwritePrompt = true;
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        bool asked = false;
        InDialog<QFileDialog>([&](QFileDialog& shown) {
            InDialog<QMessageBox>([&](QMessageBox& box) {
                asked = true;
                // After a No the dialog opens again.
                if (answer == QMessageBox::No)
                    InDialog<QFileDialog>([](QFileDialog& again) { again.reject(); });
                box.button(answer)->click();
            });
            test::Choose(shown, folders.Path("exports/FILE.TXT"));
        });
        const std::string chosen = desktop.host.ShowSaveDialog(dialog);
        EXPECT_TRUE(asked);
        EXPECT_EQ(chosen, answer == QMessageBox::Yes ? folders.Path("exports/FILE.TXT") : "");
    }
}

TEST_F(Dialogs, ANameWithoutAnExtensionIsSavedWithThatOfTheFilter) {
    const Folders folders;
    struct Case {
        int filter;       // at first
        qsizetype later;  // the one that the user takes then
        const char* extension;
        const char* typed;
        const char* saved;
    };
    const Case cases[] = {{1, 0, "", "new", "new.png"},     {2, 1, "", "new", "new.svg"},
                          {1, 1, "", "new", "new.svg"},     {1, 2, "", "new", "new"},
                          {1, 1, "", "new.pdf", "new.pdf"}, {1, 1, "orp", "new", "new.orp"}};
    FileDialog dialog;
    dialog.filter = "PNG picture (*.png)|*.png|SVG picture (*.svg)|*.svg;*.svgz|All Files (*.*)|*.*";
    for (const Case& one : cases) {
        dialog.filterIndex = one.filter;
        dialog.defaultExtension = one.extension;
        InDialog<QFileDialog>([&](QFileDialog& shown) {
            if (one.later != one.filter - 1) shown.filterSelected(shown.nameFilters()[one.later]);
            test::Choose(shown, folders.Path("exports/") + one.typed);
        });
        EXPECT_EQ(desktop.host.ShowSaveDialog(dialog), folders.Path("exports/") + one.saved);
    }
}

QByteArray ReadAll(const std::string& path) {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What the text fills; 0 where nothing was printed.
int PagesOf(const std::string& text, const std::string& path) {
    const auto printer = MakeTextPrinter();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(QString::fromStdString(path));
    if (!PrintText(text, *printer, [] {})) return 0;
    return static_cast<int>(ReadAll(path).count("/Type /Page\n"));
}

std::string Lines(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text.append("line\r\n");
    return text;
}

TEST(Printing, PagesEndBetweenLinesAndLongLinesGoOn) {
    const Folders folders;
    const std::string path = folders.Path("out.pdf");
    int full = 1;
    while (PagesOf(Lines(full + 1), path) == 1) ++full;
    EXPECT_GT(full, 20);
    EXPECT_EQ(PagesOf(Lines(2 * full), path), 2);
    EXPECT_EQ(PagesOf(Lines(2 * full + 1), path), 3);
    // A line of several widths takes several lines, with blanks to break at or without.
    const std::string words = ReplaceAll(std::string(60, 'x'), "x", "word ");
    EXPECT_EQ(PagesOf(Concat(Lines(full - 2), words), path), 2);
    EXPECT_EQ(PagesOf(Concat(Lines(full - 2), std::string(300, 'x')), path), 2);
    // A tab goes on to the next stop: eight columns for one byte.
    EXPECT_EQ(PagesOf(Concat(Lines(full - 1), "\t\t\t", std::string(24, 'x')), path), 1);
    EXPECT_EQ(PagesOf(Concat(Lines(full - 1), std::string(40, '\t'), "end"), path), 2);
    EXPECT_EQ(PagesOf(Concat(Lines(full - 1), std::string(41, 'x')), path), 1);
    EXPECT_EQ(PagesOf("text", folders.Path("nowhere/out.pdf")), 0);
    if (QFile::exists("/dev/full")) {
        EXPECT_EQ(PagesOf("text", "/dev/full"), 0);
    }
}

TEST_F(Dialogs, ADialogPrintsShowsAPreviewOrGivesUp) {
    const Folders folders;
    const std::string path = folders.Path("exports/out.pdf");
    const auto fillIn = [&](QPrintDialog& shown) {
        auto* name = shown.findChild<QLineEdit*>("filename");
        ASSERT_NE(name, nullptr);
        name->setText(QString::fromStdString(path));
    };
    InDialog<QPrintDialog>([](QPrintDialog& shown) { shown.reject(); });
    EXPECT_FALSE(desktop.host.ShowPrintDialog("Export - Print"));

    InDialog<QPrintDialog>([&](QPrintDialog& shown) {
        EXPECT_EQ(shown.windowTitle(), "Export - Print");
        fillIn(shown);
        for (QAbstractButton* button : shown.findChild<QDialogButtonBox*>()->buttons()) {
            if (button->text() == "Pre&view") button->click();
        }
    });
    EXPECT_TRUE(desktop.host.ShowPrintDialog("Export - Print"));
    InDialog<QPrintPreviewDialog>([](QPrintPreviewDialog& shown) { shown.reject(); });
    EXPECT_EQ(desktop.host.Print("text"), PrintOutcome::GivenUp);
    EXPECT_EQ(ReadAll(path), "");

    InDialog<QPrintDialog>([&](QPrintDialog& shown) {
        fillIn(shown);
        shown.accept();
    });
    EXPECT_TRUE(desktop.host.ShowPrintDialog("Export - Print"));
    EXPECT_EQ(desktop.host.Print("text"), PrintOutcome::Printed);
    EXPECT_TRUE(ReadAll(path).startsWith("%PDF"));
}

TEST_F(Dialogs, AnExceptionThatStraysWithinAModalFormLeavesItOpen) {
    SampleForm dialog("frmDialog");
    bool open = false;
    QTimer::singleShot(50, [] { throw std::bad_alloc(); });
    QTimer::singleShot(150, [&] {
        open = dialog.visible;
        dialog.closeRequest = true;
        desktop.host.Post({});
    });
    form.on["Click cmdGo"] = [&](Context& context, Event&) {
        context.services.windows.ShowModal(dialog, &form);
    };
    desktop.Click(form.cmdGo);
    EXPECT_TRUE(QTest::qWaitFor([&] { return open && !dialog.visible; }, 5000));
    EXPECT_EQ(desktop.program.pump.Windows().TopModal(), nullptr);
    EXPECT_FALSE(desktop.program.pump.OperationRuns());
    form.ran.clear();
    desktop.Click(form.ckSwitch);
    EXPECT_EQ(form.Ran("Click ckSwitch"), 1);
}

// Each is open in an operation when the system asks for the end; nobody answers.
TEST_F(Dialogs, AnEndThatNobodyIsAskedAboutClosesWhateverIsOpen) {
    SampleForm above("frmAbove");
    desktop.program.pump.AddTable(above, test::SampleEvents());
    MessageAnswer answer = MessageAnswer::None;
    const auto ask = [&] {
        answer = desktop.host.ShowMessage("Sure?", kButtonsYesNo | kMarkQuestion, "Orlo", nullptr);
    };
    above.on["Click cmdGo"] = [&](Context&, Event&) { ask(); };
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"nothing", [] {}},
        {"a question and another behind it", [&] { (ask(), ask()); }},
        {"a dialog for a file", [&] { EXPECT_EQ(desktop.host.ShowSaveDialog({}), ""); }},
        {"a question of a form",
         [&] {
             QTimer::singleShot(0, &desktop.host, [&] {
                 desktop.host.Post({&above, &above.cmdGo, EventKind::Click});
             });
             desktop.host.ShowModal(above, nullptr);
         }},
        {"an operation that lets events run",
         [&] {
             for (int i = 0; i < 10; ++i) QTest::qWait(10);
             EXPECT_FALSE(form.closeRequest);
         }},
    };
    for (const auto& [what, open] : cases) {
        SCOPED_TRACE(what);
        form.closeRequest = false;
        bool ended = false;
        form.on["Click cmdGo"] = [&](Context&, Event&) {
            desktop.host.EndUnasked();
            open();
            ended = true;
        };
        desktop.host.Post({&form, &form.cmdGo, EventKind::Click});
        desktop.host.RunUntilClosed(form);
        EXPECT_TRUE(ended);
        EXPECT_TRUE(desktop.host.EndedUnasked());
    }
    EXPECT_EQ(answer, MessageAnswer::No);
    EXPECT_EQ(above.Ran("Click cmdGo"), 1);
    EXPECT_EQ(above.Ran("Close form") + form.Ran("Close form"), 0);
}

}  // namespace
}  // namespace orlo

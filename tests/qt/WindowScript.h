#pragma once

#include <QObject>
#include <QTimer>
#include <sstream>
#include <string>
#include <vector>

#include "console/ScriptCommands.h"
#include "desktop/DesktopHost.h"
#include "qt/RealProgram.h"
#include "qt/UserHands.h"

class QFileDialog;
class QInputDialog;
class QMessageBox;

namespace orlo::test {

// The desktop front end for a script: a timer fires when the script says so, what is printed goes to a file,
// and a document is named instead of opened, as on the console.
class ScriptHost : public DesktopHost {
  public:
    QueuedAnswers answers;
    std::ostringstream said;  // to the user, and shown by the script, as the console prints it

    std::optional<std::string> TakePath();
    void FireTimer(const std::string& name);

    void StartTimer(std::string_view name, int milliseconds) override;
    bool ShowPrintDialog(std::string_view title) override;
    PrintOutcome Print(std::string_view text) override;
    std::string DrawCharts(std::span<const Chart* const> charts, PictureFormat format) override;
    bool OpenDocument(const std::string& path, const std::string& workingFolder) override;

  private:
    std::string printPath_;
};

// Runs a script of the console on the windows of a program, by mouse and keyboard, and answers the dialogs
// that come up. It has a command of its own: `keys Alt+F Return ...`.
class WindowScript : public QObject, private ScriptActs {
  public:
    // The program has started on that host. Its main window is closed at the end of the script.
    WindowScript(RealProgram& real, ScriptHost& host, const std::string& script);

    // Runs events until the main window has closed.
    void Run();
    // Of a line that could not be done, which ended the script; empty where there was none.
    const std::string& Fault() const { return fault_; }

  private:
    Form& TopForm() const;
    void Step();
    void RunNextLine();
    void CloseTop();
    void CloseAtOnce();
    void Fail(const std::string& reason);

    bool LeaveFocus(Form& form, const Control* to);
    bool BringIntoView(Control& control);
    void TurnBack();

    bool Reach(Control& control) override;
    void Click(Control& control) override;
    void Focus(Control& control) override { GoTo(control); }
    void Type(TextBox& field, const std::string& text) override { ReplaceText(field, text); }
    void LeaveField(TextBox& field) override;
    void Type(ComboBox& combo, const std::string& text) override { ReplaceText(combo, text); }
    void ChooseEntry(ComboBox& combo, std::int32_t index) override { ChooseComboEntry(combo, index); }
    void SelectTab(TabStrip& tabs, const TabPage& page) override {
        ClickTab(tabs, static_cast<std::size_t>(&page - tabs.pages.data()));
    }
    void CheckNode(TreeView& tree, std::int32_t node, bool) override { ClickCheckMark(tree, node); }
    void SelectRows(ListView& list, const std::vector<std::int32_t>& rows) override;
    void SelectAllRows(ListView& list, bool selected) override;
    void ClickRow(ListView& list, std::int32_t row) override { test::ClickRow(list, row); }
    void DoubleClickRow(ListView& list, std::int32_t row) override { test::DoubleClickRow(list, row); }
    void ClickColumn(ListView& list, std::int32_t column) override { test::ClickColumn(list, column); }
    void PressKey(Control& control, EventKey key) override { PressKey(control.form, key); }
    void PressKey(Form& form, EventKey key) override;
    void AskForHelp(Form& form) override { PressKeys(WindowOf(form), "F1"); }
    void DropFile(Form& form, const std::string& path) override;
    void PressCloseBox(Form& form) override { WindowOf(form).close(); }
    void FireTimer(const std::string& name) override { host_.FireTimer(name); }
    void Quit() override { quitting_ = true; }
    void Rest(Control& control, std::int32_t node) override;
    const MenuEntry* OpenPopup(Control& control) override;
    void Show(std::ostream& out, Control& control) override;
    bool ShowsEnabled(Control& control) override;
    bool RunOther(const std::vector<std::string>& words) override;

    void AnswerDialog();
    void AnswerMessage(QMessageBox& box);
    void AnswerFileDialog(QFileDialog& dialog);
    void AnswerInput(QInputDialog& dialog);

    RealProgram& real_;
    ScriptHost& host_;
    std::istringstream script_;
    ScriptCommands commands_;
    std::string fault_;
    QTimer answering_;
    int step_ = 0;
    int waited_ = 0;                  // steps since the last command
    const Form* actingIn_ = nullptr;  // whose command is being done
    bool quitting_ = false;           // all windows close, from the top
    bool ended_ = false;              // there are no lines left
    bool quitCancelled_ = false;
    std::string shownTab_;  // the tab to turn back to; empty where it was not turned
};

}  // namespace orlo::test

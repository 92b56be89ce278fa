#pragma once

#include <QObject>
#include <QTimer>
#include <sstream>
#include <string>
#include <vector>

#include "console/ConsoleHost.h"
#include "qt/RealProgram.h"

class QFileDialog;
class QMessageBox;

namespace orlo::test {

// Runs a script of the console on the windows of a program, by mouse and keyboard, and answers the dialogs
// that come up. It knows the commands that the tests need, and one of its own: `keys Alt+F Return ...`.
class WindowScript : public QObject {
  public:
    // The program has started. Its main window is closed at the end of the script.
    WindowScript(RealProgram& real, const std::string& script);

    // Runs events until the main window has closed. What was said to the user and shown, as the console
    // prints it.
    std::string Run();
    // Of a line that could not be done, which ended the script; empty where there was none.
    const std::string& Fault() const { return fault_; }

  private:
    using Words = std::vector<std::string>;

    Form& TopForm() const;
    void Step();
    void RunNextLine();
    void RunCommand(const Words& words);
    void CloseTop();
    Control& Find(const std::string& name) const;
    template <typename Type>
    Type& FindAs(ControlKind kind, const std::string& name) const;

    void Click(Control& control);
    void Set(Control& control, const std::string& text);
    void SetText(Control& field, const std::string& text);
    void SetCombo(ComboBox& combo, const std::string& text);
    void Node(const TreeView& tree, const std::string& text, bool on);
    void Select(const ListView& list, const std::string& rows);
    void Sort(const ListView& list, const std::string& caption);
    void Reply(const std::string& word);

    void AnswerDialog();
    void AnswerMessage(QMessageBox& box);
    void AnswerFileDialog(QFileDialog& dialog);

    RealProgram& real_;
    std::istringstream script_;
    std::ostringstream said_;
    std::string fault_;
    QueuedAnswers answers_;
    QTimer answering_;
    int line_ = 0;
    int step_ = 0;
    int waited_ = 0;                  // steps since the last command
    const Form* actingIn_ = nullptr;  // whose command is being done
    bool quitting_ = false;           // all windows close, from the top
};

}  // namespace orlo::test

#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "console/ConsoleHost.h"
#include "console/ScriptActs.h"
#include "console/ScriptCommands.h"
#include "services/EndRequest.h"
#include "shell/Program.h"
#include "shell/UserHands.h"

namespace orlo {

// Runs a script on a program. While a modal form is open, the lines run within the ShowModal that opened it.
class ScriptRunner : private ScriptActs {
  public:
    // All that is given must outlive this. `strict`: answers left over at the end are a failure. `end` may be
    // null.
    ScriptRunner(Program& program, ConsoleHost& host, std::istream& script, std::ostream& out,
                 std::ostream& errors, bool strict, const EndRequest* end = nullptr);

    // Runs the script; its end closes the main window as the user would. Gives the exit status: 0; 2 with the
    // reason on `errors` where the script could not go on; that of `end`, before the next line, where the
    // program is to end.
    int Run();

  private:
    void RunUntilClosed(Form& form);
    bool RunNextLine();
    bool MustEnd() const { return end_ != nullptr && end_->ExitStatus().has_value(); }
    int EndAtOnce();
    bool Kept(const Control& field);  // prints that the field refused; always false

    bool Reach(Control& control) override;
    void Click(Control& control) override;
    void Focus(Control& control) override;
    void Type(TextBox& field, const std::string& text) override;
    void LeaveField(TextBox& field) override;
    void Type(ComboBox& combo, const std::string& text) override;
    void ChooseEntry(ComboBox& combo, std::int32_t index) override;
    void SelectTab(TabStrip& tabs, const TabPage& page) override;
    void CheckNode(TreeView& tree, std::int32_t node, bool on) override;
    void SelectRows(ListView& list, const std::vector<std::int32_t>& rows) override;
    void SelectAllRows(ListView& list, bool selected) override;
    void ClickRow(ListView& list, std::int32_t row) override;
    void DoubleClickRow(ListView& list, std::int32_t row) override;
    void ClickColumn(ListView& list, std::int32_t column) override;
    void PressKey(Control& control, EventKey key) override;
    void PressKey(Form& form, EventKey key) override;
    void AskForHelp(Form& form) override;
    void DropFile(Form& form, const std::string& path) override;
    void PressCloseBox(Form& form) override;
    void FireTimer(const std::string& name) override;
    void Quit() override;
    void Rest(Control& control, std::int32_t node) override;
    const MenuEntry* OpenPopup(Control& control) override;
    void Show(std::ostream& out, Control& control) override;
    bool ShowsEnabled(Control& control) override;

    Program& program_;
    ConsoleHost& host_;
    UserHands hands_;
    ScriptCommands commands_;
    std::ostream& out_;
    std::ostream& errors_;
    bool strict_;
    const EndRequest* end_;
    bool quitting_ = false;  // the modal forms close one by one
    bool scriptEnded_ = false;
    bool quitCancelled_ = false;
    bool closed_ = false;
};

}  // namespace orlo

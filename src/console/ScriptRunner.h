#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "console/ConsoleHost.h"
#include "shell/Program.h"

namespace orlo {

// Runs a script on a program, command by command; a modal form takes the commands until it closes.
class ScriptRunner {
  public:
    ScriptRunner(Program& program, ConsoleHost& host, std::istream& script, std::ostream& out,
                 std::ostream& errors, bool strict);

    // Runs to the end of the script, which closes the program as the user would. The result is the exit
    // status: 0, or 2 with the reason on `errors` when the script could not go on; then no settings are
    // written.
    int Run();

  private:
    using Words = std::vector<std::string>;

    void RunUntilClosed(Form& form);
    bool RunNextLine();
    bool ReadLine(std::string& line);
    void RunCommand(const Words& words);
    void Quit();

    // Commands. Each throws ScriptEnd when it can't be done.
    void Click(const Words& words);
    void Set(const Words& words);
    void Type(const Words& words);
    void Node(const Words& words);
    void Select(const Words& words);
    void Current(const Words& words);
    void DoubleClick(const Words& words);
    void SortColumn(const Words& words);
    void Key(const Words& words);
    void Focus(const Words& words);
    void CloseForm(const Words& words);
    void FireTimer(const Words& words);
    void DropFile(const Words& words);
    void Reply(const Words& words);
    void Hover(const Words& words);
    void Popup(const Words& words);

    // Looks a control up in the open forms, topmost first; "FORM.CONTROL" names one exactly.
    Control& FindControl(std::string_view name) const;
    Form* FindForm(std::string_view name) const;
    template <typename Type>
    Type& FindAs(std::string_view name, ControlKind kind) const;
    // The same for a control that is to be used: it must be enabled and in reach.
    Control& Usable(std::string_view name) const;
    template <typename Type>
    Type& UsableAs(std::string_view name, ControlKind kind) const;

    // Moves the focus; false, with a line that says which field was kept, when the field that has it refuses.
    bool MoveFocus(Control& to);
    bool Leave(Control& field);
    // The close box; false when the form refuses.
    bool PressCloseBox(Form& form);
    bool Deliver(Control& control, EventKind kind, std::int32_t value = 0);
    void Press(Control& control);
    void WriteText(TextBox& field, const std::string& text);

    Program& program_;
    ConsoleHost& host_;
    std::istream& script_;
    std::ostream& out_;
    std::ostream& errors_;
    bool strict_;
    int lineNumber_ = 0;
    bool quitting_ = false;  // the forms above the main window close one by one
    bool scriptEnded_ = false;
    bool quitCancelled_ = false;
    bool closed_ = false;
};

}  // namespace orlo

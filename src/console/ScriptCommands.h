#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "console/ScriptActs.h"
#include "console/ScriptAnswers.h"
#include "services/EndRequest.h"
#include "shell/Program.h"

namespace orlo {

// Reads the lines of a script, finds the controls that they name in the open forms, and prints what they ask
// for. What they do to the controls is up to the front end (ScriptActs).
class ScriptCommands {
  public:
    // All that is given must outlive this. `end` may be null.
    ScriptCommands(Program& program, ScriptActs& acts, QueuedAnswers& answers, std::istream& script,
                   std::ostream& out, const EndRequest* end = nullptr);

    // Runs the next line; a blank line and a comment do nothing. False at the end of the script, and when
    // the program is to end. Throws ScriptEnd where the line can't be run.
    bool RunNextLine();
    // "line N: " with the reason, where N is the line read last, counted from 1; UTF-8.
    std::string Fault(const ScriptEnd& end) const;

  private:
    using Words = std::vector<std::string>;
    struct Command {
        std::string_view name;
        std::size_t fewest;  // words behind the name
        std::size_t most;
        void (ScriptCommands::*run)(const Words& words);
    };

    bool ReadLine(std::string& line);
    void Run(const Words& words);
    const Command* Find(std::string_view name) const;

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
    void DropFile(const Words& words);
    void FireTimer(const Words& words);
    void Quit(const Words&) { acts_.Quit(); }
    void Reply(const Words& words);
    void Choose(const Words& words);
    void Input(const Words& words);
    void Show(const Words& words);
    void Rows(const Words& words);
    void Entries(const Words& words);
    void Hover(const Words& words);
    void Popup(const Words& words);
    void Properties(const Words& words);
    void Windows(const Words& words);
    void Enabled(const Words& words);
    void Echo(const Words& words);

    // Looks a control up in the open forms, topmost first, case aside; "FORM.CONTROL" names one exactly.
    // Throws ScriptEnd where there is none, or none of that kind.
    Control& FindControl(std::string_view name) const;
    Form* FindForm(std::string_view name) const;  // of the open ones; null for none
    template <typename Type>
    Type& FindAs(std::string_view name, ControlKind kind) const;
    // The same for a control that is to be used. Throws ScriptEnd also where it is disabled, hidden or under
    // a modal form.
    Control& Usable(std::string_view name) const;
    template <typename Type>
    Type& UsableAs(std::string_view name, ControlKind kind) const;

    void SetText(TextBox& field, const std::string& word);
    void SetCombo(ComboBox& combo, const std::string& word);
    void SetTab(TabStrip& tabs, const std::string& word);
    void Turn(Control& control, bool checked, const std::string& word);

    Program& program_;
    ScriptActs& acts_;
    QueuedAnswers& answers_;
    std::istream& script_;
    std::ostream& out_;
    const EndRequest* end_;
    int lineNumber_ = 0;
};

}  // namespace orlo

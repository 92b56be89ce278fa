#include "console/ScriptRunner.h"

#include <functional>
#include <map>

#include "console/ControlPrinting.h"
#include "console/ScriptText.h"
#include "core/Text.h"

namespace orlo {
namespace {

// How many words a command takes behind its name.
void NeedWords(const std::vector<std::string>& words, std::size_t fewest, std::size_t most) {
    const std::size_t given = words.size() - 1;
    if (given < fewest) throw ScriptEnd{Concat("'", words[0], "' needs more words")};
    if (given > most) throw ScriptEnd{Concat("'", words[0], "' has too many words")};
}

}  // namespace

ScriptRunner::ScriptRunner(Program& program, ConsoleHost& host, std::istream& script, std::ostream& out,
                           std::ostream& errors, bool strict)
    : program_(program), host_(host), script_(script), out_(out), errors_(errors), strict_(strict) {
    host_.Attach(program_, [this](Form& form) { RunUntilClosed(form); });
}

int ScriptRunner::Run() {
    try {
        while (!closed_ && RunNextLine()) {
            if (quitting_) Quit();
        }
        if (!closed_ && !quitCancelled_) Quit();
        if (strict_ && !host_.answers.Empty()) throw ScriptEnd{"queued answers are left over"};
    } catch (const ScriptEnd& end) {
        host_.Close();
        out_ << std::flush;
        errors_ << "line " << lineNumber_ << ": " << ToScreen(end.reason) << std::endl;
        return 2;
    }
    out_ << std::flush;
    return 0;
}

// Runs script lines on a modal form until it closes. A quit and the end of the script press its close box;
// where the form refuses, the quit is over, and the end of the script ends it all the same.
void ScriptRunner::RunUntilClosed(Form& form) {
    while (!form.closeRequest) {
        if (!quitting_ && RunNextLine()) continue;
        if (PressCloseBox(form) || scriptEnded_) return;
        quitting_ = false;
        quitCancelled_ = true;
    }
}

bool ScriptRunner::RunNextLine() {
    std::string line;
    if (!ReadLine(line)) {
        scriptEnded_ = true;
        return false;
    }
    ++lineNumber_;
    if (lineNumber_ == 1 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
    const std::size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#') return true;
    const auto words = SplitScriptLine(line);
    if (!words) throw ScriptEnd{"a quote is not closed"};
    RunCommand(*words);
    if (program_.forms.frmMain.closeRequest) closed_ = true;
    return true;
}

// Up to a CR LF, LF or CR.
bool ScriptRunner::ReadLine(std::string& line) {
    for (int byte = script_.get(); byte != std::istream::traits_type::eof(); byte = script_.get()) {
        if (byte == '\r' && script_.peek() == '\n') script_.get();
        if (byte == '\r' || byte == '\n') return true;
        line.push_back(static_cast<char>(byte));
    }
    return !line.empty();
}

void ScriptRunner::RunCommand(const Words& words) {
    struct Command {
        std::size_t fewest;
        std::size_t most;
        std::function<void()> run;
    };
    const auto control = [&]() -> Control& { return FindControl(words[1]); };
    const std::map<std::string_view, Command> commands = {
        {"click", {1, 1, [&] { Click(words); }}},
        {"set", {2, 2, [&] { Set(words); }}},
        {"type", {2, 2, [&] { Type(words); }}},
        {"node", {3, 3, [&] { Node(words); }}},
        {"select", {2, 2, [&] { Select(words); }}},
        {"current", {2, 2, [&] { Current(words); }}},
        {"dblclick", {2, 2, [&] { DoubleClick(words); }}},
        {"sort", {2, 2, [&] { SortColumn(words); }}},
        {"key", {2, 2, [&] { Key(words); }}},
        {"focus", {1, 1, [&] { Focus(words); }}},
        {"close", {0, 1, [&] { CloseForm(words); }}},
        {"reply", {1, 1, [&] { Reply(words); }}},
        {"choose",
         {0, 1,
          [&] { host_.answers.paths.push_back(words.size() > 1 ? std::optional(words[1]) : std::nullopt); }}},
        {"input",
         {0, 1,
          [&] {
              host_.answers.inputs.push_back(words.size() > 1 ? std::optional(FromScreen(words[1]))
                                                              : std::nullopt);
          }}},
        {"drop", {1, 1, [&] { DropFile(words); }}},
        {"timer", {1, 1, [&] { FireTimer(words); }}},
        {"show", {1, 1, [&] { PrintControl(out_, control()); }}},
        {"rows", {1, 1, [&] { PrintRows(out_, FindAs<ListView>(words[1], ControlKind::ListView)); }}},
        {"entries", {1, 1, [&] { PrintEntries(out_, FindAs<ComboBox>(words[1], ControlKind::ComboBox)); }}},
        {"hover", {1, 2, [&] { Hover(words); }}},
        {"popup", {1, 1, [&] { Popup(words); }}},
        {"props",
         {1, 1,
          [&] {
              if (const Form* form = FindForm(words[1])) return PrintProperties(out_, *form);
              PrintProperties(out_, control());
          }}},
        {"windows",
         {0, 0,
          [&] {
              for (const Form* form : program_.pump.Windows().forms) out_ << form->name << '\n';
          }}},
        {"enabled", {1, 1, [&] { out_ << (control().EffectivelyEnabled() ? "yes" : "no") << '\n'; }}},
        {"echo",
         {0, 1000,
          [&] {
              for (std::size_t i = 1; i < words.size(); ++i)
                  out_ << (i == 1 ? "" : " ") << ToScreen(words[i]);
              out_ << '\n';
          }}},
        {"quit", {0, 0, [&] { Quit(); }}},
    };
    const auto found = commands.find(words[0]);
    if (found == commands.end()) throw ScriptEnd{Concat("unknown command '", words[0], "'")};
    NeedWords(words, found->second.fewest, found->second.most);
    found->second.run();
    program_.pump.RunQueued();
}

// Closes the main window, after the close box of each form above it. Modal forms unwind from the top: the
// loops that run them see `quitting_`, close their form and return to the operation that showed it.
void ScriptRunner::Quit() {
    quitting_ = program_.pump.Windows().TopModal() != nullptr;
    if (quitting_) return;
    closed_ = PressCloseBox(program_.forms.frmMain);
    quitCancelled_ = !closed_;
}

}  // namespace orlo

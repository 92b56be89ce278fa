#include "console/ScriptCommands.h"

#include <algorithm>
#include <array>

#include "console/ControlPrinting.h"
#include "console/ScriptText.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::size_t kAnyWords = 1000;

// The word behind the command, where there is one.
std::optional<std::string> Optional(const std::vector<std::string>& words) {
    return words.size() > 1 ? std::optional(words[1]) : std::nullopt;
}

}  // namespace

ScriptCommands::ScriptCommands(Program& program, ScriptActs& acts, QueuedAnswers& answers,
                               std::istream& script, std::ostream& out, const EndRequest* end)
    : program_(program), acts_(acts), answers_(answers), script_(script), out_(out), end_(end) {}

bool ScriptCommands::RunNextLine() {
    std::string line;
    // A line that was begun when the end was asked for may not be whole.
    if (!ReadLine(line) || (end_ != nullptr && end_->ExitStatus())) return false;
    ++lineNumber_;
    if (lineNumber_ == 1 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
    const std::size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#') return true;
    const auto words = SplitScriptLine(line);
    if (!words) throw ScriptEnd{"a quote is not closed"};
    Run(*words);
    return true;
}

std::string ScriptCommands::Fault(const ScriptEnd& end) const {
    return Concat("line ", lineNumber_, ": ", ToScreen(end.reason));
}

// A line ends with CR LF, LF or CR. False at the end of the script.
bool ScriptCommands::ReadLine(std::string& line) {
    for (int byte = script_.get(); byte != std::istream::traits_type::eof(); byte = script_.get()) {
        if (byte == '\r' && script_.peek() == '\n') script_.get();
        if (byte == '\r' || byte == '\n') return true;
        line.push_back(static_cast<char>(byte));
    }
    return !line.empty();
}

const ScriptCommands::Command* ScriptCommands::Find(std::string_view name) const {
    using Self = ScriptCommands;
    static constexpr std::array<Command, 26> kCommands = {{
        {"click", 1, 1, &Self::Click},
        {"set", 2, 2, &Self::Set},
        {"type", 2, 2, &Self::Type},
        {"node", 3, 3, &Self::Node},
        {"select", 2, 2, &Self::Select},
        {"current", 2, 2, &Self::Current},
        {"dblclick", 2, 2, &Self::DoubleClick},
        {"sort", 2, 2, &Self::SortColumn},
        {"key", 2, 2, &Self::Key},
        {"focus", 1, 1, &Self::Focus},
        {"close", 0, 1, &Self::CloseForm},
        {"drop", 1, 1, &Self::DropFile},
        {"timer", 1, 1, &Self::FireTimer},
        {"quit", 0, 0, &Self::Quit},
        {"reply", 1, 1, &Self::Reply},
        {"choose", 0, 1, &Self::Choose},
        {"input", 0, 1, &Self::Input},
        {"show", 1, 1, &Self::Show},
        {"rows", 1, 1, &Self::Rows},
        {"entries", 1, 1, &Self::Entries},
        {"hover", 1, 2, &Self::Hover},
        {"popup", 1, 1, &Self::Popup},
        {"props", 1, 1, &Self::Properties},
        {"windows", 0, 0, &Self::Windows},
        {"enabled", 1, 1, &Self::Enabled},
        {"echo", 0, kAnyWords, &Self::Echo},
    }};
    const auto* found = std::find_if(kCommands.begin(), kCommands.end(),
                                     [&](const Command& command) { return command.name == name; });
    return found == kCommands.end() ? nullptr : found;
}

void ScriptCommands::Run(const Words& words) {
    const Command* command = Find(words[0]);
    if (command == nullptr) {
        if (acts_.RunOther(words)) return;
        throw ScriptEnd{Concat("unknown command '", words[0], "'")};
    }
    const std::size_t given = words.size() - 1;
    if (given < command->fewest) throw ScriptEnd{Concat("'", words[0], "' needs more words")};
    if (given > command->most) throw ScriptEnd{Concat("'", words[0], "' has too many words")};
    (this->*command->run)(words);
}

Form* ScriptCommands::FindForm(std::string_view name) const {
    for (Form* form : program_.pump.Windows().forms) {
        if (EqualNoCase(form->name, name)) return form;
    }
    return nullptr;
}

Control& ScriptCommands::FindControl(std::string_view name) const {
    const std::size_t dot = name.find('.');
    if (dot != std::string_view::npos) {
        const Form* form = FindForm(name.substr(0, dot));
        Control* found = form != nullptr ? form->Find(name.substr(dot + 1)) : nullptr;
        if (found != nullptr) return *found;
    } else {
        for (const Form* form : program_.pump.Windows().forms) {
            if (Control* found = form->Find(name)) return *found;
        }
    }
    throw ScriptEnd{Concat("unknown name '", name, "'")};
}

void ScriptCommands::Reply(const Words& words) {
    const auto answer = AnswerOfWord(words[1]);
    if (!answer) throw ScriptEnd{Concat("unknown answer '", words[1], "'")};
    answers_.replies.push_back(*answer);
}

void ScriptCommands::Choose(const Words& words) {
    answers_.paths.push_back(Optional(words));
}

void ScriptCommands::Input(const Words& words) {
    const auto text = Optional(words);
    answers_.inputs.push_back(text ? std::optional(FromScreen(*text)) : std::nullopt);
}

void ScriptCommands::Show(const Words& words) {
    acts_.Show(out_, FindControl(words[1]));
}

void ScriptCommands::Rows(const Words& words) {
    PrintRows(out_, FindAs<ListView>(words[1], ControlKind::ListView));
}

void ScriptCommands::Entries(const Words& words) {
    PrintEntries(out_, FindAs<ComboBox>(words[1], ControlKind::ComboBox));
}

void ScriptCommands::Properties(const Words& words) {
    if (const Form* form = FindForm(words[1])) return PrintProperties(out_, *form);
    PrintProperties(out_, FindControl(words[1]));
}

void ScriptCommands::Windows(const Words&) {
    for (const Form* form : program_.pump.Windows().forms) out_ << form->name << '\n';
}

void ScriptCommands::Enabled(const Words& words) {
    out_ << (acts_.ShowsEnabled(FindControl(words[1])) ? "yes" : "no") << '\n';
}

void ScriptCommands::Echo(const Words& words) {
    for (std::size_t i = 1; i < words.size(); ++i) out_ << (i == 1 ? "" : " ") << ToScreen(words[i]);
    out_ << '\n';
}

}  // namespace orlo

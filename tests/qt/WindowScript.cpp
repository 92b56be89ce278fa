#include "qt/WindowScript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTest>
#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <stdexcept>

#include "console/ControlPrinting.h"
#include "console/ScriptText.h"
#include "core/Number.h"
#include "core/Text.h"
#include "qt/UserHands.h"

namespace orlo::test {
namespace {

constexpr int kStepMilliseconds = 5;
constexpr int kMostSteps = 4000;         // that a command may take
constexpr int kPressMilliseconds = 150;  // for which a button pressed by its mnemonic stays down
constexpr const char* kAnswered = "answered";

struct ButtonWord {
    QMessageBox::StandardButton button;
    MessageAnswer answer;
    const char* word;
};
constexpr std::array<ButtonWord, 4> kButtons = {{{QMessageBox::Yes, MessageAnswer::Yes, "yes"},
                                                 {QMessageBox::No, MessageAnswer::No, "no"},
                                                 {QMessageBox::Ok, MessageAnswer::Ok, "ok"},
                                                 {QMessageBox::Cancel, MessageAnswer::Cancel, "cancel"}}};

// By the toolkit's icons.
constexpr const char* kMarkWords[] = {"none", "information", "exclamation", "critical", "question"};

std::int32_t Number(const std::string& word) {
    const auto number = ParseWholeNumber(word);
    if (!number) throw std::runtime_error(word + " is no number");
    return *number;
}

}  // namespace

WindowScript::WindowScript(RealProgram& real, const std::string& script) : real_(real), script_(script) {
    connect(&answering_, &QTimer::timeout, this, [this] { AnswerDialog(); });
}

std::string WindowScript::Run() {
    answering_.start(kStepMilliseconds);
    QTimer::singleShot(0, this, [this] { Step(); });
    real_.host.RunUntilClosed(real_.form);
    answering_.stop();
    return said_.str();
}

Form& WindowScript::TopForm() const {
    Form* top = real_.program.pump.Windows().TopModal();
    return top != nullptr ? *top : real_.form;
}

// A modal form takes the commands in its own loop of events, so the next step is always on its way before
// anything runs.
void WindowScript::Step() {
    if (real_.form.closeRequest) return;
    QTimer::singleShot(kStepMilliseconds, this, [this] { Step(); });
    const int step = ++step_;
    Form& top = TopForm();
    if (&top == actingIn_ || !real_.program.pump.TakesInput(top)) {
        if (++waited_ > kMostSteps) qFatal("The script waits for ever at line %d.", line_);
        return;
    }
    waited_ = 0;
    // What was caused by the last command runs first, and is seen.
    real_.host.CatchUp(WindowOf(top));
    if (step != step_ || !real_.program.pump.TakesInput(top)) return;
    const QScopedValueRollback<const Form*> acting(actingIn_, &top);
    try {
        if (quitting_) return CloseTop();
        RunNextLine();
    } catch (const std::exception& fault) {
        fault_ = Concat("line ", line_, ": ", fault.what());
        script_.setstate(std::ios::eofbit);
        quitting_ = true;
    }
}

void WindowScript::CloseTop() {
    Form& top = TopForm();
    quitting_ = &top != &real_.form || !script_.good();
    WindowOf(top).close();
}

void WindowScript::RunNextLine() {
    std::string line;
    if (!std::getline(script_, line)) {
        quitting_ = true;
        return;
    }
    ++line_;
    const auto words = SplitScriptLine(line);
    if (words && !words->empty() && !words->front().starts_with('#')) RunCommand(*words);
}

void WindowScript::RunCommand(const Words& words) {
    const auto word = [&](std::size_t place) -> const std::string& { return words.at(place); };
    const auto list = [&]() -> const ListView& { return FindAs<ListView>(ControlKind::ListView, word(1)); };
    const auto tree = [&]() -> const TreeView& { return FindAs<TreeView>(ControlKind::TreeView, word(1)); };
    const auto combo = [&]() -> const ComboBox& { return FindAs<ComboBox>(ControlKind::ComboBox, word(1)); };
    const auto path = [&] { return words.size() > 1 ? std::optional(word(1)) : std::nullopt; };
    const std::map<std::string_view, std::function<void()>> commands = {
        {"click", [&] { Click(Find(word(1))); }},
        {"set", [&] { Set(Find(word(1)), word(2)); }},
        {"node", [&] { Node(tree(), word(2), word(3) == "on"); }},
        {"select", [&] { Select(list(), word(2)); }},
        {"dblclick", [&] { DoubleClickRow(list(), Number(word(2))); }},
        {"sort", [&] { Sort(list(), word(2)); }},
        {"focus", [&] { GoTo(Find(word(1))); }},
        {"key",
         [&] {
             GoTo(Find(word(1)));
             PressKeys(WindowOf(TopForm()), word(2));
         }},
        {"keys",
         [&] {
             for (std::size_t i = 1; i < words.size(); ++i) PressKeys(WindowOf(TopForm()), word(i));
             QTest::qWait(kPressMilliseconds);
         }},
        {"quit", [&] { quitting_ = true; }},
        {"reply", [&] { Reply(word(1)); }},
        {"choose", [&] { answers_.paths.push_back(path()); }},
        {"show", [&] { said_ << Seen(Find(word(1))); }},
        {"enabled", [&] { said_ << (SeenEnabled(Find(word(1))) ? "yes" : "no") << '\n'; }},
        {"rows", [&] { PrintRows(said_, list()); }},
        {"entries", [&] { PrintEntries(said_, combo()); }},
        {"echo",
         [&] {
             for (std::size_t i = 1; i < words.size(); ++i) said_ << (i == 1 ? "" : " ") << word(i);
             said_ << '\n';
         }},
    };
    const auto found = commands.find(word(0));
    if (found == commands.end()) throw std::runtime_error(Concat("unknown command '", word(0), "'"));
    found->second();
}

Control& WindowScript::Find(const std::string& name) const {
    for (const Form* form : real_.program.pump.Windows().forms) {
        if (Control* found = form->Find(name)) return *found;
    }
    throw std::runtime_error(Concat("unknown name '", name, "'"));
}

template <typename Type>
Type& WindowScript::FindAs(ControlKind kind, const std::string& name) const {
    Control& found = Find(name);
    if (found.kind != kind) throw std::runtime_error(name + " is another control");
    return static_cast<Type&>(found);
}

void WindowScript::Click(Control& control) {
    if (control.kind == ControlKind::MenuEntry) return ChooseMenuEntry(static_cast<MenuEntry&>(control));
    ClickButton(control);
}

void WindowScript::Set(Control& control, const std::string& text) {
    const auto turn = [&](bool checked) {
        if (checked != (text == "on")) Click(control);
    };
    switch (control.kind) {
        case ControlKind::TextBox:
            return SetText(control, text);
        case ControlKind::ComboBox:
            return SetCombo(static_cast<ComboBox&>(control), text);
        case ControlKind::CheckBox:
            return turn(static_cast<CheckBox&>(control).checked);
        case ControlKind::OptionButton:
            return turn(static_cast<OptionButton&>(control).checked);
        case ControlKind::MenuEntry:
            return turn(static_cast<MenuEntry&>(control).checked);
        case ControlKind::TabStrip: {
            const auto& tabs = static_cast<TabStrip&>(control);
            const auto found = std::find_if(tabs.pages.begin(), tabs.pages.end(),
                                            [&](const TabPage& page) { return page.key == text; });
            return ClickTab(tabs, static_cast<std::size_t>(found - tabs.pages.begin()));
        }
        default:
            throw std::runtime_error(Concat(control.name, " can't be set"));
    }
}

void WindowScript::SetText(Control& field, const std::string& text) {
    ReplaceText(field, text);
    FormWindow& window = WindowOf(field.form);
    PressKeys(window, "Tab");
    if (window.FocusControl() == &field) said_ << "kept " << field.name << '\n';
}

void WindowScript::SetCombo(ComboBox& combo, const std::string& text) {
    const auto found = std::find_if(combo.entries.begin(), combo.entries.end(),
                                    [&](const ComboEntry& entry) { return entry.text == text; });
    if (found != combo.entries.end())
        return ChooseComboEntry(combo, static_cast<std::int32_t>(found - combo.entries.begin()));
    if (combo.style != ComboStyle::Editable) throw std::runtime_error(combo.name + " has no such entry");
    ReplaceText(combo, text);
}

void WindowScript::Node(const TreeView& tree, const std::string& text, bool on) {
    for (const std::int32_t place : tree.DisplayOrder()) {
        const TreeNode& node = tree.At(place);
        if (!EqualNoCase(node.text, text) && !EqualNoCase(node.key, text)) continue;
        if (node.checked != on) ClickCheckMark(tree, place);
        return;
    }
    throw std::runtime_error(Concat(tree.name, " has no node '", text, "'"));
}

void WindowScript::Select(const ListView& list, const std::string& rows) {
    if (rows == "all") {
        GoTo(list);
        return PressKeys(WindowOf(list.form), "Ctrl+A");
    }
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    for (const std::string_view row : SplitText(rows, ',')) {
        ClickRow(list, Number(std::string(row)), keys);
        keys = Qt::ControlModifier;
    }
}

void WindowScript::Sort(const ListView& list, const std::string& caption) {
    for (std::size_t i = 0; i < list.columns.size(); ++i) {
        if (list.columns[i].caption == caption) return ClickColumn(list, static_cast<std::int32_t>(i));
    }
    throw std::runtime_error(Concat(list.name, " has no column '", caption, "'"));
}

void WindowScript::Reply(const std::string& word) {
    for (const ButtonWord& button : kButtons) {
        if (word == button.word) answers_.replies.push_back(button.answer);
    }
}

void WindowScript::AnswerDialog() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal->windowHandle() == nullptr || !modal->isVisible()) return;
    // A button that is pressed by its mnemonic takes its time.
    if (modal->property(kAnswered).toBool()) return;
    modal->setProperty(kAnswered, true);
    if (auto* box = qobject_cast<QMessageBox*>(modal)) AnswerMessage(*box);
    if (auto* dialog = qobject_cast<QFileDialog*>(modal)) AnswerFileDialog(*dialog);
}

// By the mnemonic of the button, or Escape.
void WindowScript::AnswerMessage(QMessageBox& box) {
    MessageAnswer answer = box.button(QMessageBox::Ok) != nullptr ? MessageAnswer::Ok : MessageAnswer::No;
    for (const ButtonWord& button : kButtons) {
        if (answers_.replies.empty() || answers_.replies.front() != button.answer) continue;
        if (box.button(button.button) == nullptr) continue;
        answer = button.answer;
        answers_.replies.pop_front();
        break;
    }
    for (const ButtonWord& button : kButtons) {
        if (answer != button.answer) continue;
        said_ << "message " << kMarkWords[box.icon()] << " \"" << PrintedMessage(FromQString(box.text()))
              << "\" -> " << button.word << '\n';
        const QKeySequence keys = QKeySequence::mnemonic(box.button(button.button)->text());
        PressKeys(box, keys.isEmpty() ? "Esc" : keys.toString().toStdString());
    }
}

void WindowScript::AnswerFileDialog(QFileDialog& dialog) {
    const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
    std::string path;
    if (!answers_.paths.empty()) {
        path = answers_.paths.front().value_or("");
        answers_.paths.pop_front();
    }
    if (opens && !QFileInfo::exists(PathToQString(path))) path.clear();
    said_ << "dialog " << (opens ? "open" : "save") << " \"" << dialog.windowTitle().toStdString() << "\" ->"
          << (path.empty() ? "" : " ") << path << '\n';
    if (path.empty()) return PressKeys(dialog, "Esc");
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setText(QDir::current().absoluteFilePath(PathToQString(path)));
    name->setFocus();
    PressKeys(dialog, "Return");
}

}  // namespace orlo::test

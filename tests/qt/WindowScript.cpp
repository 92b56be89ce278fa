#include "qt/WindowScript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTest>
#include <QUrl>
#include <array>
#include <stdexcept>
#include <utility>

#include "console/ControlPrinting.h"
#include "core/Text.h"
#include "forms/Chart.h"
#include "shell/UserHands.h"

namespace orlo::test {
namespace {

constexpr int kStepMilliseconds = 5;
constexpr int kMostSteps = 4000;  // that a command may take
constexpr int kMostTries = 100;
constexpr int kNotYet = 3'600'000;
constexpr const char* kAnswered = "answered";

constexpr std::array<std::pair<QMessageBox::StandardButton, MessageAnswer>, 4> kButtons = {
    {{QMessageBox::Yes, MessageAnswer::Yes},
     {QMessageBox::No, MessageAnswer::No},
     {QMessageBox::Ok, MessageAnswer::Ok},
     {QMessageBox::Cancel, MessageAnswer::Cancel}}};

// By the toolkit's icons.
constexpr const char* kMarkWords[] = {"none", "information", "exclamation", "critical", "question"};

}  // namespace

void ScriptHost::StartTimer(std::string_view name, int) {
    DesktopHost::StartTimer(name, kNotYet);
}

void ScriptHost::FireTimer(const std::string& name) {
    DesktopHost::StartTimer(name, 0);
    if (!QTest::qWaitFor([&] { return !TimerArmed(name); })) throw ScriptEnd{Concat(name, " never fires")};
}

std::optional<std::string> ScriptHost::TakePath() {
    if (answers.paths.empty()) return std::nullopt;
    std::optional<std::string> path = answers.paths.front();
    answers.paths.pop_front();
    if (path && path->empty()) path.reset();
    return path;
}

bool ScriptHost::ShowPrintDialog(std::string_view title) {
    const auto path = TakePath();
    printPath_ = path.value_or("");
    said << DialogLine("print", title, path);
    return path.has_value();
}

PrintOutcome ScriptHost::Print(std::string_view text) {
    QFile paper(PathToQString(printPath_));
    const bool printed =
        paper.open(QIODevice::WriteOnly) && paper.write(text.data(), static_cast<qint64>(text.size())) >= 0;
    return printed ? PrintOutcome::Printed : PrintOutcome::Failed;
}

// As the console does, so that the files can be compared; the pictures have tests of their own.
std::string ScriptHost::DrawCharts(std::span<const Chart* const> charts, PictureFormat format) {
    if (DesktopHost::DrawCharts(charts, format).empty()) return {};
    return ChartTables(charts);
}

bool ScriptHost::OpenDocument(const std::string& path, const std::string&) {
    said << DocumentLine(path);
    return true;
}

WindowScript::WindowScript(RealProgram& real, ScriptHost& host, const std::string& script)
    : real_(real),
      host_(host),
      script_(script),
      commands_(real.program, *this, host.answers, script_, host.said) {
    connect(&answering_, &QTimer::timeout, this, [this] { AnswerDialog(); });
}

void WindowScript::Run() {
    answering_.start(kStepMilliseconds);
    QTimer::singleShot(0, this, [this] { Step(); });
    host_.RunUntilClosed(real_.form);
    answering_.stop();
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
        if (++waited_ > kMostSteps) qFatal("The script waits for ever: %s", host_.said.str().c_str());
        return;
    }
    waited_ = 0;
    // What was caused by the last command runs first, and is seen.
    host_.CatchUp(WindowOf(top));
    if (step != step_ || top.closeRequest || !real_.program.pump.TakesInput(top)) return;
    const QScopedValueRollback<const Form*> acting(actingIn_, &top);
    if (!fault_.empty()) return CloseAtOnce();
    try {
        if (&top == &real_.form) TurnBack();
        if (quitting_) return CloseTop();
        RunNextLine();
    } catch (const ScriptEnd& end) {
        Fail(end.reason);
    } catch (const std::exception& failure) {
        Fail(failure.what());
    }
}

void WindowScript::Fail(const std::string& reason) {
    fault_ = commands_.Fault({reason});
}

void WindowScript::RunNextLine() {
    if (ended_ || !commands_.RunNextLine()) {
        ended_ = quitting_ = true;
        if (quitCancelled_ && &TopForm() == &real_.form) CloseAtOnce();
    }
}

// A quit that is refused is over.
void WindowScript::CloseTop() {
    Form& top = TopForm();
    const bool last = &top == &real_.form;
    quitting_ = !last;
    quitCancelled_ = last;  // unless no further step is made
    WindowOf(top).close();
}

// Where the console's script ends, the program is left as it stands.
void WindowScript::CloseAtOnce() {
    Form& top = TopForm();
    top.closeRequest = true;
    host_.CatchUp(WindowOf(top));
}

// By the tab key, as far as the next control.
bool WindowScript::LeaveFocus(Form& form, const Control* to) {
    FormWindow& window = WindowOf(form);
    const Control* field = window.FocusControl();
    if (!AsksToLeave(field, to)) return true;
    PressKeys(window, "Tab");
    if (window.FocusControl() != field) return true;
    host_.said << "kept " << field->name << '\n';
    return false;
}

// Turns the tabs until the control is seen, and remembers which one was shown. False where it isn't seen.
bool WindowScript::BringIntoView(Control& control) {
    if (control.EffectivelyVisible()) return true;
    MainForm& form = real_.form;
    if (&control.form != &form || &TopForm() != &form || control.kind == ControlKind::MenuEntry) return false;
    const std::string shown = form.tabMain.selectedKey;
    for (std::size_t i = 0; i < form.tabMain.pages.size() && !control.EffectivelyVisible(); ++i) {
        ClickTab(form.tabMain, i);
        host_.CatchUp(WindowOf(form));
    }
    if (shownTab_.empty()) shownTab_ = shown;
    return control.EffectivelyVisible();
}

void WindowScript::TurnBack() {
    TabStrip& tabs = real_.form.tabMain;
    const std::string key = std::exchange(shownTab_, {});
    for (std::size_t i = 0; i < tabs.pages.size(); ++i) {
        if (tabs.pages[i].key == key) ClickTab(tabs, i);
    }
    if (!key.empty()) host_.CatchUp(WindowOf(real_.form));
}

bool WindowScript::Reach(Control& control) {
    if (TakesFocus(control) && !LeaveFocus(control.form, &control)) return false;
    BringIntoView(control);
    return true;
}

void WindowScript::Click(Control& control) {
    if (control.kind == ControlKind::MenuEntry) return ChooseMenuEntry(static_cast<MenuEntry&>(control));
    ClickButton(control);
}

void WindowScript::LeaveField(TextBox& field) {
    if (WindowOf(field.form).FocusControl() == &field) LeaveFocus(field.form, nullptr);
}

void WindowScript::SelectRows(ListView& list, const std::vector<std::int32_t>& rows) {
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    for (const std::int32_t row : rows) test::ClickRow(list, row, std::exchange(keys, Qt::ControlModifier));
}

void WindowScript::SelectAllRows(ListView& list, bool selected) {
    if (!selected) throw ScriptEnd{"a mouse doesn't select none"};
    GoTo(list);
    PressKeys(WindowOf(list.form), "Ctrl+A");
}

void WindowScript::PressKey(Form& form, EventKey key) {
    const char* name = key == kKeyEnter    ? "Return"
                       : key == kKeyEscape ? "Esc"
                       : key == kKeyDelete ? "Del"
                                           : "Ins";
    PressKeys(WindowOf(form), name);
}

void WindowScript::DropFile(Form& form, const std::string& path) {
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(QDir::current().absoluteFilePath(PathToQString(path)))});
    DropOn(WindowOf(form), file);
}

void WindowScript::Rest(Control& control, std::int32_t node) {
    if (!BringIntoView(control)) throw ScriptEnd{Concat(control.name, " can't be seen")};
    RestOn(control, node);
}

const MenuEntry* WindowScript::OpenPopup(Control& control) {
    const std::string name = PopupOf(control);
    return static_cast<const MenuEntry*>(control.form.Find(name));
}

void WindowScript::Show(std::ostream& out, Control& control) {
    if (BringIntoView(control)) {
        out << Seen(control);
    } else {
        PrintControl(out, control);
    }
}

bool WindowScript::ShowsEnabled(Control& control) {
    return BringIntoView(control) ? SeenEnabled(control) : control.EffectivelyEnabled();
}

bool WindowScript::RunOther(const std::vector<std::string>& words) {
    constexpr int kPressMilliseconds = 150;  // for which a button pressed by its mnemonic stays down
    if (words[0] != "keys") return false;
    for (std::size_t i = 1; i < words.size(); ++i) PressKeys(WindowOf(TopForm()), words[i]);
    QTest::qWait(kPressMilliseconds);
    return true;
}

void WindowScript::AnswerDialog() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal->windowHandle() == nullptr || !modal->isVisible()) return;
    // A button that is pressed by its mnemonic takes its time.
    if (modal->property(kAnswered).toBool()) return;
    modal->setProperty(kAnswered, true);
    if (auto* box = qobject_cast<QMessageBox*>(modal)) AnswerMessage(*box);
    if (auto* dialog = qobject_cast<QFileDialog*>(modal)) AnswerFileDialog(*dialog);
    if (auto* dialog = qobject_cast<QInputDialog*>(modal)) AnswerInput(*dialog);
}

// By the mnemonic of the button, or Escape.
void WindowScript::AnswerMessage(QMessageBox& box) {
    std::vector<MessageAnswer> offered;
    for (const auto& [button, answer] : kButtons) {
        if (box.button(button) != nullptr) offered.push_back(answer);
    }
    const MessageAnswer answer = host_.answers.TakeReply(offered).value_or(AnswerWithoutReply(offered));
    // A long text is cut on the screen, and whole in the details.
    const QString text = box.detailedText().isEmpty() ? box.text() : box.detailedText();
    host_.said << MessageLine(kMarkWords[box.icon()], FromQString(text), answer);
    for (const auto& [button, meant] : kButtons) {
        if (meant != answer) continue;
        const QKeySequence keys = QKeySequence::mnemonic(box.button(button)->text());
        PressKeys(box, keys.isEmpty() ? "Esc" : keys.toString().toStdString());
    }
}

void WindowScript::AnswerFileDialog(QFileDialog& dialog) {
    const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
    const bool folder = dialog.fileMode() == QFileDialog::Directory;
    std::optional<std::string> path = host_.TakePath();
    if (opens && path) {
        const QFileInfo found(PathToQString(*path));
        if (!found.exists() || found.isDir() != folder) path.reset();
    }
    host_.said << DialogLine(opens ? "open" : "save", FromQString(dialog.windowTitle()), path);
    if (!path) return PressKeys(dialog, "Esc");
    const QString full = QDir::current().absoluteFilePath(PathToQString(*path));
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setFocus();
    // The last letter by its key, since the dialog keeps to a file that it has chosen itself until one is
    // typed. It may choose late, when it has read the folder.
    for (int tries = 0; tries < kMostTries && dialog.selectedFiles() != QStringList(full); ++tries) {
        if (tries > 0) QTest::qWait(kStepMilliseconds);
        name->setText(full.chopped(1));
        TypeText(dialog, full.right(1).toStdString());
    }
    PressKeys(dialog, "Return");
}

void WindowScript::AnswerInput(QInputDialog& dialog) {
    auto& inputs = host_.answers.inputs;
    std::optional<std::string> text;
    if (!inputs.empty()) {
        text = inputs.front();
        inputs.pop_front();
    }
    host_.said << InputLine(FromQString(dialog.windowTitle()), FromQString(dialog.labelText()), text);
    if (!text) return PressKeys(dialog, "Esc");
    dialog.setTextValue(ToQString(*text));
    PressKeys(dialog, "Return");
}

}  // namespace orlo::test

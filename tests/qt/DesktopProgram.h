#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/Text.h"
#include "desktop/DesktopHost.h"
#include "qt/UserHands.h"
#include "shell/Program.h"
#include "support/FakeHosts.h"

namespace orlo::test {

// One control of each type, and what ran on them.
struct SampleForm : Form {
    explicit SampleForm(std::string_view nameOf = "frmSample") : Form(nameOf, "Sample") {
        lvRows.AddColumn("A", "First");
        lvRows.AddColumn("B", "Second");
        for (const std::string_view text : {"Alpha", "Beta", "Gamma"}) cmZone.Add(text);
        cmZone.index = 0;
        opFirst.checked = true;
        tabViews.pages = {{"ONE", "One"}, {"TWO", "Two"}};
        tabViews.selectedKey = "ONE";
        mnuTick.checkable = true;
        mnuTick.shortcut = "Ctrl+Z";
        takesFiles = true;
        for (const std::string_view text : {"Red", "Green"}) cmFree.Add(text);
        mnuSelect.popup = true;
        defaultButton = &cmdGo;
        cancelButton = &cmdStop;
        layout.rows = {
            WideRow(tabViews),          FieldRow({txtName}),
            FieldRow({txtOther}),       FillingRow(txtNotes),
            FieldRow({cmZone}),         FieldRow({cmFree}),
            FieldRow({ckSwitch}),       FieldRow({Holding(frChoice, {{LeftRow({opFirst, opSecond})}})}),
            FillingRow(lvRows),         FillingRow(tvNodes),
            RightRow({cmdGo, cmdStop}), WideRow(sbState),
        };
        const std::int32_t group = tvNodes.Add(-1, "#G", "Group", Colour::WindowText);
        tvNodes.Add(group, "one", "One", Colour::Blue);
        tvNodes.Add(group, "two", "Two", Colour::Red);
    }

    MenuEntry mnuFile{*this, "mnuFile", "&File"};
    MenuEntry mnuTick{mnuFile, "mnuTick", "&Tick"};
    MenuEntry mnuSelect{*this, "mnuSelect", "Select"};
    MenuEntry mnuSelectAll{mnuSelect, "mnuSelectAll", "Select &all"};
    TabStrip tabViews{*this, "tabViews"};
    Label lblName{*this, "lblName", "&Name"};
    TextBox txtName{*this, "txtName"};
    Label lblOther{*this, "lblOther", "Othe&r"};
    TextBox txtOther{*this, "txtOther"};
    TextBox txtNotes{*this, "txtNotes", TextBoxStyle::MultiLine};
    Label lblZone{*this, "lblZone", "&Zone"};
    ComboBox cmZone{*this, "cmZone"};
    ComboBox cmFree{*this, "cmFree", ComboStyle::Editable};
    CheckBox ckSwitch{*this, "ckSwitch", "S&witch"};
    Frame frChoice{*this, "frChoice", "Choice"};
    OptionButton opFirst{frChoice, "opFirst", "F&irst"};
    OptionButton opSecond{frChoice, "opSecond", "Se&cond"};
    ListView lvRows{*this, "lvRows"};
    TreeView tvNodes{*this, "tvNodes"};
    Button cmdGo{*this, "cmdGo", "&Go"};
    Button cmdStop{*this, "cmdStop", "&Stop"};
    StatusBar sbState{*this, "sbState"};

    std::vector<std::string> ran;  // "Click cmdGo" in the order of running
    std::map<std::string, std::function<void(Context&, Event&)>> on;

    // How often it ran.
    int Ran(std::string_view what) const {
        return static_cast<int>(std::count(ran.begin(), ran.end(), std::string(what)));
    }
};

// In the order of EventKind.
constexpr std::string_view kKindNames[] = {
    "Click", "Change", "Leave", "SelectTab",  "CheckNode", "SelectRow", "DoubleClick", "ClickColumn", "KeyUp",
    "Popup", "Hover",  "Timer", "SystemMenu", "Help",      "DropFile",  "Resize",      "Close"};

// Notes the event and runs what the test wants to run.
inline void Note(Context& context, Event& event) {
    auto& form = static_cast<SampleForm&>(*event.form);
    const std::string what = Concat(kKindNames[static_cast<std::size_t>(event.kind)], " ",
                                    event.control != nullptr ? event.control->name : "form");
    form.ran.push_back(what);
    const auto found = form.on.find(what);
    if (found != form.on.end()) found->second(context, event);
}

template <auto... Members>
void AddSampleEvents(std::vector<EventEntry>& events, std::initializer_list<EventKind> kinds) {
    for (const EventKind kind : kinds) (events.push_back({ControlOf<SampleForm, Members>, kind, Note}), ...);
}

inline EventTable SampleEvents() {
    using enum EventKind;
    using S = SampleForm;
    static const std::vector<EventEntry> kEvents = [] {
        std::vector<EventEntry> events;
        for (const EventKind kind : {Close, Help, DropFile, KeyUp}) events.push_back({nullptr, kind, Note});
        AddSampleEvents<&S::lvRows>(events, {SelectRow, DoubleClick, ClickColumn, Popup, KeyUp});
        AddSampleEvents<&S::txtName>(events, {Change, Leave, KeyUp});
        AddSampleEvents<&S::tvNodes>(events, {CheckNode, Hover});
        AddSampleEvents<&S::mnuTick, &S::mnuSelectAll, &S::ckSwitch, &S::opFirst, &S::opSecond, &S::cmdGo,
                        &S::cmdStop>(events, {Click});
        AddSampleEvents<&S::txtOther, &S::txtNotes, &S::cmZone, &S::cmFree>(events, {Change});
        AddSampleEvents<&S::tabViews>(events, {SelectTab});
        return events;
    }();
    return kEvents;
}

// A small program behind the desktop front end, with one form open.
struct DesktopProgram {
    DesktopHost host;
    FakeWorld world{{.frontEnd = &host}};
    Program program{world.services, "/program", "/state"};
    Context& context = program.context;
    SampleForm form;

    DesktopProgram() {
        host.Attach(program.pump, program.forms.frmProgress);
        program.pump.AddTable(form, SampleEvents());
        form.box = {0, 0, 600, 760};
        host.ShowForm(form);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&WindowOf(form)));
        Settle();
        form.ran.clear();
    }
    ~DesktopProgram() { host.Detach(); }

    // Lets events run until what was posted has run and is drawn.
    static void Settle() { QTest::qWait(60); }

    // Draws what the test itself has written into the form.
    void CatchUp() { host.CatchUp(WindowOf(form)); }

    static FormWindow& WindowOf(const Form& of) { return test::WindowOf(of); }
    template <typename Widget>
    static Widget& Find(const Control& control) {
        return dynamic_cast<Widget&>(WidgetOf(control));
    }

    // By way of the system's window, as a real mouse and keyboard do, and then what they cause runs. Within
    // an operation it waits until the operation lets events run.
    void ClickAt(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QWidget* window = widget.window();
        QTest::mouseClick(window->windowHandle(), button, keys, widget.mapTo(window, place));
        LetRun();
    }
    void Click(const Control& control) {
        auto& widget = Find<QWidget>(control);
        // Left, where the marks of boxes are.
        ClickAt(widget, QPoint(8, widget.height() / 2));
    }
    void Key(const Form& of, Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QTest::keyClick(WindowOf(of).windowHandle(), key, keys);
        LetRun();
    }
    void Type(const Form& of, std::string_view text) {
        TypeText(WindowOf(of), std::string(text));
        LetRun();
    }
    void Close(const Form& of) {
        WindowOf(of).close();
        LetRun();
    }
    void LetRun() const {
        if (!program.pump.OperationRuns()) Settle();
    }
    void Focus(Control& control) {
        Find<QWidget>(control).setFocus();
        EXPECT_EQ(form.focus, &control);
    }
};

struct DesktopTest : testing::Test {
    DesktopProgram desktop;
    SampleForm& form = desktop.form;
};

// Runs in the dialog that opens next.
template <typename Dialog>
void InDialog(std::function<void(Dialog&)> act) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [act, timer] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        timer->stop();
        timer->deleteLater();
        act(*dialog);
    });
    timer->start(20);
}

// Types the path and accepts it.
inline void Choose(QFileDialog& dialog, const std::string& path) {
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (name == nullptr) throw std::runtime_error("no field for the file's name");
    name->setText(QString::fromStdString(path));
    QMetaObject::invokeMethod(&dialog, "accept");
}

}  // namespace orlo::test

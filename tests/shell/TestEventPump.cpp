#include "shell/EventPump.h"

#include <gtest/gtest.h>

#include <set>

#include "shell/EventTables.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

TEST(EventPump, EventsThatNoUserCouldCauseAreDropped) {
    test::FakeProgram fake;
    EventPump& pump = fake.program.pump;
    AboutForm& about = fake.program.forms.frmAbout;

    EXPECT_FALSE(fake.Press(fake.form.cmdShuffle)) << "a disabled button";
    EXPECT_TRUE(fake.Press(fake.form.mnuToolsDebug));
    fake.form.enabled = false;
    EXPECT_FALSE(fake.Press(fake.form.mnuToolsDebug)) << "a disabled window";
    fake.form.enabled = true;
    fake.form.mnuToolsSwitches.enabled = false;
    EXPECT_FALSE(fake.Press(fake.form.mnuToolsDebug)) << "an entry of a disabled menu";
    fake.form.mnuToolsSwitches.enabled = true;
    pump.Windows().Show(about);
    pump.Windows().modal.push_back(&about);
    EXPECT_FALSE(fake.Press(fake.form.mnuToolsDebug)) << "a window under a modal one";
    pump.Windows().Unload(about);
    EXPECT_TRUE(fake.Press(fake.form.mnuToolsDebug));
    EXPECT_FALSE(fake.session.switches.DebugOn) << "two clicks arrived";
}

TEST(EventPump, TheCloseBoxOfADisabledMainWindowWorksWhereNoOperationRuns) {
    test::FakeProgram fake;
    fake.form.enabled = false;
    Event event{&fake.form, nullptr, EventKind::Close};
    EXPECT_TRUE(fake.program.pump.Deliver(event));
    EXPECT_TRUE(fake.form.closeRequest);
}

TEST(EventTables, EveryEntryNamesAControlOnceAndEveryActingControlIsWired) {
    test::FakeProgram fake;
    Forms& forms = fake.program.forms;
    for (const Form* form : std::initializer_list<const Form*>{
             &forms.frmMain, &forms.frmProgress, &forms.frmSplash, &forms.frmAbout, &forms.frmFlightEdit}) {
        std::set<std::pair<std::string, EventKind>> wired;
        for (const EventEntry& entry : EventsOf(forms, *form)) {
            EXPECT_TRUE(wired.emplace(entry.control, entry.kind).second)
                << entry.control << " is wired twice";
            if (entry.control.empty() || entry.kind == EventKind::Timer) continue;
            EXPECT_NE(form->Find(entry.control), nullptr) << entry.control;
        }
        for (const Control* control : form->Controls()) {
            const bool acts = control->kind == ControlKind::Button || control->kind == ControlKind::MenuEntry;
            const auto isChild = [&](const Control* other) { return other->parent == control; };
            const bool opens = std::any_of(form->Controls().begin(), form->Controls().end(), isChild);
            if (acts && !opens) {
                EXPECT_TRUE(wired.contains({control->name, EventKind::Click})) << control->name;
            }
        }
    }
}

}  // namespace
}  // namespace orlo

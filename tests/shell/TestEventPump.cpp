#include "shell/EventPump.h"

#include <gtest/gtest.h>

#include <set>

#include "shell/EventIndex.h"
#include "shell/FormFacts.h"
#include "shell/PaneFacts.h"
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

    // The close box of a disabled window works where no operation runs.
    fake.form.enabled = false;
    Event event{&fake.form, nullptr, EventKind::Close};
    EXPECT_TRUE(pump.Deliver(event));
    EXPECT_TRUE(fake.form.closeRequest);
}

TEST(FormFacts, EveryActingControlOfEveryFormIsWiredOnceAndEachTabHasItsPane) {
    test::FakeProgram fake;
    Forms& forms = fake.program.forms;
    EventIndex index;
    std::set<const Form*> listed;
    for (const FormFacts& facts : AllForms()) {
        Form& form = facts.form(forms);
        SCOPED_TRACE(form.name);
        EXPECT_TRUE(listed.insert(&form).second) << "listed twice";
        for (const EventTable table : facts.events()) EXPECT_TRUE(index.Add(form, table)) << "wired twice";
        for (Control* control : form.Controls()) {
            const bool acts = control->kind == ControlKind::Button || control->kind == ControlKind::MenuEntry;
            const auto isChild = [&](const Control* other) { return other->parent == control; };
            const bool opens = std::any_of(form.Controls().begin(), form.Controls().end(), isChild);
            if (acts && !opens) {
                EXPECT_NE(index.Find({&form, control, EventKind::Click}), nullptr) << control->name;
            }
        }
    }
    ASSERT_EQ(Panes().size(), fake.form.tabMain.pages.size());
    for (std::size_t i = 0; i < Panes().size(); ++i)
        EXPECT_EQ(Panes()[i].key, fake.form.tabMain.pages[i].key);
}

}  // namespace
}  // namespace orlo

#pragma once

#include "shell/Program.h"
#include "support/FakeHosts.h"

namespace orlo::test {

// A program on fakes, with its main window open.
struct FakeProgram {
    FakeWorld world;
    Program program{world.services, "/program"};
    Context& context = program.context;
    Session& session = program.session;
    MainForm& form = program.forms.frmMain;

    FakeProgram() { program.pump.Windows().Show(form); }

    // Presses a control as a user would; false when the event was dropped or refused.
    bool Press(Control& control) {
        Event event{&control.form, &control, EventKind::Click};
        return program.pump.Deliver(event);
    }
};

}  // namespace orlo::test

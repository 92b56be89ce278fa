#include "console/ScriptRunner.h"

#include <functional>

#include "shell/SystemEnd.h"

namespace orlo {

ScriptRunner::ScriptRunner(Program& program, ConsoleHost& host, std::istream& script, std::ostream& out,
                           std::ostream& errors, bool strict, const EndRequest* end)
    : program_(program),
      host_(host),
      hands_(program.pump),
      commands_(program, *this, host.answers, script, out, end),
      out_(out),
      errors_(errors),
      strict_(strict),
      end_(end) {
    host_.Attach(program_, [this](Form& form) { RunUntilClosed(form); });
}

int ScriptRunner::Run() {
    try {
        while (!closed_ && RunNextLine()) {
            if (quitting_) Quit();
        }
        if (!closed_ && MustEnd()) return EndAtOnce();
        if (!closed_ && !quitCancelled_) Quit();
        if (strict_ && !host_.answers.Empty()) throw ScriptEnd{"queued answers are left over"};
    } catch (const ScriptEnd& end) {
        host_.Close();
        out_ << std::flush;
        errors_ << commands_.Fault(end) << std::endl;
        return 2;
    }
    out_ << std::flush;
    return 0;
}

int ScriptRunner::EndAtOnce() {
    if (!EndBySystem(program_.context)) errors_ << "orlo-console: the changes could not be kept\n";
    host_.Close();
    out_ << std::flush;
    return *end_->ExitStatus();
}

// Runs script lines until the modal form closes. A quit and the end of the script press its close box. Where
// the form refuses, the quit is given up; at the end of the script the form closes all the same, and
// where the program is to end without being asked.
void ScriptRunner::RunUntilClosed(Form& form) {
    while (!form.closeRequest) {
        if (!quitting_ && RunNextLine()) continue;
        if (MustEnd()) return;
        if (hands_.PressCloseBox(form) || scriptEnded_) return;
        quitting_ = false;
        quitCancelled_ = true;
    }
}

bool ScriptRunner::RunNextLine() {
    scriptEnded_ = !commands_.RunNextLine();
    if (scriptEnded_) return false;
    program_.pump.RunQueued();
    if (program_.forms.frmMain.closeRequest) closed_ = true;
    return true;
}

// Closes the main window, after the close box of each modal form above it. The topmost form closes first:
// each RunUntilClosed sees `quitting_`, closes its form and returns to the operation that showed the form.
// The last one is Run, which calls this again.
void ScriptRunner::Quit() {
    quitting_ = program_.pump.Windows().TopModal() != nullptr;
    if (quitting_) return;
    closed_ = hands_.PressCloseBox(program_.forms.frmMain);
    quitCancelled_ = !closed_;
}

}  // namespace orlo

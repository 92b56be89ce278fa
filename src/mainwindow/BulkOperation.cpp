#include "mainwindow/BulkOperation.h"

#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::string_view kNotWritten = "Not written: [";
constexpr std::string_view kNotPrinted = "Could not print.";

}  // namespace

BusyMainWindow::BusyMainWindow(Context& context) : form_(context.forms.frmMain) {
    form_.enabled = false;
    form_.pointer = PointerShape::Hourglass;
    context.services.windows.ProcessEvents();
}

BusyMainWindow::~BusyMainWindow() {
    if (staysBusy_) return;
    form_.enabled = true;
    form_.pointer = PointerShape::Normal;
}

void OpenProgress(Context& context, std::string_view text, int maximum, int value) {
    ProgressHost& progress = context.services.progress;
    progress.SetText(text);
    progress.SetMax(maximum);
    progress.SetValue(value);
    progress.Show(&context.forms.frmMain);
    context.services.windows.ProcessEvents();
}

void NextProgress(Context& context, std::string_view text, int value) {
    context.services.progress.SetText(text);
    context.services.progress.SetValue(value);
    context.services.windows.ProcessEvents();
}

void MarkPlanModified(Context& context) {
    context.session.plan.PlanModified = true;
    context.forms.frmMain.mnuFileSave.enabled = true;
}

void ReportNotWritten(Context& context, std::string_view path) {
    context.forms.frmMain.sbMain.text = Concat(kNotWritten, path, "].");
}

void ReportNotPrinted(Context& context) {
    context.forms.frmMain.sbMain.text = kNotPrinted;
}

void ForgetNotWritten(Context& context) {
    std::string& text = context.forms.frmMain.sbMain.text;
    if (text.starts_with(kNotWritten) || text == kNotPrinted) text.clear();
}

}  // namespace orlo

#include "mainwindow/ReportWindow.h"

#include "core/Application.h"
#include "core/Text.h"
#include "mainwindow/StatusTexts.h"

namespace orlo {

std::string ReportText(const Form& form, const TextBox& text) {
    return Concat(kApplicationTitle, " - ", form.caption, "\r\n\r\n", text.text);
}

bool AskAndPrint(Context& context, std::string_view dialogTitle, std::string_view text) {
    WindowHost& windows = context.services.windows;
    if (!windows.ShowPrintDialog(dialogTitle)) return false;
    ForgetNotWritten(context);
    const PrintOutcome outcome = windows.Print(text);
    if (outcome == PrintOutcome::Failed) ReportNotPrinted(context);
    return outcome == PrintOutcome::Printed;
}

}  // namespace orlo

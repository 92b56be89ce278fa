#include "mainwindow/StatusTexts.h"

#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::string_view kNotWritten = "Not written: [";
constexpr std::string_view kNotPrinted = "Could not print.";

}  // namespace

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

#include "mainwindow/StatusTexts.h"

#include <set>
#include <string>
#include <vector>

#include "core/Text.h"

namespace orlo {
namespace {

constexpr std::string_view kNotWritten = "Not written: [";
constexpr std::string_view kNotPrinted = "Could not print.";

void ForgetKept(Context& context) {
    std::string& text = context.forms.frmMain.sbMain.text;
    std::string& told = context.session.kept.Told;
    if (text.ends_with(told)) text.resize(text.size() - told.size());
    told.clear();
}

}  // namespace

void ReportNotWritten(Context& context, std::string_view path) {
    context.forms.frmMain.sbMain.text = Concat(kNotWritten, path, "].");
}

void ReportNotPrinted(Context& context) {
    context.forms.frmMain.sbMain.text = kNotPrinted;
}

void ForgetNotWritten(Context& context) {
    ForgetKept(context);
    std::string& text = context.forms.frmMain.sbMain.text;
    if (text.starts_with(kNotWritten) || text == kNotPrinted) text.clear();
}

void TellKept(Context& context) {
    const std::vector<std::string>& kept = context.session.kept.Kept;
    if (kept.empty()) return;
    ForgetKept(context);
    std::string& text = context.forms.frmMain.sbMain.text;
    std::string& told = context.session.kept.Told;
    told = Concat(text.empty() ? "" : " ", "Kept a copy of [", kept.front(), "]");
    const std::size_t others = std::set(kept.begin(), kept.end()).size() - 1;
    if (others > 0) told += Concat(" and of ", others, " more");
    told += '.';
    text += told;
}

}  // namespace orlo

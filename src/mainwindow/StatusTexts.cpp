#include "mainwindow/StatusTexts.h"

#include <set>
#include <string>
#include <utility>
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

void Report(Context& context, std::string failure) {
    context.forms.frmMain.sbMain.text = failure;
    context.session.kept.Notes.Failure = std::move(failure);
}

void TellFailure(Context& context) {
    const std::string& failure = context.session.kept.Notes.Failure;
    std::string& text = context.forms.frmMain.sbMain.text;
    if (failure.empty() || text.starts_with(failure)) return;
    text = text.empty() ? failure : Concat(failure, " ", text);
}

}  // namespace

void ReportNotWritten(Context& context, std::string_view path) {
    const bool held = context.services.files.IsHeld(std::string(path));
    Report(context, Concat(kNotWritten, path, held ? "], which another program has open." : "]."));
}

void ReportNotPrinted(Context& context) {
    Report(context, std::string(kNotPrinted));
}

void ForgetNotWritten(Context& context) {
    ForgetKept(context);
    context.session.kept.Notes.Failure.clear();
    std::string& text = context.forms.frmMain.sbMain.text;
    if (text.starts_with(kNotWritten) || text == kNotPrinted) text.clear();
}

void TellNotes(Context& context) {
    TellFailure(context);
    const std::vector<std::string>& kept = context.session.kept.Notes.Kept;
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

#include "console/ConsoleHost.h"

#include <algorithm>
#include <vector>

#include "console/ScriptActs.h"
#include "console/ScriptText.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "forms/Chart.h"
#include "shell/Program.h"

namespace orlo {
namespace {

std::string_view MarkWord(int flags) {
    switch (flags & 0x70) {
        case kMarkCritical:
            return "critical";
        case kMarkQuestion:
            return "question";
        case kMarkExclamation:
            return "exclamation";
        case kMarkInformation:
            return "information";
        default:
            return "none";
    }
}

std::vector<MessageAnswer> ButtonsOf(int flags) {
    switch (flags & 0x0F) {
        case kButtonsYesNoCancel:
            return {MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel};
        case kButtonsYesNo:
            return {MessageAnswer::Yes, MessageAnswer::No};
        default:
            return {MessageAnswer::Ok};
    }
}

std::string ButtonsLine(const std::vector<MessageAnswer>& buttons, int flags) {
    std::string line = "buttons ";
    for (std::size_t i = 0; i < buttons.size(); ++i)
        line.append(Concat(i == 0 ? "" : ",", AnswerWord(buttons[i])));
    const bool second = (flags & kDefaultSecondButton) != 0 && buttons.size() > 1;
    return Concat(line, " default ", AnswerWord(buttons[second ? 1 : 0]));
}

}  // namespace

void ConsoleHost::Attach(Program& program, std::function<void(Form&)> runModal) {
    program_ = &program;
    runModal_ = std::move(runModal);
}

void ConsoleHost::SetText(std::string_view text) {
    if (trace_) out_ << "progress text " << Printed(text) << '\n';
    if (program_ != nullptr) program_->forms.frmProgress.lblProgress.caption = text;
    drawnPercent_ = -1;
    DrawBar();
}

void ConsoleHost::SetMax(int maximum) {
    if (trace_) out_ << "progress max " << maximum << '\n';
    if (program_ != nullptr) program_->forms.frmProgress.pbProgress.maximum = maximum;
}

void ConsoleHost::SetValue(int value) {
    if (trace_) out_ << "progress value " << value << '\n';
    if (program_ != nullptr) program_->forms.frmProgress.pbProgress.value = value;
    DrawBar();
}

void ConsoleHost::Show(Form*) {
    if (trace_) out_ << "progress show\n";
    progressShown_ = true;
    if (program_ != nullptr) program_->pump.Windows().Show(program_->forms.frmProgress);
    DrawBar();
}

void ConsoleHost::Close() {
    if (!progressShown_) return;
    if (trace_) out_ << "progress close\n";
    progressShown_ = false;
    if (program_ != nullptr) program_->pump.Windows().Unload(program_->forms.frmProgress);
    if (bar_ != nullptr) *bar_ << "\r\x1b[K" << std::flush;
}

void ConsoleHost::DrawBar() {
    if (bar_ == nullptr || program_ == nullptr || !progressShown_) return;
    const ProgressForm& form = program_->forms.frmProgress;
    const int percent =
        form.pbProgress.maximum > 0
            ? static_cast<int>(std::int64_t{100} * form.pbProgress.value / form.pbProgress.maximum)
            : 0;
    if (percent == drawnPercent_) return;
    drawnPercent_ = percent;
    const auto filled = static_cast<std::size_t>(std::min(std::max(percent, 0), 100) / 4);
    *bar_ << "\r\x1b[K[" << std::string(filled, '#') << std::string(25 - filled, ' ') << "] "
          << Printed(form.lblProgress.caption) << std::flush;
}

MessageAnswer ConsoleHost::ShowMessage(std::string_view text, int flags, std::string_view, Form*) {
    if (TrimBlanks(text).empty()) return MessageAnswer::None;
    const std::vector<MessageAnswer> buttons = ButtonsOf(flags);
    if (trace_) out_ << ButtonsLine(buttons, flags) << '\n';
    const auto reply = answers.TakeReply(buttons);
    const MessageAnswer answer = reply.value_or(AnswerWithoutReply(buttons));
    out_ << MessageLine(MarkWord(flags), text, answer);
    if (strict_ && !reply && buttons.size() > 1) throw ScriptEnd{"a question has no queued answer"};
    return answer;
}

void ConsoleHost::ShowForm(Form& form) {
    if (program_ != nullptr) program_->pump.Windows().Show(form);
}

void ConsoleHost::ShowModal(Form& form, Form* owner) {
    if (program_ == nullptr) return;
    const int outer = program_->pump.EnterModal(form, owner);
    runModal_(form);
    program_->pump.LeaveModal(form, outer);
}

void ConsoleHost::UnloadForm(Form& form) {
    if (program_ != nullptr) program_->pump.Windows().Unload(form);
}

void ConsoleHost::StartTimer(std::string_view name, int) {
    timers_.insert(UpperText(name));
}

void ConsoleHost::StopTimer(std::string_view name) {
    timers_.erase(UpperText(name));
}

bool ConsoleHost::TimerArmed(std::string_view name) const {
    return timers_.contains(UpperText(name));
}

bool ConsoleHost::IsThere(const std::string& path, Wanted wanted) const {
    switch (wanted) {
        case Wanted::File:
            return files_.FileExists(path);
        case Wanted::Folder:
            return files_.FolderExists(path);
        default:
            return true;
    }
}

std::optional<std::string> ConsoleHost::TakePath(std::string_view what, std::string_view title,
                                                 Wanted wanted) {
    const bool answered = !answers.paths.empty();
    std::optional<std::string> path;
    if (answered) {
        path = answers.paths.front();
        answers.paths.pop_front();
    }
    if (path && (path->empty() || !IsThere(*path, wanted))) path.reset();
    out_ << DialogLine(what, title, path);
    if (strict_ && !answered) throw ScriptEnd{"a dialog has no queued answer"};
    return path;
}

std::string ConsoleHost::ShowOpenDialog(const FileDialog& dialog) {
    return TakePath("open", dialog.title, Wanted::File).value_or("");
}

std::string ConsoleHost::ShowSaveDialog(const FileDialog& dialog) {
    return TakePath("save", dialog.title, Wanted::AnyPath).value_or("");
}

std::string ConsoleHost::ShowFolderDialog(std::string_view title, const std::string&) {
    return TakePath("open", title, Wanted::Folder).value_or("");
}

std::optional<std::string> ConsoleHost::InputBox(const InputQuestion& question) {
    const bool answered = !answers.inputs.empty();
    std::optional<std::string> text;
    if (answered) {
        text = answers.inputs.front();
        answers.inputs.pop_front();
    }
    out_ << InputLine(question.title, question.prompt, text);
    if (strict_ && !answered) throw ScriptEnd{"an input box has no queued answer"};
    return text;
}

bool ConsoleHost::ShowPrintDialog(std::string_view title) {
    const auto path = TakePath("print", title, Wanted::AnyPath);
    printPath_ = path.value_or("");
    return path.has_value();
}

PrintOutcome ConsoleHost::Print(std::string_view text) {
    return ReplaceWholeFile(files_, printPath_, text) ? PrintOutcome::Printed : PrintOutcome::Failed;
}

std::string ConsoleHost::DrawCharts(std::span<const Chart* const> charts, PictureFormat) {
    return ChartTables(charts);
}

bool ConsoleHost::OpenDocument(const std::string& path, const std::string&) {
    out_ << DocumentLine(path);
    return true;
}

}  // namespace orlo

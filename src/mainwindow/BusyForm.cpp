#include "mainwindow/BusyForm.h"

namespace orlo {

BusyForm::BusyForm(Context& context, Form& form, int stages)
    : context_(context), form_(form), stages_(stages) {
    form_.enabled = false;
    form_.pointer = PointerShape::Hourglass;
    context_.services.windows.ProcessEvents();
}

BusyForm::~BusyForm() {
    if (staysBusy_) return;
    CloseProgress();
    form_.enabled = true;
    form_.pointer = PointerShape::Normal;
}

void BusyForm::Stage(std::string_view text, int value) {
    ProgressHost& progress = context_.services.progress;
    progress.SetText(text);
    if (!progressIsOpen_) progress.SetMax(stages_);
    progress.SetValue(value);
    if (!progressIsOpen_) progress.Show(&form_);
    progressIsOpen_ = true;
    context_.services.windows.ProcessEvents();
}

void BusyForm::SetStages(int stages) {
    context_.services.progress.SetMax(stages);
}

void BusyForm::CloseProgress() {
    if (!progressIsOpen_) return;
    context_.services.progress.Close();
    progressIsOpen_ = false;
}

}  // namespace orlo

#include "forms/Form.h"

#include <algorithm>

#include "core/Text.h"

namespace orlo {

Form::Form(std::string_view nameOf, std::string_view captionOf) : name(nameOf), caption(captionOf) {}

void Form::SetFocus(Control& control) {
    focus = &control;
    focusRequest = true;
}

Control* Form::Find(std::string_view controlName) const {
    const auto found = byName_.find(UpperText(controlName));
    return found == byName_.end() ? nullptr : found->second;
}

void Form::Register(Control& control) {
    controls_.push_back(&control);
    byName_.try_emplace(UpperText(control.name), &control);
}

Label* LabelOf(const Control& control) {
    const std::vector<Control*>& controls = control.form.Controls();
    const auto found = std::find(controls.begin(), controls.end(), &control);
    if (found == controls.begin() || control.kind == ControlKind::Label) return nullptr;
    Control* before = *(found - 1);
    if (before->kind != ControlKind::Label || before->parent != control.parent) return nullptr;
    return static_cast<Label*>(before);
}

}  // namespace orlo

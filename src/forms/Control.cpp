#include "forms/Control.h"

#include <algorithm>
#include <array>

#include "core/Text.h"
#include "forms/Form.h"

namespace orlo {
namespace {

template <typename Fits>
bool SelectFirstOf(ComboBox& combo, Fits fits) {
    const auto found = std::find_if(combo.entries.begin(), combo.entries.end(), fits);
    if (found == combo.entries.end()) return false;
    combo.index = static_cast<std::int32_t>(found - combo.entries.begin());
    return true;
}

}  // namespace

std::string_view ColourWord(Colour colour) {
    static constexpr std::array<std::string_view, 5> kWords = {"text", "black", "red", "blue", "gray"};
    return kWords[static_cast<std::size_t>(colour)];
}

Control::Control(ControlKind kindOf, Form& formOf, Control* container, std::string_view nameOf,
                 std::string_view captionOf)
    : kind(kindOf), form(formOf), parent(container), name(nameOf), caption(captionOf) {
    form.Register(*this);
}

bool Control::EffectivelyEnabled() const {
    for (const Control* control = this; control != nullptr; control = control->parent) {
        if (!control->enabled) return false;
    }
    return true;
}

bool Control::EffectivelyVisible() const {
    for (const Control* control = this; control != nullptr; control = control->parent) {
        if (!control->visible) return false;
    }
    return true;
}

void OptionButton::Check() {
    for (Control* control : form.Controls()) {
        if (control->kind != ControlKind::OptionButton || control->parent != parent) continue;
        static_cast<OptionButton*>(control)->checked = control == this;
    }
}

void ComboBox::Clear() {
    entries.clear();
    index = -1;
    typed.clear();
    ++revision;
}

void ComboBox::Add(std::string_view text, std::int32_t itemData) {
    entries.push_back({std::string(text), itemData});
    ++revision;
}

const std::string& ComboBox::Text() const {
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < entries.size() ? entries[place].text : typed;
}

void ComboBox::Type(std::string_view text) {
    index = -1;
    typed = text;
}

bool ComboBox::SelectText(std::string_view text) {
    return SelectFirstOf(*this, [text](const ComboEntry& entry) { return entry.text == text; });
}

bool ComboBox::SelectTextNoCase(std::string_view text) {
    return SelectFirstOf(*this, [text](const ComboEntry& entry) { return EqualNoCase(entry.text, text); });
}

}  // namespace orlo

#include "editors/FSAircraftFields.h"

#include <array>
#include <optional>
#include <span>
#include <utility>

#include "core/Application.h"
#include "core/Number.h"
#include "core/Text.h"
#include "editors/EditedAircraft.h"
#include "editors/FSAircraftClass.h"
#include "editors/TextEditor.h"

namespace orlo {
namespace {

using F = FSAircraftEditForm;
using A = FSAircraft;

constexpr std::string_view kFeet = "ft";

enum class Reach { Variant, File };

template <typename Field, typename Value>
struct FieldRow {
    Field F::*field;
    Value A::*value;
    Reach reach = Reach::Variant;
};

constexpr std::array kTexts = {
    FieldRow<TextBox, std::string>{&F::txtTitle, &A::Title},
    FieldRow<TextBox, std::string>{&F::txtManufacturer, &A::UIManufacturer},
    FieldRow<TextBox, std::string>{&F::txtType, &A::UIType},
    FieldRow<TextBox, std::string>{&F::txtVariation, &A::UIVariation},
    FieldRow<TextBox, std::string>{&F::txtATCID, &A::ATCID},
    FieldRow<TextBox, std::string>{&F::txtFlightNumber, &A::ATCFlightNumber},
};
constexpr std::array kNames = {
    FieldRow<ComboBox, std::string>{&F::cmAirline, &A::Airline},
    FieldRow<ComboBox, std::string>{&F::cmATCModel, &A::ATCModel, Reach::File},
    FieldRow<ComboBox, std::string>{&F::cmATCType, &A::ATCType, Reach::File},
};
constexpr std::array kFlags = {
    FieldRow<CheckBox, bool>{&F::ckHeavy, &A::ATCHeavy},
    FieldRow<CheckBox, bool>{&F::ckVisualDamage, &A::VisualDamage},
};
// Taken when they are left.
constexpr std::array kParts = {
    FieldRow<TextBox, std::string>{&F::txtModelFile, &A::Model},
    FieldRow<TextBox, std::string>{&F::txtTexture, &A::Texture},
    FieldRow<TextBox, std::string>{&F::txtSim, &A::Sim},
};

template <typename Value>
void Store(Fleet& fleet, FSAircraft& edited, Value A::*member, const Value& value, Reach reach) {
    const std::span reached = reach == Reach::File ? VariantsOfFile(fleet, edited) : std::span(&edited, 1);
    for (FSAircraft& aircraft : reached) {
        if (aircraft.*member == value) continue;
        aircraft.*member = value;
        aircraft.Changed = true;
    }
}

template <typename Field>
void ShowText(Field& field, const std::string& text);
template <>
void ShowText(TextBox& field, const std::string& text) {
    field.text = text;
}
template <>
void ShowText(ComboBox& field, const std::string& text) {
    if (!field.SelectText(text)) field.Type(text);
}

const std::string& TextOf(const TextBox& field) {
    return field.text;
}
const std::string& TextOf(const ComboBox& field) {
    return field.Text();
}

// Finds the table's row of the control.
template <typename Rows>
auto FindRow(F& form, const Rows& rows, const Control* control) {
    for (const auto& row : rows) {
        if (&(form.*row.field) == control) return &row;
    }
    return static_cast<decltype(rows.data())>(nullptr);
}

template <typename Rows>
bool StoreText(Context& context, FSAircraft& edited, const Rows& rows, const Control* control) {
    F& form = context.forms.frmFSAircraftEdit;
    const auto* row = FindRow(form, rows, control);
    if (row == nullptr) return false;
    Store(context.session.fleet, edited, row->value, ConfigValue(TextOf(form.*row->field)), row->reach);
    return true;
}

std::string ShownSpeed(const FSAircraft& aircraft) {
    return aircraft.FileCruiseSpeed == -1 ? std::string() : std::to_string(aircraft.FileCruiseSpeed);
}

std::string ShownRadius(const FSAircraft& aircraft) {
    const bool isRead = aircraft.ModelFormat != 0;
    return isRead ? Concat(aircraft.Radius, kFeet) : std::string();
}

std::string_view WithoutFeet(std::string_view text) {
    text = TrimBlanks(text);
    return EndsWithNoCase(text, kFeet) ? text.substr(0, text.size() - kFeet.size()) : text;
}

std::optional<std::int32_t> PositiveNumber(std::string_view text) {
    const auto number = ParseWholeNumber(text);
    return number && *number > 0 ? number : std::nullopt;
}

// What is wrong with the text of a number above 0; empty where nothing is.
std::string FaultOf(std::string_view subject, std::string_view text) {
    if (PositiveNumber(text)) return {};
    return Concat(subject,
                  ParseWholeNumber(text) ? " should be greater than 0." : " should be a numeric value.");
}

void RefuseFault(Context& context, Event& event, std::string_view fault) {
    if (fault.empty()) return;
    ShowMessage(context.services.messages, fault, kMarkExclamation, &context.forms.frmFSAircraftEdit);
    event.refused = true;
}

void EditLongText(Context& context, std::string_view title, std::string A::*member, Reach reach) {
    FSAircraft* edited = EditedAircraft(context);
    if (edited == nullptr) return;
    const std::string& text = edited->*member;
    const std::string answer = EditText(context, title, text, context.forms.frmFSAircraftEdit);
    // Slashes without their escape are no change of the user.
    if (PlainText(answer) == PlainText(text)) return;
    Store(context.session.fleet, *edited, member, ConfigValue(answer), reach);
    ShowAircraftChanged(context);
}

}  // namespace

void ShowAircraftFields(Context& context) {
    F& form = context.forms.frmFSAircraftEdit;
    const FSAircraft* edited = EditedAircraft(context);
    const FSAircraft none;
    const FSAircraft& shown = edited != nullptr ? *edited : none;
    form.frAircraft.enabled = edited != nullptr;
    for (const auto& row : kTexts) ShowText(form.*row.field, shown.*row.value);
    for (const auto& row : kNames) ShowText(form.*row.field, shown.*row.value);
    for (const auto& row : kParts) ShowText(form.*row.field, shown.*row.value);
    for (const auto& row : kFlags) (form.*row.field).checked = shown.*row.value;
    form.txtSpeed.text = ShownSpeed(shown);
    form.txtRadius.text = ShownRadius(shown);
    ShowAircraftClass(context);
}

void OnAircraftField(Context& context, Event& event) {
    F& form = context.forms.frmFSAircraftEdit;
    FSAircraft* edited = EditedAircraft(context);
    if (edited == nullptr) return;
    if (const auto* flag = FindRow(form, kFlags, event.control)) {
        Store(context.session.fleet, *edited, flag->value, (form.*flag->field).checked, flag->reach);
    } else if (!StoreText(context, *edited, kTexts, event.control)) {
        StoreText(context, *edited, kNames, event.control);
    }
    const bool isModel = event.control == &form.cmATCModel;
    if (isModel || event.control == &form.cmATCType) {
        for (FSAircraft& aircraft : VariantsOfFile(context.session.fleet, *edited)) {
            (isModel ? aircraft.FileATCModel : aircraft.FileATCType) =
                isModel ? aircraft.ATCModel : aircraft.ATCType;
        }
        LookUpAllClasses(context.session);
        ShowAircraftClass(context);
    }
    ShowAircraftChanged(context);
}

void OnAircraftSpeed(Context& context) {
    FSAircraft* edited = EditedAircraft(context);
    const auto speed = PositiveNumber(context.forms.frmFSAircraftEdit.txtSpeed.text);
    if (edited == nullptr || !speed || *speed == edited->FileCruiseSpeed) return;
    Store(context.session.fleet, *edited, &A::FileCruiseSpeed, *speed, Reach::File);
    LookUpAllClasses(context.session);
    ShowAircraftChanged(context);
}

void OnLeaveAircraftSpeed(Context& context, Event& event) {
    const FSAircraft* edited = EditedAircraft(context);
    const std::string& text = context.forms.frmFSAircraftEdit.txtSpeed.text;
    if (edited == nullptr || text == ShownSpeed(*edited)) return;
    RefuseFault(context, event, FaultOf("Speed", text));
}

void OnAircraftRadius(Context& context) {
    FSAircraft* edited = EditedAircraft(context);
    const auto radius = PositiveNumber(WithoutFeet(context.forms.frmFSAircraftEdit.txtRadius.text));
    if (edited == nullptr || !radius || *radius == edited->Radius) return;
    for (FSAircraft& aircraft : VariantsOfFile(context.session.fleet, *edited)) {
        if (&aircraft != edited && (edited->ModelFile.empty() || aircraft.ModelFile != edited->ModelFile))
            continue;
        aircraft.Radius = *radius;
        aircraft.RadiusChanged = true;
    }
    ShowAircraftChanged(context);
}

void OnLeaveAircraftRadius(Context& context, Event& event) {
    const FSAircraft* edited = EditedAircraft(context);
    const std::string& text = context.forms.frmFSAircraftEdit.txtRadius.text;
    if (edited == nullptr || text == ShownRadius(*edited)) return;
    RefuseFault(context, event, FaultOf("Radius", WithoutFeet(text)));
}

void EditAircraftDescription(Context& context) {
    EditLongText(context, "Edit Description", &A::Description, Reach::Variant);
}

void EditAircraftPerformance(Context& context) {
    EditLongText(context, "Edit Performance", &A::Performance, Reach::File);
}

}  // namespace orlo

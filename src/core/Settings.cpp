#include "core/Settings.h"

#include "core/Number.h"
#include "core/Text.h"

namespace orlo {
namespace {

std::string_view BooleanText(bool value) {
    return value ? "True" : "False";
}

bool ParseBoolean(std::string_view text, bool otherwise) {
    text = TrimBlanks(text);
    if (EqualNoCase(text, "True")) return true;
    if (EqualNoCase(text, "False")) return false;
    const auto number = ParseWholeNumber(text);
    return number ? *number != 0 : otherwise;
}

}  // namespace

std::string SettingsKeyPath(std::string_view company, std::string_view application, std::string_view version,
                            std::string_view section) {
    std::string path = "SOFTWARE\\";
    if (!company.empty()) path.append(Concat(company, "\\"));
    path.append(Concat(application, "\\", version));
    if (!section.empty()) path.append(Concat("\\", section));
    return path;
}

std::string GetUserSetting(SettingsStore& store, std::string_view company, std::string_view application,
                           std::string_view version, std::string_view section, std::string_view key,
                           std::string_view defaultValue) {
    const auto value = store.Get(SettingsKeyPath(company, application, version, section), key);
    return value && !value->empty() ? *value : std::string(defaultValue);
}

bool SaveUserSetting(SettingsStore& store, std::string_view company, std::string_view application,
                     std::string_view version, std::string_view section, std::string_view key,
                     std::string_view value) {
    return store.Set(SettingsKeyPath(company, application, version, section), key, value);
}

std::string GetMachineSetting(SettingsStore& store, std::string_view company, std::string_view application,
                              std::string_view version, std::string_view section, std::string_view key,
                              std::string_view defaultValue) {
    return GetUserSetting(store, company, application, version, section, key, defaultValue);
}

std::string OwnSettings::Text(std::string_view key, std::string_view defaultValue) const {
    return GetUserSetting(store_, kCompany, kProduct, kSettingsVersion, section_, key, defaultValue);
}

bool OwnSettings::Boolean(std::string_view key, bool defaultValue) const {
    return ParseBoolean(Text(key, BooleanText(defaultValue)), defaultValue);
}

std::int32_t OwnSettings::Number(std::string_view key, std::int32_t defaultValue) const {
    return ParseWholeNumber(Text(key, std::to_string(defaultValue))).value_or(defaultValue);
}

void OwnSettings::Save(std::string_view key, std::string_view value) {
    SaveUserSetting(store_, kCompany, kProduct, kSettingsVersion, section_, key, value);
}

void OwnSettings::SaveBoolean(std::string_view key, bool value) {
    Save(key, value ? "-1" : "0");
}

void OwnSettings::SaveNumber(std::string_view key, std::int32_t value) {
    Save(key, std::to_string(value));
}

}  // namespace orlo

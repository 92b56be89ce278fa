#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "services/SettingsStore.h"

namespace orlo {

// The program's own tree in the user's settings, and how values are read from any tree. All values are texts;
// a boolean is written as "-1" or "0" and read in both forms, as a number and as "True" or "False".

inline constexpr std::string_view kCompany = "Brantel Data Service";
inline constexpr std::string_view kProduct = "Orlo";
inline constexpr std::string_view kSettingsVersion = "1.0";

// Where the machine-wide settings tell the simulator's folder.
inline constexpr std::string_view kSimulatorKeyPath =
    "SOFTWARE\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0";
inline constexpr std::string_view kSimulatorValue = "EXE Path";

// "SOFTWARE\company\application\version\section"; an empty company or section leaves its part out.
std::string SettingsKeyPath(std::string_view company, std::string_view application, std::string_view version,
                            std::string_view section);

// The stored value; the default when that is absent, empty or can't be read.
std::string GetUserSetting(SettingsStore& store, std::string_view company, std::string_view application,
                           std::string_view version, std::string_view section, std::string_view key,
                           std::string_view defaultValue);
bool SaveUserSetting(SettingsStore& store, std::string_view company, std::string_view application,
                     std::string_view version, std::string_view section, std::string_view key,
                     std::string_view value);
// The same over the machine-wide tree.
std::string GetMachineSetting(SettingsStore& store, std::string_view company, std::string_view application,
                              std::string_view version, std::string_view section, std::string_view key,
                              std::string_view defaultValue);

// One section of the program's own settings.
class OwnSettings {
  public:
    OwnSettings(SettingsStore& store, std::string_view section) : store_(store), section_(section) {}

    std::string Text(std::string_view key, std::string_view defaultValue) const;
    bool Boolean(std::string_view key, bool defaultValue) const;
    std::int32_t Number(std::string_view key, std::int32_t defaultValue) const;

    void Save(std::string_view key, std::string_view value);
    void SaveBoolean(std::string_view key, bool value);
    void SaveNumber(std::string_view key, std::int32_t value);

  private:
    SettingsStore& store_;
    std::string section_;
};

}  // namespace orlo

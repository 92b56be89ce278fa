#pragma once

#include <string>

namespace orlo {

// Where the program keeps what belongs to the user, by the XDG rules: the folder that a variable names when
// it is a full path, else the usual one in the home folder. Nothing is made. Empty where no home is known.

std::string UserDataFolder();    // "$XDG_DATA_HOME/orlo" or "~/.local/share/orlo"
std::string UserSettingsPath();  // "$XDG_CONFIG_HOME/orlo/settings.txt" or "~/.config/orlo/settings.txt"

std::string UserKeptFolder();  // "$XDG_STATE_HOME/orlo/kept" or "~/.local/state/orlo/kept"

// "$WINEPREFIX" or "~/.wine".
std::string WinePrefixFolder();

}  // namespace orlo

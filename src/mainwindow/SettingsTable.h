#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/Session.h"
#include "forms/FlightEditForm.h"
#include "forms/MainForm.h"

namespace orlo {

// The settings that the program keeps, each as one row: where it is stored, its default, and what holds it
// while the program runs, its mirror. docs/settings.md tells the form of the store.

// A menu entry that stands for one value of a turn-around limit.
struct TurnAroundLimit {
    MenuEntry MainForm::*entry;
    std::int32_t value;  // minutes for the minimum, hours for the maximum, or kNoTurnAroundLimit
};

// The kinds of mirrors.
struct MenuSwitch {  // a tick entry and its member
    bool Switches::*value;
    MenuEntry MainForm::*entry;
};
struct ShuffleOption {  // a check box that holds the value itself
    CheckBox MainForm::*box;
};
struct EditorSwitch {  // shown by the flight editor while it is open
    bool Switches::*value;
    CheckBox FlightEditForm::*box;
};
struct LimitChoice {
    std::int32_t Switches::*value;
    std::span<const TurnAroundLimit> limits;  // "off" first
};
struct NumberField {
    std::int32_t Switches::*value;
    TextBox MainForm::*field;
};
struct ZoneChoice {
    std::string Switches::*value;
    ComboBox MainForm::*combo;  // null where no control of the main window shows it
};
struct FolderChoice {  // stored once it was chosen
    std::string Session::*path;
};
struct RecentList {  // stored under "1" to "5", the newest first
    std::array<std::string, 5> Session::*paths;
};
using SettingMirror = std::variant<MenuSwitch, ShuffleOption, EditorSwitch, LimitChoice, NumberField,
                                   ZoneChoice, FolderChoice, RecentList>;

struct SettingRow {
    std::string_view section;
    std::string_view key;
    std::string_view defaultText;  // "True" or "False" for a switch
    SettingMirror mirror;
};

// In the order in which they are written.
std::span<const SettingRow> SettingRows();

// Runs `act(row, mirror)` for each row with a mirror of that kind, in order.
template <typename Mirror, typename Act>
void ForEachSetting(Act act) {
    for (const SettingRow& row : SettingRows()) {
        if (const Mirror* mirror = std::get_if<Mirror>(&row.mirror)) act(row, *mirror);
    }
}

}  // namespace orlo

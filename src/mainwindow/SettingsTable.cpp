#include "mainwindow/SettingsTable.h"

namespace orlo {
namespace {

constexpr std::string_view kSettings = "Settings";
constexpr std::string_view kEditor = "Settings\\Flight Editor";
constexpr std::string_view kOn = "True";
constexpr std::string_view kOff = "False";

using M = MainForm;
using E = FlightEditForm;
using S = Switches;

constexpr TurnAroundLimit kMinimumLimits[] = {{&M::mnuTAOff, kNoTurnAroundLimit},
                                              {&M::mnuTA30, 30},
                                              {&M::mnuTA45, 45},
                                              {&M::mnuTA60, 60},
                                              {&M::mnuTA90, 90},
                                              {&M::mnuTA120, 120}};
constexpr TurnAroundLimit kMaximumLimits[] = {{&M::mnuMaxTAOff, kNoTurnAroundLimit},
                                              {&M::mnuMaxTA1, 1},
                                              {&M::mnuMaxTA2, 2},
                                              {&M::mnuMaxTA4, 4},
                                              {&M::mnuMaxTA8, 8},
                                              {&M::mnuMaxTA12, 12},
                                              {&M::mnuMaxTA18, 18},
                                              {&M::mnuMaxTA24, 24}};

constexpr SettingRow kRows[] = {
    {kSettings, "TATime", "30", LimitChoice{&S::TATime, kMinimumLimits}},
    {kSettings, "MaxTATime", "24", LimitChoice{&S::MaxTATime, kMaximumLimits}},
    {kSettings, "BackupPlan", kOn, MenuSwitch{&S::BackupPlan, &M::mnuToolsBackupPlan}},
    {kSettings, "BackupAircraft", kOn, MenuSwitch{&S::BackupAircraft, &M::mnuToolsBackupAircraft}},
    {kSettings, "StartNumber", "1", NumberField{&S::StartNumber, &M::txtStartNumber}},
    {kSettings, "DebugOn", kOff, MenuSwitch{&S::DebugOn, &M::mnuToolsDebug}},
    {kSettings, "ShowCompiler", kOff, MenuSwitch{&S::ShowCompiler, &M::mnuToolsShowCompiler}},
    {kSettings, "Undo", kOn, MenuSwitch{&S::Undo, &M::mnuToolsUndoOn}},
    {kSettings, "ACCheck", kOn, MenuSwitch{&S::ACCheck, &M::mnuToolsACCheck}},
    {"Recent Flightplans", "", "", RecentList{&Session::RecentFlightplans}},
    {"Recent Projects", "", "", RecentList{&Session::RecentProjects}},
    {kSettings, "TTZone", "GMT", ZoneChoice{&S::TTZone, &M::cmTTZone}},
    {kSettings, "EXZone", "GMT", ZoneChoice{&S::EXZone, &M::cmExZone}},
    {kSettings, "FEditZone", "GMT", ZoneChoice{&S::FEditZone, nullptr}},
    {kSettings, "GenerateTailNumber", kOn, ShuffleOption{&M::ckOverwriteTailNumber}},
    {kSettings, "RemoveMinus", kOff, ShuffleOption{&M::ckRemoveMinus}},
    {kSettings, "CheckFL", kOn, ShuffleOption{&M::ckCheckFL}},
    {kSettings, "ChangeIFRVFR", kOn, ShuffleOption{&M::ckIFRVFR}},
    {kSettings, "CheckVisitedAirports", kOn, ShuffleOption{&M::ckCheckVisitedAirports}},
    {kSettings, "SimulatorFolder", "", FolderChoice{&Session::SimulatorFolder}},
    {kEditor, "CheckAircraftRange", kOn, EditorSwitch{&S::CheckAircraftRange, &E::ckAircraftRange}},
    {kEditor, "CheckFlightLevels", kOn, EditorSwitch{&S::CheckFlightLevels, &E::ckFlightLevel}},
    {kEditor, "CheckFlightTimes", kOn, EditorSwitch{&S::CheckFlightTimes, &E::ckFlightTimes}},
};

}  // namespace

std::span<const SettingRow> SettingRows() {
    return kRows;
}

}  // namespace orlo

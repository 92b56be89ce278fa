#include "shell/MenuSwitches.h"

#include "core/Path.h"
#include "core/Text.h"
#include "shell/SettingsMirror.h"
#include "simulator/AircraftScan.h"
#include "simulator/Scenery.h"

namespace orlo {

void OnSwitch(Context& context, Event& event) {
    MainForm& form = context.forms.frmMain;
    Switches& switches = context.session.switches;
    ForEachSetting<MenuSwitch>([&](const SettingRow&, const MenuSwitch& mirror) {
        MenuEntry& entry = form.*mirror.entry;
        if (event.control != &entry) return;
        switches.*mirror.value = !(switches.*mirror.value);
        entry.checked = switches.*mirror.value;
    });
    if (!switches.Undo) DiscardUndoSnapshot(context);
}

void OnTurnAround(Context& context, Event& event) {
    MainForm& form = context.forms.frmMain;
    ForEachSetting<LimitChoice>([&](const SettingRow&, const LimitChoice& choice) {
        for (const TurnAroundLimit& limit : choice.limits) {
            if (event.control == &(form.*limit.entry)) SetLimit(context, choice, limit.value);
        }
    });
}

void ChooseSimulatorFolder(Context& context) {
    Session& session = context.session;
    Services& services = context.services;
    const std::string old = SimulatorFolder(session, services.machineSettings);
    const std::string chosen = services.windows.ShowFolderDialog("Simulator Folder", old);
    if (chosen.empty()) return;
    session.SimulatorFolder = services.files.FullPath(chosen);
    if (session.SimulatorFolder != old) DeleteSceneryCache(context);
    context.forms.frmMain.sbMain.text = Concat("Simulator folder set to [", session.SimulatorFolder, "].");
}

void DeleteSceneryCache(Context& context) {
    ForgetScenery(context.session, context.services.files);
}

}  // namespace orlo

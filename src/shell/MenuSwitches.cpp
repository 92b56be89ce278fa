#include "shell/MenuSwitches.h"

#include <array>

#include "core/Path.h"
#include "core/Text.h"
#include "shell/SettingsMirror.h"
#include "simulator/AircraftScan.h"
#include "simulator/Scenery.h"

namespace orlo {

void OnSwitch(Context& context, Event& event) {
    struct Tick {
        MenuEntry& entry;
        bool& value;
    };
    MainForm& form = context.forms.frmMain;
    Session& session = context.session;
    const std::array<Tick, 6> ticks = {{{form.mnuToolsShowCompiler, session.switches.ShowCompiler},
                                        {form.mnuToolsDebug, session.switches.DebugOn},
                                        {form.mnuToolsUndoOn, session.switches.Undo},
                                        {form.mnuToolsACCheck, session.switches.ACCheck},
                                        {form.mnuToolsBackupPlan, session.switches.BackupPlan},
                                        {form.mnuToolsBackupAircraft, session.switches.BackupAircraft}}};
    for (const Tick& tick : ticks) {
        if (event.control != &tick.entry) continue;
        tick.value = !tick.value;
        tick.entry.checked = tick.value;
    }
    if (!session.switches.Undo) DiscardUndoSnapshot(context);
}

void OnTurnAround(Context& context, Event& event) {
    MainForm& form = context.forms.frmMain;
    for (const TurnAroundLimit& limit : MinimumTurnArounds()) {
        if (event.control == &(form.*limit.entry)) SetTATime(context, limit.value);
    }
    for (const TurnAroundLimit& limit : MaximumTurnArounds()) {
        if (event.control == &(form.*limit.entry)) SetMaxTATime(context, limit.value);
    }
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
    context.services.files.DeleteFile(JoinPath(context.session.ProgramFolder, kAFDCacheName));
    context.session.scenery.Airports = {};
}

}  // namespace orlo

#include "shell/EventTables.h"

#include <array>

#include "core/Text.h"
#include "shell/HelpMenu.h"
#include "shell/OpenPlan.h"
#include "shell/PaneFacts.h"
#include "shell/ProjectTab.h"
#include "shell/Shutdown.h"
#include "shell/StartUp.h"
#include "shell/Tabs.h"

namespace orlo {
namespace {

constexpr std::string_view kProjectExtension = ".orp";

// A plan can have any extension.
void OpenDroppedFile(Context& context, Event& event) {
    if (EndsWithNoCase(event.path, kProjectExtension)) {
        OpenProjectAndShow(context, std::string(event.path));
    } else {
        OpenFlightplan(context, event.path);
    }
}

void LayOutControls(Context& context, Event&) {
    MainForm& form = context.forms.frmMain;
    context.frame.layout.Resize(form.innerHeight, form.innerWidth);
    ControlBox& status = form.sbMain.box;
    status = {0, form.innerHeight - status.height, form.innerWidth, status.height};
}

using M = MainForm;
using enum EventKind;

constexpr std::array kMainEvents = {
    EventEntry{nullptr, Close, CloseMainWindow},
    EventEntry{nullptr, Resize, LayOutControls},
    EventEntry{nullptr, SystemMenu, Run<ShowAbout>},
    EventEntry{nullptr, Help, ShowHelpPage},
    EventEntry{nullptr, DropFile, OpenDroppedFile},
    EventEntry{nullptr, Timer, Run<CloseSplash>, kSplashTimer},
    EventEntry{InMain<&M::tabMain>, SelectTab, Run<ActivateTab>},
};

}  // namespace

EventTable MainEvents() {
    return kMainEvents;
}

void CloseMainWindow(Context& context, Event& event) {
    if (ToolState& tool = context.session.tool; !tool.Running.empty()) {
        tool.CloseRequested = true;
        event.refused = true;
    } else if (Shutdown(context)) {
        context.forms.frmMain.closeRequest = true;
    } else {
        event.refused = true;
    }
}

void SortByColumn(Context&, Event& event) {
    auto& list = static_cast<ListView&>(*event.control);
    list.SortByColumn(event.value);
    list.ensureVisibleRequest = true;
}

}  // namespace orlo

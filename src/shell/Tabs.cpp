#include "shell/Tabs.h"

#include <array>

namespace orlo {
namespace {

struct TabPane {
    std::string_view key;
    Picture& pane;
    Button& defaultButton;
    Control* focus;  // null: the focus stays
};

}  // namespace

void ActivateTab(Context& context) {
    MainForm& form = context.forms.frmMain;
    const std::array<TabPane, 5> panes = {{
        {"SHUFFLE", form.picShuffle, form.cmdShuffle, nullptr},
        {"MOVE", form.picMove, form.cmdMove, &form.cmSource},
        {"EXPORT", form.picExport, form.cmdPreview, &form.txtExDeparture},
        {"TIMETABLE", form.picTimetable, form.cmdTTShow, &form.txtTTAirport},
        {"PROJECT", form.picProject, form.cmdProjectCompile, nullptr},
    }};
    for (const TabPane& tab : panes) {
        tab.pane.visible = tab.key == form.tabMain.selectedKey;
        if (!tab.pane.visible) continue;
        form.defaultButton = &tab.defaultButton;
        if (tab.focus != nullptr) form.SetFocus(*tab.focus);
    }
}

}  // namespace orlo

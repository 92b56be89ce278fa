#include "shell/Tabs.h"

#include "shell/PaneFacts.h"

namespace orlo {

void ActivateTab(Context& context) {
    MainForm& form = context.forms.frmMain;
    const PaneFacts& chosen = ChosenPane(form);
    for (const PaneFacts& pane : Panes()) (form.*pane.pane).visible = pane.key == chosen.key;
    form.defaultButton = &(form.*chosen.defaultButton);
    if (chosen.focus != nullptr) form.SetFocus(chosen.focus(form));
}

}  // namespace orlo

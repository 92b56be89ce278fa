#include "shell/TreeEvents.h"

#include "mainwindow/AircraftTrees.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/TreeSelection.h"

namespace orlo {
namespace {

void OnFocused(Context& context, void (*onList)(ListView&), void (*onTree)(MainForm&, TreeView&)) {
    MainForm& form = context.forms.frmMain;
    if (form.focus == &form.lvExPreview) onList(form.lvExPreview);
    if (form.focus == &form.tvShuffleAircraft) onTree(form, form.tvShuffleAircraft);
    if (form.focus == &form.tvMoveAircrafts) onTree(form, form.tvMoveAircrafts);
}

// Where the choice changes the view, rebuilds the tree while the window is busy, and hides it meanwhile.
void ChangeView(Context& context, ComboBox& view, TreeView& tree, void (*change)(MainForm&, const Session&)) {
    MainForm& form = context.forms.frmMain;
    if (!ViewChanges(view, context.session)) return change(form, context.session);
    const BusyForm busy(context, context.forms.frmMain);
    const FrozenForm frozen(form);
    tree.visible = false;
    context.services.windows.ProcessEvents();
    change(form, context.session);
    tree.visible = true;
}

}  // namespace

void OnShufflerView(Context& context) {
    MainForm& form = context.forms.frmMain;
    ChangeView(context, form.cmShufflerView, form.tvShuffleAircraft, ChangeShufflerView);
}

void OnMoveView(Context& context) {
    MainForm& form = context.forms.frmMain;
    ChangeView(context, form.cmMoveView, form.tvMoveAircrafts, ChangeMoveView);
}

void OnNodeCheck(Context& context, Event& event) {
    HandleNodeCheck(context.forms.frmMain, context.session, static_cast<TreeView&>(*event.control),
                    event.value);
}

void OnTreeHover(Context& context, Event& event) {
    auto& tree = static_cast<TreeView&>(*event.control);
    tree.toolTip = TreeNodeTip(context.forms.frmMain, context.session, tree, event.value);
}

void OnSelectPopup(Context& context, Event& event) {
    MainForm& form = context.forms.frmMain;
    if (OffersSelectMenu(form, context.session, *event.control)) event.menu = &form.mnuSelect;
}

void OnSelectAll(Context& context) {
    OnFocused(context, SelectAll, SelectAll);
}

void OnDeselectAll(Context& context) {
    OnFocused(context, DeselectAll, DeselectAll);
}

void OnInverseSelection(Context& context) {
    OnFocused(context, InverseSelection, InverseSelection);
}

}  // namespace orlo

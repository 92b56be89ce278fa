#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The aircraft trees and lists of the main window.

void OnShufflerView(Context& context);
void OnMoveView(Context& context);
void OnNodeCheck(Context& context, Event& event);
void OnTreeHover(Context& context, Event& event);
// Gives the event the menu "Select" where it has something to select there.
void OnSelectPopup(Context& context, Event& event);

// The commands of that menu, on the one of lvExPreview and the two trees that has the focus; without one
// nothing.
void OnSelectAll(Context& context);
void OnDeselectAll(Context& context);
void OnInverseSelection(Context& context);

}  // namespace orlo

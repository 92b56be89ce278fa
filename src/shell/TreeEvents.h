#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

void OnShufflerView(Context& context);
void OnMoveView(Context& context);
void OnNodeCheck(Context& context, Event& event);
void OnTreeHover(Context& context, Event& event);
void OnSelectPopup(Context& context, Event& event);

// The commands of the pop-up menu: on lvExPreview if it has the focus, otherwise on the tree that has it.
void OnSelectAll(Context& context);
void OnDeselectAll(Context& context);
void OnInverseSelection(Context& context);

}  // namespace orlo

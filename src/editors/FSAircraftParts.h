#pragma once

#include "forms/Event.h"
#include "mainwindow/Context.h"

namespace orlo {

// The files of the edited aircraft: its model folder, texture folder and air file.

// While one is typed: enables cmdSave, so that it isn't lost at the close box.
void OnAircraftPart(Context& context, Event& event);

// A field of them is left: where its folder or file doesn't stand yet, the user is asked whether to copy the
// old one there; the value is taken whatever the answer. A copy that fails is named in the status bar. With
// the model goes its radius, and what is missing among the files is looked up anew.
void OnLeaveAircraftModel(Context& context, Event& event);
void OnLeaveAircraftTexture(Context& context, Event& event);
void OnLeaveAircraftSim(Context& context, Event& event);

}  // namespace orlo

#pragma once

#include "core/Session.h"
#include "forms/Forms.h"
#include "mainwindow/Resize.h"
#include "mainwindow/UndoSnapshot.h"
#include "mainwindow/WindowLimits.h"
#include "services/Services.h"

namespace orlo {

// The layout of the main window's controls, and the limits of window sizes.
struct WindowFrame {
    cResize layout;
    WindowLimitTable limits;
};

// What an event procedure works on. Its owner, the running program, outlives it.
struct Context {
    Session& session;
    Forms& forms;
    Services& services;
    UndoSnapshot& undo;
    WindowFrame& frame;
};

}  // namespace orlo

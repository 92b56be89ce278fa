#pragma once

#include "core/Session.h"
#include "forms/Forms.h"
#include "mainwindow/UndoSnapshot.h"
#include "services/Services.h"

namespace orlo {

// What an event procedure works on. Its owner, the running program, outlives it.
struct Context {
    Session& session;
    Forms& forms;
    Services& services;
    UndoSnapshot& undo;
};

}  // namespace orlo

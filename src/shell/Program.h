#pragma once

#include <string>

#include "core/Session.h"
#include "forms/Forms.h"
#include "mainwindow/Context.h"
#include "shell/EventPump.h"

namespace orlo {

// The running program: session, forms and undo, and the pump that runs its events.
struct Program {
    // The services must outlive the program. `programFolder` holds the rule files, and the program writes its
    // own files there. `stateFolder` is that of the kept files; it need not exist.
    Program(Services& services, std::string programFolder, const std::string& stateFolder);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Session session;
    Forms forms;
    UndoSnapshot undo;
    WindowFrame frame;
    Context context;
    EventPump pump;
};

}  // namespace orlo

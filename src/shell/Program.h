#pragma once

#include <string>

#include "core/Session.h"
#include "forms/Forms.h"
#include "mainwindow/Context.h"
#include "shell/EventPump.h"

namespace orlo {

// The running program: what it holds, and the pump that runs it. One lives as long as the main window.
struct Program {
    // The services outlive the program. `programFolder` holds the rule files and takes what the program
    // writes.
    Program(Services& services, std::string programFolder);
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

#include "shell/Program.h"

#include "mainwindow/EnabledControls.h"

namespace orlo {

Program::Program(Services& services, std::string programFolder)
    : context{session, forms, services, undo, frame}, pump(context) {
    session.ProgramFolder = std::move(programFolder);
    EnableAll(context);
}

}  // namespace orlo

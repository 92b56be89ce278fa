#include "shell/Program.h"

#include "mainwindow/EnabledControls.h"

namespace orlo {

Program::Program(Services& services, std::string programFolder, const std::string& stateFolder)
    : context{session, forms, services, undo, frame}, pump(context) {
    session.ProgramFolder = std::move(programFolder);
    if (!stateFolder.empty()) session.StateFolder = services.files.FullPath(stateFolder);
    EnableAll(context);
}

}  // namespace orlo

#pragma once

#include <string>

#include "mainwindow/Context.h"

namespace orlo {

// Asks about unsaved changes first, begins an empty project, and shows it. False on a cancel.
bool NewProject(Context& context);

// The same for the project in that file; an empty path asks for one. False, with the old project as it was,
// on a cancel and where the file isn't there. A Yes to the question saves the flightplan, not the project.
bool OpenProject(Context& context, std::string path);

// Writes the project, or asks for a path where it has none. False on a cancel. A file that can't be written
// is named in the status bar; the project counts as saved all the same, but DiffersFromFile is set. A file
// that this session has not read as a project, or that another program has written since, is kept first.
bool SaveProject(Context& context);
bool SaveProjectAs(Context& context);

// Whether the project has changes that stand in no file.
bool IsUnsaved(const ProjectState& project);
// For the Yes of the exit's question: saves it, and where that can't be done keeps it from memory. False
// where that fails too, and on a cancel.
bool SaveProjectBeforeItGoes(Context& context);

}  // namespace orlo

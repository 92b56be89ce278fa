#pragma once

#include <string>

#include "mainwindow/Context.h"

namespace orlo {

// The menu's commands that begin or open a project and bring its tab to the front.
void OnNewProject(Context& context);
// An empty path asks for one.
void OpenProjectAndShow(Context& context, const std::string& path);

}  // namespace orlo

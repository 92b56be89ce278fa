#include "projects/KeepProject.h"

#include <string>

#include "mainwindow/KeepAside.h"
#include "projects/ProjectFile.h"

namespace orlo {

bool KeepProjectInMemory(Context& context, std::string_view reason) {
    const ProjectState& project = context.session.project;
    const std::string path = project.ProjectPath.empty() ? "Project.orp" : project.ProjectPath;
    const std::string bytes = FormatProject(project.ProjectEntries);
    const KeptText file{context.services.files.FullPath(path), bytes};
    return KeepAside(context, reason, std::span(&file, 1));
}

}  // namespace orlo

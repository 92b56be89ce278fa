#include "shell/Title.h"

#include "core/Path.h"
#include "mainwindow/SavePlan.h"

namespace orlo {

void RefreshTitle(Context& context) {
    const Session& session = context.session;
    const ProjectState& project = session.project;
    MainForm& form = context.forms.frmMain;
    form.documentName = session.plan.PlanLoaded ? FileName(session.plan.FlightplanPath) : std::string();
    form.documentModified = session.plan.PlanLoaded && IsUnsaved(session.plan);
    if (!project.DiffersFromFile) return;
    if (!form.documentName.empty()) form.documentName += ", ";
    form.documentName += project.ProjectPath.empty() ? "Project" : FileName(project.ProjectPath);
    form.documentModified = true;
}

}  // namespace orlo

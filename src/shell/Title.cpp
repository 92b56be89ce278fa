#include "shell/Title.h"

#include "core/Path.h"
#include "mainwindow/SavePlan.h"

namespace orlo {

void RefreshTitle(Context& context) {
    const Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    form.documentName = session.plan.PlanLoaded ? FileName(session.plan.FlightplanPath) : std::string();
    form.documentModified = session.plan.PlanLoaded && IsUnsaved(session.plan);
}

}  // namespace orlo

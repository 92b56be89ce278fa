#include "shell/Title.h"

#include "core/Path.h"

namespace orlo {

void RefreshTitle(Context& context) {
    const Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    form.documentName = session.PlanLoaded ? FileName(session.FlightplanPath) : std::string();
    form.documentModified = session.PlanLoaded && session.PlanModified;
}

}  // namespace orlo

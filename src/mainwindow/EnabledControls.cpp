#include "mainwindow/EnabledControls.h"

#include <algorithm>
#include <initializer_list>

namespace orlo {
namespace {

void Enable(std::initializer_list<Control*> controls, bool enabled) {
    for (Control* control : controls) control->enabled = enabled;
}

bool AnyPath(const std::array<std::string, 5>& paths) {
    return std::any_of(paths.begin(), paths.end(), [](const std::string& path) { return !path.empty(); });
}

}  // namespace

void EnableMenus(Context& context) {
    const Session& session = context.session;
    MainForm& form = context.forms.frmMain;
    form.mnuFileSave.enabled = session.plan.PlanModified;
    // From the first open on, even if that failed.
    form.mnuFileSaveAs.enabled = !session.plan.FlightplanPath.empty();
    form.mnuFileSaveProject.enabled = session.project.ProjectModified;
    form.mnuFileSaveProjectAs.enabled = session.project.ProjectBegun;
    form.mnuRecentFlightPlan.enabled = AnyPath(session.RecentFlightplans);
    form.mnuRecentProjects.enabled = AnyPath(session.RecentProjects);
    form.mnuToolsUndo.enabled = context.undo.Held;
    form.mnuViewShares.enabled = session.shuffle.HasResult;
    Enable(
        {&form.mnuToolsCompileCurrent, &form.mnuToolsFPAirportsTXT, &form.mnuToolsRemoveMinus,
         &form.mnuToolsRandPerc, &form.mnuToolsRandFlightNumbers, &form.mnuToolsRandPlan,
         &form.mnuToolsCheckFL, &form.mnuToolsCheckFT, &form.mnuToolsReports, &form.mnuToolsEditPlanAircraft},
        session.plan.PlanLoaded);
}

void EnableShufflePane(Context& context) {
    MainForm& form = context.forms.frmMain;
    Enable({&form.cmdShuffle, &form.cmdACTypeDat, &form.cmdCalcStartNumber}, context.session.plan.PlanLoaded);
}

void EnableMovePane(Context& context) {
    MainForm& form = context.forms.frmMain;
    const bool loaded = context.session.plan.PlanLoaded;
    Enable({&form.cmdMove, &form.cmdMovePercent, &form.cmdMoveLoad}, loaded && form.cmSource.index >= 0);
    form.cmdMoveSave.enabled = loaded && form.ActionToSave;
    form.cmdMoveExecute.enabled = loaded && form.ActionLoaded;
}

void EnableExportPane(Context& context) {
    MainForm& form = context.forms.frmMain;
    const bool loaded = context.session.plan.PlanLoaded;
    Enable({&form.cmdPreview, &form.cmdAddFlight}, loaded);
    Enable({&form.cmdExport, &form.cmdExportRemainder, &form.cmdExportPrint, &form.cmdEditFlight,
            &form.cmdDeleteFlight},
           loaded && form.lvExPreview.Count() > 0);
}

void EnableTimetablePane(Context& context) {
    MainForm& form = context.forms.frmMain;
    const bool loaded = context.session.plan.PlanLoaded;
    form.cmdTTShow.enabled = loaded;
    const bool hasRows = loaded && form.lvTimetable.Count() > 0;
    Enable({&form.cmdTTPrint, &form.cmdTTSave}, hasRows);
    form.cmdTTStatistics.enabled = hasRows && form.ShowsOneDay;
}

void EnableProjectPane(Context& context) {
    MainForm& form = context.forms.frmMain;
    form.cmdProjectAdd.enabled = context.session.project.ProjectBegun;
    Enable({&form.cmdProjectDelete, &form.cmdProjectMerge, &form.cmdProjectCompile, &form.frProject,
            &form.lblProjectFile, &form.lblProjectDescription, &form.lblProjectAC,
            &form.txtProjectDescription, &form.cmdProjectFile, &form.cmdProjectAC},
           form.lvProject.current >= 0);
}

void EnableAll(Context& context) {
    EnableMenus(context);
    EnableShufflePane(context);
    EnableMovePane(context);
    EnableExportPane(context);
    EnableTimetablePane(context);
    EnableProjectPane(context);
}

}  // namespace orlo

#include "shell/ExportTab.h"

#include "mainwindow/EnabledControls.h"
#include "operations/SearchRows.h"
#include "shell/Tabs.h"

namespace orlo {

void OnPreview(Context& context) {
    const MainForm& form = context.forms.frmMain;
    SearchFlights(context, form.txtExDeparture.text, form.txtExLeg.text, SearchMode::Fields);
    EnableExportPane(context);
}

void ShowReport(Context& context, SearchMode mode) {
    MainForm& form = context.forms.frmMain;
    SearchFlights(context, "", "", mode);
    EnableExportPane(context);
    form.tabMain.selectedKey = "EXPORT";
    ActivateTab(context);
}

void OnExportZone(Context& context) {
    MainForm& form = context.forms.frmMain;
    const std::string& zone = form.cmExZone.Text();
    if (RowSource* rows = form.lvExPreview.Source()) {
        static_cast<SearchRows*>(rows)->SetZone(zone);
        form.lvExPreview.SourceChanged();
    }
    context.session.switches.EXZone = zone;
}

void OnExportKey(Context& context, Event& event) {
    MainForm& form = context.forms.frmMain;
    if (event.value == kKeyDelete) event.presses = &form.cmdDeleteFlight;
    if (event.value == kKeyInsert) event.presses = &form.cmdAddFlight;
}

}  // namespace orlo

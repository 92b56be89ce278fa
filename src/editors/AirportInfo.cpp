#include "editors/AirportInfo.h"

#include "core/Application.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "editors/AirportCharts.h"
#include "editors/AirportReport.h"
#include "mainwindow/ReportWindow.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"

namespace orlo {

void ShowAirportInfo(Context& context, std::int32_t index) {
    AirportInfoForm& form = context.forms.frmAirportInfo;
    const AirportRecord& airport = context.session.scenery.Airports[static_cast<std::size_t>(index)];
    form.caption = Concat("Airport Information for ", airport.Name, " (", airport.ICAO, ")");
    form.SaveName = Concat(airport.ICAO, ".txt");
    form.PictureName = Concat(airport.ICAO, ".png");
    form.txtInfo.text = AirportReport(airport);
    form.chRunways.Show(RunwayChart(airport));
    form.chParkings.Show(ParkingChart(airport));
    form.SetFocus(form.txtInfo);
    context.services.windows.ShowModal(form, &context.forms.frmAirportSearch);
}

void SaveAirportInfo(Context& context) {
    AirportInfoForm& form = context.forms.frmAirportInfo;
    const std::string path = AskForSavePath(context, "Save Airport Information", form.SaveName);
    if (path.empty()) return;
    ForgetNotWritten(context);
    if (ReplaceWholeFile(context.services.files, path, ReportText(form, form.txtInfo))) return;
    ShowMessage(context.services.messages, "An error occured during writing the Airport Information.",
                kMarkCritical, &form);
}

void SaveAirportPicture(Context& context) {
    AirportInfoForm& form = context.forms.frmAirportInfo;
    SavePicture(context, form, form.PictureName, {&form.chRunways, &form.chParkings});
}

void PrintAirportInfo(Context& context) {
    AirportInfoForm& form = context.forms.frmAirportInfo;
    if (!AskAndPrint(context, "Print Airport Information", ReportText(form, form.txtInfo))) return;
    ShowMessage(context.services.messages, "Successfully printed the Airport Information.", kMarkQuestion,
                &form);
}

void CloseAirportInfo(Context& context) {
    context.forms.frmAirportInfo.closeRequest = true;
}

}  // namespace orlo

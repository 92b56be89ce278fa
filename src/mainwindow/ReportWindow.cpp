#include "mainwindow/ReportWindow.h"

#include "core/Application.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"

namespace orlo {

namespace {

std::string PictureFilter(const WindowHost& windows) {
    const bool svg = windows.DrawsFormat(PictureFormat::Svg);
    return Concat("PNG picture (*.png)|*.png|", svg ? "SVG picture (*.svg)|*.svg|" : "",
                  "PDF document (*.pdf)|*.pdf");
}

PictureFormat FormatOf(std::string_view path) {
    const auto endsIn = [path](std::string_view extension) {
        return path.size() >= extension.size() &&
               EqualNoCase(path.substr(path.size() - extension.size()), extension);
    };
    if (endsIn(".svg")) return PictureFormat::Svg;
    if (endsIn(".pdf")) return PictureFormat::Pdf;
    return PictureFormat::Png;
}

}  // namespace

std::string ReportText(const Form& form, const TextBox& text) {
    return Concat(kApplicationTitle, " - ", form.caption, "\r\n\r\n", text.text);
}

bool AskAndPrint(Context& context, std::string_view dialogTitle, std::string_view text) {
    WindowHost& windows = context.services.windows;
    if (!windows.ShowPrintDialog(dialogTitle)) return false;
    ForgetNotWritten(context);
    const PrintOutcome outcome = windows.Print(text);
    if (outcome == PrintOutcome::Failed) ReportNotPrinted(context);
    return outcome == PrintOutcome::Printed;
}

void SavePicture(Context& context, Form& form, std::string_view startFile,
                 std::initializer_list<const Chart*> charts) {
    Services& services = context.services;
    const std::string path =
        AskForSavePath(context, "Save Picture", startFile, PictureFilter(services.windows));
    if (path.empty()) return;
    ForgetNotWritten(context);
    const std::string picture =
        services.windows.DrawCharts(std::span(charts.begin(), charts.size()), FormatOf(path));
    const bool written = !picture.empty() && ReplaceWholeFile(services.files, path, picture);
    ShowMessage(services.messages,
                written ? "Successfully saved the picture." : "The picture could not be written.",
                written ? kMarkInformation : kMarkCritical, &form);
}

}  // namespace orlo

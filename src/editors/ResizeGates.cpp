#include "editors/ResizeGates.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "core/Application.h"
#include "core/Number.h"
#include "core/Text.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/StatusTexts.h"
#include "simulator/AircraftScan.h"
#include "simulator/Feet.h"
#include "simulator/GateResize.h"
#include "simulator/Scenery.h"

namespace orlo {
namespace {

constexpr std::string_view kSizeCaption = "New &Size (m)";

// Metres; nothing for what is no size.
std::optional<double> SizeOf(std::string_view text) {
    const auto size = ParseDecimal(text);
    const bool isSize = size && !std::signbit(*size) && *size <= std::numeric_limits<float>::max();
    return isSize ? size : std::nullopt;
}

void RefuseSize(Context& context) {
    ShowMessage(context.services.messages, "Size has to be a numeric value.", kMarkExclamation,
                &context.forms.frmResizeGates);
}

ResizeOutcome ResizeScenery(Context& context, double size) {
    Session& session = context.session;
    ResizeGatesForm& form = context.forms.frmResizeGates;
    const std::string simulator = SimulatorFolder(session, context.services.machineSettings);
    session.scenery.Airports = {};
    if (simulator.empty()) {
        ShowMessage(context.services.messages, "Couldn't find FS2002 Path.", kMarkCritical, &form);
        return {};
    }
    GateResize resize;
    resize.Class = form.cmType.entries[static_cast<std::size_t>(form.cmType.index)].itemData;
    resize.Radius = static_cast<float>(size);
    resize.Search = form.txtSearch.text;
    resize.ICAO = form.txtICAO.text;
    BackUpFile backUp;
    if (form.ckBackup.checked)
        backUp = [&context](const std::string& path) { return BackUpOrKeep(context, "Resize Gates", path); };
    // The cache goes first: it would be wrong after a run that ends in the middle.
    ForgetScenery(session, context.services.files);
    return ResizeAllFiles(context.services.files, SceneryFolder(simulator), resize, backUp);
}

}  // namespace

void ShowResizeGates(Context& context) {
    ResizeGatesForm& form = context.forms.frmResizeGates;
    form.cmType.SelectFirst();
    for (TextBox* box : {&form.txtSize, &form.txtSearch, &form.txtICAO}) box->text.clear();
    form.lblSize.caption = kSizeCaption;
    form.ckBackup.checked = true;
    form.SetFocus(form.cmType);
    context.services.windows.ShowModal(form, &context.forms.frmMain);
}

void OnGateSize(Context& context) {
    ResizeGatesForm& form = context.forms.frmResizeGates;
    const auto size = SizeOf(form.txtSize.text);
    form.lblSize.caption = kSizeCaption;
    if (size) form.lblSize.caption += Concat(" - ", FormatFixed(*size * kFeetPerMetre, 2), " ft");
}

void OnLeaveGateSize(Context& context, Event& event) {
    if (SizeOf(context.forms.frmResizeGates.txtSize.text)) return;
    RefuseSize(context);
    event.refused = true;
}

void ResizeGates(Context& context) {
    ResizeGatesForm& form = context.forms.frmResizeGates;
    const auto size = SizeOf(form.txtSize.text);
    if (!size) {
        RefuseSize(context);
        form.SetFocus(form.txtSize);
        return;
    }
    ForgetNotWritten(context);
    ResizeOutcome outcome;
    {
        const BusyForm busy(context, form);
        outcome = ResizeScenery(context, *size);
    }
    if (!outcome.notWritten.empty()) ReportNotWritten(context, outcome.notWritten);
    ShowMessage(context.services.messages,
                Concat("Successfully resized ", outcome.count, " Gates matching the given type."),
                kMarkInformation, &form);
    form.closeRequest = true;
}

void CloseResizeGates(Context& context) {
    context.forms.frmResizeGates.closeRequest = true;
}

}  // namespace orlo

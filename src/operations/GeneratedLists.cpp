#include "operations/GeneratedLists.h"

#include <string>
#include <string_view>

#include "core/Path.h"
#include "core/Text.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/GetScenery.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/StatusTexts.h"
#include "simulator/AircraftTypesFile.h"
#include "simulator/AirportLists.h"

namespace orlo {
namespace {

constexpr std::string_view kAirportsName = "New Airports.txt";
constexpr std::string_view kPlanAirportsName = "Flightplan Airports.txt";
constexpr std::string_view kAircraftTypesName = "New AircraftTypes.dat";

void WriteList(Context& context, const std::string& folder, std::string_view name, std::string_view text) {
    const std::string path = JoinPath(folder, name);
    if (!ReplaceAndKeep(context, "Generated list", path, text)) ReportNotWritten(context, path);
}

void SayGenerated(Context& context, std::string_view name, Form& owner) {
    ShowMessage(context.services.messages, Concat("Successfully generated '", name, "'."), kMarkInformation,
                &owner);
}

// `format(busy)` makes the text of the list, once there are airports.
template <typename Format>
void GenerateFromScenery(Context& context, const std::string& folder, std::string_view name, Format format) {
    MainForm& form = context.forms.frmMain;
    const std::vector<AirportRecord>& airports = context.session.scenery.Airports;
    ForgetNotWritten(context);
    {
        BusyForm busy(context, form, 2);
        if (airports.empty()) GetScenery(context, busy, 0);
        if (!airports.empty()) WriteList(context, folder, name, format(busy));
    }
    if (airports.empty()) {
        ShowMessage(context.services.messages, "Unable to get FS Scenery.", kMarkExclamation, &form);
    } else {
        SayGenerated(context, name, form);
    }
}

template <typename IsListed>
void GenerateAircraftTypes(Context& context, Form& owner, IsListed isListed) {
    ForgetNotWritten(context);
    const std::vector<FSAircraft>& aircraft = context.session.fleet.FSAircrafts;
    if (aircraft.empty()) {
        ShowMessage(context.services.messages, "No FS Aircraft detected.", kMarkExclamation, &owner);
        return;
    }
    {
        BusyForm busy(context, owner, 1);
        busy.Stage("Writing...", 0);
        WriteList(context, context.session.ProgramFolder, kAircraftTypesName,
                  FormatAircraftTypes(aircraft, isListed));
    }
    SayGenerated(context, kAircraftTypesName, owner);
}

}  // namespace

void GenerateAirports(Context& context) {
    GenerateFromScenery(context, context.session.ProgramFolder, kAirportsName,
                        [&](BusyForm&) { return FormatSceneryAirports(context.session.scenery.Airports); });
}

void GeneratePlanAirports(Context& context) {
    const Session& session = context.session;
    GenerateFromScenery(context, ParentFolder(session.plan.FlightplanPath), kPlanAirportsName,
                        [&](BusyForm& busy) {
                            busy.Stage("Analyzing Flightplan...", 1);
                            return FormatPlanAirports(session.plan.Flights, session.scenery.Airports);
                        });
}

void GenerateCheckedAircraftTypes(Context& context) {
    MainForm& form = context.forms.frmMain;
    const TreeView& tree = form.tvShuffleAircraft;
    GenerateAircraftTypes(context, form, [&](const FSAircraft& aircraft) {
        const std::int32_t leaf = tree.Find(AircraftNodeKey(aircraft.Title));
        return leaf >= 0 && tree.At(leaf).checked;
    });
}

void GenerateAllAircraftTypes(Context& context, Form& owner) {
    GenerateAircraftTypes(context, owner,
                          [](const FSAircraft& aircraft) { return ShowsInTrees(aircraft.Title); });
}

}  // namespace orlo

#include "operations/AirlineSkeleton.h"

#include <string_view>

#include "core/Application.h"
#include "core/KeyedIndex.h"
#include "core/Path.h"
#include "core/Text.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/GetScenery.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/StatusTexts.h"

namespace orlo {
namespace {

constexpr std::string_view kSkeletonName = "New ORLO_AL.CFG";
constexpr std::string_view kRule =
    ";---------------------------------------------------------------------------------";

// Texts without repeats, in the order of their first appearance.
class FirstAppearances {
  public:
    void Add(std::string_view text) {
        if (seen_.Add(text, true)) texts_.emplace_back(text);
    }
    const std::vector<std::string>& Texts() const { return texts_; }

  private:
    KeyedIndex<bool> seen_;
    std::vector<std::string> texts_;
};

void AppendLines(std::string& out, std::initializer_list<std::string_view> lines) {
    for (const std::string_view line : lines) out.append(Concat(line, "\r\n"));
}

void AppendSections(std::string& out, std::string_view level, const FirstAppearances& names) {
    for (const std::string& name : names.Texts()) AppendLines(out, {Concat("[", level, ":", name, "]"), ""});
}

bool WriteSkeleton(Context& context) {
    const std::string path = JoinPath(context.session.ProgramFolder, kSkeletonName);
    const std::string text = FormatAirlineSkeleton(context.session.scenery.Airports);
    if (ReplaceAndKeep(context, "Generated list", path, text)) return true;
    ReportNotWritten(context, path);
    return false;
}

}  // namespace

std::string FormatAirlineSkeleton(const std::vector<AirportRecord>& airports) {
    FirstAppearances regions;
    FirstAppearances countries;
    for (const AirportRecord& airport : airports) {
        regions.Add(airport.Region);
        countries.Add(Concat(airport.Region, "/", airport.Country));
    }
    std::string out;
    AppendLines(out,
                {kRule, ";------------------------------------ R E G I O N S ------------------------------",
                 kRule, ";Airline Format: AIRLINE,PERCENT", ";Tailnumber Format: #NUMBER",
                 ";   Placeholder:", ";           ! - Random Number", ";           . - Random Char",
                 ";           ? - Random Number or Char", kRule, "", "[Global]", ""});
    AppendSections(out, "Region", regions);
    AppendLines(out,
                {kRule, ";----------------------------------- C O U N T R I E S ---------------------------",
                 kRule, ""});
    AppendSections(out, "Country", countries);
    return out;
}

void GenerateAirlineConfig(Context& context) {
    Session& session = context.session;
    MessageHost& messages = context.services.messages;
    bool written = false;
    ForgetNotWritten(context);
    {
        BusyForm busy(context, context.forms.frmMain, 1);
        if (session.scenery.Airports.empty()) {
            GetScenery(context, busy, 0);
            busy.CloseProgress();
        }
        if (!session.scenery.Airports.empty()) written = WriteSkeleton(context);
    }
    if (session.scenery.Airports.empty()) {
        ShowMessage(messages, "Unable to get FS Scenery.", kMarkExclamation, &context.forms.frmMain);
    } else if (written) {
        ShowMessage(messages, "Successfully generated 'New ORLO_AL.CFG'.", kMarkInformation,
                    &context.forms.frmMain);
    }
}

}  // namespace orlo

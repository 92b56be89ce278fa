#include "projects/MergeProject.h"

#include <algorithm>
#include <optional>
#include <string>

#include "core/Application.h"
#include "core/LineFile.h"
#include "core/Path.h"
#include "core/Text.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/StatusTexts.h"
#include "projects/OutsideTools.h"
#include "projects/PlanMerger.h"
#include "projects/ProjectFile.h"

namespace orlo {
namespace {

// One merge, with or without the compile behind it.
class MergeRun {
  public:
    MergeRun(Context& context, BusyForm& busy, bool mergeOnly)
        : context_(context),
          busy_(busy),
          files_(context.services.files),
          project_(context.session.project),
          folder_(ParentFolder(project_.ProjectPath)) {
        if (!mergeOnly) compiler_.emplace(context, folder_);
    }

    bool Run() {
        if (!HasAircraft()) {
            Tell("At least one Aircraft file should be assigned to the Project.");
            return false;
        }
        if (!BringAirports() || (compiler_ && !BringCompiler())) return false;
        if (const auto missing = Merge()) {
            busy_.CloseProgress();
            Tell(Concat("File '", *missing, "' not found."));
            if (!compiler_ && kept_) DeleteOutputs();
            return false;
        }
        if (compiler_) return Compile();
        busy_.CloseProgress();
        return true;
    }

  private:
    void Tell(std::string_view text, int mark = kMarkExclamation) {
        ShowMessage(context_.services.messages, text, mark, &context_.forms.frmMain);
    }

    bool HasAircraft() const {
        return std::any_of(project_.ProjectEntries.begin(), project_.ProjectEntries.end(),
                           [](const ProjectEntry& entry) { return !entry.AircraftFile.empty(); });
    }

    // Those of the project; the plans' own count for nothing.
    bool BringAirports() {
        const std::string airports = JoinPath(folder_, kAirportsName);
        if (!IsThere(files_, airports)) {
            Tell("File 'AIRPORTS.TXT' not found in Project folder.");
            return false;
        }
        if (compiler_) compiler_->Copy(airports, kAirportsName);
        return true;
    }

    bool BringCompiler() {
        if (IsThere(files_, JoinPath(context_.session.ProgramFolder, kCompiler))) {
            compiler_->CopyCompiler();
            return true;
        }
        Tell("File 'TCOMPILER.EXE' not found in ORLO folder.");
        return false;
    }

    // The path of a file that can't be read, with both outputs closed; nothing where all went through.
    std::optional<std::string> Merge() {
        LineFile aircraft;
        LineFile flights;
        if (!KeepOutputs()) return std::nullopt;
        Create(flights, kFlightPlansName);
        Create(aircraft, kAircraftName);
        std::optional<std::string> missing;
        if (aircraft.IsOpen() && flights.IsOpen()) missing = MergeEntries(aircraft, flights);
        Close(aircraft, kAircraftName);
        Close(flights, kFlightPlansName);
        return missing;
    }

    std::optional<std::string> MergeEntries(LineFile& aircraft, LineFile& flights) {
        PlanMerger merger(files_, aircraft, flights);
        int place = 0;
        for (const ProjectEntry& entry : project_.ProjectEntries) {
            busy_.Stage("Merging Flightplans...", ++place);
            merger.BeginPlan();
            if (!entry.AircraftFile.empty() && !merger.AddAircraft(UsablePath(files_, entry.AircraftFile)))
                return entry.AircraftFile;
            if (!merger.AddFlights(UsablePath(files_, entry.Flightplan))) return entry.Flightplan;
        }
        return std::nullopt;
    }

    // Those of an earlier merge. Where they can't be kept nothing is created.
    bool KeepOutputs() {
        if (compiler_) return true;
        const std::string outputs[] = {JoinPath(folder_, kFlightPlansName), JoinPath(folder_, kAircraftName)};
        if (KeepAside(context_, "Merge", outputs)) return true;
        ReportNotWritten(context_, outputs[0]);
        kept_ = false;
        return false;
    }

    void Create(LineFile& output, std::string_view name) {
        if (compiler_) return output.Take(compiler_->Create(name));
        output.Open(files_, JoinPath(folder_, name));
        if (!output.IsOpen()) ReportNotWritten(context_, JoinPath(folder_, name));
    }

    void Close(LineFile& output, std::string_view name) {
        if (output.Close()) return;
        ReportNotWritten(context_, compiler_ ? compiler_->Path() : JoinPath(folder_, name));
    }

    void DeleteOutputs() {
        for (const std::string_view name : {kAircraftName, kFlightPlansName})
            files_.DeleteFile(JoinPath(folder_, name));
    }

    bool Compile() {
        busy_.Stage("Compiling Project...", project_.ProjectEntryCount() + 1);
        const std::int32_t exitCode = compiler_->Run();
        busy_.CloseProgress();
        if (exitCode != 0) Tell("Errors occured during compiling Project.", kMarkCritical);
        return exitCode == 0;
    }

    Context& context_;
    BusyForm& busy_;
    FileSystem& files_;
    const ProjectState& project_;
    std::string folder_;                      // of the project
    bool kept_ = true;                        // the outputs may be created, and deleted after a fault
    std::optional<CompilerFolder> compiler_;  // none where the merge is all
};

void MergeInFrame(Context& context, bool mergeOnly, std::string_view done) {
    ForgetNotWritten(context);
    BusyForm busy(context, context.forms.frmMain, context.session.project.ProjectEntryCount() + 1);
    if (!MergeProject(context, busy, mergeOnly)) return;
    ShowMessage(context.services.messages, done, kMarkInformation, &context.forms.frmMain);
}

}  // namespace

bool MergeProject(Context& context, BusyForm& busy, bool mergeOnly) {
    if (!context.session.project.ProjectPath.empty()) return MergeRun(context, busy, mergeOnly).Run();
    ShowMessage(context.services.messages, "Please save the ORLO Project before you start compiling/merging.",
                kMarkExclamation, &context.forms.frmMain);
    return false;
}

void OnProjectMerge(Context& context) {
    MergeInFrame(context, true, "Successfully merged AI Traffic Project.");
}

void OnProjectCompile(Context& context) {
    if (!ToolIsReady(context, kCompiler,
                     "File 'TCOMPILER.EXE' not found. Copy the file to the ORLO program folder."))
        return;
    MergeInFrame(context, false, "Successfully compiled AI Traffic Project.");
}

}  // namespace orlo

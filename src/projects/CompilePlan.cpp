#include "projects/CompilePlan.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"
#include "projects/OutsideTools.h"
#include "projects/RunTool.h"

namespace orlo {
namespace {

constexpr std::string_view kNoCompiler =
    "File 'TCOMPILER.EXE' not found. Please copy the file to the ORLO program folder.";
constexpr std::string_view kNoDecompiler =
    "File 'TDECOMPILER.EXE' not found. Copy the file to the ORLO program folder.";

void TellOutcome(Context& context, bool done, std::string_view success, std::string_view failure) {
    ShowMessage(context.services.messages, done ? success : failure, done ? kMarkInformation : kMarkCritical,
                &context.forms.frmMain);
}

// False, with the user told, where a file that the compiler needs isn't beside the plan.
bool HasSideFiles(Context& context, const std::string& folder) {
    bool all = true;
    const auto ask = [&](std::string_view name, std::string_view missing) {
        if (!folder.empty() && IsThere(context.services.files, JoinPath(folder, name))) return;
        ShowMessage(context.services.messages, missing, kMarkExclamation, &context.forms.frmMain);
        all = false;
    };
    ask(kAircraftName, "File 'AIRCRAFT.TXT' not found. Please copy the file to the Flightplan folder.");
    ask(kAirportsName, "File 'AIRPORTS.TXT' not found. Please copy the file to the Flightplan folder.");
    return all;
}

std::int32_t RunCompilerOn(Context& context, const std::string& flightplan, const std::string& folder) {
    CompilerFolder compiler(context, folder);
    compiler.CopyCompiler();
    compiler.Copy(flightplan, kFlightPlansName);
    for (const std::string_view name : {kAircraftName, kAirportsName})
        compiler.Copy(JoinPath(folder, name), name);
    return compiler.Run();
}

void Compile(Context& context, const std::string& flightplan) {
    const std::string folder = ParentFolder(flightplan);
    const BusyForm busy(context, context.forms.frmMain);
    if (!HasSideFiles(context, folder)) return;
    TellOutcome(context, RunCompilerOn(context, flightplan, folder) == 0, "Successfully compiled AI Traffic.",
                "Errors occured during compiling AI Traffic.");
}

// Gives the tool's output the chosen name. Two names that differ in case alone may be one file.
void NameOutput(Context& context, const std::string& folder, const std::string& chosen) {
    const std::string output = JoinPath(folder, kFlightPlansName);
    if (chosen == output) return;
    if (!EqualNoCase(chosen, output)) context.services.files.DeleteFile(chosen);
    if (!context.services.files.RenameFile(output, chosen)) ReportNotWritten(context, chosen);
}

// Where others may write too no tool is run but a fresh copy.
bool IsTemporary(Context& context, const std::string& folder) {
    return IsSameFolder(context.services.files, folder, context.services.processes.TemporaryFolder());
}

// The chosen file, and what the tool writes beside it. Without them nothing is deleted or run.
bool KeepLists(Context& context, const std::string& chosen, const std::string& folder) {
    std::vector<std::string> paths;
    for (const std::string_view name : {kFlightPlansName, kAircraftName, kAirportsName})
        paths.push_back(JoinPath(folder, name));
    const auto isChosen = [&chosen](const std::string& path) { return EqualNoCase(path, chosen); };
    if (std::none_of(paths.begin(), paths.end(), isChosen)) paths.push_back(chosen);
    if (IsTemporary(context, folder)) paths.push_back(JoinPath(folder, kDecompiler));
    return KeepAside(context, "Decompile", paths);
}

void TellDecompiled(Context& context, bool done) {
    TellOutcome(context, done, "Successfully decompiled AI Traffic.",
                "Errors occured during decompiling AI Traffic.");
}

void Decompile(Context& context, const std::string& chosen) {
    FileSystem& files = context.services.files;
    const std::string folder = ParentFolder(chosen);
    const std::string tool = JoinPath(folder, kDecompiler);
    ForgetNotWritten(context);
    const BusyForm busy(context, context.forms.frmMain);
    if (!KeepLists(context, chosen, folder)) {
        ReportNotWritten(context, chosen);
        return TellDecompiled(context, false);
    }
    files.DeleteFile(chosen);
    const bool stands = files.FileExists(tool) && !IsTemporary(context, folder);
    const bool copied = !stands && CopyToolInto(context, kDecompiler, folder);
    const ToolStart start{files.Resolve(tool), "/NP", folder, context.session.switches.ShowCompiler};
    const std::int32_t exitCode = stands || copied ? RunAndWait(context, start) : 0;
    NameOutput(context, folder, chosen);
    if (copied) files.DeleteFile(tool);
    TellDecompiled(context, exitCode == 0);
}

}  // namespace

void CompileFlightplan(Context& context) {
    if (!ToolIsReady(context, kCompiler, kNoCompiler)) return;
    const std::string& open = context.session.plan.FlightplanPath;
    FileDialog dialog;
    dialog.title = "Compile - Choose Flightplan";
    dialog.filter = kTextFileFilter;
    dialog.startFolder = open;
    dialog.startFile = open.empty() ? std::string(kFlightPlansName) : FileName(open);
    dialog.fileMustExist = true;
    const std::string path = context.services.windows.ShowOpenDialog(dialog);
    ForgetNotWritten(context);
    if (!path.empty()) Compile(context, context.services.files.FullPath(path));
}

void CompileCurrentFlightplan(Context& context) {
    if (!ToolIsReady(context, kCompiler, kNoCompiler)) return;
    ForgetNotWritten(context);
    if (IsUnsaved(context.session.plan)) {
        const MessageAnswer answer =
            AskToSave(context, "Save modified Flightplan before starting compiling?");
        if (answer == MessageAnswer::Cancel) return;
        if (answer == MessageAnswer::Yes && !SaveInFrameBeforeItGoes(context)) return;
    }
    Compile(context, context.session.plan.FlightplanPath);
}

void DecompileFlightplan(Context& context) {
    if (!ToolIsReady(context, kDecompiler, kNoDecompiler)) return;
    const std::string path = AskForSavePath(context, "Decompile - Choose Output File", kFlightPlansName,
                                            kTextFileFilter, ChosenFile::IsKeptByCaller);
    if (!path.empty()) Decompile(context, path);
}

}  // namespace orlo

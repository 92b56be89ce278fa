#include "projects/OutsideTools.h"

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "mainwindow/StatusTexts.h"
#include "projects/RunTool.h"

namespace orlo {
namespace {

std::string ToolPath(const Context& context, std::string_view tool) {
    return JoinPath(context.session.ProgramFolder, tool);
}

}  // namespace

bool ToolIsReady(Context& context, std::string_view tool, std::string_view missing) {
    Services& services = context.services;
    MainForm& form = context.forms.frmMain;
    const std::string path = ToolPath(context, tool);
    if (!services.files.FileExists(path)) {
        ShowMessage(services.messages, missing, kMarkExclamation, &form);
        return false;
    }
    if (services.processes.CanRun(services.files.Resolve(path))) return true;
    ShowMessage(services.messages,
                Concat("'", tool, "' is a Windows program. Please install Wine to run it."), kMarkCritical,
                &form);
    return false;
}

void CopyInto(Context& context, const std::string& from, const std::string& folder, std::string_view name) {
    FileSystem& files = context.services.files;
    const std::string to = JoinPath(folder, name);
    if (files.Resolve(from) == files.Resolve(to)) return;
    files.DeleteFile(to);
    if (!files.CopyFile(from, to)) ReportNotWritten(context, to);
}

void CopyToolInto(Context& context, std::string_view tool, const std::string& folder) {
    CopyInto(context, ToolPath(context, tool), folder, tool);
}

void DeleteFrom(Context& context, const std::string& folder, std::string_view name) {
    context.services.files.DeleteFile(JoinPath(folder, name));
}

std::int32_t RunCompiler(Context& context, const std::string& folder) {
    const bool shown = context.session.switches.ShowCompiler;
    return RunAndWait(context, {JoinPath(folder, kCompiler), shown ? "/EP" : "/NP", folder, shown});
}

}  // namespace orlo

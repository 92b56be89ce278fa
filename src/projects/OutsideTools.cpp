#include "projects/OutsideTools.h"

#include <vector>

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "mainwindow/KeepAside.h"
#include "mainwindow/StatusTexts.h"
#include "projects/RunTool.h"

namespace orlo {
namespace {

constexpr std::size_t kPieceSize = 64 * 1024;

std::string ToolPath(const Context& context, std::string_view tool) {
    return JoinPath(context.session.ProgramFolder, tool);
}

bool CopyAll(InputFile& source, OutputFile& target) {
    std::vector<char> buffer(kPieceSize);
    for (std::size_t size = source.Read(buffer); size > 0; size = source.Read(buffer)) {
        if (!target.Write({buffer.data(), size})) return false;
    }
    return target.Commit();
}

}  // namespace

bool IsSameFolder(FileSystem& files, const std::string& a, const std::string& b) {
    const auto full = [&files](const std::string& path) {
        return std::string(WithoutTrailingSeparator(files.Resolve(files.FullPath(path))));
    };
    return full(a) == full(b);
}

bool ToolIsReady(Context& context, std::string_view tool, std::string_view missing) {
    Services& services = context.services;
    MainForm& form = context.forms.frmMain;
    const std::string path = ToolPath(context, tool);
    if (!IsThere(services.files, path)) {
        ShowMessage(services.messages, missing, kMarkExclamation, &form);
        return false;
    }
    if (services.processes.CanRun(services.files.Resolve(path))) return true;
    ShowMessage(services.messages,
                Concat("'", tool, "' is a Windows program. Please install Wine to run it."), kMarkCritical,
                &form);
    return false;
}

// The source is opened before the target goes: both may be one file.
bool CopyInto(Context& context, const std::string& from, const std::string& folder, std::string_view name) {
    FileSystem& files = context.services.files;
    const auto source = files.OpenForReading(from);
    const auto target = source != nullptr ? files.CreateNew(JoinPath(folder, name)) : nullptr;
    if (target != nullptr && CopyAll(*source, *target)) return true;
    ReportNotWritten(context, folder);
    return false;
}

bool CopyToolInto(Context& context, std::string_view tool, const std::string& folder) {
    return CopyInto(context, ToolPath(context, tool), folder, tool);
}

bool IsThere(FileSystem& files, const std::string& path) {
    return files.OpenForReading(path) != nullptr;
}

CompilerFolder::CompilerFolder(Context& context, const std::string& ownFolder)
    : context_(context),
      folder_(context.services.processes.TemporaryFolder()),
      isOwn_(IsSameFolder(context.services.files, folder_, ownFolder)) {}

CompilerFolder::~CompilerFolder() {
    for (const std::string_view name : names_) context_.services.files.DeleteFile(JoinPath(folder_, name));
}

// Of a link nothing is lost but the link.
bool CompilerFolder::KeepLeftovers() {
    FileSystem& files = context_.services.files;
    std::vector<std::string> paths;
    for (const std::string_view name : {kFlightPlansName, kAircraftName, kAirportsName, kCompiler}) {
        const std::string path = JoinPath(folder_, name);
        if (!files.IsLink(path)) paths.push_back(path);
    }
    return KeepAside(context_, "Compile", paths);
}

// From now on the name is deleted at the end.
bool CompilerFolder::MayPut(std::string_view name) {
    if (names_.empty() && !isOwn_) refused_ = !KeepLeftovers();
    if (isOwn_ && context_.services.files.FileExists(JoinPath(folder_, name))) refused_ = true;
    if (refused_) {
        ReportNotWritten(context_, folder_);
        return false;
    }
    names_.push_back(name);
    return true;
}

void CompilerFolder::Copy(const std::string& from, std::string_view name) {
    // The plan's own file is where it has to be.
    if (isOwn_ && EqualNoCase(FileName(from), name)) return;
    if (MayPut(name)) CopyInto(context_, from, folder_, name);
}

std::unique_ptr<OutputFile> CompilerFolder::Create(std::string_view name) {
    if (!MayPut(name)) return nullptr;
    auto file = context_.services.files.CreateNew(JoinPath(folder_, name));
    if (file == nullptr) ReportNotWritten(context_, folder_);
    return file;
}

void CompilerFolder::CopyCompiler() {
    hasCompiler_ = MayPut(kCompiler) && CopyToolInto(context_, kCompiler, folder_);
}

// What stands there instead of a copy that failed is another user's.
std::int32_t CompilerFolder::Run() {
    if (refused_) return 1;
    if (!hasCompiler_) return 0;
    const bool shown = context_.session.switches.ShowCompiler;
    return RunAndWait(context_, {JoinPath(folder_, kCompiler), shown ? "/EP" : "/NP", folder_, shown});
}

}  // namespace orlo

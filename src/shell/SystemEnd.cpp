#include "shell/SystemEnd.h"

#include <exception>
#include <string>
#include <vector>

#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "mainwindow/KeepInMemory.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"
#include "projects/KeepProject.h"
#include "projects/ProjectCommands.h"
#include "shell/SettingsMirror.h"

namespace orlo {
namespace {

constexpr std::string_view kReason = "End by the system";

std::string NotePath(const Session& session) {
    return JoinPath(session.StateFolder, "ended.txt");
}

bool KeepChanges(Context& context) {
    const Session& session = context.session;
    try {
        const bool plan = !IsUnsaved(session.plan) || KeepPlanInMemory(context, kReason);
        const bool project = !IsUnsaved(session.project) || KeepProjectInMemory(context, kReason);
        return plan && project;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

// Behind what another program has noted at the same end.
void NoteUnsavedEnd(Context& context) {
    FileSystem& files = context.services.files;
    const std::string path = NotePath(context.session);
    std::string text = ReadWholeFile(files, path).value_or("");
    for (const std::string& kept : context.session.kept.Notes.Kept) text += Concat(kept, "\r\n");
    ReplaceWholeFile(files, path, text);
}

bool EndBySystem(Context& context) {
    std::vector<std::string>& kept = context.session.kept.Notes.Kept;
    kept.clear();
    // What can't be made again comes first: the system may not wait long.
    const bool done = KeepChanges(context);
    if (!kept.empty()) NoteUnsavedEnd(context);
    WriteSettings(context);
    return done;
}

void TellUnsavedEnd(Context& context) {
    FileSystem& files = context.services.files;
    const std::string path = NotePath(context.session);
    if (context.session.StateFolder.empty() || !files.FileExists(path)) return;
    const std::string text = ReadWholeFile(files, path).value_or("");
    files.DeleteFile(path);
    std::vector<std::string>& kept = context.session.kept.Notes.Kept;
    for (const std::string_view line : SplitLines(text)) kept.emplace_back(line);
    context.forms.frmMain.sbMain.text = "Orlo has ended with changes that were not saved.";
    TellNotes(context);
    kept.clear();
}

}  // namespace orlo

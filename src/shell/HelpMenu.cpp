#include "shell/HelpMenu.h"

#include <array>

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "shell/EventTables.h"
#include "shell/FormFacts.h"
#include "shell/StartUp.h"

namespace orlo {
namespace {

// The path of the system's information program as the registry gives it; empty where it gives none.
std::string SystemInformationProgram(Context& context) {
    SettingsStore& machine = context.services.machineSettings;
    const auto program = machine.Get("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
    if (program && !program->empty()) return *program;
    const auto folder = machine.Get("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
    return folder && !folder->empty() ? JoinPath(*folder, "MSINFO32.EXE") : std::string();
}

void OnSystemInformation(Context& context, Event&) {
    const std::string program = SystemInformationProgram(context);
    if (!program.empty() && context.services.files.FileExists(program) &&
        context.services.processes.Start({program, "", ParentFolder(program), true}))
        return;
    ShowMessage(context.services.messages, "System Information Is Unavailable At This Time", kMarkExclamation,
                &context.forms.frmAbout);
}

constexpr std::string_view kHelpContents = "index.html";

std::string HelpFolder(const Session& session) {
    return JoinPath(session.ProgramFolder, "Help");
}

void OpenHelp(Context& context, std::string_view page) {
    const std::string folder = HelpFolder(context.session);
    const std::string path = JoinPath(folder, page);
    if (!context.services.windows.OpenDocument(path, folder))
        context.forms.frmMain.sbMain.text = Concat("Nothing is set up that opens [", path, "].");
}

void OnAboutOk(Context& context, Event&) {
    context.forms.frmAbout.closeRequest = true;
}

void OnSplash(Context& context, Event&) {
    CloseSplash(context);
}

constexpr std::array kAboutEvents = {
    EventEntry{nullptr, EventKind::Help, ShowHelpPage},
    EventEntry{ControlOf<AboutForm, &AboutForm::cmdOK>, EventKind::Click, OnAboutOk},
    EventEntry{ControlOf<AboutForm, &AboutForm::cmdSysInfo>, EventKind::Click, OnSystemInformation},
};

constexpr std::array kSplashEvents = {
    EventEntry{ControlOf<SplashForm, &SplashForm::picSplash>, EventKind::Click, OnSplash},
    EventEntry{nullptr, EventKind::KeyUp, OnSplash},
    EventEntry{nullptr, EventKind::Close, OnSplash},
};

}  // namespace

EventTable AboutEvents() {
    return kAboutEvents;
}
EventTable SplashEvents() {
    return kSplashEvents;
}

void ShowHelp(Context& context) {
    OpenHelp(context, kHelpContents);
}

void ShowHelpPage(Context& context, Event& event) {
    const std::string_view page = HelpPageOf(context.forms, *event.form);
    const std::string path = JoinPath(HelpFolder(context.session), page);
    OpenHelp(context, context.services.files.FileExists(path) ? page : kHelpContents);
}

void ShowAbout(Context& context) {
    context.services.windows.ShowModal(context.forms.frmAbout, &context.forms.frmMain);
}

}  // namespace orlo

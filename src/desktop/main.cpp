// The desktop program: makes the system's services and shows the main window until it is closed.

#include <QMessageBox>
#include <QSessionManager>
#include <QSocketNotifier>
#include <exception>
#include <memory_resource>

#include "core/Application.h"
#include "core/Version.h"
#include "desktop/AppIcon.h"
#include "desktop/DesktopApplication.h"
#include "desktop/DesktopHost.h"
#include "desktop/EdgeStyle.h"
#include "desktop/MainLayout.h"
#include "desktop/ScreenText.h"
#include "platform/Platform.h"
#include "platform/SystemServices.h"
#include "shell/Program.h"
#include "shell/StartUp.h"
#include "shell/SystemEnd.h"

namespace orlo {
namespace {

constexpr int kStartUpFailed = 1;

// Detaches the host before the program ends, since its windows show the program's forms.
class AttachedHost {
  public:
    AttachedHost(DesktopApplication& application, DesktopHost& host, Program& program)
        : application_(application), host_(host) {
        host_.Attach(program.pump, program.forms.frmProgress);
        application_.onFailure = [&host](const std::string& reason) { host.TellFailure(reason); };
    }
    AttachedHost(const AttachedHost&) = delete;
    AttachedHost& operator=(const AttachedHost&) = delete;
    ~AttachedHost() {
        application_.onFailure = nullptr;
        host_.Detach();
    }

  private:
    DesktopApplication& application_;
    DesktopHost& host_;
};

void NameApplication() {
    QCoreApplication::setApplicationName(ToQString(kApplicationTitle));
    QCoreApplication::setApplicationVersion(kVersionText);
    QGuiApplication::setDesktopFileName("orlo");
    QApplication::setWindowIcon(ApplicationIcon());
}

// Hands the system's request to end on to the loop of events.
void PassOn(const EndWatch& end, DesktopHost& host) {
    if (end.Descriptor() < 0) return;
    auto* notifier = new QSocketNotifier(end.Descriptor(), QSocketNotifier::Read, &host);
    QObject::connect(notifier, &QSocketNotifier::activated, &host, [&host, notifier] {
        notifier->setEnabled(false);
        host.EndUnasked();
    });
}

int RunDesktop(DesktopApplication& application) {
    const auto end = WatchForEnd();
    SystemServices system;
    DesktopHost host;
    PassOn(*end, host);
    host.addAboutToSystemMenu = AddAboutToSystemMenu;
    Services services = system.Behind(host);

    Program program(services, FindProgramFolder(*system.files), UserStateFolder());
    const AttachedHost attached(application, host, program);
    DesignMainForm(program.forms.frmMain);
    if (!StartUp(program.context)) return kStartUpFailed;
    // When the user's session ends, the questions about unsaved work come first; a cancel stops the end.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &host, [&](QSessionManager& manager) {
        if (program.forms.frmMain.closeRequest || !manager.allowsInteraction()) return;
        if (!host.AskToClose(program.forms.frmMain)) manager.cancel();
        manager.release();
    });
    host.RunUntilClosed(program.forms.frmMain);
    if (!host.EndedUnasked()) return 0;
    if (!EndBySystem(program.context)) qWarning("The changes could not be kept.");
    return end->ExitStatus().value_or(0);
}

}  // namespace
}  // namespace orlo

int main(int count, char** words) {
    std::pmr::set_default_resource(&orlo::ListMemory());
    // A scale such as 150 % is not rounded.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    orlo::DesktopApplication application(count, words);
    orlo::NameApplication();
    orlo::UseVisibleEdges();
    try {
        return orlo::RunDesktop(application);
    } catch (const std::exception& failure) {
        QMessageBox::critical(nullptr, orlo::ToQString(orlo::kApplicationTitle), failure.what());
        return orlo::kStartUpFailed;
    }
}

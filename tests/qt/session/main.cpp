// Plays a console script in the windows of the program, on a world that stays as the script leaves it:
//   orlo-window-session WORLD SCRIPT
// It prints what was said. Its status is 2 where a line of the script could not be done.

#include <QDir>
#include <QFile>
#include <iostream>

#include "desktop/DesktopApplication.h"
#include "platform/Platform.h"
#include "qt/WindowScript.h"

int main(int count, char** words) {
    const auto streams = orlo::UseUtf8Streams();
    orlo::DesktopApplication application(count, words);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::cerr << "orlo-window-session WORLD SCRIPT\n";
        return 1;
    }
    QFile script(arguments[2]);
    const std::string world =
        orlo::PathFromQString(QDir::toNativeSeparators(QDir(arguments[1]).absolutePath()));
    if (!script.open(QIODevice::ReadOnly) || !QDir::setCurrent(arguments[1])) {
        std::cerr << "no such script or world\n";
        return 1;
    }
    auto owned = std::make_unique<orlo::test::ScriptHost>();
    orlo::test::ScriptHost& host = *owned;
    orlo::test::RealProgram real(world, orlo::test::ServicesOn(world), std::move(owned));
    if (!orlo::StartUp(real.program.context)) return 1;
    orlo::test::WindowScript running(real, host, script.readAll().toStdString());
    running.Run();
    std::cout << host.said.str();
    if (running.Fault().empty()) return 0;
    std::cerr << running.Fault() << '\n';
    return 2;
}

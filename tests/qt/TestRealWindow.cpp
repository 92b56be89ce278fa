// The real program on a sample world, by mouse and keyboard: it says and writes what the console says and
// writes.

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <map>
#include <sstream>

#include "console/ScriptRunner.h"
#include "core/Text.h"
#include "qt/RealProgram.h"
#include "qt/UserHands.h"
#include "qt/WindowScript.h"

namespace orlo {
namespace {

constexpr int kFlights = 200;

// What a script said and left on the disk.
struct Outcome {
    std::string said;
    std::map<std::string, std::string> files;
    std::string fault;
};

// The sample world, anew for each run and each time under the same path, which the program's texts tell. It
// is the current folder meanwhile.
class World {
  public:
    World() : before_(QDir::currentPath()) {}
    ~World() { QDir::setCurrent(before_); }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    std::string Path() const { return PathFromQString(folder_.filePath("world")); }

    void Renew() {
        QDir::setCurrent(before_);
        QDir(folder_.filePath("world")).removeRecursively();
        ASSERT_TRUE(test::MakeSampleWorld(Path(), kFlights)) << "no sample world";
        QDir::setCurrent(folder_.filePath("world"));
    }

    // All files, without the place of the window in the settings, which the console doesn't store.
    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> texts;
        QDirIterator files(".", QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
            texts[file.fileName().toStdString()] = file.readAll().toStdString();
        }
        std::string& settings = texts["./settings.txt"];
        std::string kept;
        for (const std::string_view line : SplitText(settings, '\n')) {
            if (!line.starts_with("Main")) kept.append(line).append("\n");
        }
        settings = kept;
        return texts;
    }

  private:
    QString before_;
    QTemporaryDir folder_;
};

Outcome RunInWindow(World& world, const std::string& script) {
    world.Renew();
    test::RealProgram real(world.Path());
    EXPECT_TRUE(StartUp(real.program.context));
    test::PressKeys(test::WindowOf(real.program.forms.frmSplash), "Esc");
    test::WindowScript running(real, script);
    const std::string said = running.Run();
    return {said, world.Files(), running.Fault()};
}

Outcome RunOnConsole(World& world, const std::string& script) {
    world.Renew();
    SystemServices system = test::ServicesOn(world.Path());
    std::istringstream lines(script);
    std::ostringstream said;
    std::ostringstream errors;
    ConsoleHost host(*system.files, said, false, false);
    Services services = system.Behind(host);
    Program program(services, JoinPath(world.Path(), "Program"));
    ScriptRunner runner(program, host, lines, said, errors, false);
    EXPECT_TRUE(StartUp(program.context));
    runner.Run();
    return {said.str(), world.Files(), errors.str()};
}

std::string FirstDifference(const std::string& window, const std::string& console) {
    const std::vector<std::string_view> lines = SplitText(window, '\n');
    const std::vector<std::string_view> others = SplitText(console, '\n');
    for (std::size_t i = 0; i < std::min(lines.size(), others.size()); ++i) {
        if (lines[i] != others[i]) return Concat("line ", i + 1, " is\n", lines[i], "\nnot\n", others[i]);
    }
    return Concat(lines.size(), " lines, not ", others.size());
}

void ExpectSame(const Outcome& window, const Outcome& console) {
    EXPECT_EQ(window.fault, "");
    EXPECT_EQ(console.fault, "");
    EXPECT_TRUE(window.said == console.said) << FirstDifference(window.said, console.said);
    for (const auto& [name, text] : console.files) {
        const auto found = window.files.find(name);
        ASSERT_NE(found, window.files.end()) << name << " was not written";
        EXPECT_TRUE(found->second == text) << name << ": " << FirstDifference(found->second, text);
    }
    EXPECT_EQ(window.files.size(), console.files.size());
}

// A script, those of the console's own tests without what the window's driver doesn't do: prints on paper,
// and what tells about the form rather than the screen.
std::string ScriptOf(const std::string& path) {
    QFile file(QString::fromStdString(Concat(ORLO_SOURCE_DIR, "/tests/", path, ".txt")));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    std::string kept;
    const std::string text = file.readAll().toStdString();
    for (const std::string_view line : SplitText(text, '\n')) {
        bool does = true;
        for (const char* word : {"windows", "props", "Print", "Leg.txt"})
            does = does && line.find(word) == std::string_view::npos;
        if (does) kept.append(line).append("\n");
    }
    return kept;
}

TEST(RealWindow, SaysAndWritesWhatTheConsoleDoes) {
    World world;
    for (const char* path : {"scripts/open-shuffle-save", "scripts/search", "scripts/flight-editor",
                             "scripts/exit-questions", "qt/day-of-work"}) {
        SCOPED_TRACE(path);
        ExpectSame(RunInWindow(world, ScriptOf(path)), RunOnConsole(world, ScriptOf(path)));
    }
}

// By shortcuts, mnemonics, and the menus from one to the next.
TEST(RealWindow, TheKeyboardAloneOpensShufflesSavesAndExits) {
    World world;
    const Outcome keys = RunInWindow(world, R"(
choose Plan/FlightPlans.txt
keys Ctrl+O
keys Alt+U
keys Alt+H Right S
keys Alt+H Right O
keys Alt+U
reply cancel
keys Alt+H Right X
echo "still here"
reply no
keys Alt+H Right X
echo "never reached"
)");
    const Outcome clicks = RunOnConsole(world, R"(
choose Plan/FlightPlans.txt
click mnuFileLoad
click cmdShuffle
click mnuFileSave
click mnuFileLoad
click cmdShuffle
reply cancel
click mnuFileExit
echo "still here"
reply no
click mnuFileExit
echo "never reached"
)");
    ExpectSame(keys, clicks);
}

}  // namespace
}  // namespace orlo

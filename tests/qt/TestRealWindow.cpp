// The real program on a sample world, by mouse and keyboard: it says and writes what the console says and
// writes.

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "console/ScriptRunner.h"
#include "core/Application.h"
#include "core/Text.h"
#include "qt/RealProgram.h"
#include "qt/WindowScript.h"

namespace orlo {
namespace {

constexpr int kFlights = 200;

// A script, and what it tells of itself in comments of its own.
struct Script {
    std::string text;
    std::string consoleOnly = {};         // why no window can play it; empty where one can
    std::string simulator = "Simulator";  // its folder in the world
    std::filesystem::path files = {};     // what is laid over the world; empty for nothing
};

// What a script said and left on the disk.
struct Outcome {
    std::string said;
    std::map<std::string, std::string> files;
    std::string fault;
};

template <typename Dropped>
std::string LinesBut(const std::string& text, Dropped dropped) {
    std::string kept;
    for (const std::string_view line : SplitText(text, '\n')) {
        if (!dropped(line)) kept.append(line).append("\n");
    }
    return kept;
}

// The sample world, anew for each run and each time under the same path, which the program's texts tell. It
// is the current folder meanwhile.
class World {
  public:
    World() : before_(QDir::currentPath()), temporaryBefore_(qgetenv("TMPDIR")) {}
    ~World() {
        QDir::setCurrent(before_);
        temporaryBefore_.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporaryBefore_);
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    std::string Path() const { return PathFromQString(folder_.filePath("world")); }

    void Renew(const Script& script) {
        static const QTemporaryDir made;
        static const std::string sample = PathFromQString(made.filePath("sample"));
        static const bool stands = test::MakeSampleWorld(sample, kFlights);
        ASSERT_TRUE(stands) << "no sample world";
        QDir::setCurrent(before_);
        std::filesystem::remove_all(Path());
        constexpr auto kOver =
            std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing;
        std::filesystem::copy(sample, Path(), kOver);
        if (std::filesystem::exists(script.files)) std::filesystem::copy(script.files, Path(), kOver);
        QDir::setCurrent(folder_.filePath("world"));
        std::filesystem::create_directory("Temporary");
        qputenv("TMPDIR", (Path() + "/Temporary").c_str());
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
        settings = LinesBut(settings, [](std::string_view line) { return line.starts_with("Main"); });
        return texts;
    }

  private:
    QString before_;
    QByteArray temporaryBefore_;
    QTemporaryDir folder_;
};

// Without what a window tells otherwise: which control has the focus, where the console leaves a field for
// none; and a request to select a text, which it has taken.
std::string Compared(const std::string& said) {
    return LinesBut(said, [](std::string_view line) {
        return line.starts_with("focus=") || line == "selection=all" || line == "selection=none";
    });
}

Outcome RunInWindow(World& world, const Script& script) {
    world.Renew(script);
    auto owned = std::make_unique<test::ScriptHost>();
    test::ScriptHost& host = *owned;
    test::RealProgram real(world.Path(), test::ServicesOn(world.Path(), script.simulator), std::move(owned));
    EXPECT_TRUE(StartUp(real.program.context));
    test::WindowScript running(real, host, script.text);
    running.Run();
    return {Compared(host.said.str()), world.Files(), running.Fault()};
}

Outcome RunOnConsole(World& world, const Script& script) {
    world.Renew(script);
    SystemServices system = test::ServicesOn(world.Path(), script.simulator);
    std::istringstream lines(script.text);
    std::ostringstream said;
    std::ostringstream errors;
    ConsoleHost host(*system.files, said, false, false);
    Services services = system.Behind(host);
    Program program(services, JoinPath(world.Path(), "Program"), JoinPath(world.Path(), kKeptFolderName));
    ScriptRunner runner(program, host, lines, said, errors, false);
    EXPECT_TRUE(StartUp(program.context));
    runner.Run();
    return {Compared(said.str()), world.Files(), std::string(BeforeFirst(errors.str(), "\n"))};
}

void ExpectSame(Outcome window, const Outcome& console) {
    EXPECT_EQ(window.fault, console.fault);
    EXPECT_EQ(window.said, console.said);
    EXPECT_EQ(window.files.size(), console.files.size());
    for (const auto& [name, text] : console.files) EXPECT_EQ(window.files[name], text) << name;
}

std::filesystem::path ScriptPath(const std::string& name) {
    return std::filesystem::path(ORLO_SOURCE_DIR) / "tests/scripts" / (name + ".txt");
}

Script ScriptOf(const std::string& name) {
    std::ifstream file(ScriptPath(name), std::ios::binary);
    EXPECT_TRUE(file) << name;
    Script script;
    script.text.assign(std::istreambuf_iterator<char>(file), {});
    script.files = ScriptPath(name).replace_extension(".d");
    const auto told = [&](std::string_view what) {
        for (const std::string_view line : SplitText(script.text, '\n')) {
            if (line.starts_with(what)) return std::string(TrimBlanks(line.substr(what.size())));
        }
        return std::string();
    };
    script.consoleOnly = told("# console only:");
    const std::string simulator = told("# options --simulator ");
    if (!simulator.empty()) script.simulator = simulator;
    return script;
}

// All scripts of the console's own tests.
std::vector<std::string> ScriptNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(ScriptPath("any").parent_path())) {
        if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class ScriptInWindow : public testing::TestWithParam<std::string> {};

TEST_P(ScriptInWindow, SaysAndWritesWhatTheConsoleDoes) {
    const Script script = ScriptOf(GetParam());
    if (!script.consoleOnly.empty()) GTEST_SKIP() << script.consoleOnly;
    World world;
    ExpectSame(RunInWindow(world, script), RunOnConsole(world, script));
}

INSTANTIATE_TEST_SUITE_P(All, ScriptInWindow, testing::ValuesIn(ScriptNames()),
                         [](const auto& name) { return ReplaceAll(name.param, "-", "_"); });

// By shortcuts, mnemonics, and the menus from one to the next.
TEST(RealWindow, TheKeyboardAloneOpensShufflesSavesAndExits) {
    const std::string keys = R"(
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
)";
    std::string clicks = keys;
    const std::pair<std::string_view, std::string_view> meant[] = {
        {"keys Ctrl+O", "click mnuFileLoad"},        {"keys Alt+U", "click cmdShuffle"},
        {"keys Alt+H Right S", "click mnuFileSave"}, {"keys Alt+H Right O", "click mnuFileLoad"},
        {"keys Alt+H Right X", "click mnuFileExit"},
    };
    for (const auto& [press, click] : meant) clicks = ReplaceAll(clicks, press, click);
    World world;
    ExpectSame(RunInWindow(world, {keys}), RunOnConsole(world, {clicks}));
}

}  // namespace
}  // namespace orlo

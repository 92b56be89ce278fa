#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Text.h"
#include "forms/Chart.h"
#include "services/FrontEnd.h"
#include "services/Services.h"
#include "support/MemoryFileSystem.h"

namespace orlo::test {

class FakeProgress : public ProgressHost {
  public:
    std::vector<std::string> lines;  // "text ...", "max N", "value N", "show", "close"
    void SetText(std::string_view text) override { lines.push_back(Concat("text ", text)); }
    void SetMax(int maximum) override { lines.push_back(Concat("max ", maximum)); }
    void SetValue(int value) override { lines.push_back(Concat("value ", value)); }
    void Show(Form*) override { lines.push_back("show"); }
    void Close() override { lines.push_back("close"); }
};

class FakeMessages : public MessageHost {
  public:
    std::vector<std::pair<int, std::string>> shown;  // flags and text
    std::deque<MessageAnswer> answers;               // taken in order; without one the answer is OK or No
    MessageAnswer ShowMessage(std::string_view text, int flags, std::string_view, Form*) override {
        shown.emplace_back(flags, text);
        if (answers.empty()) return (flags & 7) == kButtonsOk ? MessageAnswer::Ok : MessageAnswer::No;
        const MessageAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

class FakeWindows : public WindowHost {
  public:
    std::deque<std::string> paths;   // answers of file dialogs; without one they are cancelled
    std::deque<std::string> inputs;  // answers of input boxes; without one they are cancelled
    std::vector<std::string> printed;
    bool keepsWindowPlace = false;
    int eventsProcessed = 0;
    std::function<void(Form&)> onModal;  // what happens while a modal form is shown
    std::function<void()> onEvents;      // what happens while events are let through
    void ProcessEvents() override {
        ++eventsProcessed;
        if (onEvents) onEvents();
    }
    void ShowForm(Form&) override {}
    void ShowModal(Form& form, Form*) override {
        if (onModal) onModal(form);
    }
    void UnloadForm(Form&) override {}
    bool KeepsWindowPlace() const override { return keepsWindowPlace; }
    void StartTimer(std::string_view, int) override {}
    void StopTimer(std::string_view) override {}
    bool TimerArmed(std::string_view) const override { return false; }
    std::string ShowOpenDialog(const FileDialog&) override { return Take(paths); }
    std::string ShowSaveDialog(const FileDialog&) override { return Take(paths); }
    std::string ShowFolderDialog(std::string_view, const std::string&) override { return Take(paths); }
    std::optional<std::string> InputBox(const InputQuestion&) override {
        if (inputs.empty()) return std::nullopt;
        return Take(inputs);
    }
    bool ShowPrintDialog(std::string_view) override { return true; }
    PrintOutcome Print(std::string_view text) override {
        printed.emplace_back(text);
        return PrintOutcome::Printed;
    }
    std::string DrawCharts(std::span<const Chart* const> charts, PictureFormat) override {
        return ChartTables(charts);
    }
    bool OpenDocument(const std::string&, const std::string&) override { return true; }

  private:
    static std::string Take(std::deque<std::string>& queue) {
        if (queue.empty()) return {};
        std::string answer = queue.front();
        queue.pop_front();
        return answer;
    }
};

class FakeSettings : public SettingsStore {
  public:
    std::map<std::string, std::string> values;  // upper-cased "KEYPATH\NAME"
    std::vector<std::string> written;           // names in the order of writing
    std::optional<std::string> Get(std::string_view keyPath, std::string_view name) override {
        const auto found = values.find(UpperText(Concat(keyPath, "\\", name)));
        if (found == values.end()) return std::nullopt;
        return found->second;
    }
    bool Set(std::string_view keyPath, std::string_view name, std::string_view value) override {
        values[UpperText(Concat(keyPath, "\\", name))] = value;
        written.emplace_back(name);
        return true;
    }
    bool Flush() override { return true; }
};

// Draws from a list that repeats; without one all draws are 0.5.
class FakeRandom : public RandomSource {
  public:
    std::vector<double> draws;
    std::size_t taken = 0;
    int seedings = 0;
    double Next() override { return draws.empty() ? 0.5 : draws[taken++ % draws.size()]; }
    void SeedFromClock() override { ++seedings; }
};

class FakeClock : public Clock {
  public:
    std::int64_t now = 0;
    std::int64_t Now() const override { return now; }
    std::string ShortText() const override { return "DATE TIME"; }
};

// Tools that the test tells about: how each ends, and what it does at its start.
class FakeProcesses : public ProcessService {
  public:
    std::vector<std::string> started;    // "PROGRAM ARGUMENT in FOLDER shown", or "hidden"
    std::deque<std::int32_t> exitCodes;  // taken in order; without one the code is 0
    bool canRun = true;
    bool canStart = true;
    bool neverEnds = false;    // until End()
    int waitsBeforeEnd = 0;    // how often Wait is called in vain
    bool interrupted = false;  // the user presses Ctrl+C
    std::function<void(const ToolStart&)> onStart;
    std::string temporaryFolder = "/temp";

    bool CanRun(const std::string&) override { return canRun; }
    std::unique_ptr<RunningTool> Start(const ToolStart& start) override {
        if (!canStart) return nullptr;
        started.push_back(Concat(start.program, " ", start.argument, " in ", start.workingFolder,
                                 start.shown ? " shown" : " hidden"));
        if (onStart) onStart(start);
        auto tool = std::make_unique<Tool>(*this);
        if (!exitCodes.empty()) {
            tool->code = exitCodes.front();
            exitCodes.pop_front();
        }
        return tool;
    }
    std::string TemporaryFolder() override { return temporaryFolder; }

  private:
    struct Tool : RunningTool {
        explicit Tool(FakeProcesses& processes) : script(processes), waits(processes.waitsBeforeEnd) {}
        bool Wait(int) override { return ended || (!script.neverEnds && waits-- <= 0); }
        void End() override {
            ended = true;
            code = 143;
        }
        std::int32_t ExitCode() const override { return code; }
        bool Interrupted() const override { return script.interrupted; }

        FakeProcesses& script;
        int waits;
        bool ended = false;
        std::int32_t code = 0;
    };
};

// All services as fakes, but for those that something real stands in for.
struct FakeWorld {
    struct StandIns {
        FileSystem* files = nullptr;
        RandomSource* random = nullptr;
        FrontEnd* frontEnd = nullptr;
    };

    FakeWorld() : FakeWorld(StandIns()) {}
    explicit FakeWorld(StandIns standIns) : with(standIns) {}

    StandIns with;
    MemoryFileSystem files;
    FakeSettings userSettings;
    FakeSettings machineSettings;
    FakeProgress progress;
    FakeMessages messages;
    FakeWindows windows;
    FakeRandom random;
    FakeClock clock;
    FakeProcesses processes;
    Services services{Or<FileSystem>(with.files, files),
                      userSettings,
                      machineSettings,
                      Or<ProgressHost>(with.frontEnd, progress),
                      Or<MessageHost>(with.frontEnd, messages),
                      Or<WindowHost>(with.frontEnd, windows),
                      Or<RandomSource>(with.random, random),
                      clock,
                      processes};

  private:
    template <typename Service>
    static Service& Or(Service* standIn, Service& fake) {
        return standIn != nullptr ? *standIn : fake;
    }
};

}  // namespace orlo::test

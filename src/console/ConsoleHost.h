#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>

#include "console/ScriptAnswers.h"
#include "services/FileSystem.h"
#include "services/FrontEnd.h"

namespace orlo {

struct Program;

// The front end of the console: prints everything that is said to the user as a line, and answers questions,
// dialogs and input boxes from the queues.
class ConsoleHost : public FrontEnd {
  public:
    ConsoleHost(FileSystem& files, std::ostream& out, bool strict, bool trace)
        : files_(files), out_(out), strict_(strict), trace_(trace) {}

    // The program must outlive this. `runModal` runs lines of the script until the form's close request.
    // Before the call no form is shown.
    void Attach(Program& program, std::function<void(Form&)> runModal);
    // Where the progress bar is drawn, a terminal; null for nowhere.
    void DrawBarOn(std::ostream* bar) { bar_ = bar; }

    QueuedAnswers answers;

    // ProgressHost
    void SetText(std::string_view text) override;
    void SetMax(int maximum) override;
    void SetValue(int value) override;
    void Show(Form* owner) override;
    void Close() override;

    // MessageHost
    MessageAnswer ShowMessage(std::string_view text, int flags, std::string_view title, Form* owner) override;

    // WindowHost
    void ProcessEvents() override {}
    void ShowForm(Form& form) override;
    void ShowModal(Form& form, Form* owner) override;
    void UnloadForm(Form& form) override;
    bool KeepsWindowPlace() const override { return false; }
    void StartTimer(std::string_view name, int milliseconds) override;
    void StopTimer(std::string_view name) override;
    bool TimerArmed(std::string_view name) const override;
    std::string ShowOpenDialog(const FileDialog& dialog) override;
    std::string ShowSaveDialog(const FileDialog& dialog) override;
    std::string ShowFolderDialog(std::string_view title, const std::string& startFolder) override;
    std::optional<std::string> InputBox(const InputQuestion& question) override;
    bool ShowPrintDialog(std::string_view title) override;
    PrintOutcome Print(std::string_view text) override;
    std::string DrawCharts(std::span<const Chart* const> charts, PictureFormat format) override;
    bool OpenDocument(const std::string& path, const std::string& workingFolder) override;

  private:
    enum class Wanted { AnyPath, File, Folder };
    bool IsThere(const std::string& path, Wanted wanted) const;
    std::optional<std::string> TakePath(std::string_view what, std::string_view title, Wanted wanted);
    void DrawBar();

    FileSystem& files_;
    std::ostream& out_;
    bool strict_;
    bool trace_;
    Program* program_ = nullptr;
    std::function<void(Form&)> runModal_;
    std::ostream* bar_ = nullptr;
    int drawnPercent_ = -1;
    bool progressShown_ = false;
    std::set<std::string> timers_;  // upper-cased names of the armed ones
    std::string printPath_;
};

}  // namespace orlo

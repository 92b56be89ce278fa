#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/KeyedIndex.h"
#include "desktop/InputFilter.h"
#include "desktop/InputSink.h"
#include "forms/ProgressForm.h"
#include "services/FrontEnd.h"

class QEventLoop;
class QPrinter;

namespace orlo {

class EventPump;

// The desktop front end over an event pump: windows for the forms, dialogs, timers, and the loops that run
// events. One lives beside the application object; the pump and the forms come after it and go before it,
// except for what stays in RunUntilClosed.
class DesktopHost : public QObject, public InputSink, public FrontEnd {
  public:
    DesktopHost();
    ~DesktopHost() override;

    // Until it is called nothing is shown.
    void Attach(EventPump& pump, ProgressForm& progress);
    // Closes all windows and lets go of the pump.
    void Detach();

    // Says in the status bar that a part of the screen failed.
    void TellFailure(const std::string& reason);

    // Runs events until the form's close request.
    void RunUntilClosed(Form& form);

    // Lets the form close with its questions, as its close box does. False while something runs or another
    // window has to be answered first, and where the user wants to stay.
    bool AskToClose(Form& form);

    // InputSink
    bool Accepts(const Event& event) const override;
    void Post(const Event& event) override;
    bool TakesInput(const FormWindow& window) const override;
    void DeliverNow(Event& event) override;
    void CatchUp(FormWindow& window) override;
    FormWindow* WindowOf(QObject* object) override;
    int DialogsShown() const override { return dialogsShown_; }

    // ProgressHost
    void SetText(std::string_view text) override;
    void SetMax(int maximum) override;
    void SetValue(int value) override;
    void Show(Form* owner) override;
    void Close() override;

    // MessageHost
    MessageAnswer ShowMessage(std::string_view text, int flags, std::string_view title, Form* owner) override;

    // WindowHost
    void ProcessEvents() override;
    void ShowForm(Form& form) override;
    void ShowModal(Form& form, Form* owner) override;
    void UnloadForm(Form& form) override;
    bool KeepsWindowPlace() const override { return true; }
    void ShowNotBuilt(std::string_view controlName) override;
    void StartTimer(std::string_view name, int milliseconds) override;
    void StopTimer(std::string_view name) override;
    bool TimerArmed(std::string_view name) const override;
    std::string ShowOpenDialog(const FileDialog& dialog) override;
    std::string ShowSaveDialog(const FileDialog& dialog) override;
    std::string ShowFolderDialog(std::string_view title, const std::string& startFolder) override;
    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                        std::string_view defaultText) override;
    bool ShowPrintDialog(std::string_view title) override;
    PrintOutcome Print(std::string_view text) override;
    bool OpenDocument(const std::string& path, const std::string& workingFolder) override;

  protected:
    void customEvent(QEvent* event) override;

  private:
    class DialogRound;
    class ModalRound;
    struct Loop {
        Form* form;
        QEventLoop* loop;
    };
    void PumpRan();
    void EndClosedLoop();
    void FireTimer(const std::string& name);
    FormWindow* Find(const Form& form) const;
    FormWindow& Open(Form& form, QWidget* parent, Qt::WindowFlags flags);
    static void Present(FormWindow& window);
    void Shut(Form& form);
    void PlaceProgress(FormWindow& window);
    QWidget* OwnerWindow(const Form* owner) const;  // else the topmost modal one, else the first
    void ScheduleDraw();
    void DrawWhenDue();
    void DrawAll();

    EventPump* pump_ = nullptr;
    ProgressForm* progress_ = nullptr;
    std::vector<FormWindow*> windows_;  // in the order of opening; their toolkit parents own none of them
    std::vector<Loop> loops_;           // the innermost last
    std::unordered_map<std::string, std::unique_ptr<QTimer>, NoCaseHash, NoCaseEqual> timers_;
    InputFilter filter_{*this};
    bool runPosted_ = false;
    QTimer drawTimer_;
    QElapsedTimer lastDrawn_;
    bool drawing_ = false;
    // Stands for a dialog of the toolkit among the modal forms.
    Form dialogForm_{"", ""};
    int dialogsShown_ = 0;
    QString openFolder_;  // where the last file of a dialog of that kind was
    QString saveFolder_;
    std::unique_ptr<QPrinter> printer_;  // as chosen last; null before the first print
    bool previewWanted_ = false;
};

}  // namespace orlo

#pragma once

#include <qwindowdefs.h>

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <functional>
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
// events. The application object must outlive it. The pump and the forms must live from Attach to Detach.
class DesktopHost : public QObject, public InputSink, public FrontEnd {
  public:
    DesktopHost();
    ~DesktopHost() override;

    // Until it is called no form is shown.
    void Attach(EventPump& pump, ProgressForm& progress);
    // Deletes all windows, stops the timers and forgets the pump and the forms.
    void Detach();

    // Puts the entry "About" into the system menu of a window until the result goes; see platform/Platform.h.
    // Null where the system has no such menu.
    std::function<std::shared_ptr<void>(WId window, std::function<void()> chosen)> addAboutToSystemMenu;

    // Says in the status bar that a drawing failed, and why.
    void TellFailure(const std::string& reason);

    // Runs events until the form's close request.
    void RunUntilClosed(Form& form);

    // Ends the outermost RunUntilClosed without a question: at once, or when the operation that runs has
    // ended. What is open above its form closes from the top, as by Escape, but no procedure is asked: what
    // the user has not accepted there is dropped.
    void EndUnasked();
    // Whether that has ended it, and not the user.
    bool EndedUnasked() const { return endedUnasked_; }

    // Runs the form's close box with its questions at once. True where the form is to close. False where the
    // user cancels, and, without a question, while an operation runs or a modal window is open.
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
    bool DrawsFormat(PictureFormat format) const override;
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
    void CloseTopmost();
    void FireTimer(const std::string& name);
    FormWindow* Find(const Form& form) const;
    FormWindow& Open(Form& form, QWidget* parent, Qt::WindowFlags flags);
    static void Present(FormWindow& window);
    void Shut(Form& form);
    void PlaceProgress(FormWindow& window);
    QWidget* OwnerWindow(const Form* owner) const;  // of null: the topmost modal one, else the first
    void ScheduleDraw();
    void DrawWhenDue();
    void DrawAll();
    void DrawSystemMenu(FormWindow& window);

    EventPump* pump_ = nullptr;
    ProgressForm* progress_ = nullptr;
    std::vector<FormWindow*> windows_;  // owned; in the order of opening: a parent before its children
    std::vector<Loop> loops_;           // the innermost last
    std::unordered_map<std::string, std::unique_ptr<QTimer>, NoCaseHash, NoCaseEqual> timers_;
    InputFilter filter_{*this};
    bool runPosted_ = false;
    QTimer drawTimer_;
    QElapsedTimer lastDrawn_;
    bool drawing_ = false;
    QTimer endTimer_;
    bool endedUnasked_ = false;
    // Stands for the toolkit's dialogs among the pump's modal forms.
    Form dialogForm_{"", ""};
    int dialogsShown_ = 0;
    QString openFolder_;                 // where the last open dialog ended; empty at first
    QString saveFolder_;                 // the same of save dialogs
    std::unique_ptr<QPrinter> printer_;  // as chosen last; null before the first print
    bool previewWanted_ = false;
};

}  // namespace orlo

#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// While it lives the main window is disabled under the hourglass, and waiting events have run once.
class BusyMainWindow {
  public:
    explicit BusyMainWindow(Context& context);
    ~BusyMainWindow();
    // The window stays disabled when the operation ends.
    void StayBusy() { staysBusy_ = true; }
    BusyMainWindow(const BusyMainWindow&) = delete;
    BusyMainWindow& operator=(const BusyMainWindow&) = delete;

  private:
    MainForm& form_;
    bool staysBusy_ = false;
};

// While it lives the drawing of a form stands still.
class FrozenForm {
  public:
    explicit FrozenForm(Form& form) : form_(form) { ++form_.frozen; }
    ~FrozenForm() { --form_.frozen; }
    FrozenForm(const FrozenForm&) = delete;
    FrozenForm& operator=(const FrozenForm&) = delete;

  private:
    Form& form_;
};

// Opens the progress window in the calling order of ProgressHost and lets events run.
void OpenProgress(Context& context, std::string_view text, int maximum, int value);
// The next stage of an open progress window.
void NextProgress(Context& context, std::string_view text, int value);

// After everything that changes flights or plan aircraft.
void MarkPlanModified(Context& context);

// Says in the status bar what could not be written; messages stay as they are.
void ReportNotWritten(Context& context, std::string_view path);
// The same for a print that failed.
void ReportNotPrinted(Context& context);
// Takes such texts away, before the next try.
void ForgetNotWritten(Context& context);

}  // namespace orlo

#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// The frame of an operation over a form. While it lives the form is disabled under the hourglass. Where the
// operation has stages, the first one opens the progress window over the form.
class BusyForm {
  public:
    // Lets waiting events run once. `stages` is the maximum of the progress window.
    BusyForm(Context& context, Form& form, int stages = 0);
    // Closes the progress window, where a stage opened it, and enables the form.
    ~BusyForm();
    BusyForm(const BusyForm&) = delete;
    BusyForm& operator=(const BusyForm&) = delete;

    // Shows the stage and lets events run.
    void Stage(std::string_view text, int value);
    // Sets the maximum of the progress window anew, for instance after a step that has set another one.
    void SetStages(int stages);
    // Closes the progress window before the end.
    void CloseProgress();
    // When the operation ends, the form stays disabled and the progress window open.
    void StayBusy() { staysBusy_ = true; }

  private:
    Context& context_;
    Form& form_;
    int stages_;
    bool progressIsOpen_ = false;
    bool staysBusy_ = false;
};

// While it lives the form is not drawn.
class FrozenForm {
  public:
    explicit FrozenForm(Form& form) : form_(form) { ++form_.frozen; }
    ~FrozenForm() { --form_.frozen; }
    FrozenForm(const FrozenForm&) = delete;
    FrozenForm& operator=(const FrozenForm&) = delete;

  private:
    Form& form_;
};

}  // namespace orlo

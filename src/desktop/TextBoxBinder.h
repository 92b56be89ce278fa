#pragma once

#include <QLineEdit>

#include "desktop/Binder.h"

namespace orlo {

// A text box of one line.
class LineBinder : public Binder {
  public:
    LineBinder(TextBox& box, QWidget& parent, EventSink& sink);
    void TakeRequests() override;
    void DrawPointer(PointerShape shape) override;

  protected:
    void DrawContent() override;
    void GoBack() override;

  private:
    void ShowText();

    TextBox& box_;
    QLineEdit& shown_;
    DrawnText text_;
    bool drawing_ = false;
};

class PageEdit;

// A text box of several lines. They end with CR LF in the form, with LF in the widget.
class TextBinder : public Binder {
  public:
    TextBinder(TextBox& box, QWidget& parent, EventSink& sink);
    void TakeRequests() override;
    void DrawPointer(PointerShape shape) override;

  protected:
    void DrawContent() override;
    void GoBack() override;

  private:
    void ShowText();

    TextBox& box_;
    PageEdit& shown_;
    DrawnText text_;
};

}  // namespace orlo

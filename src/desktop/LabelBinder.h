#pragma once

#include <QLabel>

#include "desktop/Binder.h"

namespace orlo {

class LabelBinder : public Binder {
  public:
    LabelBinder(Label& label, QWidget& parent, EventSink& sink);

    // The widget that the label names. The mnemonic gives it the focus, if it takes one.
    void SetBuddy(QWidget& widget);

  protected:
    void DrawContent() override;

  private:
    Label& label_;
    QLabel& shown_;
    QWidget* named_ = nullptr;  // whose accessible name is written here; null for none
    DrawnText caption_;
};

}  // namespace orlo

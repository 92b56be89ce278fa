#pragma once

#include <QLabel>

#include "desktop/Binder.h"

namespace orlo {

class LabelBinder : public Binder {
  public:
    LabelBinder(Label& label, QWidget& parent, EventSink& sink);

    // The widget that the label names. Its mnemonic goes there, where the widget takes the focus.
    void SetBuddy(QWidget& widget);

  protected:
    void DrawContent() override;

  private:
    Label& label_;
    QLabel& shown_;
    QWidget* named_ = nullptr;  // what doesn't take its name from its label by itself
    DrawnText caption_;
};

}  // namespace orlo

#pragma once

#include <QLabel>

#include "desktop/Binder.h"

namespace orlo {

class LabelBinder : public Binder {
  public:
    LabelBinder(Label& label, QWidget& parent, EventSink& sink);

    // The widget that the label's mnemonic goes to.
    void SetBuddy(QWidget& widget) { shown_.setBuddy(&widget); }

  protected:
    void DrawContent() override;

  private:
    Label& label_;
    QLabel& shown_;
    DrawnText caption_;
};

}  // namespace orlo

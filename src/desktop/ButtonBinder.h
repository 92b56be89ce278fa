#pragma once

#include <QPushButton>

#include "desktop/Binder.h"

namespace orlo {

class ButtonBinder : public Binder {
  public:
    ButtonBinder(Button& button, QWidget& parent, EventSink& sink);

  protected:
    void DrawContent() override;

  private:
    Button& button_;
    QPushButton& shown_;
    DrawnText caption_;
};

}  // namespace orlo

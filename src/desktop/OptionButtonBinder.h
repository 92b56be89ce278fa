#pragma once

#include <QRadioButton>

#include "desktop/Binder.h"

namespace orlo {

class OptionButtonBinder : public Binder {
  public:
    OptionButtonBinder(OptionButton& option, QWidget& parent, EventSink& sink);

  protected:
    void DrawContent() override;
    void GoBack() override;

  private:
    void ShowChecked(bool on);

    OptionButton& option_;
    QRadioButton& shown_;
    DrawnText caption_;
};

}  // namespace orlo

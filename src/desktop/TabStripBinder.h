#pragma once

#include <QTabBar>

#include "desktop/Binder.h"

namespace orlo {

// Draws the strip alone; the panes are other controls.
class TabStripBinder : public Binder {
  public:
    TabStripBinder(TabStrip& tabs, QWidget& parent, EventSink& sink);

  protected:
    void DrawContent() override;
    void GoBack() override;

  private:
    TabStrip& tabs_;
    QTabBar& shown_;
};

}  // namespace orlo

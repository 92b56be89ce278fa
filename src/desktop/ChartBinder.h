#pragma once

#include "desktop/Binder.h"
#include "desktop/ChartWidget.h"
#include "forms/Chart.h"

namespace orlo {

class ChartBinder : public Binder {
  public:
    ChartBinder(Chart& chart, QWidget& parent, EventSink& sink)
        : Binder(chart, *new ChartWidget(&parent), sink), shown_(static_cast<ChartWidget&>(Widget())) {}

  protected:
    void DrawContent() override;

  private:
    ChartWidget& shown_;
    std::int64_t drawnRevision_ = -1;
};

}  // namespace orlo

#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>

#include "desktop/Binder.h"

namespace orlo {

// Binders of controls that only show something. A picture also takes clicks.

class FrameBinder : public Binder {
  public:
    FrameBinder(Frame& frame, QWidget& parent, EventSink& sink)
        : Binder(frame, *new QGroupBox(&parent), sink), shown_(static_cast<QGroupBox&>(Widget())) {}

  protected:
    void DrawContent() override;

  private:
    QGroupBox& shown_;
    DrawnText caption_;
};

// A pane, or the program's emblem where Picture::emblem says so; the emblem takes clicks.
class PictureBinder : public Binder {
  public:
    PictureBinder(Picture& picture, QWidget& parent, EventSink& sink);

  protected:
    void DrawContent() override {}
};

class ProgressBarBinder : public Binder {
  public:
    ProgressBarBinder(ProgressBar& bar, QWidget& parent, EventSink& sink)
        : Binder(bar, *new QProgressBar(&parent), sink), shown_(static_cast<QProgressBar&>(Widget())) {}

  protected:
    void DrawContent() override;

  private:
    QProgressBar& shown_;
};

class StatusBarBinder : public Binder {
  public:
    StatusBarBinder(StatusBar& bar, QWidget& parent, EventSink& sink);

  protected:
    void DrawContent() override;

  private:
    QLabel& shown_;
    DrawnText text_;
};

}  // namespace orlo

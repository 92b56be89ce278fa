#pragma once

#include <QObject>
#include <QPoint>
#include <QWidget>
#include <optional>
#include <string>

#include "desktop/EventSink.h"
#include "forms/Form.h"

namespace orlo {

// Ties one control of a form to its widget. It draws what has changed in the control since the last drawing;
// when the user acts, it writes the control and posts the event. The widget is owned by its window; it, the
// control and the sink must outlive the binder.
class Binder {
  public:
    Binder(Control& control, QWidget& widget, EventSink& sink);
    Binder(const Binder&) = delete;
    Binder& operator=(const Binder&) = delete;
    virtual ~Binder() = default;

    Control& Of() const { return control_; }
    QWidget& Widget() const { return widget_; }

    // Shows in the widget what the control says. The contents of a hidden control wait until it is shown.
    void Draw();
    // Shows the form's pointer in a widget that has a pointer of its own.
    virtual void DrawPointer(PointerShape) {}
    // Carries out the control's requests and clears them.
    virtual void TakeRequests() {}
    // The value of a Hover at this place of the widget's content: a tree's node, or -1 for none.
    virtual std::int32_t HoverValue(const QPoint&) const { return -1; }

  protected:
    virtual void DrawContent() = 0;

    // Runs `write`, which writes the form, and posts the event. Where the event would be dropped, the form
    // stays as it is and the widget goes back to it.
    template <typename Write>
    void UserActs(EventKind kind, Write write, std::int32_t value = 0) {
        const Event event{&control_.form, &control_, kind, value};
        if (sink_.Accepts(event)) {
            write();
            sink_.Post(event);
        } else {
            GoBack();
        }
    }
    // Shows again what the form says, after the user changed the widget alone.
    virtual void GoBack() {}
    bool Takes(EventKind kind) const { return sink_.Accepts({&control_.form, &control_, kind}); }
    void Post(EventKind kind, std::int32_t value = 0) {
        sink_.Post({&control_.form, &control_, kind, value});
    }

    // The receiver of the signals' connections, which end with it.
    QObject life;

  private:
    void DrawCommon();

    Control& control_;
    QWidget& widget_;
    EventSink& sink_;
    std::optional<bool> drawnVisible_;
    std::string drawnToolTip_;
    std::string drawnAccessibleName_;
    Colour drawnColour_ = Colour::WindowText;
};

// The text that was drawn last; none before the first drawing.
class DrawnText {
  public:
    // Whether the text differs from it. The text counts as drawn from now on.
    bool Changes(const std::string& text) {
        if (drawn_ == text) return false;
        drawn_ = text;
        return true;
    }

  private:
    std::optional<std::string> drawn_;
};

// The caption without the "&" of its mnemonic, for widgets that would draw it; "&&" becomes "&".
QString WithoutMnemonic(const std::string& caption);

}  // namespace orlo

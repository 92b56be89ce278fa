#pragma once

#include <QObject>
#include <QPoint>
#include <QWidget>
#include <optional>
#include <string>

#include "desktop/EventSink.h"
#include "forms/Form.h"

namespace orlo {

// Ties one control of a form to its widget: draws the control by comparing it with what was drawn last,
// writes it when the user acts, and posts the event. The widget belongs to its window and outlives the
// binder.
class Binder {
  public:
    Binder(Control& control, QWidget& widget, EventSink& sink);
    Binder(const Binder&) = delete;
    Binder& operator=(const Binder&) = delete;
    virtual ~Binder() = default;

    Control& Of() const { return control_; }
    QWidget& Widget() const { return widget_; }

    // Brings the widget to what the control says. The contents of a hidden control wait until it is shown.
    void Draw();
    // Shows the pointer of the form where the widget has one of its own.
    virtual void DrawPointer(PointerShape) {}
    // Does what the control asks for once, and clears the requests.
    virtual void TakeRequests() {}
    // What a Hover at this place of `on`, the widget or one inside it, tells as its value.
    virtual std::int32_t HoverValue(const QPoint&) const { return -1; }

  protected:
    virtual void DrawContent() = 0;

    // Lets `write` write the form and posts the event; where it would be dropped the widget goes back to what
    // the form says.
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
    // Brings the widget back to the form after the user changed it alone.
    virtual void GoBack() {}
    bool Takes(EventKind kind) const { return sink_.Accepts({&control_.form, &control_, kind}); }
    void Post(EventKind kind, std::int32_t value = 0) {
        sink_.Post({&control_.form, &control_, kind, value});
    }

    // The receiver of connections, so that they end with the binder.
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

// A text that was drawn last; empty before the first drawing.
class DrawnText {
  public:
    // Whether the text is another one; it counts as drawn from now on.
    bool Changes(const std::string& text) {
        if (drawn_ == text) return false;
        drawn_ = text;
        return true;
    }

  private:
    std::optional<std::string> drawn_;
};

// A form keeps its texts with the mnemonic's "&". Where the toolkit draws it as it stands, it is left out.
QString WithoutMnemonic(const std::string& caption);

}  // namespace orlo

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "forms/Control.h"
#include "forms/Layout.h"

namespace orlo {

enum class PointerShape { Normal, Hourglass };
enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// The window's place in the units of its front end. A height of -1: no place is stored.
struct WindowBox {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = -1;
};

// The least and the largest size of a window, in pixels.
struct WindowLimits {
    std::int32_t minimumWidth = 0;
    std::int32_t minimumHeight = 0;
    std::int32_t maximumWidth = 0;
    std::int32_t maximumHeight = 0;

    bool operator==(const WindowLimits&) const = default;
};

// A window as data. Writing it by code fires nothing.
struct Form {
    Form(std::string_view nameOf, std::string_view captionOf);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    const std::string name;
    std::string caption;
    std::string documentName;       // of the file that it shows, for its title; empty for none
    bool documentModified = false;  // what it shows differs from that file
    bool enabled = true;
    bool visible = false;
    PointerShape pointer = PointerShape::Normal;
    Form* owner = nullptr;
    WindowState windowState = WindowState::Normal;
    WindowBox box;
    std::int32_t innerWidth = 0;  // at present; written by the front end
    std::int32_t innerHeight = 0;
    std::int32_t leastWidth = 0;  // what its layout needs, beside its limits; written by the front end
    std::int32_t leastHeight = 0;
    bool centreRequest = false;  // the front end moves the window to the screen's centre and clears it
    std::optional<WindowLimits> limits;
    std::int32_t opacity = 255;    // 0 to 255
    bool systemMenuAbout = false;  // the window's system menu has an entry "About"
    bool frameless = false;        // a picture on the screen, without title and border
    bool fixedSize = false;        // as large as its layout needs, and no larger
    bool takesFiles = false;       // a file may be dropped on the window
    Layout layout;                 // of a dialog; one without rows has boxes
    Button* defaultButton = nullptr;
    Button* cancelButton = nullptr;
    int frozen = 0;             // above 0 nothing is drawn
    bool closeRequest = false;  // ends ShowModal, which clears it

    Control* focus = nullptr;   // the control that has the focus
    bool focusRequest = false;  // the front end moves the focus to `focus` and clears this
    void SetFocus(Control& control);

    // In the order of declaration.
    const std::vector<Control*>& Controls() const { return controls_; }
    // By name without regard to case; null when missing.
    Control* Find(std::string_view controlName) const;

  private:
    friend struct Control;
    void Register(Control& control);

    std::vector<Control*> controls_;
    std::unordered_map<std::string, Control*> byName_;  // upper-cased names
};

// The label of a field: declared directly before it in the same container. Null where none is.
Label* LabelOf(const Control& control);

}  // namespace orlo

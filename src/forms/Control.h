#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

struct Form;

enum class ControlKind {
    Button,
    Label,
    TextBox,
    CheckBox,
    OptionButton,
    ComboBox,
    ListView,
    TreeView,
    TabStrip,
    MenuEntry,
    Frame,
    ProgressBar,
    Picture,
    Chart,
    StatusBar,
};

// Colours of texts, where the colour means something.
enum class Colour : std::uint8_t { WindowText, Black, Red, Blue, Gray };

// "text", "black", "red", "blue" or "gray".
std::string_view ColourWord(Colour colour);

// A control's place in its container, set by the front end in units of its own.
struct ControlBox {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const ControlBox&) const = default;
};

// What all controls have. A control registers itself with its form when it is built, in the order of
// declaration, which is also the tab order; so forms and controls are never copied or moved. Captions carry
// "&" in front of their mnemonic.
struct Control {
    Control(ControlKind kindOf, Form& formOf, Control* container, std::string_view nameOf,
            std::string_view captionOf);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const ControlKind kind;
    Form& form;
    Control* const parent;  // the frame, pane or menu that holds it; null directly on the form
    const std::string name;
    std::string caption;
    bool enabled = true;
    bool visible = true;
    Colour colour = Colour::WindowText;
    std::string tag;
    std::string toolTip;
    ControlBox box;
    std::string accessibleName;  // for screen readers, where no caption or label tells enough

    // Children of a disabled or hidden container are disabled or hidden with it.
    bool EffectivelyEnabled() const;
    bool EffectivelyVisible() const;
};

// What a control is built in: a form, or a frame, pane or menu of it.
struct Container {
    Container(Form& formOf) : form(formOf) {}
    Container(Control& control) : form(control.form), parent(&control) {}
    Form& form;
    Control* parent = nullptr;
};

struct Button : Control {
    Button(Container in, std::string_view nameOf, std::string_view captionOf)
        : Control(ControlKind::Button, in.form, in.parent, nameOf, captionOf) {}
};

struct Label : Control {
    Label(Container in, std::string_view nameOf, std::string_view captionOf)
        : Control(ControlKind::Label, in.form, in.parent, nameOf, captionOf) {}
    bool plainCaption = false;  // "&" marks no mnemonic in it; shortened where it doesn't fit
};

enum class TextBoxStyle { SingleLine, MultiLine, FixedFont };

struct TextBox : Control {
    TextBox(Container in, std::string_view nameOf, TextBoxStyle styleOf = TextBoxStyle::SingleLine)
        : Control(ControlKind::TextBox, in.form, in.parent, nameOf, ""), style(styleOf) {}
    TextBoxStyle style;
    std::string text;
    bool readOnly = false;
    bool selectAllRequest = false;  // taken once by the front end
    bool goToEndRequest = false;    // moves the cursor behind the last character; taken once too
};

struct CheckBox : Control {
    CheckBox(Container in, std::string_view nameOf, std::string_view captionOf)
        : Control(ControlKind::CheckBox, in.form, in.parent, nameOf, captionOf) {}
    bool checked = false;
};

// One of the options in its frame (or directly on its form or pane); where the user checks one, the others
// are cleared.
struct OptionButton : Control {
    OptionButton(Container in, std::string_view nameOf, std::string_view captionOf)
        : Control(ControlKind::OptionButton, in.form, in.parent, nameOf, captionOf) {}
    bool checked = false;

    // Checks this one and clears the others.
    void Check();
};

struct ComboEntry {
    std::string text;
    std::int32_t itemData = 0;
};

enum class ComboStyle { List, Editable };

struct ComboBox : Control {
    ComboBox(Container in, std::string_view nameOf, ComboStyle styleOf = ComboStyle::List)
        : Control(ControlKind::ComboBox, in.form, in.parent, nameOf, ""), style(styleOf) {}
    ComboStyle style;
    bool wide = false;  // its entries are long: it asks for room for them
    std::vector<ComboEntry> entries;
    std::int32_t index = -1;    // of the selected entry, -1 for none
    std::string typed;          // text in the field of an editable one while no entry is selected
    std::int64_t revision = 0;  // counts changes of the entries

    void Clear();
    void Add(std::string_view text, std::int32_t itemData = 0);
    // The selected entry's text; without one what was typed.
    const std::string& Text() const;
    // Puts a text into the field of an editable one; no entry is selected then.
    void Type(std::string_view text);
    // Selects the first entry of exactly this text; without one the selection stays and the result is false.
    bool SelectText(std::string_view text);
    // The same without regard to case.
    bool SelectTextNoCase(std::string_view text);
    void SelectFirst() { index = entries.empty() ? -1 : 0; }
};

struct TabPage {
    std::string key;
    std::string caption;
};

struct TabStrip : Control {
    TabStrip(Container in, std::string_view nameOf)
        : Control(ControlKind::TabStrip, in.form, in.parent, nameOf, "") {}
    std::vector<TabPage> pages;
    std::string selectedKey;
};

struct MenuEntry : Control {
    MenuEntry(Container in, std::string_view nameOf, std::string_view captionOf)
        : Control(ControlKind::MenuEntry, in.form, in.parent, nameOf, captionOf) {}
    bool checkable = false;
    bool radio = false;  // of the radio entries below one parent one is ticked
    bool checked = false;
    bool separatorBefore = false;
    bool popup = false;         // the root of a pop-up menu, not part of the menu bar
    bool plainCaption = false;  // "&" marks no mnemonic in it, as in a path
    std::string_view shortcut;  // the keys that choose it, such as "Ctrl+O"; empty for none
};

struct Frame : Control {
    Frame(Container in, std::string_view nameOf, std::string_view captionOf)
        : Control(ControlKind::Frame, in.form, in.parent, nameOf, captionOf) {}
};

// A pane that holds controls, or a picture of its own.
struct Picture : Control {
    Picture(Container in, std::string_view nameOf)
        : Control(ControlKind::Picture, in.form, in.parent, nameOf, "") {}
    bool emblem = false;  // shows the program's emblem with its accessible name below
};

struct ProgressBar : Control {
    ProgressBar(Container in, std::string_view nameOf)
        : Control(ControlKind::ProgressBar, in.form, in.parent, nameOf, "") {}
    std::int32_t value = 0;
    std::int32_t maximum = 100;
};

struct StatusBar : Control {
    StatusBar(Container in, std::string_view nameOf)
        : Control(ControlKind::StatusBar, in.form, in.parent, nameOf, "") {}
    std::string text;
};

}  // namespace orlo

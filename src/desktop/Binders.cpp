#include "desktop/Binders.h"

#include "desktop/ButtonBinder.h"
#include "desktop/ChartBinder.h"
#include "desktop/CheckBoxBinder.h"
#include "desktop/ComboBoxBinder.h"
#include "desktop/DisplayBinders.h"
#include "desktop/LabelBinder.h"
#include "desktop/ListViewBinder.h"
#include "desktop/OptionButtonBinder.h"
#include "desktop/TabStripBinder.h"
#include "desktop/TextBoxBinder.h"
#include "desktop/TreeViewBinder.h"

namespace orlo {
namespace {

template <typename Shown, typename Type>
std::unique_ptr<Binder> Make(Control& control, QWidget& parent, EventSink& sink) {
    return std::make_unique<Shown>(static_cast<Type&>(control), parent, sink);
}

}  // namespace

std::unique_ptr<Binder> MakeBinder(Control& control, QWidget& parent, EventSink& sink) {
    switch (control.kind) {
        case ControlKind::Button:
            return Make<ButtonBinder, Button>(control, parent, sink);
        case ControlKind::Label:
            return Make<LabelBinder, Label>(control, parent, sink);
        case ControlKind::TextBox:
            if (static_cast<TextBox&>(control).style == TextBoxStyle::SingleLine)
                return Make<LineBinder, TextBox>(control, parent, sink);
            return Make<TextBinder, TextBox>(control, parent, sink);
        case ControlKind::CheckBox:
            return Make<CheckBoxBinder, CheckBox>(control, parent, sink);
        case ControlKind::OptionButton:
            return Make<OptionButtonBinder, OptionButton>(control, parent, sink);
        case ControlKind::ComboBox:
            return Make<ComboBoxBinder, ComboBox>(control, parent, sink);
        case ControlKind::ListView:
            return Make<ListViewBinder, ListView>(control, parent, sink);
        case ControlKind::TreeView:
            return Make<TreeViewBinder, TreeView>(control, parent, sink);
        case ControlKind::TabStrip:
            return Make<TabStripBinder, TabStrip>(control, parent, sink);
        case ControlKind::Frame:
            return Make<FrameBinder, Frame>(control, parent, sink);
        case ControlKind::ProgressBar:
            return Make<ProgressBarBinder, ProgressBar>(control, parent, sink);
        case ControlKind::Picture:
            return Make<PictureBinder, Picture>(control, parent, sink);
        case ControlKind::StatusBar:
            return Make<StatusBarBinder, StatusBar>(control, parent, sink);
        case ControlKind::Chart:
            return Make<ChartBinder, Chart>(control, parent, sink);
        case ControlKind::MenuEntry:
            break;
    }
    return nullptr;
}

}  // namespace orlo

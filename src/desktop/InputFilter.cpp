#include "desktop/InputFilter.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolTip>
#include <QUrl>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/FormWindow.h"
#include "desktop/InputSink.h"
#include "desktop/ScreenText.h"
#include "shell/UserHands.h"

namespace orlo {
namespace {

// What is dropped where the form takes no input. Releases are not: they only end what a press began, and the
// binders ask again before they write.
bool IsInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::InputMethod:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
        case QEvent::ToolTip:
            return true;
        default:
            return false;
    }
}

// The control that a press would give the focus to, as the toolkit finds it; null when the focus stays.
const Control* FocusTaker(const FormWindow& window, const QPoint& place) {
    for (const QWidget* widget = window.childAt(place); widget != nullptr && widget != &window;
         widget = widget->parentWidget()) {
        if (!widget->isEnabled() || (widget->focusPolicy() & Qt::ClickFocus) == 0) continue;
        const Binder* binder = window.BinderOf(widget);
        return binder == nullptr ? nullptr : &binder->Of();
    }
    return nullptr;
}

// How many tabs the key goes forward, or back where negative; 0 for a key that turns no tab.
int TabSteps(const QKeyEvent& event) {
    if (!event.modifiers().testFlag(Qt::ControlModifier) || event.modifiers().testFlag(Qt::AltModifier))
        return 0;
    switch (event.key()) {
        case Qt::Key_PageDown:
        case Qt::Key_Tab:
            return 1;
        case Qt::Key_PageUp:
        case Qt::Key_Backtab:
            return -1;
        default:
            return 0;
    }
}

EventKey KeyOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return kKeyEnter;
        case Qt::Key_Escape:
            return kKeyEscape;
        case Qt::Key_Insert:
            return kKeyInsert;
        case Qt::Key_Delete:
            return kKeyDelete;
        default:
            return kKeyOther;
    }
}

// The first file of what is dragged; empty where there is none.
std::string DraggedFile(const QDropEvent& event) {
    const QList<QUrl> urls = event.mimeData() != nullptr ? event.mimeData()->urls() : QList<QUrl>();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) return PathFromQString(url.toLocalFile());
    }
    return {};
}

}  // namespace

bool InputFilter::eventFilter(QObject* object, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool watched = IsInput(type) || type == QEvent::MouseButtonRelease || type == QEvent::KeyRelease ||
                         type == QEvent::FocusIn;
    if (!watched) return false;
    FormWindow* window = sink_.WindowOf(object);
    if (window == nullptr) return false;  // a dialog or pop-up of the toolkit
    if (IsInput(type)) {
        if (!sink_.TakesInput(*window)) return true;
        // What was done before runs and is seen before what is done now.
        sink_.CatchUp(*window);
        if (!sink_.TakesInput(*window)) return true;
    }
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return Press(*window, object, *static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            return Release(*static_cast<QMouseEvent*>(event));
        case QEvent::KeyPress:
            return Key(*window, object, *static_cast<QKeyEvent*>(event));
        case QEvent::KeyRelease:
            KeyReleased(*window, object, *static_cast<QKeyEvent*>(event));
            return false;
        case QEvent::Shortcut:
            return Shortcut(*window, object, *static_cast<QShortcutEvent*>(event));
        case QEvent::Wheel:
            return Wheel(*window, object);
        case QEvent::ContextMenu:
            return Popup(*window, qobject_cast<QWidget*>(object),
                         static_cast<QContextMenuEvent*>(event)->globalPos());
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return DragFile(*window, *static_cast<QDropEvent*>(event));
        case QEvent::ToolTip:
            return Hover(*window, object, *static_cast<QHelpEvent*>(event));
        case QEvent::FocusIn:
            FocusIn(*window, object);
            return false;
        default:
            return false;
    }
}

bool InputFilter::Leaves(FormWindow& window, const Control* to) {
    Control* from = window.FocusControl();
    if (!AsksToLeave(from, to)) return true;
    Event event{&from->form, from, EventKind::Leave};
    sink_.DeliverNow(event);
    return !event.refused;
}

// The system's window gets a press before the toolkit moves the focus, a widget only after that.
bool InputFilter::Press(FormWindow& window, QObject* object, QMouseEvent& event) {
    if (!object->isWindowType()) return false;
    swallowedButton_ = 0;
    const Control* to = FocusTaker(window, event.position().toPoint());
    if (to == nullptr) return false;
    const int shown = sink_.DialogsShown();
    if (Leaves(window, to)) {
        // A dialog of the procedure can have taken the release; then the press is dropped too.
        const bool lost =
            shown != sink_.DialogsShown() && !QGuiApplication::mouseButtons().testFlag(event.button());
        if (!lost) return false;
    }
    swallowedButton_ = static_cast<int>(event.button());
    return true;
}

bool InputFilter::Release(QMouseEvent& event) {
    if (swallowedButton_ != static_cast<int>(event.button())) return false;
    swallowedButton_ = 0;
    return true;
}

bool InputFilter::Key(FormWindow& window, QObject* object, QKeyEvent& event) {
    const QWidget* focus = window.focusWidget();
    const bool isTarget = focus != nullptr ? object == focus : object == &window;
    if (!isTarget || window.Shown() == nullptr) return false;
    Form& form = *window.Shown();
    Control* control = window.FocusControl();
    // A form without a frame, the splash, gets every key.
    if (form.frameless && !event.isAutoRepeat()) {
        sink_.Post({&form, nullptr, EventKind::KeyUp, KeyOf(event)});
        return true;
    }
    const Qt::KeyboardModifiers others = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    if (const EventKey key = KeyOf(event); key == kKeyDelete || key == kKeyInsert) {
        pressedKey_ = others == Qt::NoModifier && !shift ? key : kKeyOther;
        pressedOn_ = control;
    }
    if (const int steps = TabSteps(event)) return TurnTab(window, steps);
    if (others != Qt::NoModifier) return false;
    if (shift && event.key() == Qt::Key_F10) return PopupOfCurrent(window);
    if (shift && event.key() == Qt::Key_F1) return TipOfCurrent(window);
    switch (event.key()) {
        case Qt::Key_F1:
            sink_.Post({&form, nullptr, EventKind::Help});
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return !Leaves(window, nullptr);
        case Qt::Key_Return:
        case Qt::Key_Enter: {
            if (EnterEndsLine(control)) return false;
            if (event.isAutoRepeat()) return true;  // a key held down is one click
            Button* button = ButtonOfKey(form, kKeyEnter, control);
            if (button != nullptr) sink_.Post({&form, button, EventKind::Click});
            return button != nullptr;
        }
        case Qt::Key_Escape: {
            Button* button = ButtonOfKey(form, kKeyEscape, control);
            if (button != nullptr && !event.isAutoRepeat()) sink_.Post({&form, button, EventKind::Click});
            return button != nullptr;
        }
        default:
            return false;
    }
}

void InputFilter::KeyReleased(FormWindow& window, QObject* object, QKeyEvent& event) {
    if (object != window.focusWidget() || event.isAutoRepeat()) return;
    const EventKey key = KeyOf(event);
    if (key != kKeyDelete && key != kKeyInsert) return;
    Control* control = window.FocusControl();
    const bool pressedHere = std::exchange(pressedKey_, kKeyOther) == key && pressedOn_ == control;
    if (control != nullptr && pressedHere) sink_.Post({&control->form, control, EventKind::KeyUp, key});
}

// A file goes to the form, wherever on the window it is dropped, and its source keeps it. Anything else that
// is dragged goes to the widgets.
bool InputFilter::DragFile(FormWindow& window, QDropEvent& event) {
    Event dropped{window.Shown(), nullptr, EventKind::DropFile};
    dropped.path = DraggedFile(event);
    if (dropped.path.empty() || !dropped.form->takesFiles) return false;
    event.setDropAction(Qt::CopyAction);
    event.accept();
    if (event.type() == QEvent::Drop) sink_.Post(dropped);
    return true;
}

// A mnemonic moves the focus, so the field is asked first. Those of menus reach actions, not widgets.
bool InputFilter::Shortcut(FormWindow& window, QObject* object, const QShortcutEvent& event) {
    auto* widget = qobject_cast<QWidget*>(object);
    const Binder* binder = window.BinderOf(widget);
    if (binder == nullptr) return false;
    // Where the menu bar and a pane have one mnemonic, it is the menu's.
    if (QMenu* menu = event.isAmbiguous() ? window.Menus().MenuOfKey(event.key()) : nullptr) {
        window.Menus().Bar()->setActiveAction(menu->menuAction());
        if (!menu->actions().isEmpty()) menu->setActiveAction(menu->actions().front());
        return true;
    }
    const Control* to = &binder->Of();
    if (to->kind == ControlKind::Label) {
        const auto& controls = to->form.Controls();
        for (const Control* control : controls) {
            if (LabelOf(*control) == to) to = control;
        }
    }
    if (!Leaves(window, to)) return true;
    // The toolkit presses a button by its mnemonic without giving it the focus.
    if (to->kind == ControlKind::Button) widget->setFocus(Qt::ShortcutFocusReason);
    return false;
}

// A wheel turns no tab, and changes no combo box that lacks the focus.
bool InputFilter::Wheel(FormWindow& window, QObject* object) {
    const Binder* binder = window.BinderOf(qobject_cast<QWidget*>(object));
    if (binder == nullptr) return false;
    const Control& control = binder->Of();
    if (control.kind == ControlKind::TabStrip) return true;
    return control.kind == ControlKind::ComboBox && &control != window.FocusControl();
}

bool InputFilter::Popup(FormWindow& window, const QWidget* widget, const QPoint& place) {
    const Binder* binder = window.BinderOf(widget);
    if (binder == nullptr) return false;
    Control& control = binder->Of();
    if (control.kind != ControlKind::ListView && control.kind != ControlKind::TreeView) return false;
    Event popup{&control.form, &control, EventKind::Popup};
    sink_.DeliverNow(popup);
    if (popup.menu != nullptr && window.Shown() != nullptr) window.Menus().Open(*popup.menu, place);
    return true;
}

bool InputFilter::PopupOfCurrent(FormWindow& window) {
    auto* view = qobject_cast<QAbstractItemView*>(window.focusWidget());
    if (view == nullptr) return false;
    view->scrollTo(view->currentIndex());
    const QRect row = view->visualRect(view->currentIndex());
    return Popup(window, view, view->viewport()->mapToGlobal(row.center()));
}

bool InputFilter::TurnTab(FormWindow& window, int steps) {
    const auto& controls = window.Shown()->Controls();
    const auto found = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
        return control->kind == ControlKind::TabStrip && control->EffectivelyVisible();
    });
    if (found == controls.end()) return false;
    auto& tabs = static_cast<TabStrip&>(**found);
    const auto shown = std::find_if(tabs.pages.begin(), tabs.pages.end(),
                                    [&](const auto& page) { return page.key == tabs.selectedKey; });
    const auto count = static_cast<std::ptrdiff_t>(tabs.pages.size());
    if (shown == tabs.pages.end() || !Leaves(window, &tabs)) return true;
    const std::ptrdiff_t next = (shown - tabs.pages.begin() + steps + count) % count;
    const Event event{&tabs.form, &tabs, EventKind::SelectTab};
    if (!sink_.Accepts(event)) return true;
    tabs.selectedKey = tabs.pages[static_cast<std::size_t>(next)].key;
    sink_.Post(event);
    return true;
}

bool InputFilter::TipOfCurrent(FormWindow& window) {
    auto* view = qobject_cast<QAbstractItemView*>(window.focusWidget());
    if (view == nullptr || !view->currentIndex().isValid()) return false;
    view->scrollTo(view->currentIndex());
    const QPoint place = view->visualRect(view->currentIndex()).center();
    QHelpEvent event(QEvent::ToolTip, place, view->viewport()->mapToGlobal(place));
    if (!Hover(window, view->viewport(), event)) QCoreApplication::sendEvent(view->viewport(), &event);
    return true;
}

bool InputFilter::Hover(FormWindow& window, QObject* object, QHelpEvent& event) {
    auto* widget = qobject_cast<QWidget*>(object);
    const Binder* binder = window.BinderOf(widget);
    if (binder == nullptr) return false;
    Control& control = binder->Of();
    // Over the scroll bars and headers of a view there is no node.
    const auto* area = qobject_cast<QAbstractScrollArea*>(&binder->Widget());
    const bool onContent = area == nullptr || area->viewport() == widget;
    Event hover{&control.form, &control, EventKind::Hover, onContent ? binder->HoverValue(event.pos()) : -1};
    sink_.DeliverNow(hover);
    if (window.Shown() == nullptr) return true;
    // The rows of a list and the values of a chart have tips of their own.
    if (control.kind == ControlKind::ListView || control.kind == ControlKind::Chart) return false;
    QToolTip::showText(event.globalPos(), TipText(control.toolTip), widget);
    return true;
}

// While a focus request waits, the focus that the toolkit moves by itself isn't written.
void InputFilter::FocusIn(FormWindow& window, QObject* object) {
    Form* form = window.Shown();
    const Binder* binder = window.BinderOf(qobject_cast<QWidget*>(object));
    if (form == nullptr || binder == nullptr || form->focusRequest) return;
    form->focus = &binder->Of();
}

}  // namespace orlo

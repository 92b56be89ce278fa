#include "desktop/FormWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyleOptionFrame>
#include <algorithm>

#include "desktop/Binders.h"
#include "desktop/FormLayout.h"
#include "desktop/LabelBinder.h"
#include "desktop/ScreenPlace.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

const QSize kLargestWindow(10000, 10000);

bool SameBox(const WindowBox& a, const WindowBox& b) {
    return a.left == b.left && a.top == b.top && a.width == b.width && a.height == b.height;
}

// The toolkit puts the system's mark of a change where "[*]" stands; doubled it is a text like any other.
QString TitleOf(const Form& form) {
    const QString caption = ToQString(form.caption);
    if (form.documentName.empty()) return caption;
    return ShownText(form.documentName).replace("[*]", "[*][*]") + "[*] - " + caption;
}

}  // namespace

FormWindow::FormWindow(Form& form, EventSink& sink, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), form_(&form), sink_(sink) {
    setObjectName(QString::fromStdString(form.name));
    setAcceptDrops(form.takesFiles);
    Build();
}

FormWindow::~FormWindow() {
    Release();
}

// The order of the controls is the tab order, which the toolkit takes from the order of creation.
void FormWindow::Build() {
    for (Control* control : form_->Controls()) {
        const auto holder = byControl_.find(control->parent);
        QWidget& parent = holder != byControl_.end() ? holder->second->Widget() : *this;
        std::unique_ptr<Binder> binder = MakeBinder(*control, parent, sink_);
        if (binder == nullptr) continue;
        byControl_[control] = binder.get();
        byWidget_[&binder->Widget()] = binder.get();
        binders_.push_back(std::move(binder));
    }
    JoinLabels();
    menus_ = std::make_unique<FormMenus>(*form_, *this, sink_);
    if (PlacedByForm()) {
        resize(form_->innerWidth, form_->innerHeight);
        PlaceMenuBar();
        PlaceControls();
        return;
    }
    LayOut(*form_, *this, menus_->Bar(),
           [this](const Control& control) -> QWidget& { return byControl_.at(&control)->Widget(); });
}

// Whether the boxes of the form's controls say where they stand. Any other form is laid out by the toolkit.
bool FormWindow::PlacedByForm() const {
    return form_->leastWidth > 0;
}

void FormWindow::PlaceControls() {
    for (const auto& binder : binders_) {
        const Control& control = binder->Of();
        QRect place(control.box.left, control.box.top, control.box.width, control.box.height);
        // The box of an option counts from the container of its frame; the widget's parent is the frame.
        if (control.kind == ControlKind::OptionButton && control.parent != nullptr)
            place.translate(-control.parent->box.left, -control.parent->box.top);
        // The rest of the strip's box is behind the panes.
        if (control.kind == ControlKind::TabStrip)
            place.setHeight(std::min(place.height(), binder->Widget().sizeHint().height()));
        // A label is no wider than its text, so that it covers no field.
        if (control.kind == ControlKind::Label)
            place.setWidth(std::min(place.width(), binder->Widget().sizeHint().width()));
        if (binder->Widget().geometry() != place) binder->Widget().setGeometry(place);
    }
}

void FormWindow::PlaceMenuBar() {
    QMenuBar* bar = menus_->Bar();
    if (bar == nullptr) return;
    const int height = bar->heightForWidth(width());
    bar->setGeometry(0, 0, width(), height > 0 ? height : bar->sizeHint().height());
}

void FormWindow::JoinLabels() {
    for (const auto& binder : binders_) {
        const auto label = byControl_.find(LabelOf(binder->Of()));
        if (label != byControl_.end()) static_cast<LabelBinder*>(label->second)->SetBuddy(binder->Widget());
    }
}

void FormWindow::Draw() {
    if (form_ == nullptr) return;
    const bool frozen = form_->frozen > 0;
    if (updatesEnabled() == frozen) setUpdatesEnabled(!frozen);
    if (frozen) return;
    DrawFrame();
    for (const auto& binder : binders_) binder->Draw();
    if (PlacedByForm()) PlaceControls();
    menus_->Draw();
}

void FormWindow::DrawFrame() {
    DrawTitle();
    if (drawnPointer_ != form_->pointer) {
        drawnPointer_ = form_->pointer;
        if (form_->pointer == PointerShape::Hourglass) {
            setCursor(Qt::WaitCursor);
        } else {
            unsetCursor();
        }
        for (const auto& binder : binders_) binder->DrawPointer(form_->pointer);
    }
    if (isWindow()) DrawPlace();
}

void FormWindow::DrawTitle() {
    const QString title = TitleOf(*form_);
    if (windowTitle() != title) setWindowTitle(title);
    const bool modified = form_->documentModified && !form_->documentName.empty();
    if (isWindowModified() != modified) setWindowModified(modified);
}

void FormWindow::DrawPlace() {
    const QScopedValueRollback<bool> placing(placing_, true);
    const bool hasBox = form_->box.height >= 0;
    const QRect asked(form_->box.left, form_->box.top, form_->box.width, form_->box.height);
    if (form_->centreRequest || (hasBox && !isVisible() && !TitleBarReachable(*this, asked))) {
        form_->centreRequest = false;
        const QSize size = hasBox ? asked.size() : this->size();
        QRect place(QPoint(), size.boundedTo(kLargestWindow));
        place.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
        place = PlaceOnScreen(*this, place, minimumSizeHint().expandedTo(LeastSize()));
        setGeometry(place);
        form_->box = {place.x(), place.y(), place.width(), place.height()};
    } else if (hasBox && !SameBox(form_->box, drawnBox_)) {
        setGeometry(asked);
    }
    const QSize least = LeastSize();
    if (!form_->limits && !least.isEmpty()) setMinimumSize(least);
    if (form_->limits) {
        setMinimumSize(QSize(form_->limits->minimumWidth, form_->limits->minimumHeight).expandedTo(least));
        setMaximumSize(form_->limits->maximumWidth, form_->limits->maximumHeight);
    }
    setWindowOpacity(form_->opacity / 255.0);
    if (drawnState_ != form_->windowState) {
        const Qt::WindowStates others = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
        const Qt::WindowState state = form_->windowState == WindowState::Maximised   ? Qt::WindowMaximized
                                      : form_->windowState == WindowState::Minimised ? Qt::WindowMinimized
                                                                                     : Qt::WindowNoState;
        setWindowState(others | state);
    }
    drawnState_ = form_->windowState;
    drawnBox_ = form_->box;
}

QSize FormWindow::LeastSize() const {
    return QSize(form_->leastWidth, form_->leastHeight);
}

// Writes the window's state and, while it is neither minimised nor maximised, its place into the form.
void FormWindow::NotePlace() {
    if (form_ == nullptr || placing_ || !isWindow() || !isVisible()) return;
    form_->windowState = isMinimized()   ? WindowState::Minimised
                         : isMaximized() ? WindowState::Maximised
                                         : WindowState::Normal;
    drawnState_ = form_->windowState;
    if (form_->windowState != WindowState::Normal) return;
    form_->box = {geometry().x(), geometry().y(), geometry().width(), geometry().height()};
    drawnBox_ = form_->box;
}

void FormWindow::TakeRequests() {
    if (form_ == nullptr || form_->frozen > 0 || !isVisible()) return;
    if (form_->focusRequest) {
        const auto found = byControl_.find(form_->focus);
        if (found != byControl_.end()) {
            QWidget& widget = found->second->Widget();
            if (widget.isEnabled() && widget.isVisibleTo(this)) widget.setFocus(Qt::OtherFocusReason);
        }
        form_->focusRequest = false;
        form_->focus = FocusControl();
    }
    for (const auto& binder : binders_) {
        // A request to a hidden control waits, as its contents do.
        if (binder->Of().EffectivelyVisible()) binder->TakeRequests();
    }
}

void FormWindow::Release() {
    aboutEntry.reset();
    byWidget_.clear();
    byControl_.clear();
    menus_.reset();
    binders_.clear();
    form_ = nullptr;
}

Binder* FormWindow::BinderOf(const QWidget* widget) const {
    for (; widget != nullptr && widget != this; widget = widget->parentWidget()) {
        const auto found = byWidget_.find(widget);
        if (found != byWidget_.end()) return found->second;
    }
    return nullptr;
}

Control* FormWindow::FocusControl() const {
    const Binder* binder = BinderOf(focusWidget());
    return binder == nullptr ? nullptr : &binder->Of();
}

// The form closes when its procedure says so.
void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (form_ != nullptr) sink_.Post({form_, nullptr, EventKind::Close});
}

void FormWindow::moveEvent(QMoveEvent*) {
    NotePlace();
}

void FormWindow::resizeEvent(QResizeEvent*) {
    NotePlace();
    if (form_ == nullptr) return;
    if (PlacedByForm()) PlaceMenuBar();
    form_->innerWidth = width();
    form_->innerHeight = height();
    sink_.Post({form_, nullptr, EventKind::Resize});
}

// A form that is shown within another window, as the progress display is, gets an edge.
void FormWindow::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (isWindow()) return;
    QPainter painter(this);
    QStyleOptionFrame edge;
    edge.initFrom(this);
    edge.frameShape = QFrame::StyledPanel;
    edge.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    edge.state |= QStyle::State_Raised;
    style()->drawPrimitive(QStyle::PE_Frame, &edge, &painter, this);
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) NotePlace();
}

}  // namespace orlo

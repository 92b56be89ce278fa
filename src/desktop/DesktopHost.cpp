#include "desktop/DesktopHost.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QPrinter>
#include <QWindow>
#include <algorithm>

#include "desktop/FormWindow.h"
#include "desktop/ScreenPlace.h"
#include "shell/EventPump.h"

namespace orlo {
namespace {

constexpr qint64 kDrawMilliseconds = 40;  // 25 times a second
constexpr int kEndMilliseconds = 20;      // between two tries to close what is open
constexpr int kAboveCentre = 32;          // pixels from the owner's centre up to that of the progress window

const QEvent::Type kRunQueued = static_cast<QEvent::Type>(QEvent::registerEventType());

// A window without a place of its own stands over its owner.
void PlaceOverOwner(FormWindow& window) {
    const QWidget* owner = window.parentWidget();
    if (owner == nullptr || window.Shown()->box.height >= 0) return;
    QRect place(QPoint(), window.sizeHint().expandedTo(window.minimumSize()));
    place.moveCenter(owner->frameGeometry().center());
    window.setGeometry(PlaceOnScreen(window, place, window.minimumSize()));
}

}  // namespace

// Opens a modal form in the pump, and closes it there and on the screen in whatever way its loop ends.
class DesktopHost::ModalRound {
  public:
    ModalRound(DesktopHost& host, Form& form, Form* owner)
        : host_(host), form_(form), outer_(host.pump_->EnterModal(form, owner)) {}
    ModalRound(const ModalRound&) = delete;
    ModalRound& operator=(const ModalRound&) = delete;
    ~ModalRound() {
        if (host_.pump_ == nullptr) return;
        host_.pump_->LeaveModal(form_, outer_);
        host_.Shut(form_);
        host_.ScheduleDraw();
    }

  private:
    DesktopHost& host_;
    Form& form_;
    int outer_;
};

DesktopHost::DesktopHost() {
    drawTimer_.setSingleShot(true);
    QObject::connect(&drawTimer_, &QTimer::timeout, this, [this] { DrawAll(); });
    QObject::connect(&endTimer_, &QTimer::timeout, this, [this] { CloseTopmost(); });
    QGuiApplication::setQuitOnLastWindowClosed(false);
    qApp->installEventFilter(&filter_);
}

DesktopHost::~DesktopHost() {
    Detach();
}

void DesktopHost::Attach(EventPump& pump, ProgressForm& progress) {
    pump_ = &pump;
    progress_ = &progress;
}

void DesktopHost::Detach() {
    drawTimer_.stop();
    endTimer_.stop();
    timers_.clear();
    // The last one first: a parent deletes its children.
    while (!windows_.empty()) {
        FormWindow* window = windows_.back();
        windows_.pop_back();
        delete window;
    }
    pump_ = nullptr;
    progress_ = nullptr;
}

void DesktopHost::TellFailure(const std::string& reason) {
    if (pump_ == nullptr) return;
    pump_->TellFailure(reason);
    ScheduleDraw();
}

bool DesktopHost::Accepts(const Event& event) const {
    return pump_ != nullptr && pump_->Accepts(event);
}

bool DesktopHost::AskToClose(Form& form) {
    if (pump_ == nullptr) return true;
    if (pump_->OperationRuns() || pump_->Windows().TopModal() != nullptr) return false;
    Event event{&form, nullptr, EventKind::Close};
    DeliverNow(event);
    return form.closeRequest;
}

void DesktopHost::Post(const Event& event) {
    if (pump_ == nullptr) return;
    pump_->Post(event);
    if (runPosted_) return;
    runPosted_ = true;
    QCoreApplication::postEvent(this, new QEvent(kRunQueued));
}

void DesktopHost::customEvent(QEvent* event) {
    if (event->type() != kRunQueued || pump_ == nullptr) return;
    runPosted_ = false;
    pump_->RunQueued();
    PumpRan();
}

void DesktopHost::PumpRan() {
    EndClosedLoop();
    ScheduleDraw();
}

void DesktopHost::EndClosedLoop() {
    if (!loops_.empty() && loops_.back().form->closeRequest) loops_.back().loop->quit();
}

void DesktopHost::DeliverNow(Event& event) {
    if (pump_ == nullptr) return;
    pump_->RunQueued();
    pump_->Deliver(event);
    PumpRan();
}

void DesktopHost::CatchUp(FormWindow& window) {
    pump_->RunQueued();
    PumpRan();
    window.Draw();
    window.TakeRequests();
}

bool DesktopHost::TakesInput(const FormWindow& window) const {
    return pump_ != nullptr && window.Shown() != nullptr && pump_->TakesInput(*window.Shown());
}

void DesktopHost::ProcessEvents() {
    if (pump_ == nullptr) return;
    pump_->RunQueued();
    DrawWhenDue();
    QCoreApplication::processEvents();
}

void DesktopHost::RunUntilClosed(Form& form) {
    struct Running {
        std::vector<Loop>& loops;
        ~Running() { loops.pop_back(); }
    };
    QEventLoop loop;
    loops_.push_back({&form, &loop});
    const Running running{loops_};
    ScheduleDraw();
    if (!form.closeRequest) loop.exec();
}

// Again and again, since an operation may go on behind a form or dialog that was closed, and open another.
void DesktopHost::EndUnasked() {
    endTimer_.start(kEndMilliseconds);
}

void DesktopHost::CloseTopmost() {
    QWidget* shown = QApplication::activePopupWidget();
    if (shown == nullptr) shown = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (shown != nullptr) {
        shown->close();
        return;
    }
    if (pump_ == nullptr || pump_->OperationRuns()) return;
    if (loops_.empty() || loops_.front().form->closeRequest) return;
    Form* top = pump_->Windows().TopModal();
    endedUnasked_ = top == nullptr;
    (top == nullptr ? loops_.front().form : top)->closeRequest = true;
    EndClosedLoop();
}

FormWindow* DesktopHost::Find(const Form& form) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const FormWindow* window) { return window->Shown() == &form; });
    return found == windows_.end() ? nullptr : *found;
}

FormWindow* DesktopHost::WindowOf(QObject* object) {
    if (object->isWidgetType()) {
        auto* window = dynamic_cast<FormWindow*>(static_cast<QWidget*>(object)->window());
        return window;
    }
    if (!object->isWindowType()) return nullptr;
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const FormWindow* window) {
        return window->isWindow() && window->windowHandle() == object;
    });
    return found == windows_.end() ? nullptr : *found;
}

QWidget* DesktopHost::OwnerWindow(const Form* owner) const {
    if (owner != nullptr) return Find(*owner);
    if (pump_ != nullptr) {
        for (const Form* modal : pump_->Windows().modal) {
            if (FormWindow* window = Find(*modal)) return window;
        }
    }
    return windows_.empty() ? nullptr : windows_.front();
}

FormWindow& DesktopHost::Open(Form& form, QWidget* parent, Qt::WindowFlags flags) {
    pump_->Windows().Show(form);
    FormWindow* window = Find(form);
    if (window == nullptr) {
        window = new FormWindow(form, *this, parent, flags);
        windows_.push_back(window);
    }
    return *window;
}

void DesktopHost::ShowForm(Form& form) {
    if (pump_ == nullptr) return;
    QWidget* parent = form.owner == nullptr ? nullptr : OwnerWindow(form.owner);
    const Qt::WindowFlags flags = form.frameless ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Window;
    Present(Open(form, parent, flags));
}

void DesktopHost::Present(FormWindow& window) {
    window.Draw();
    PlaceOverOwner(window);
    window.show();
    window.activateWindow();
    window.TakeRequests();
}

void DesktopHost::ShowModal(Form& form, Form* owner) {
    if (pump_ == nullptr) return;
    FormWindow& window = Open(form, OwnerWindow(owner), Qt::Dialog);
    const ModalRound round(*this, form, owner);
    window.setWindowModality(Qt::ApplicationModal);
    Present(window);
    RunUntilClosed(form);
}

// A modal form gets a close request; its ShowModal then closes the window.
void DesktopHost::UnloadForm(Form& form) {
    if (pump_ == nullptr) return;
    const std::vector<Form*>& modal = pump_->Windows().modal;
    if (std::find(modal.begin(), modal.end(), &form) != modal.end()) {
        form.closeRequest = true;
        EndClosedLoop();
    } else {
        Shut(form);
    }
}

// Hides the window and deletes it later, since one of its widgets may be handling an event up the stack. The
// windows whose parent it is close with it.
void DesktopHost::Shut(Form& form) {
    pump_->Windows().Unload(form);
    FormWindow* window = Find(form);
    if (window == nullptr) return;
    std::erase(windows_, window);
    const std::vector<FormWindow*> others = windows_;
    for (const FormWindow* other : others) {
        if (other->parentWidget() == window && other->Shown() != nullptr) Shut(*other->Shown());
    }
    // A modal window counts as active: the system may not have said so yet.
    const bool active = window->isActiveWindow() || window->windowModality() != Qt::NonModal;
    QWidget* owner = active ? window->parentWidget() : nullptr;
    // The next time the window is placed over its owner again.
    if (window->parentWidget() != nullptr) form.box = WindowBox();
    window->Release();
    window->hide();
    // Not every system gives the focus back.
    if (owner != nullptr) owner->activateWindow();
    window->deleteLater();
}

void DesktopHost::SetText(std::string_view text) {
    if (progress_ != nullptr) progress_->lblProgress.caption = text;
}

void DesktopHost::SetMax(int maximum) {
    if (progress_ != nullptr) progress_->pbProgress.maximum = maximum;
}

void DesktopHost::SetValue(int value) {
    if (progress_ != nullptr) progress_->pbProgress.value = value;
}

// The progress display is a child of the owner's window: so it has no close box, and the owner keeps the
// focus.
void DesktopHost::Show(Form* owner) {
    if (pump_ == nullptr) return;
    QWidget* parent = OwnerWindow(owner);
    FormWindow& window = Open(*progress_, parent, parent == nullptr ? Qt::Tool : Qt::Widget);
    window.setAutoFillBackground(true);
    window.Draw();
    PlaceProgress(window);
    window.show();
    window.raise();
}

void DesktopHost::PlaceProgress(FormWindow& window) {
    const QWidget* parent = window.parentWidget();
    if (parent == nullptr) return;
    const QSize size(std::max(parent->width() / 2, window.sizeHint().width()), window.sizeHint().height());
    QRect place(QPoint(), size);
    place.moveCenter(parent->rect().center() - QPoint(0, kAboveCentre));
    window.setGeometry(place);
}

void DesktopHost::Close() {
    if (pump_ != nullptr) Shut(*progress_);
}

void DesktopHost::StartTimer(std::string_view name, int milliseconds) {
    auto timer = std::make_unique<QTimer>();
    timer->setSingleShot(true);
    QObject::connect(timer.get(), &QTimer::timeout, this, [this, text = std::string(name)] {
        // Not from within the timer's own signal: its procedure may arm it again.
        QTimer::singleShot(0, this, [this, text] { FireTimer(text); });
    });
    timer->start(milliseconds);
    timers_.insert_or_assign(std::string(name), std::move(timer));
}

void DesktopHost::StopTimer(std::string_view name) {
    const auto found = timers_.find(name);
    if (found != timers_.end()) timers_.erase(found);
}

bool DesktopHost::TimerArmed(std::string_view name) const {
    return timers_.find(name) != timers_.end();
}

void DesktopHost::FireTimer(const std::string& name) {
    const auto found = timers_.find(name);
    if (found == timers_.end() || found->second->isActive()) return;
    timers_.erase(found);
    Event event;
    event.kind = EventKind::Timer;
    event.name = name;
    DeliverNow(event);
}

void DesktopHost::ScheduleDraw() {
    if (drawTimer_.isActive()) return;
    const qint64 passed = lastDrawn_.isValid() ? lastDrawn_.elapsed() : kDrawMilliseconds;
    drawTimer_.start(static_cast<int>(std::max<qint64>(0, kDrawMilliseconds - passed)));
}

void DesktopHost::DrawWhenDue() {
    if (lastDrawn_.isValid() && lastDrawn_.elapsed() < kDrawMilliseconds) return ScheduleDraw();
    DrawAll();
}

void DesktopHost::DrawAll() {
    if (drawing_) return;
    struct Drawing {
        DesktopHost& host;
        ~Drawing() {
            host.drawing_ = false;
            host.lastDrawn_.start();
        }
    };
    drawing_ = true;
    const Drawing drawing{*this};
    drawTimer_.stop();
    for (FormWindow* window : windows_) {
        window->Draw();
        DrawSystemMenu(*window);
    }
    for (FormWindow* window : windows_) window->TakeRequests();
}

void DesktopHost::DrawSystemMenu(FormWindow& window) {
    Form* form = window.Shown();
    const bool wanted = form != nullptr && form->systemMenuAbout && addAboutToSystemMenu;
    if (!wanted) {
        window.aboutEntry.reset();
    } else if (window.aboutEntry == nullptr && window.internalWinId() != 0) {
        window.aboutEntry = addAboutToSystemMenu(window.internalWinId(), [this, form] {
            Post({form, nullptr, EventKind::SystemMenu});
        });
    }
}

}  // namespace orlo

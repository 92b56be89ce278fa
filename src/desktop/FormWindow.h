#pragma once

#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/Binder.h"
#include "desktop/FormMenus.h"

namespace orlo {

// The window of a form: makes a widget for each control and draws what has changed. After Release it can
// outlive the form, hidden, until the toolkit deletes it.
class FormWindow : public QWidget {
  public:
    FormWindow(Form& form, EventSink& sink, QWidget* parent, Qt::WindowFlags flags);
    ~FormWindow() override;

    Form* Shown() const { return form_; }  // null after Release
    FormMenus& Menus() { return *menus_; }

    // Shows what the form says; nothing while the form is frozen. Runs no procedure.
    void Draw();
    // Carries out the requests of the form and its controls and clears them. They wait while the form is
    // frozen or the window is hidden; those of a hidden control wait until it is shown, but a focus that it
    // can't take is given up.
    void TakeRequests();
    // Forgets the form, and deletes the binders and menus.
    void Release();

    // The entry "About" in the window's system menu; null where there is none.
    std::shared_ptr<void> aboutEntry;

    // The binder whose widget this is, or is inside of; null where there is none.
    Binder* BinderOf(const QWidget* widget) const;
    // The control that has the focus within this window; null for none.
    Control* FocusControl() const;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Build();
    void JoinLabels();
    bool PlacedByForm() const;
    void PlaceControls();
    void PlaceMenuBar();
    void DrawFrame();
    void DrawTitle();
    void DrawPlace();
    void NotePlace();
    QSize LeastSize() const;

    Form* form_;
    EventSink& sink_;
    std::vector<std::unique_ptr<Binder>> binders_;
    std::unordered_map<const QWidget*, Binder*> byWidget_;
    std::unordered_map<const Control*, Binder*> byControl_;
    std::unique_ptr<FormMenus> menus_;
    std::optional<PointerShape> drawnPointer_;
    WindowState drawnState_ = WindowState::Normal;
    WindowBox drawnBox_;
    bool placing_ = false;
};

}  // namespace orlo

#pragma once

#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/Binder.h"
#include "desktop/FormMenus.h"

namespace orlo {

// The window of any form: builds a widget for each control and draws what has changed. It can outlive the
// form, hidden, until the toolkit deletes it.
class FormWindow : public QWidget {
  public:
    FormWindow(Form& form, EventSink& sink, QWidget* parent, Qt::WindowFlags flags);
    ~FormWindow() override;

    Form* Shown() const { return form_; }  // null once released
    FormMenus& Menus() { return *menus_; }

    // Brings the window to what the form says; nothing while the form is frozen. Dispatches nothing.
    void Draw();
    // Moves the focus where a request asks for it, and does what controls ask for once.
    void TakeRequests();
    // Lets go of the form.
    void Release();

    // The binder of the control that the widget is or is part of; null where there is none.
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

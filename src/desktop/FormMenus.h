#pragma once

#include <QMenu>
#include <QMenuBar>
#include <memory>
#include <string>
#include <vector>

#include "desktop/EventSink.h"
#include "forms/Form.h"

namespace orlo {

// The menu bar of a form and its pop-up menus.
class FormMenus {
  public:
    FormMenus(Form& form, QWidget& window, EventSink& sink);
    FormMenus(const FormMenus&) = delete;
    FormMenus& operator=(const FormMenus&) = delete;

    // Null where the form has no menu but pop-ups.
    QMenuBar* Bar() const { return bar_; }
    void Draw();
    // Opens a pop-up menu at a place of the screen; does not wait for a choice.
    void Open(const MenuEntry& root, const QPoint& place);

  private:
    struct Drawn {
        MenuEntry* entry;
        QAction* action;
        QMenu* menu;  // of an entry with entries below it
        std::string caption;
    };
    void Add(MenuEntry& entry, bool hasEntries);
    QWidget* HolderOf(const MenuEntry& entry);
    void Choose(MenuEntry& entry, QAction& action);
    static void DrawEntry(Drawn& drawn);
    static QString CaptionOf(const MenuEntry& entry);

    QWidget& window_;
    EventSink& sink_;
    QMenuBar* bar_ = nullptr;
    std::vector<Drawn> drawn_;
    QObject life_;
};

}  // namespace orlo

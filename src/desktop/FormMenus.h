#pragma once

#include <QMenu>
#include <QMenuBar>
#include <map>
#include <string>
#include <vector>

#include "desktop/EventSink.h"
#include "forms/Form.h"

class QActionGroup;

namespace orlo {

// The menu bar and the pop-up menus of a form, owned by its window.
class FormMenus {
  public:
    FormMenus(Form& form, QWidget& window, EventSink& sink);
    FormMenus(const FormMenus&) = delete;
    FormMenus& operator=(const FormMenus&) = delete;

    // Null where the form has no menu but pop-ups.
    QMenuBar* Bar() const { return bar_; }
    void Draw();
    // The menu of the bar that this key opens, for example Alt+F; null where there is none, or it is disabled
    // or hidden.
    QMenu* MenuOfKey(const QKeySequence& key) const;
    // Opens a pop-up menu at a place of the screen and returns at once.
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
    void JoinGroup(const MenuEntry& entry, QAction& action);
    void Choose(MenuEntry& entry);
    static void DrawEntry(Drawn& drawn);
    static QString CaptionOf(const MenuEntry& entry);

    QWidget& window_;
    EventSink& sink_;
    QMenuBar* bar_ = nullptr;
    std::vector<Drawn> drawn_;
    std::map<const Control*, QActionGroup*> groups_;  // by the menu that holds the entries
    QObject life_;
};

}  // namespace orlo

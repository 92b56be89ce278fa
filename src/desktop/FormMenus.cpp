#include "desktop/FormMenus.h"

#include <QAction>
#include <QActionGroup>
#include <algorithm>

#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr qsizetype kMostCharacters = 120;

}  // namespace

FormMenus::FormMenus(Form& form, QWidget& window, EventSink& sink) : window_(window), sink_(sink) {
    for (Control* control : form.Controls()) {
        if (control->kind != ControlKind::MenuEntry) continue;
        const bool hasEntries = std::any_of(form.Controls().begin(), form.Controls().end(),
                                            [&](const Control* other) { return other->parent == control; });
        Add(static_cast<MenuEntry&>(*control), hasEntries);
    }
    Draw();
}

void FormMenus::Add(MenuEntry& entry, bool hasEntries) {
    QMenu* menu = hasEntries ? new QMenu(&window_) : nullptr;
    QAction* action = menu != nullptr ? menu->menuAction() : new QAction(&window_);
    const QString name = QString::fromStdString(entry.name);
    action->setObjectName(name);
    if (menu != nullptr) menu->setObjectName(name + "Menu");
    if (!entry.popup) {
        QWidget* holder = HolderOf(entry);
        if (entry.separatorBefore && holder != bar_) static_cast<QMenu*>(holder)->addSeparator();
        holder->addAction(action);
    }
    if (entry.radio) JoinGroup(entry, *action);
    if (menu == nullptr) {
        const QString keys =
            QString::fromUtf8(entry.shortcut.data(), static_cast<int>(entry.shortcut.size()));
        action->setShortcut(QKeySequence(keys, QKeySequence::PortableText));
        QObject::connect(action, &QAction::triggered, &life_, [this, &entry] { Choose(entry); });
    }
    drawn_.push_back({&entry, action, menu, {}});
}

QWidget* FormMenus::HolderOf(const MenuEntry& entry) {
    for (const Drawn& drawn : drawn_) {
        if (drawn.entry == entry.parent) return drawn.menu;
    }
    if (bar_ == nullptr) bar_ = new QMenuBar(&window_);
    return bar_;
}

// A group gives its entries the round mark. The form alone says which of them is checked.
void FormMenus::JoinGroup(const MenuEntry& entry, QAction& action) {
    QActionGroup*& group = groups_[entry.parent];
    if (group == nullptr) {
        group = new QActionGroup(&window_);
        group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    }
    group->addAction(&action);
}

QMenu* FormMenus::MenuOfKey(const QKeySequence& key) const {
    for (const Drawn& drawn : drawn_) {
        const bool inBar = drawn.menu != nullptr && drawn.entry->parent == nullptr && !drawn.entry->popup;
        if (inBar && drawn.action->isVisible() && drawn.action->isEnabled() &&
            QKeySequence::mnemonic(drawn.action->text()) == key)
            return drawn.menu;
    }
    return nullptr;
}

QString FormMenus::CaptionOf(const MenuEntry& entry) {
    const QString caption = ToQString(entry.caption);
    if (!entry.plainCaption) return caption;
    // A long path keeps its beginning and its end.
    const bool fits = caption.size() <= kMostCharacters;
    const QString shown =
        fits ? caption
             : caption.left(kMostCharacters / 3) + QChar(0x2026) + caption.right(kMostCharacters * 2 / 3);
    return QString(shown).replace("&", "&&");
}

// The toolkit has inverted the check mark; the drawing undoes it, and the procedure decides.
void FormMenus::Choose(MenuEntry& entry) {
    Draw();
    sink_.Post({&entry.form, &entry, EventKind::Click});
}

void FormMenus::Draw() {
    for (Drawn& drawn : drawn_) DrawEntry(drawn);
}

void FormMenus::DrawEntry(Drawn& drawn) {
    const MenuEntry& entry = *drawn.entry;
    QAction& action = *drawn.action;
    if (drawn.caption != entry.caption) {
        drawn.caption = entry.caption;
        action.setText(CaptionOf(entry));
    }
    if (action.isVisible() != entry.visible) action.setVisible(entry.visible);
    if (action.isEnabled() != entry.EffectivelyEnabled()) action.setEnabled(entry.EffectivelyEnabled());
    if (action.isCheckable() != entry.checkable) action.setCheckable(entry.checkable);
    if (action.isChecked() != entry.checked) action.setChecked(entry.checked);
}

void FormMenus::Open(const MenuEntry& root, const QPoint& place) {
    Draw();
    for (const Drawn& drawn : drawn_) {
        if (drawn.entry == &root && drawn.menu != nullptr) drawn.menu->popup(place);
    }
}

}  // namespace orlo

#include "desktop/TabStripBinder.h"

#include <QGuiApplication>
#include <QSignalBlocker>

#include "desktop/ScreenText.h"

namespace orlo {

TabStripBinder::TabStripBinder(TabStrip& tabs, QWidget& parent, EventSink& sink)
    : Binder(tabs, *new QTabBar(&parent), sink), tabs_(tabs), shown_(static_cast<QTabBar&>(Widget())) {
    shown_.setFocusPolicy(Qt::StrongFocus);
    shown_.setExpanding(false);
    QObject::connect(&shown_, &QTabBar::currentChanged, &life, [this](int index) {
        if (index < 0 || static_cast<std::size_t>(index) >= tabs_.pages.size()) return;
        UserActs(EventKind::SelectTab,
                 [&] { tabs_.selectedKey = tabs_.pages[static_cast<std::size_t>(index)].key; });
    });
    // A click on the selected tab selects it again. The toolkit sends this before it changes tabs.
    QObject::connect(&shown_, &QTabBar::tabBarClicked, &life, [this](int index) {
        const bool left = QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
        if (left && index >= 0 && index == shown_.currentIndex()) UserActs(EventKind::SelectTab, [] {});
    });
}

void TabStripBinder::DrawContent() {
    const QSignalBlocker blocker(shown_);
    const auto count = static_cast<int>(tabs_.pages.size());
    while (shown_.count() > count) shown_.removeTab(shown_.count() - 1);
    while (shown_.count() < count) shown_.addTab(QString());
    for (int i = 0; i < count; ++i) {
        const QString caption = ToQString(tabs_.pages[static_cast<std::size_t>(i)].caption);
        if (shown_.tabText(i) != caption) shown_.setTabText(i, caption);
    }
    GoBack();
}

void TabStripBinder::GoBack() {
    const QSignalBlocker blocker(shown_);
    for (std::size_t i = 0; i < tabs_.pages.size(); ++i) {
        if (tabs_.pages[i].key == tabs_.selectedKey) shown_.setCurrentIndex(static_cast<int>(i));
    }
}

}  // namespace orlo

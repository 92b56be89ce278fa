#include "desktop/ScreenPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace orlo {
namespace {

constexpr int kLeastGrip = 100;  // pixels of a title bar

// A window gets its frame when it is shown; before that the style tells the height.
int TitleHeight(const QWidget& window) {
    const int shown = window.geometry().top() - window.frameGeometry().top();
    return shown > 0 ? shown : window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

}  // namespace

bool TitleBarReachable(const QWidget& window, const QRect& place) {
    const int height = TitleHeight(window);
    const QRect title(place.x(), place.y() - height, place.width(), height);
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        const QRect seen = screen->availableGeometry().intersected(title);
        return seen.height() >= height / 2 && seen.width() >= std::min(kLeastGrip, title.width());
    });
}

QRect PlaceOnScreen(const QWidget& window, QRect place, QSize least) {
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return place;
    QRect room = screen->availableGeometry();
    room.setTop(room.top() + TitleHeight(window));
    place.setSize(place.size().boundedTo(room.size()).expandedTo(least));
    place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() + 1 - place.width())));
    place.moveTop(std::max(room.top(), std::min(place.top(), room.bottom() + 1 - place.height())));
    return place;
}

}  // namespace orlo

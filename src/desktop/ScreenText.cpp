#include "desktop/ScreenText.h"

#include <QByteArray>
#include <QFile>
#include <QGuiApplication>
#include <QPalette>
#include <QTextDocument>

#include "core/Text.h"

namespace orlo {
namespace {

constexpr int kDarkBelow = 128;
constexpr std::size_t kMostShown = 1000;  // bytes

bool GoesOn(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

QString ToQString(std::string_view text) {
    return QString::fromStdString(ToScreen(text));
}

std::string FromQString(const QString& text) {
    return FromScreen(text.toStdString());
}

QString ShownText(std::string_view text) {
    if (text.size() <= kMostShown) return ToQString(text);
    std::size_t end = kMostShown;
    // Not within a character of UTF-8, which has four bytes at most.
    while (end > kMostShown - 4 && GoesOn(text[end])) --end;
    return ToQString(text.substr(0, end)) + QChar(0x2026);
}

QString TipText(std::string_view text) {
    const QString tip = ShownText(text);
    if (!Qt::mightBeRichText(tip)) return tip;
    return "<span>" + tip.toHtmlEscaped().replace('\n', "<br>") + "</span>";
}

QString PathToQString(const std::string& path) {
#ifdef Q_OS_WIN
    return QString::fromStdString(path);
#else
    return QFile::decodeName(QByteArray::fromStdString(path));
#endif
}

std::string PathFromQString(const QString& path) {
#ifdef Q_OS_WIN
    return path.toStdString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

std::optional<QColor> ScreenColour(Colour colour) {
    // Pure colours can't be read on a dark ground.
    const bool dark = QGuiApplication::palette().color(QPalette::Base).lightness() < kDarkBelow;
    switch (colour) {
        case Colour::Black:
            if (dark) break;
            return QColor(0x00, 0x00, 0x00);
        case Colour::Red:
            return dark ? QColor(0xFF, 0x7B, 0x72) : QColor(0xFF, 0x00, 0x00);
        case Colour::Blue:
            return dark ? QColor(0x79, 0xB8, 0xFF) : QColor(0x00, 0x00, 0xFF);
        case Colour::Gray:
            return dark ? QColor(0xA6, 0xA6, 0xA6) : QColor(0x70, 0x70, 0x70);
        case Colour::WindowText:
            break;
    }
    return std::nullopt;
}

}  // namespace orlo

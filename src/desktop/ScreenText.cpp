#include "desktop/ScreenText.h"

#include <QByteArray>
#include <QFile>

#include "core/Text.h"

namespace orlo {

QString ToQString(std::string_view text) {
    return QString::fromStdString(ToScreen(text));
}

std::string FromQString(const QString& text) {
    return FromScreen(text.toStdString());
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
    switch (colour) {
        case Colour::Black:
            return QColor(0x00, 0x00, 0x00);
        case Colour::Red:
            return QColor(0xFF, 0x00, 0x00);
        case Colour::Blue:
            return QColor(0x00, 0x00, 0xFF);
        case Colour::Gray:
            return QColor(0x70, 0x70, 0x70);
        case Colour::WindowText:
            break;
    }
    return std::nullopt;
}

}  // namespace orlo

#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "forms/Control.h"

namespace orlo {

QString ToQString(std::string_view text);
std::string FromQString(const QString& text);

// The same for texts that are only looked at: no more than a screen could hold, so that one from a damaged
// file can't stop the window.
QString ShownText(std::string_view text);
// A tip, which the toolkit would take for a formatted text where it looks like one.
QString TipText(std::string_view text);

// Paths are the system's bytes.
QString PathToQString(const std::string& path);
std::string PathFromQString(const QString& path);

// As it is read on the ground of lists and fields, dark or light. Nothing for the window's own text colour.
std::optional<QColor> ScreenColour(Colour colour);

}  // namespace orlo

#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "forms/Control.h"

namespace orlo {

// Texts of the forms are in UTF-8 or code page 1252 (ToScreen, FromScreen).
QString ToQString(std::string_view text);
std::string FromQString(const QString& text);

// The same for texts that are only looked at: cut at 1000 bytes, with an ellipsis, so that a huge text from a
// damaged file can't stop the window.
QString ShownText(std::string_view text);
// The same for a tool tip. A text that looks like markup is escaped, so that it shows as it stands.
QString TipText(std::string_view text);

// Paths are the system's bytes, on Windows UTF-8.
QString PathToQString(const std::string& path);
std::string PathFromQString(const QString& path);

// The colour in a shade that can be read on the background of lists and fields. Nothing stands for the
// window's own text colour; on a dark background black is that too.
std::optional<QColor> ScreenColour(Colour colour);

}  // namespace orlo

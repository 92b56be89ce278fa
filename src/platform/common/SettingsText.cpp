#include "platform/common/SettingsText.h"

#include <utility>

#include "core/TextLines.h"

namespace orlo {

InitialisationFile ReadSettingsText(std::string_view text) {
    // All byte order marks go: behind the first, a second one would be the first of the text that is written.
    while (WithoutByteOrderMark(text).size() != text.size()) text = WithoutByteOrderMark(text);
    std::string lines;
    lines.reserve(text.size() + 2);
    while (!text.empty()) lines.append(TakeLine(text)).append("\r\n");
    return InitialisationFile(std::move(lines), kSettingsDialect);
}

}  // namespace orlo

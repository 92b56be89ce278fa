#pragma once

#include <string_view>

#include "core/InitialisationFile.h"

namespace orlo {

// The text form of a settings store: a section for each key path. docs/settings.md tells it.
inline constexpr InitialisationDialect kSettingsDialect{.remarks = ";#",
                                                        .sections = InitialisationDialect::Sections::Whole,
                                                        .quotes = InitialisationDialect::Quotes::Escaped,
                                                        .joined = true};

// Reads the text. In the result all lines end in CR LF.
InitialisationFile ReadSettingsText(std::string_view text);

}  // namespace orlo

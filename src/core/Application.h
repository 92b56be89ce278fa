#pragma once

#include <string_view>

#include "services/MessageHost.h"

namespace orlo {

inline constexpr std::string_view kApplicationTitle = "Orlo";
inline constexpr std::string_view kBackupSuffix = ".orlo.bak";
inline constexpr std::string_view kKeptFolderName = "kept";  // of the kept files (core/KeptFiles.h)

// A message under the application's title; without an owner the front end takes its topmost window.
inline MessageAnswer ShowMessage(MessageHost& messages, std::string_view text, int flags,
                                 Form* owner = nullptr) {
    return messages.ShowMessage(text, flags, kApplicationTitle, owner);
}

// Asks a question with Yes and No.
inline bool UserAgrees(MessageHost& messages, std::string_view question, Form* owner) {
    return ShowMessage(messages, question, kButtonsYesNo | kMarkQuestion, owner) == MessageAnswer::Yes;
}

}  // namespace orlo

#pragma once

#include <string_view>

namespace orlo {

struct Form;

// Buttons, mark and default button of a message, added together.
enum MessageFlags : int {
    kButtonsOk = 0,
    kButtonsYesNoCancel = 3,
    kButtonsYesNo = 4,
    kMarkCritical = 16,
    kMarkQuestion = 32,
    kMarkExclamation = 48,
    kMarkInformation = 64,
    kDefaultSecondButton = 256,
};

// The button that closed a message.
enum class MessageAnswer : int { None = 0, Ok = 1, Cancel = 2, Yes = 6, No = 7 };

// The only way in which logic speaks to the user.
class MessageHost {
  public:
    virtual ~MessageHost() = default;

    // Blocks until the message is answered. A text that is empty after trimming shows nothing and gives None.
    virtual MessageAnswer ShowMessage(std::string_view text, int flags, std::string_view title,
                                      Form* owner) = 0;
};

}  // namespace orlo

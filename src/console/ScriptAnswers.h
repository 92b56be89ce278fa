#pragma once

#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "services/MessageHost.h"

namespace orlo {

// What a script has queued for questions, dialogs and input boxes; nothing in a queue's text is a cancel.
struct QueuedAnswers {
    std::deque<MessageAnswer> replies;
    std::deque<std::optional<std::string>> paths;
    std::deque<std::optional<std::string>> inputs;

    bool Empty() const { return replies.empty() && paths.empty() && inputs.empty(); }
    // Takes the first reply where it is one of these buttons; nothing, which leaves it queued, where not.
    std::optional<MessageAnswer> TakeReply(std::span<const MessageAnswer> buttons);
};

// What a message is answered with where no reply fits: No, and OK where that is the only button.
MessageAnswer AnswerWithoutReply(std::span<const MessageAnswer> buttons);

// "ok", "yes", "no" or "cancel"; "none" for none.
std::string_view AnswerWord(MessageAnswer answer);
std::optional<MessageAnswer> AnswerOfWord(std::string_view word);

// The lines of what is said to the user, with their ends. Nothing stands behind the arrow of a cancel.
std::string MessageLine(std::string_view mark, std::string_view text, MessageAnswer answer);
std::string DialogLine(std::string_view what, std::string_view title, const std::optional<std::string>& path);
std::string InputLine(std::string_view title, std::string_view prompt,
                      const std::optional<std::string>& text);
std::string DocumentLine(std::string_view path);

}  // namespace orlo

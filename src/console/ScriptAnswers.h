#pragma once

#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "services/MessageHost.h"

namespace orlo {

// The answers that a script has queued for questions, dialogs and input boxes, the next one first. A path or
// input without a value is a cancel.
struct QueuedAnswers {
    std::deque<MessageAnswer> replies;
    std::deque<std::optional<std::string>> paths;
    std::deque<std::optional<std::string>> inputs;

    bool Empty() const { return replies.empty() && paths.empty() && inputs.empty(); }
    // Takes the first reply if it is one of these buttons. Otherwise gives nothing and leaves the queue as it
    // is.
    std::optional<MessageAnswer> TakeReply(std::span<const MessageAnswer> buttons);
};

// The answer to a message for which no reply fits: OK where there is one button, else No.
MessageAnswer AnswerWithoutReply(std::span<const MessageAnswer> buttons);

// "ok", "yes", "no" or "cancel"; "none" for none.
std::string_view AnswerWord(MessageAnswer answer);
// Nothing for any other word; case counts.
std::optional<MessageAnswer> AnswerOfWord(std::string_view word);

// The lines that print what was said to the user, each with its LF. The answer stands behind an arrow;
// nothing does without a path or text, which is a cancel.
std::string MessageLine(std::string_view mark, std::string_view text, MessageAnswer answer);
std::string DialogLine(std::string_view what, std::string_view title, const std::optional<std::string>& path);
std::string InputLine(std::string_view title, std::string_view prompt,
                      const std::optional<std::string>& text);
std::string DocumentLine(std::string_view path);

}  // namespace orlo

#include "console/ScriptAnswers.h"

#include <algorithm>
#include <array>

#include "console/ScriptText.h"
#include "core/Text.h"

namespace orlo {
namespace {

struct WordOfAnswer {
    MessageAnswer answer;
    std::string_view word;
};
constexpr std::array<WordOfAnswer, 4> kWords = {{{MessageAnswer::Ok, "ok"},
                                                 {MessageAnswer::Yes, "yes"},
                                                 {MessageAnswer::No, "no"},
                                                 {MessageAnswer::Cancel, "cancel"}}};

std::string ArrowLine(std::string_view said, const std::optional<std::string>& answer) {
    return answer ? Concat(said, " -> ", Printed(*answer), "\n") : Concat(said, " ->\n");
}

}  // namespace

std::optional<MessageAnswer> QueuedAnswers::TakeReply(std::span<const MessageAnswer> buttons) {
    if (replies.empty() || std::find(buttons.begin(), buttons.end(), replies.front()) == buttons.end())
        return std::nullopt;
    const MessageAnswer reply = replies.front();
    replies.pop_front();
    return reply;
}

MessageAnswer AnswerWithoutReply(std::span<const MessageAnswer> buttons) {
    return buttons.size() == 1 ? MessageAnswer::Ok : MessageAnswer::No;
}

std::string_view AnswerWord(MessageAnswer answer) {
    for (const WordOfAnswer& entry : kWords) {
        if (entry.answer == answer) return entry.word;
    }
    return "none";
}

std::optional<MessageAnswer> AnswerOfWord(std::string_view word) {
    for (const WordOfAnswer& entry : kWords) {
        if (entry.word == word) return entry.answer;
    }
    return std::nullopt;
}

std::string MessageLine(std::string_view mark, std::string_view text, MessageAnswer answer) {
    return Concat("message ", mark, " \"", PrintedMessage(text), "\" -> ", AnswerWord(answer), "\n");
}

std::string DialogLine(std::string_view what, std::string_view title,
                       const std::optional<std::string>& path) {
    return ArrowLine(Concat("dialog ", what, " \"", PrintedMessage(title), "\""), path);
}

std::string InputLine(std::string_view title, std::string_view prompt,
                      const std::optional<std::string>& text) {
    const std::string said = Concat("input \"", PrintedMessage(title), "\" \"", PrintedMessage(prompt), "\"");
    return ArrowLine(said, text ? std::optional(ReplaceAll(*text, "\\", "\\\\")) : std::nullopt);
}

std::string DocumentLine(std::string_view path) {
    return Concat("document ", path, "\n");
}

}  // namespace orlo

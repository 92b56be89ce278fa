#include "console/ScriptText.h"

#include "core/Text.h"

namespace orlo {
namespace {

bool IsBlank(char character) {
    return character == ' ' || character == '\t';
}

std::string WithEscapes(std::string_view text) {
    std::string out = ReplaceAll(ReplaceAll(text, "\r\n", "\\n"), "\n", "\\n");
    return ReplaceAll(ReplaceAll(out, "\r", "\\n"), "\t", "\\t");
}

}  // namespace

std::optional<std::vector<std::string>> SplitScriptLine(std::string_view line) {
    std::vector<std::string> words;
    std::size_t at = 0;
    for (;;) {
        while (at < line.size() && IsBlank(line[at])) ++at;
        if (at == line.size()) return words;
        std::string word;
        if (line[at] == '"') {
            for (++at;; ++at) {
                if (at >= line.size()) return std::nullopt;
                if (line[at] == '"') {
                    if (at + 1 >= line.size() || line[at + 1] != '"') break;
                    ++at;
                }
                word.push_back(line[at]);
            }
            ++at;
        } else {
            while (at < line.size() && !IsBlank(line[at])) word.push_back(line[at++]);
        }
        words.push_back(std::move(word));
    }
}

std::string TypedLines(std::string_view word) {
    std::string typed;
    for (std::size_t at = 0; at < word.size(); ++at) {
        const char next = word[at] == '\\' && at + 1 < word.size() ? word[at + 1] : '\0';
        if (next == 'n') {
            typed.append("\r\n");
        } else {
            typed.push_back(word[at]);
        }
        if (next == 'n' || next == '\\') ++at;
    }
    return typed;
}

std::string Printed(std::string_view text) {
    return ToScreen(WithEscapes(text));
}

std::string PrintedMessage(std::string_view text) {
    return Printed(ReplaceAll(text, "\\", "\\\\"));
}

}  // namespace orlo

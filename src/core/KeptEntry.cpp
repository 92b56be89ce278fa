#include "core/KeptEntry.h"

#include <algorithm>
#include <charconv>

#include "core/Number.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::size_t kMostDigits = 15;
constexpr int kUsualDigits = 6;  // so that the names sort
constexpr std::size_t kHashDigits = 16;
constexpr std::size_t kContentDigits = 12;  // of them; the others tell the path
constexpr std::string_view kHexDigits = "0123456789abcdef";

constexpr std::string_view kHead = "Orlo kept files";
constexpr std::string_view kWhen = "when";
constexpr std::string_view kReason = "why";
constexpr std::string_view kFile = "file";

constexpr std::string_view SuffixOf(KeptKind kind) {
    return kind == KeptKind::Entry ? ".txt" : ".kept";
}

// A text in one line: a path can hold any byte.
std::string OneLine(std::string_view text) {
    return ReplaceAll(ReplaceAll(ReplaceAll(text, "\\", "\\\\"), "\n", "\\n"), "\r", "\\r");
}

std::string Plain(std::string_view line) {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\' || i + 1 == line.size()) {
            text.push_back(line[i]);
            continue;
        }
        const char escaped = line[++i];
        text.push_back(escaped == 'n' ? '\n' : escaped == 'r' ? '\r' : escaped);
    }
    return text;
}

// Takes the first word and the blank behind it off the line.
std::string_view TakeWord(std::string_view& line) {
    const std::string_view word = BeforeFirst(line, " ");
    line.remove_prefix(std::min(line.size(), word.size() + 1));
    return word;
}

}  // namespace

std::optional<std::int64_t> KeptNumber(std::string_view name, KeptKind kind) {
    if (!name.ends_with(SuffixOf(kind))) return std::nullopt;
    name.remove_suffix(SuffixOf(kind).size());
    const std::string_view digits = BeforeFirst(name, "-");
    if (digits.size() < kUsualDigits || digits.size() > kMostDigits) return std::nullopt;
    if (name.size() != digits.size() + 1 + kHashDigits) return std::nullopt;
    if (name.find_first_not_of(kHexDigits, digits.size() + 1) != name.npos) return std::nullopt;
    if (!std::all_of(digits.begin(), digits.end(), IsDigit)) return std::nullopt;
    std::int64_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

std::string_view KeptHash(std::string_view name) {
    const std::size_t mark = name.find('-');
    return mark == name.npos ? std::string_view() : name.substr(mark + 1, kContentDigits);
}

std::string KeptName(std::int64_t number, std::uint64_t hash, KeptKind kind, std::string_view path) {
    constexpr std::uint64_t kPathBits = 0xFFFF;
    hash = (hash & ~kPathBits) | (HashNoCase(path) & kPathBits);
    std::string digits(kHashDigits, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, hash >>= 4)
        *digit = kHexDigits[hash & 0xF];
    return Concat(FormatDigits(number, kUsualDigits), "-", digits, SuffixOf(kind));
}

std::string FormatKeptEntry(const KeptEntry& entry) {
    std::string text = Concat(kHead, "\r\n", kWhen, " ", OneLine(entry.When), "\r\n", kReason, " ",
                              OneLine(entry.Reason), "\r\n");
    for (const KeptFile& file : entry.Files)
        text += Concat(kFile, " ", file.Content, " ", OneLine(file.Path), "\r\n");
    return text;
}

KeptEntry ParseKeptEntry(std::string_view text) {
    KeptEntry entry;
    for (std::string_view line : SplitLines(text)) {
        const std::string_view key = TakeWord(line);
        if (key == kWhen) {
            entry.When = Plain(line);
        } else if (key == kReason) {
            entry.Reason = Plain(line);
        } else if (key == kFile) {
            const std::string_view content = TakeWord(line);
            if (KeptNumber(content, KeptKind::Content))
                entry.Files.push_back({Plain(line), std::string(content)});
        }
    }
    return entry;
}

}  // namespace orlo

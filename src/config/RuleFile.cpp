#include "config/RuleFile.h"

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {

std::optional<std::string> ReadRuleFile(const std::string& programFolder, FileSystem& files,
                                        MessageHost& messages, std::string_view name,
                                        std::string_view advice) {
    auto text = ReadWholeFile(files, JoinPath(programFolder, name));
    if (!text) {
        ShowMessage(messages, Concat("File '", name, "' not found.", advice), kButtonsOk | kMarkCritical);
    }
    return text;
}

void ShowRuleLineError(MessageHost& messages, std::string_view name, std::string_view line) {
    ShowMessage(messages, Concat("Error in file '", name, "' in line:\n", line), kButtonsOk | kMarkCritical);
}

bool EndsSection(std::string_view line) {
    return !line.empty() && line.front() == '[';
}

std::optional<std::string_view> SectionHead(std::string_view line) {
    const std::size_t end = line.find(']');
    if (!EndsSection(line) || end == std::string_view::npos) return std::nullopt;
    return line.substr(1, end - 1);
}

}  // namespace orlo

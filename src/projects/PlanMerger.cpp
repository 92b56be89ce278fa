#include "projects/PlanMerger.h"

#include <algorithm>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "core/Number.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::size_t kAircraftParts = 3;
constexpr std::size_t kNumberStart = 3;  // behind "AC#"

// A file no further than it was long when it was opened: it may be an output that grows.
class FileAsOpened : public InputFile {
  public:
    explicit FileAsOpened(InputFile& file) : file_(file), left_(file.Size()) {}
    std::size_t Read(std::span<char> buffer) override {
        const auto most = static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), left_));
        const std::size_t read = file_.Read(buffer.first(most));
        left_ -= read;
        return read;
    }
    std::uint64_t Size() const override { return file_.Size(); }

  private:
    InputFile& file_;
    std::uint64_t left_;
};

bool IsComment(std::string_view line) {
    const std::string_view text = TrimBlanks(line);
    return text.starts_with(';') || text.starts_with("//");
}

std::string TitleKey(std::string_view part) {
    const std::string withoutQuotes = RemoveAll(TrimBlanks(part), '"');
    return std::string(TrimBlanks(withoutQuotes));
}

}  // namespace

template <typename Take>
bool PlanMerger::EachLine(const std::string& path, Take take) {
    aircraft_.Flush();
    flights_.Flush();
    const auto file = files_.OpenForReading(path);
    if (file == nullptr) return false;
    FileAsOpened input(*file);
    LineReader reader(input);
    while (const auto line = reader.Next()) take(*line);
    return true;
}

bool PlanMerger::AddAircraft(const std::string& path) {
    return EachLine(path, [this](std::string_view line) { TakeAircraft(line); });
}

bool PlanMerger::AddFlights(const std::string& path) {
    return EachLine(path, [this](std::string_view line) { TakeFlight(line); });
}

void PlanMerger::TakeAircraft(std::string_view line) {
    if (IsComment(line)) return;
    const std::vector<std::string_view> parts = SplitText(line, ',');
    if (parts.size() != kAircraftParts) return;
    const std::string number(parts[0]);
    const std::string title = TitleKey(parts[2]);
    if (const std::string* known = titleIndex_.Find(title)) {
        replacements_.try_emplace(number, *known);
        return;
    }
    if (numberIndex_.Add(number, true)) {
        titleIndex_.Add(title, number);
        const auto value = number.size() > kNumberStart
                               ? ParseWholeNumber(std::string_view(number).substr(kNumberStart))
                               : std::nullopt;
        if (value) highestNumber_ = std::max<std::int64_t>(highestNumber_, *value);
        return aircraft_.Line(line);
    }
    const std::string given = Concat("AC#", ++highestNumber_);
    replacements_.try_emplace(number, given);
    numberIndex_.Add(given, true);
    titleIndex_.Add(title, given);
    aircraft_.Line(ReplaceAll(line, Concat(number, ","), Concat(given, ",")));
}

void PlanMerger::TakeFlight(std::string_view line) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos || replacements_.empty()) return flights_.Line(line);
    const auto found = replacements_.find(std::string(line.substr(0, comma)));
    if (found == replacements_.end() || found->first == found->second) return flights_.Line(line);
    flights_.Line(ReplaceAll(line, Concat(found->first, ","), Concat(found->second, ",")));
}

}  // namespace orlo

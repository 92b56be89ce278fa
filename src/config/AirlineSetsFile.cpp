#include "config/AirlineSetsFile.h"

#include <algorithm>
#include <vector>

#include "config/RuleFile.h"
#include "core/Number.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::string_view kAirlineSetsName = "ORLO_AL.CFG";
constexpr std::int32_t kNoShare = -1;
constexpr std::int32_t kLargestShare = 100;

struct SetKind {
    std::string_view prefix;
    std::vector<AirlineSet> AirlineSets::*list;
};

constexpr SetKind kSetKinds[] = {
    {"REGION:", &AirlineSets::Regions}, {"COUNTRY:", &AirlineSets::Countries},
    {"CITY:", &AirlineSets::Cities},    {"AIRPORT:", &AirlineSets::Airports},
    {"STATE:", &AirlineSets::States},
};

// The set that the line opens; null where it opens none. The pointer holds until the next set is opened.
AirlineSet* OpenSet(AirlineSets& sets, std::string_view line) {
    const auto head = SectionHead(line);
    if (!head) return nullptr;
    if (StartsWithNoCase(*head, "GLOBAL")) return &sets.Global;
    for (const SetKind& kind : kSetKinds) {
        if (!StartsWithNoCase(*head, kind.prefix)) continue;
        const std::string_view name = TrimBlanks(head->substr(kind.prefix.size()));
        if (name.empty()) return nullptr;
        AirlineSet& set = (sets.*kind.list).emplace_back();
        set.Name = name;
        return &set;
    }
    return nullptr;
}

void AddTailPattern(AirlineSet& set, std::string_view pattern) {
    if (!set.TailPatterns.empty()) set.TailPatterns += ',';
    set.TailPatterns += UpperText(pattern);
}

void AddAirline(AirlineSet& set, std::string_view line) {
    const auto parts = SplitText(line, ',');
    AirlineEntry& airline = set.Airlines.emplace_back();
    airline.Name = CleanAirlineName(parts.front());
    if (parts.size() > 1) {
        airline.Percent = std::min(ParseWholeNumber(parts[1]).value_or(kNoShare), kLargestShare);
    }
}

void AddBodyLine(AirlineSet& set, std::string_view line) {
    if (TrimBlanks(line).empty() || line.front() == ';') return;
    if (line.front() == '#') {
        AddTailPattern(set, line.substr(1));
    } else {
        AddAirline(set, line);
    }
}

}  // namespace

std::string CleanAirlineName(std::string_view text) {
    return std::string(BeforeFirst(BeforeFirst(TrimBlanks(text), "("), ";"));
}

AirlineSets ParseAirlines(std::string_view text) {
    AirlineSets sets;
    AirlineSet* open = nullptr;
    for (const std::string_view line : SplitLines(text)) {
        if (EndsSection(line)) {
            open = OpenSet(sets, line);
        } else if (open != nullptr) {
            AddBodyLine(*open, line);
        }
    }
    return sets;
}

bool ReadAirlines(Session& session, FileSystem& files, MessageHost& messages) {
    const auto text = ReadRuleFile(session.ProgramFolder, files, messages, kAirlineSetsName);
    if (!text) return false;
    session.rules.Airlines = ParseAirlines(*text);
    return true;
}

}  // namespace orlo

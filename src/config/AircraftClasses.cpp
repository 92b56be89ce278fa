#include "config/AircraftClasses.h"

#include <array>
#include <utility>
#include <vector>

#include "config/RuleFile.h"
#include "core/AircraftClassNames.h"
#include "core/AircraftLimits.h"
#include "core/Number.h"
#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::string_view kAircraftClassesName = "ORLO_AC.CFG";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kPartCount = 11;

constexpr std::string_view kCommentHeader =
    ";---------------------------------------------------------------------------------\r\n"
    ";------------------------------- A I C R A F T S ---------------------------------\r\n"
    ";---------------------------------------------------------------------------------\r\n"
    ";Format:\r\n"
    ";  ID , Cruise speed , Min. Flight Level , Max. Flight Level ,\r\n"
    ";     Min. Range , Max. Range , Runway Length , Runway Types ,\r\n"
    ";     Min. Parking Radius ,Parking Types , IFR%\r\n"
    ";\r\n"
    ";---------------------------------------------------------------------------------\r\n";

struct BuiltInLimits {
    std::int32_t MaxFL, MinFL, MaxRange, MinRange, CruiseSpeed;
};

// The built-in values of the profiles, by class code.
constexpr std::array<BuiltInLimits, 9> kBuiltInLimits = {{
    {-1, -1, -1, -1, -1},
    {-1, -1, -1, -1, -1},
    {100, 0, 600, 0, 140},
    {150, 0, 1100, 0, 200},
    {150, 80, 1000, 100, 250},
    {370, 100, 1000, 100, 400},
    {370, 100, 2100, 100, 430},
    {420, 250, 5500, 1000, 480},
    {420, 250, 7000, 2000, 490},
}};

ClassProfile BuiltInProfile(std::size_t classCode) {
    const BuiltInLimits& limits = kBuiltInLimits[classCode];
    ClassProfile profile;
    profile.MaxFL = limits.MaxFL;
    profile.MinFL = limits.MinFL;
    profile.MaxRange = limits.MaxRange;
    profile.MinRange = limits.MinRange;
    profile.CruiseSpeed = limits.CruiseSpeed;
    return profile;
}

// A number that can't be read leaves the value that stands.
void SetNumber(std::int32_t& value, std::string_view text) {
    value = ParseWholeNumber(text).value_or(value);
}

// The ten parts behind the name or ID, which profiles and entries have in common.
template <typename Limits>
void SetLimits(Limits& limits, const std::vector<std::string_view>& parts) {
    SetNumber(limits.CruiseSpeed, parts[1]);
    SetNumber(limits.MinFL, parts[2]);
    SetNumber(limits.MaxFL, parts[3]);
    SetNumber(limits.MinRange, parts[4]);
    SetNumber(limits.MaxRange, parts[5]);
    SetNumber(limits.RunwayLength, parts[6]);
    limits.RunwayTypes = parts[7];
    SetNumber(limits.MinParkingRadius, parts[8]);
    limits.ParkingTypes = parts[9];
    SetNumber(limits.IFRPercent, parts[10]);
}

std::size_t ClassOfSection(std::string_view name) {
    for (std::size_t code = kClassNotUsed; code < kAircraftClassNames.size(); ++code) {
        if (EqualNoCase(TrimBlanks(name), kAircraftClassNames[code])) return code;
    }
    return kClassNone;
}

// The line of Huge Jet may have more parts, which are passed over.
bool FitsSectionLine(std::size_t classCode, std::size_t partCount) {
    return partCount == kPartCount || (classCode == kClassHugeJet && partCount > kPartCount);
}

// The class that the line opens; kClassNone for a section of another name; nothing for a wrong count of
// parts.
std::optional<std::size_t> OpenSection(ClassLists& lists, std::string_view line) {
    const auto head = SectionHead(line);
    if (!head) return kClassNone;
    const auto parts = SplitText(*head, ',');
    const std::size_t classCode = ClassOfSection(parts.front());
    if (classCode == kClassNone || classCode == kClassNotUsed) return classCode;
    if (!FitsSectionLine(classCode, parts.size())) return std::nullopt;
    ClassProfile profile = BuiltInProfile(classCode);
    SetLimits(profile, parts);
    lists.Profiles[classCode] = std::move(profile);
    return classCode;
}

// False for a wrong count of parts.
bool AddEntry(ClassLists& lists, std::size_t classCode, std::string_view line) {
    if (classCode == kClassNone || TrimBlanks(line).empty()) return true;
    ClassEntry entry;
    if (classCode == kClassNotUsed) {
        entry.ID = TrimBlanks(line);
    } else {
        const std::size_t partCount = SplitText(line, ',').size();
        if (partCount != 1 && partCount != kPartCount) return false;
        ParseClassEntry(entry, line);
    }
    lists.Entries[classCode].push_back(std::move(entry));
    return true;
}

bool HasOwnLimits(const ClassEntry& entry) {
    return entry.CruiseSpeed != -1 && entry.MinFL != -1 && entry.MaxFL != -1 && entry.MinRange != -1 &&
           entry.MaxRange != -1;
}

}  // namespace

void ParseClassEntry(ClassEntry& entry, std::string_view line) {
    const auto parts = SplitText(line, ',');
    if (parts.size() != 1 && parts.size() != kPartCount) return;
    entry = ClassEntry();
    entry.ID = parts.front();
    if (parts.size() == kPartCount) SetLimits(entry, parts);
}

ParsedClasses ParseAircraftClasses(std::string_view text) {
    ClassLists lists;
    for (std::size_t code = kClassMicroProp; code <= kClassHugeJet; ++code) {
        lists.Profiles[code] = BuiltInProfile(code);
    }
    std::size_t openClass = kClassNone;
    for (const std::string_view line : SplitLines(text)) {
        if (EndsSection(line)) {
            const auto opened = OpenSection(lists, line);
            if (!opened) return {std::nullopt, std::string(line)};
            openClass = *opened;
        } else if (!AddEntry(lists, openClass, line)) {
            return {std::nullopt, std::string(line)};
        }
    }
    return {std::move(lists), {}};
}

std::string FormatAircraftClasses(const ClassLists& lists) {
    std::string text(kCommentHeader);
    for (std::size_t code = kClassMicroProp; code <= kClassHugeJet; ++code) {
        text += Concat(kLineEnd, '[', FormatLimits(kAircraftClassNames[code], lists.Profiles[code]), ']',
                       kLineEnd);
        for (const ClassEntry& entry : lists.Entries[code]) {
            if (entry.ID.empty()) continue;
            text += HasOwnLimits(entry) ? FormatLimits(entry.ID, entry) : entry.ID;
            text += kLineEnd;
        }
    }
    text += Concat(kLineEnd, '[', kAircraftClassNames[kClassNotUsed], ']', kLineEnd);
    for (const ClassEntry& entry : lists.Entries[kClassNotUsed]) {
        if (!entry.ID.empty()) text += Concat(entry.ID, kLineEnd);
    }
    return text;
}

bool ReadAircraftClasses(Session& session, FileSystem& files, MessageHost& messages) {
    const auto text = ReadRuleFile(session.ProgramFolder, files, messages, kAircraftClassesName,
                                   " Please copy the file to the ORLO program folder.");
    if (!text) return false;
    ParsedClasses parsed = ParseAircraftClasses(*text);
    if (!parsed.lists) {
        ShowRuleLineError(messages, kAircraftClassesName, parsed.offendingLine);
        return false;
    }
    session.rules.Classes = std::move(*parsed.lists);
    return true;
}

std::string AircraftClassesPath(const Session& session) {
    return JoinPath(session.ProgramFolder, kAircraftClassesName);
}

bool WriteAircraftClasses(Session& session, FileSystem& files) {
    return session.known.Replace(files, AircraftClassesPath(session),
                                 FormatAircraftClasses(session.rules.Classes));
}

}  // namespace orlo

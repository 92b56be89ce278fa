#include "config/NameLists.h"

#include "config/RuleFile.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

bool ReadNameList(NameList& list, const Session& session, FileSystem& files, MessageHost& messages,
                  std::string_view fileName) {
    list = NameList();
    const auto text = ReadRuleFile(session.ProgramFolder, files, messages, fileName);
    if (!text) return false;
    list = ParseNameList(*text);
    return true;
}

}  // namespace

NameList ParseNameList(std::string_view text) {
    NameList list;
    for (const std::string_view line : SplitLines(text)) {
        const std::string_view name = TrimBlanks(line);
        if (name.empty() || name.front() == ';') continue;
        list.Names.emplace_back(name);
        list.SearchText += Concat('*', name, '*');
    }
    return list;
}

bool ContainsName(const NameList& list, std::string_view name) {
    return ContainsNoCase(list.SearchText, Concat('*', name, '*'));
}

bool ReadAirlineNames(Session& session, FileSystem& files, MessageHost& messages) {
    return ReadNameList(session.rules.AirlineNames, session, files, messages, "ORLO_NAL.CFG");
}

bool ReadModelNames(Session& session, FileSystem& files, MessageHost& messages) {
    return ReadNameList(session.rules.ModelNames, session, files, messages, "ORLO_NMD.CFG");
}

bool ReadTypeNames(Session& session, FileSystem& files, MessageHost& messages) {
    return ReadNameList(session.rules.TypeNames, session, files, messages, "ORLO_NTP.CFG");
}

}  // namespace orlo

// Any bytes as a rule file; the first byte chooses which.

#include <cstdlib>

#include "config/AircraftClasses.h"
#include "config/AirlineSetsFile.h"
#include "config/FlightLevels.h"
#include "config/NameLists.h"
#include "core/Text.h"

namespace {

using namespace orlo;

void Require(bool holds) {
    if (!holds) std::abort();
}

// An ID that a line of the file can't hold as an entry.
bool ReadsOtherwise(const ClassLists& lists) {
    for (const auto& entries : lists.Entries) {
        for (const ClassEntry& entry : entries) {
            if (TrimBlanks(entry.ID).empty() || entry.ID.front() == '[') return true;
        }
    }
    return false;
}

// What was written reads and writes back the same.
void Classes(std::string_view text) {
    const ParsedClasses parsed = ParseAircraftClasses(text);
    if (!parsed.lists || ReadsOtherwise(*parsed.lists)) return;
    const std::string written = FormatAircraftClasses(*parsed.lists);
    const ParsedClasses again = ParseAircraftClasses(written);
    Require(again.lists && again.lists->Profiles == parsed.lists->Profiles);
    Require(FormatAircraftClasses(*again.lists) == written);
}

void Airlines(std::string_view text) {
    const AirlineSets sets = ParseAirlines(text);
    Require(sets.Global.Name.empty());
    for (const auto* list : {&sets.Regions, &sets.Countries, &sets.Cities, &sets.States, &sets.Airports}) {
        for (const AirlineSet& set : *list) {
            Require(!set.Name.empty());
            for (const AirlineEntry& airline : set.Airlines) Require(airline.Percent <= 100);
        }
    }
}

void Names(std::string_view text) {
    const NameList list = ParseNameList(text);
    if (!list.Names.empty()) Require(ContainsName(list, list.Names.back()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (data[0] % 4) {
        case 0:
            Classes(text);
            break;
        case 1:
            Airlines(text);
            break;
        case 2:
            Names(text);
            break;
        default:
            ParseFlightLevels(text);
            break;
    }
    return 0;
}

#include "editors/FSAircraftClass.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/Text.h"
#include "editors/EditedAircraft.h"
#include "simulator/AircraftClassLookup.h"

namespace orlo {
namespace {

std::vector<ClassEntry>& EntriesOf(ClassLists& lists, std::int32_t classCode) {
    return lists.Entries[static_cast<std::size_t>(classCode)];
}

// Empty on a cancel.
std::string AskForEntryID(Context& context, const FSAircraft& aircraft) {
    InputQuestion question;
    question.title = "New class entry";
    question.prompt = "Enter the name for the entry";
    question.text = aircraft.ATCModel.empty() ? aircraft.ATCType : aircraft.ATCModel;
    return EntryID(context.services.windows.InputBox(question).value_or(""));
}

// False where the user gave it up.
bool MoveEntryOf(Context& context, const FSAircraft& aircraft, std::int32_t to) {
    ClassLists& lists = context.session.rules.Classes;
    if (MoveClassEntry(lists, aircraft.Class, to, aircraft.ClassID)) return true;
    ClassEntry entry;
    entry.ID = AskForEntryID(context, aircraft);
    if (entry.ID.empty()) return false;
    EntriesOf(lists, to).push_back(std::move(entry));
    return true;
}

}  // namespace

bool MoveClassEntry(ClassLists& lists, std::int32_t from, std::int32_t to, std::string_view id) {
    std::vector<ClassEntry>& entries = EntriesOf(lists, from);
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [id](const ClassEntry& entry) { return entry.ID == id; });
    if (found == entries.end()) return false;
    ClassEntry entry = std::move(*found);
    entries.erase(found);
    EntriesOf(lists, to).push_back(std::move(entry));
    return true;
}

std::string EntryID(std::string_view typed) {
    const std::string text = ReplaceAll(typed, ",", " ");
    std::string_view id = TrimBlanks(text);
    while (!id.empty() && id.front() == '[') id = TrimBlanks(id.substr(1));
    return std::string(id);
}

void LookUpAllClasses(Session& session) {
    const ClassLists& lists = session.rules.Classes;
    ClassLookup lookup(lists);
    for (FSAircraft& aircraft : session.fleet.FSAircrafts) {
        ApplyAircraftClass(aircraft, lookup.Find(aircraft), lists);
    }
}

void ShowAircraftClass(Context& context) {
    ComboBox& combo = context.forms.frmFSAircraftEdit.cmClass;
    const FSAircraft* edited = EditedAircraft(context);
    const std::int32_t classCode = edited != nullptr ? edited->Class : kClassNone;
    combo.index = classCode - kClassNotUsed;  // the entries stand in the order of the codes
}

void OnAircraftClass(Context& context) {
    const ComboBox& combo = context.forms.frmFSAircraftEdit.cmClass;
    const FSAircraft* edited = EditedAircraft(context);
    if (edited == nullptr || combo.index < 0) return;
    const std::int32_t chosen = combo.entries[static_cast<std::size_t>(combo.index)].itemData;
    if (chosen != edited->Class && MoveEntryOf(context, *edited, chosen)) {
        LookUpAllClasses(context.session);
        ShowAircraftChanged(context);
    }
    ShowAircraftClass(context);
}

}  // namespace orlo

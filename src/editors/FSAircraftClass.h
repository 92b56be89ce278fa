#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Session.h"
#include "mainwindow/Context.h"

namespace orlo {

// Moves the first entry of exactly that ID from one class's list to the end of another's, with its limits.
// False, with nothing changed, where there is no such entry.
bool MoveClassEntry(ClassLists& lists, std::int32_t from, std::int32_t to, std::string_view id);

// A typed ID as a line of ORLO_AC.CFG can hold it: without blanks around it and "[" in front, and with a
// blank for each ",".
std::string EntryID(std::string_view typed);

// Gives each installed aircraft the class, the limits and the ClassID of the entry that it falls under.
void LookUpAllClasses(Session& session);

// Shows the edited aircraft's class in cmClass; none for an unknown one.
void ShowAircraftClass(Context& context);

// A class was chosen: the edited aircraft's entry moves there. Where it has none, the user is asked for the
// ID of a new one, which takes its limits from the class profile; on a cancel nothing changes. All aircraft
// are looked up anew.
void OnAircraftClass(Context& context);

}  // namespace orlo

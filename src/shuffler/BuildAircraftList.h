#pragma once

#include <cstdint>

#include "core/Session.h"
#include "forms/MainForm.h"

namespace orlo {

// Replaces the plan's aircraft by one for each checked aircraft of tvShuffleAircraft, in tree order, numbered
// from session.StartNumber. The title is the node's text in front of its last "(".
void BuildAircraftList(const MainForm& form, Session& session);

// One more than the highest number in use by the plan's aircraft; 1 without any.
std::int32_t NextStartNumber(const Session& session);

}  // namespace orlo

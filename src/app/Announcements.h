#pragma once

#include <string>

#include "engine/GameEvent.h"
#include "engine/Module1.h"
#include "engine/TableControls.h"

namespace blunko {

/// One or two sentences that tell an event to a person who can't see the table, and what the person can do next.
std::string Announcement(GameEvent Event, const Module1& m, const TableControls& t);

/// "two ones and a five score", of the dice that are up.
std::string ScorersInWords(const Module1& m);

}  // namespace blunko

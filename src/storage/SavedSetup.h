#pragma once

#include "engine/GameSetup.h"
#include "storage/GameSettings.h"
#include "storage/IniInfo.h"

namespace blunko {

// The default game, which the new game dialog saves and opens with.

/// The seats as the dialog lays them out for a number of players, 1 to 8.
GameSetup SetupForPlayers(int NumPlayers);
/// Reads the saved game; every unusable field takes the dialog's own value. Keys that are missing are written.
GameSetup ReadSetup(const IniInfo& Info, const GameSettings& Settings);
void WriteSetup(const GameSetup& Setup, const IniInfo& Info, const GameSettings& Settings);

}  // namespace blunko

#pragma once

namespace blunko {

class Desktop;
class GameSettings;
class TbkUtil;

// What the player is asked before the table comes up.

/// Asked once in the life of an installation, whatever the answer.
void SurveyHardware(GameSettings& Settings, Desktop& Screen, const TbkUtil& Util);
/// False when the player has gone off to fetch a newer version: then the program ends.
bool CheckForUpdate(Desktop& Screen, const TbkUtil& Util);

}  // namespace blunko

#pragma once

namespace blunko {

class Desktop;
class GameSettings;
class TbkUtil;

/// What the player is asked before the table comes up.
class StartQuestions {
 public:
  StartQuestions(GameSettings& Options, Desktop& Screen, const TbkUtil& Library)
      : settings(Options), desktop(Screen), util(Library) {}

  /// Asked once in the life of an installation, whatever the answer.
  void SurveyHardware();
  /// False when the player has gone off to fetch a newer version: then the program ends.
  bool CheckForUpdate();

 private:
  GameSettings& settings;
  Desktop& desktop;
  const TbkUtil& util;
};

}  // namespace blunko

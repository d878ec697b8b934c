#include <algorithm>
#include <string>

#include "engine/Game.h"
#include "engine/ScoreDice.h"

namespace blunko {

namespace {

constexpr int PauseAfterDieOfGroup = 200;  // ms
constexpr int PauseAfterTaking = 100;      // ms

std::string_view UndoStatus(const Word& ActionSet) {
  if (ActionSet == "s") return "Select Dice. (Undo)";
  if (ActionSet == "sp") return "Select Dice or Pass Dice. (Undo)";
  if (ActionSet == "r") return "Roll the dice. (Undo)";
  if (ActionSet == "p") return "Pass The Dice. (Undo)";
  if (ActionSet == "rp") return "Roll or pass the dice. (Undo)";
  if (ActionSet == "rs") return "Select dice or roll. (Undo)";
  return "Roll, select, or pass the dice. (Undo)";
}

}  // namespace

void Game::Picture1_MouseUp(std::int16_t Index, std::int16_t Button, std::int16_t, float, float) {
  if (Button == RightButton) {
    if (t.CanPress(t.cmdRoll)) cmdRoll_Click();
  } else if (Index >= 0 && Index < Dice) {
    TakeClickedDice(Index);
  } else if (Index >= 10 && Index < 10 + Dice) {
    UndoSelection(Index);
  }
}

void Game::picTray1_MouseUp(std::int16_t Button, std::int16_t, float, float) {
  if (Button == RightButton && t.CanPress(t.cmdRoll)) cmdRoll_Click();
}

void Game::picTray2_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) {
  picTray1_MouseUp(Button, Shift, X, Y);
}

void Game::TakeClickedDice(int Index) {
  const Word Code = m.DieScoreCode[Index];
  if (!m.DieUp[Index]) return;
  if (Code == NoScore) return desktop.Beep();
  const bool Computer = IsComputerTurn();
  const auto TakeFromGroup = [&](int i) {
    MoveDieToTray(i);
    if (!(Computer && Settings.ComputerSpeed >= SpeedRidiculous)) desktop.Sleep(PauseAfterDieOfGroup);
  };
  if (Code == Single1 || Code == Single5) {
    MoveDieToTray(Index);
  } else if (Code == Straight || Code == ThreePairs) {  // all six, in ascending order of face
    for (int Face = 1; Face <= 6; ++Face) {
      for (int i = 0; i < Dice; ++i) {
        if (m.DieFace[i] == Face) TakeFromGroup(i);
      }
    }
  } else {
    for (int i = 0; i < Dice; ++i) {
      if (m.DieScoreCode[i] == Code) TakeFromGroup(i);
    }
  }
  m.TurnScore = AddScore(m.TurnScore, PointsOf(Code));
  t.lblTurnScore.Caption = std::to_string(m.TurnScore);
  if (Computer && Settings.ComputerSpeed < SpeedRidiculous) desktop.Sleep(PauseAfterTaking);
  CheckSelection();
  program.Announce(GameEvent::Taking);
}

void Game::MoveDieToTray(int Index) {
  if (Settings.MarkScorers) t.picMarker[Index] = false;
  desktop.PlaySoundFile(Settings.GetSound("MoveDie"), false);
  t.Picture1(Index) = 0;
  m.ShownFace[Index] = 0;

  // The die enters at the far right and runs left over the free slots. One that finds no free slot stays in the last,
  // which is never marked as used.
  int Slot = 15;
  const int Picture = Settings.PictureOf(m.DieFace[Index]);
  t.Picture1(Slot) = Picture;
  for (int k = 4; k >= 0; --k) {
    if (m.TrayUsed[k]) continue;
    t.Picture1(Slot) = 0;
    t.Picture1(--Slot) = Picture;
    m.TrayUsed[k] = true;
    m.TrayUsed[k + 1] = false;
  }
  m.TrayFace[Slot - 10] = m.DieFace[Index];
  m.DieUp[Index] = false;
}

bool Game::CanTake(int Index) const {
  if (Index < Dice) return m.DieUp[Index] && IsScorer(m.DieScoreCode[Index]);
  const int FirstFree = 10 + m.TrayCountAtRoll % Dice;  // the slots before it hold dice of earlier rolls
  const bool AnyDieUp = std::any_of(m.DieUp.begin(), m.DieUp.end(), [](bool Up) { return Up; });
  return Index >= FirstFree && m.TrayUsed[Index - 10] && AnyDieUp;
}

void Game::UndoSelection(int Index) {
  if (m.TrayCountAtRoll == Dice) m.TrayCountAtRoll = 0;
  if (!CanTake(Index)) return;
  const int FirstFree = 10 + m.TrayCountAtRoll;

  for (int Slot = FirstFree; Slot <= 15; ++Slot) {
    if (!m.TrayUsed[Slot - 10]) continue;
    int i = 0;
    while (i < Dice && !(m.DieFace[i] == m.TrayFace[Slot - 10] && !m.DieUp[i])) ++i;
    if (i == Dice) continue;

    t.Picture1(Slot) = 0;
    t.Picture1(i) = Settings.PictureOf(m.DieFace[i]);
    m.ShownFace[i] = m.DieFace[i];
    if (Settings.MarkScorers) t.picMarker[i] = true;
    m.TrayUsed[Slot - 10] = false;
    m.TrayFace[Slot - 10] = 0;
    m.DieUp[i] = true;
    m.TurnScore = m.SavedTurnScore;
    t.lblTurnScore.Caption = std::to_string(m.TurnScore);
    desktop.Refresh();
    m.ActionSet = m.SavedActionSet;
    SetStatus(UndoStatus(m.ActionSet));
    desktop.PlaySoundFile(Settings.GetSound("Undo"), false);
    t.cmdRoll.Enabled = false;
    if (!m.ActionSet.contains('p')) t.cmdPassDice.Enabled = false;
  }
  program.Announce(GameEvent::Undo);
}

}  // namespace blunko

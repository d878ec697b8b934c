#include <algorithm>
#include <array>

#include "engine/Game.h"
#include "engine/ScoreDice.h"
#include "engine/ThisGame.h"

namespace blunko {

namespace {

/// How the dice tumble, by the number of dice.
struct Tumble {
  std::string_view Sound;
  int Cycles;
  int WaitPerDie;  // ms, after every single die
};
constexpr std::array<Tumble, Dice + 1> Tumbles{{{"", 0, 0},
                                                {"OneDie", 20, 20},
                                                {"MultiDie", 15, 15},
                                                {"MultiDie", 10, 13},
                                                {"MultiDie", 8, 13},
                                                {"MultiDie", 7, 11},
                                                {"MultiDie", 5, 10}}};

/// The divider stands this far left of the first free slot, in twips.
constexpr int DividerGap = 84;

}  // namespace

void Game::cmdRoll_Click() {
  t.pctDivider.Visible = false;
  if (Settings.MarkScorers) HideMarkers();
  SetStatus("Rolling...");

  std::uint8_t InTray = 0;
  for (int i = 10; i <= 15; ++i) InTray += t.Picture1(i) != 0;
  if (InTray >= 1 && InTray <= 5) {
    t.pctDivider.Left = DieBoxLeft[InTray] - DividerGap;
    t.pctDivider.Visible = true;
    desktop.Refresh();
  }
  m.TrayCountAtRoll = InTray;
  if (InTray == Dice) {  // all six have scored: they come back for a new set in the same turn
    InTray = 0;
    for (int i = 0; i < Dice; ++i) t.Picture1(10 + i) = 0;
    m.TrayFace.fill(0);
    m.TrayUsed.fill(false);
  }
  const std::uint8_t NumDiceUp = Dice - InTray;
  for (int i = 0; i < Dice; ++i) m.DieUp[i] = i < NumDiceUp;

  t.Rolling = true;
  RollDice(NumDiceUp);
  ScoreDice(NumDiceUp);
  t.Rolling = false;
  if (Settings.MarkScorers) {
    for (int i = 0; i < NumDiceUp; ++i) {
      if (m.DieScoreCode[i] != NoScore) t.picMarker[i] = true;
    }
  }

  const ThisGame Played(m);
  CheckRoll();
  if (!Played.GoesOn()) return;  // a bust has passed the dice, and another game has begun since
  m.SavedActionSet = m.ActionSet;
  m.SavedTurnScore = m.TurnScore;
}

void Game::RollDice(std::uint8_t NumDiceUp) {
  for (int i = 0; i < Dice; ++i) t.Picture1(i) = 0;
  m.DieFace.fill(Absent);

  const auto Draw = [&](int i) {
    m.DieFace[i] = static_cast<std::int16_t>(RandomNumber(6));
    t.Picture1(i) = Settings.PictureOf(m.DieFace[i]);
  };
  if (!(IsComputerTurn() && Settings.ComputerSpeed >= SpeedRidiculous)) {
    const Tumble& Show = Tumbles[NumDiceUp];
    desktop.PlaySoundFile(Settings.GetSound(Show.Sound), false);
    for (int Cycle = 0; Cycle < Show.Cycles; ++Cycle) {
      for (int j = 0; j < NumDiceUp; ++j) {
        Draw(j);
        desktop.Sleep(Show.WaitPerDie);
      }
    }
  }
  for (int j = 0; j < NumDiceUp; ++j) Draw(j);

  if (Settings.SortDice) Bubble(NumDiceUp);
  for (int i = 0; i < NumDiceUp; ++i) {
    t.Picture1(i) = Settings.PictureOf(m.DieFace[i]);
    m.ShownFace[i] = m.DieFace[i];
  }
  for (int i = NumDiceUp; i < Dice; ++i) m.ShownFace[i] = 0;
  desktop.Refresh();
}

void Game::Bubble(std::int16_t SortHowMany) { std::sort(m.DieFace.begin(), m.DieFace.begin() + SortHowMany); }

std::int32_t Game::RandomNumber(std::uint8_t Bound) { return numbers.UtilRandom(Bound); }

void Game::HideMarkers() { t.picMarker.fill(false); }

}  // namespace blunko

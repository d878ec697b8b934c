#include "bots/ComputerPlayers.h"

#include <algorithm>
#include <utility>

#include "engine/ScoreDice.h"

namespace blunko {

namespace {

constexpr int PauseAfterRoll = 1000;  // ms, at the speed Normal

}  // namespace

void ComputerPlayers::RunComputerTurn() {
  SeatIsDue = true;
  if (Running) return;
  Running = true;
  while (std::exchange(SeatIsDue, false) && !m.Quitting) {
    const bool GameGoesOn = m.CurrentPlayer != Absent && t.cmdRoll.Visible;  // not ended or given up since the call
    if (!GameGoesOn || !m.PlayerIsComputer[m.CurrentPlayer]) continue;
    m.ActionSet = "r";  // whatever was left behind: the handlers around a nested call have ended only now
    PlayStyle(m.PlayerStyle[m.CurrentPlayer]);
  }
  Running = false;
}

void ComputerPlayers::PlayStyle(int PlayerStyle) {
  switch (PlayerStyle) {
    case Normal: return Bot_Normal();
    case Cautious: return Bot_Cautious();
    case Fearless: return Bot_Fearless();
    case Simple: return Bot_Simple();
    case Random:
      switch (static_cast<int>(uniform.Next() * 3) + 1) {
        case 1: return Bot_Normal();
        case 2: return Bot_Cautious();
        default: return Bot_Fearless();
      }
    case Genius: return Bot_Genius();
    case Moron: return Bot_Moron();
    default: return;
  }
}

void ComputerPlayers::CountDiceLeft(std::uint8_t& Count) const {
  Count = 0;
  for (int i = 0; i < Dice; ++i) Count += m.DieScoreCode[i] != NoDie && !m.BotTake[i];
}

void ComputerPlayers::BotRoll() {
  if (!PumpAndGoOn()) return;
  m.BotTake.fill(false);
  Roll();
}

void ComputerPlayers::BotPass() {
  if (PumpAndGoOn()) Pass();
}

void ComputerPlayers::Roll() {
  if (!MayGoOn()) return;
  game.cmdRoll_Click();
  if (Settings.ComputerSpeed == SpeedNormal) desktop.Sleep(PauseAfterRoll);
}

void ComputerPlayers::Pass() {
  if (!MayGoOn()) return;
  m.TurnOver = true;
  game.cmdPassDice_Click();
}

void ComputerPlayers::ClickDie(int Position) {
  if (!MayGoOn()) return;
  game.Picture1_MouseUp(static_cast<std::int16_t>(Position), LeftButton, 0, 100.0F, 100.0F);
  const int Speed = Settings.ComputerSpeed;
  if (Speed < SpeedRidiculous) desktop.Sleep(Speed == SpeedNormal ? 200 : 100);
}

void ComputerPlayers::MarkAndClick(int Position) {
  m.BotTake[Position] = true;
  ClickDie(Position);
}

void ComputerPlayers::FindLeader() {
  m.LeaderScore = *std::max_element(m.PlayerScore.begin(), m.PlayerScore.begin() + m.NumPlayers);
}

bool ComputerPlayers::PumpAndGoOn() {
  game.PumpEvents();
  return MayGoOn();
}

}  // namespace blunko

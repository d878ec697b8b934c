#include <algorithm>
#include <string>

#include "engine/Game.h"
#include "engine/ScoreDice.h"
#include "engine/ThisGame.h"

namespace blunko {

namespace {

constexpr int PauseAfterPass = 1000;           // ms
constexpr int PauseBeforeComputerTurn = 1000;  // ms
constexpr int BlinkTime = 200;                 // ms
constexpr int SmallestStep = 50;               // points: what puts a seat strictly ahead

}  // namespace

void Game::cmdPassDice_Click() {
  const ThisGame Played(m);
  m.ActionSet = "r";
  t.pctDivider.Visible = false;
  if (Settings.MarkScorers) HideMarkers();
  t.cmdRoll.Enabled = t.cmdPassDice.Enabled = false;

  desktop.PlaySoundFile(Settings.GetSound(m.RollIsBust ? "Passem2" : "Passem1"), false);
  if (Settings.ComputerSpeed < SpeedRidiculous) desktop.Sleep(PauseAfterPass);
  if (!m.RollIsBust) BankTurn();

  ClearDice();
  m.CurrentPlayer = static_cast<std::uint8_t>((m.CurrentPlayer + 1) % m.NumPlayers);
  program.UpdateActivePlayer();
  m.TurnScore = 0;
  t.lblTurnScore.Caption = '0';
  desktop.Refresh();
  t.lblPlayer.Caption = m.PlayerName[m.CurrentPlayer];

  if (m.CurrentPlayer == m.OutPlayer) return EndGame();

  t.lblLastRoll.Caption = "(Last Roll - Need ";
  t.lblLastRoll.Caption += std::to_string(PointsNeeded());
  t.lblLastRoll.Caption += m.NumPlayers == 2 ? " To Win)" : " To Take The Lead)";
  if (!IsComputerTurn() && t.lblLastRoll.Visible) {
    FlashLastRoll();
    if (!Played.GoesOn()) return;
  }
  t.cmdRoll.Enabled = !IsComputerTurn();  // not before: in the flash nobody may roll
  SetStatus("Roll the dice.");
  program.Announce(GameEvent::Turn);

  if (IsComputerTurn()) {
    if (Settings.ComputerSpeed == SpeedNormal) desktop.Sleep(PauseBeforeComputerTurn);
    if (!m.GameOver) computers->RunComputerTurn();
  }
}

void Game::BankTurn() {
  std::int16_t& Score = m.PlayerScore[m.CurrentPlayer];
  Score = AddScore(Score, m.TurnScore);
  program.UpdateActivePlayer();
  program.Announce(GameEvent::Pass);
  if (!IsComputerTurn()) rollers->CheckHighTurn(m.PlayerName[m.CurrentPlayer], m.TurnScore);
  if (m.OutPlayer == Absent && Score >= m.PlayToScore) GoOut();
}

void Game::GoOut() {
  desktop.PlaySoundFile(m.TempFolder + "overtop.wav", false);
  m.OutPlayer = m.CurrentPlayer;
  program.Announce(GameEvent::Out);
  const auto Seats = m.PlayerIsComputer.begin();
  if (std::count(Seats, Seats + m.NumPlayers, false) > 0) {  // a person reads it
    desktop.MessageBox(m.PlayerName[m.CurrentPlayer] +
                       " has gone out.  Everybody else gets one more roll to try and beat " +
                       std::to_string(m.PlayerScore[m.CurrentPlayer]) + " points.");
  }
  t.ShowLastRoll();
  desktop.Refresh();
}

std::int16_t Game::PointsNeeded() const {
  int Target = m.PlayToScore;
  for (int i = 0; i < m.NumPlayers; ++i) {
    if (i != m.CurrentPlayer) Target = std::max<int>(Target, m.PlayerScore[i]);
  }
  return AddScore(static_cast<std::int16_t>(Target - (m.PlayerScore[m.CurrentPlayer] + m.TurnScore)), SmallestStep);
}

/// Blinks the last-roll line three times for the person whose last turn it is. Events come in meanwhile.
void Game::FlashLastRoll() {
  const ThisGame Played(m);
  const std::string Caption = t.lblLastRoll.Caption;
  const auto Show = [&](std::string_view Text) {
    t.lblLastRoll.Caption = Text;
    PumpEvents();
    return Played.GoesOn();
  };
  t.lblStatus.Caption.clear();
  for (int Blink = 1;; ++Blink) {
    if (!Settings.SoundDisabled) desktop.Beep();
    if (!Show(Caption) || Blink == 3) return;
    desktop.Sleep(BlinkTime);
    if (!Show("")) return;
    desktop.Sleep(BlinkTime);
  }
}

void Game::ClearDice() {
  m.DieUp.fill(false);
  m.TrayUsed.fill(false);
  m.DieScoreCode.fill(NoScore);
  m.ShownFace.fill(0);
  m.TrayFace.fill(0);
  for (int i = 0; i < Dice; ++i) t.Picture1(i) = t.Picture1(10 + i) = 0;
}

}  // namespace blunko

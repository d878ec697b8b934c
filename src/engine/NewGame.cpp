#include <algorithm>

#include "engine/Game.h"

namespace blunko {

void Game::FreshGame(const GameSetup& Setup) {
  ++m.GameNumber;
  t.ARCmdNewGame.Visible = false;
  t.cmdRoll.Visible = t.cmdPassDice.Visible = true;
  t.picTray1.Enabled = t.picTray2.Enabled = true;
  m.CurrentPlayer = 0;
  for (int i = 0; i < MaxSeats; ++i) {
    const GameSetup::Seat& Seat = Setup.Seats[i];
    m.PlayerName[i] = Seat.Name;
    m.PlayerIsComputer[i] = Seat.IsComputer;
    m.PlayerScore[i] = 0;
    if (Seat.Style >= Normal && Seat.Style <= StyleWords.size()) m.PlayerStyle[i] = Seat.Style;
  }
  t.lblPlayer.Caption = m.PlayerName[0];
  ClearDice();
  m.NumPlayers = std::max<std::uint8_t>(Setup.NumPlayers, 2);
  SetStatus("Roll the dice.");
  m.ActionSet = "r";
  t.cmdRoll.Enabled = !m.PlayerIsComputer[0];
  m.TurnScore = 0;
  t.lblTurnScore.Caption = '0';
  desktop.Refresh();
  t.cmdPassDice.Enabled = false;
  m.PlayToScore = Setup.PlayToScore;
  m.BreakInScore = Setup.BreakInScore;
  HideMarkers();
  t.pctDivider.Visible = false;
  m.OutPlayer = Absent;
  t.ShowLastRoll(false);
  m.GameOver = false;
  program.ShowScorePad();
  m.ScorePadShown = true;
  program.Announce(GameEvent::Turn);
  m.TurnOver = true;  // ends the loop of a computer turn of the game before
  HoldCommands();
  program.FocusTable();
  if (IsComputerTurn()) computers->RunComputerTurn();
  CarryOutHeld();
}

void Game::mnuNewGame_Click() {
  HoldCommands();
  if (m.CurrentPlayer != Absent) {
    if (m.FormMessage == "RestartGame") {
      desktop.Beep();
    } else if (!MayQuitGame()) {
      return;
    }
    GiveUpGame();
  }
  program.ShowNewGame();
}

/// The table takes the look of no game. The turn that a computer may have been playing is over for good.
void Game::GiveUpGame() {
  ++m.GameNumber;
  m.TurnOver = true;
  t.cmdRoll.Visible = t.cmdPassDice.Visible = false;
  t.ARCmdNewGame.Visible = true;
  t.lblStatus.Caption.clear();
  t.lblPlayer.Caption.clear();
  t.lblTurnScore.Caption.clear();
  t.pctDivider.Visible = false;
  HideMarkers();
  ClearDice();
  t.picTray1.Enabled = t.picTray2.Enabled = false;
}

}  // namespace blunko

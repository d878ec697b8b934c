#include "engine/Game.h"

namespace blunko {

/// The table stands still from here on, and a computer's turn waits; what the options show on it isn't the game's.
void Game::cmdOptions_Click() {
  Command([this] {
    if (OptionsAreOpen()) return;
    m.PauseComputer = true;
    t.picGameTray.Enabled = false;  // and with it everything on the table
    desktop.PlaySoundFile(Settings.GetSound("GameOver"), false);
    m.ResizeBlocked = true;
    program.ShowOptions();
    m.ResizeBlocked = false;
    desktop.PlaySoundFile(Settings.GetSound("GameOver"), false);
  });
}

void Game::ARCmdSaveOptions_Click() { CloseOptions(true); }

void Game::ARCmdCancelOptions_Click() { CloseOptions(false); }

/// Shows the dice of the game in the set that the player has chosen.
void Game::RedrawDice() {
  for (int i = 0; i < Dice; ++i) {
    t.Picture1(i) = Settings.PictureOf(m.ShownFace[i]);
    t.Picture1(10 + i) = Settings.PictureOf(m.TrayFace[i]);
  }
}

/// What the buttons may do now is what the record says, not what they could at the opening.
void Game::CloseOptions(bool Save) {
  if (!OptionsAreOpen()) return;
  program.SettleOptions(Save);
  if (!Settings.MarkScorers) HideMarkers();
  RedrawDice();
  t.picGameTray.Enabled = true;
  m.ResizeBlocked = true;
  program.HideOptions();
  m.ResizeBlocked = false;
  m.PauseComputer = false;
}

}  // namespace blunko

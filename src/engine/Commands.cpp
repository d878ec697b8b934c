#include <utility>

#include "engine/Game.h"
#include "engine/KeyCodes.h"

namespace blunko {

/// A person's hands are off the dice while a handler is at work, from the first step of a pass to its last, while a
/// computer plays, and on a table that is closed or given up.
bool Game::PersonMayPlay() const {
  return gate == Gate::Open && m.CurrentPlayer != Absent && !IsComputerTurn() && !m.Quitting && t.cmdRoll.Visible &&
         t.picGameTray.Enabled && t.picTray1.Enabled;
}

template <typename Action>
void Game::TouchDice(Action Run) {
  if (PersonMayPlay()) Command(Run);
}

void Game::PersonClicksDie(std::int16_t Index, std::int16_t Button) {
  TouchDice([=, this] { Picture1_MouseUp(Index, Button, 0, 100.0F, 100.0F); });
}

void Game::PersonClicksTray(int Row, std::int16_t Button) {
  TouchDice([=, this] { Row == 1 ? picTray1_MouseUp(Button, 0, 0, 0) : picTray2_MouseUp(Button, 0, 0, 0); });
}

void Game::PersonRolls() {
  if (t.CanPress(t.cmdRoll)) TouchDice([this] { cmdRoll_Click(); });
}

void Game::PersonPasses() {
  if (t.CanPress(t.cmdPassDice)) TouchDice([this] { cmdPassDice_Click(); });
}

void Game::ARCmdNewGame_Click() {
  Command([this] {
    if (!t.CanPress(t.ARCmdNewGame)) return;
    HoldCommands();
    program.ShowNewGame();
  });
}

void Game::PersonBeginsGame(bool AtOnce) {
  Command([=, this] {
    if (OptionsAreOpen()) return;  // the menus are out of reach
    if (AtOnce) m.FormMessage = "RestartGame";
    mnuNewGame_Click();
  });
}

bool Game::PersonCloses() {
  Command([this] { Form_Unload(); });
  return m.Quitting;
}

void Game::Form_KeyUp(std::int16_t KeyCode, std::int16_t Shift) {
  const int Face = KeyCode - (KeyCode < NumPad1 ? Digit1 : NumPad1) + 1;
  if (Face >= 1 && Face <= 6) {
    for (std::int16_t i = 0; i < Dice; ++i) {
      if (m.DieUp[i] && m.DieFace[i] == Face) return PersonClicksDie(i, LeftButton);
    }
    return;
  }
  switch (KeyCode) {
    case Escape:
      Command([this] {
        if (OptionsAreOpen()) return ARCmdCancelOptions_Click();
        program.UnloadOtherForms();
        Form_Unload();
      });
      break;
    case F2: PersonBeginsGame(Shift == ShiftAlone); break;
    case LetterR:
    case NumPad0: PersonRolls(); break;
    case LetterP:
    case NumPadDecimal: PersonPasses(); break;
    case Backspace:
      for (std::int16_t Index = 10; Index <= 15; ++Index) PersonClicksDie(Index, LeftButton);
      break;
    // Only for a listener: nothing else comes of them.
    case LetterS: program.Announce(GameEvent::Scores); break;
    case LetterL: program.Announce(GameEvent::Again); break;
    default: program.Announce(GameEvent::OtherKey); break;
  }
}

void Game::CarryOutHeld() {
  while (TakesCommands() && !held.empty()) {
    const auto Next = std::move(held.front());
    held.pop_front();
    Next();
  }
}

bool Game::MayQuitGame() {
  if (gate == Gate::Asking) return false;  // the end of the session has to wait for the answer
  const GateHeld Asking(gate, Gate::Asking);
  desktop.Beep();
  return desktop.AskYesNo("Are you sure you want to quit the current game?", "Quit?");
}

bool Game::Form_Unload() {
  if (MayEnd()) End();
  return m.Quitting;
}

bool Game::MayEnd() { return m.Quitting || m.CurrentPlayer == Absent || MayQuitGame(); }

void Game::End() {
  if (!std::exchange(m.Quitting, true)) program.ExitProgram();
}

}  // namespace blunko

#include <algorithm>
#include <functional>

#include "engine/Game.h"

namespace blunko {

void Game::EndGame() {
  // The seat that went out wins a tie; among others, the first after it in turn order.
  m.Winner = m.CurrentPlayer;
  for (int Step = 1; Step < m.NumPlayers; ++Step) {
    const int Seat = (m.CurrentPlayer + Step) % m.NumPlayers;
    if (m.PlayerScore[Seat] > m.PlayerScore[m.Winner]) m.Winner = static_cast<std::uint8_t>(Seat);
  }
  program.Announce(GameEvent::Win);
  desktop.Sleep(500);
  if (!m.PlayerIsComputer[m.Winner]) rollers->CheckWhoopin(m.PlayerName[m.Winner], WinMargin());
  program.ShowCongrats();

  t.cmdRoll.Enabled = false;
  t.cmdPassDice.Enabled = false;
  m.GameOver = true;
  m.CurrentPlayer = Absent;
  SetStatus(" ");
  t.lblPlayer.Caption = ' ';
  t.ShowLastRoll(false);
  program.FocusTable();

  if (m.FormMessage == "SameGame") {
    mnuNewGame_Click();
  } else if (m.FormMessage == "DifferentGame") {
    t.ARCmdNewGame.Visible = true;
    t.cmdRoll.Visible = t.cmdPassDice.Visible = false;
    m.FormMessage.clear();
    mnuNewGame_Click();
  } else if (m.FormMessage == "Quit") {
    m.FormMessage.clear();
    Form_Unload();
  }
}

std::int16_t Game::WinMargin() const {
  auto Sorted = m.PlayerScore;
  std::partial_sort(Sorted.begin(), Sorted.begin() + 2, Sorted.begin() + m.NumPlayers, std::greater<>());
  return static_cast<std::int16_t>(Sorted[0] - Sorted[1]);
}

}  // namespace blunko

#include "engine/Game.h"

namespace blunko {

void Game::ShowBust() {
  const bool Computer = IsComputerTurn();
  const bool Hurried = Computer && Settings.ComputerSpeed != SpeedNormal;
  const auto Pause = [&](int Milliseconds) {
    if (!Hurried) desktop.Sleep(Milliseconds);
  };

  desktop.SetMousePointer(MousePointer::Hourglass);
  Pause(250);
  desktop.PlaySoundFile(Settings.GetSound("Blunko"), false);
  t.Busted = t.lblStatus.Loud = true;
  for (int Blink = 0; Blink < 3; ++Blink) {
    SetStatus("BLUNKO !!!");
    Pause(100);
    SetStatus("");
    Pause(100);
  }
  SetStatus("BLUNKO !!!");

  constexpr std::string_view Sentence = "BLUNKO - Passing the dice.";
  if (!Hurried) desktop.Sleep(300);
  t.lblStatus.Loud = false;
  if (!Hurried) {
    for (std::size_t Length = Sentence.find('P') + 1; Length < Sentence.size() - 1; ++Length) {
      if (Sentence[Length - 1] == ' ') continue;  // a blank comes together with the letter behind it
      SetStatus(Sentence.substr(0, Length));
      desktop.Sleep(20);
    }
  }
  SetStatus(Sentence.substr(0, Sentence.size() - 1));
  desktop.Sleep(20);
  SetStatus(Sentence);
  t.lblTurnScore.Caption = '0';
  desktop.Refresh();

  if (!Computer) desktop.Sleep(300);
  t.Busted = false;
  desktop.SetMousePointer(MousePointer::Normal);
  if (!Computer) cmdPassDice_Click();
}

}  // namespace blunko

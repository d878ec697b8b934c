#pragma once

#include "engine/Desktop.h"
#include "engine/Program.h"

namespace blunko {

/// A desktop on which nothing happens: no time passes, every question is answered with Yes.
class QuietDesktop : public Desktop {
 public:
  void Refresh() override {}
  void Sleep(int) override {}
  void PumpEvents() override {}
  void WaitForEvents() override {}
  void Beep() override {}
  void PlaySoundFile(const std::string&, bool) override {}
  void MessageBox(const std::string&) override {}
  bool AskYesNo(const std::string&, const std::string&, bool) override { return true; }
  void SetMousePointer(MousePointer) override {}
};

/// A program without dialogs: a game that ends isn't followed by another.
class QuietProgram : public Program {
 public:
  void Announce(GameEvent) override {}
  void UpdateActivePlayer() override {}
  void ShowScorePad() override {}
  void FocusTable() override {}
  void ShowCongrats() override {}
  void ShowNewGame() override {}
  void ShowOptions() override {}
  void SettleOptions(bool) override {}
  void HideOptions() override {}
  void UnloadOtherForms() override {}
  void ExitProgram() override {}
  void Abort() override {}
};

}  // namespace blunko

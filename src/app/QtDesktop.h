#pragma once

#include "engine/Desktop.h"
#include "engine/GameOptions.h"

namespace blunko {

class frmMain;
class Sounds;

/// The real desktop. Before each wait, and whenever events are delivered, the controls are copied to the widgets.
class QtDesktop : public Desktop {
 public:
  QtDesktop(Sounds& Player, const GameOptions& Options) : player(Player), options(Options) {}

  /// From here on the table's window shows the controls and the pointer, and the boxes stand over it.
  void ShowOn(frmMain& Form) { form = &Form; }

  void Refresh() override;
  void Sleep(int Milliseconds) override;
  void PumpEvents() override;
  void WaitForEvents() override;
  void Beep() override;
  void PlaySoundFile(const std::string& File, bool Always) override;
  void MessageBox(const std::string& Text) override;
  bool AskYesNo(const std::string& Text, const std::string& Title, bool Bare) override;
  void SetMousePointer(MousePointer Pointer) override;

  /// Multiplies every wait: 1, or 0 in tests that don't watch the clock.
  double WaitFactor = 1;

 private:
  Sounds& player;
  const GameOptions& options;
  frmMain* form = nullptr;  ///< none while the program asks its questions before the table comes up
};

}  // namespace blunko

#pragma once

#include <cstdint>
#include <string>

#include "engine/GameEvent.h"

namespace blunko {

/// What the rules ask of the rest of the program.
class Program {
 public:
  virtual ~Program() = default;

  /// Told to whoever can't see the table.
  virtual void Announce(GameEvent Event) = 0;
  /// The score pad brings its scores and the marked seat up to date.
  virtual void UpdateActivePlayer() = 0;
  /// The score pad takes its place beside the table and shows the new game; it isn't modal.
  virtual void ShowScorePad() = 0;
  /// The table's window takes the focus.
  virtual void FocusTable() = 0;
  /// The game-over dialog, modal: leaves "SameGame", "DifferentGame", "Quit" or nothing in `FormMessage`.
  virtual void ShowCongrats() = 0;
  /// The new game dialog, modal: begins a fresh game, or doesn't.
  virtual void ShowNewGame() = 0;
  /// The options come to light beside the table, which wears from here on what is chosen there.
  virtual void ShowOptions() = 0;
  /// What was chosen is stored, or the table wears again what it did before. The settings are final then.
  virtual void SettleOptions(bool Save) = 0;
  virtual void HideOptions() = 0;
  /// Every loaded form but the table is unloaded.
  virtual void UnloadOtherForms() = 0;
  /// Unloads every form and ends the program, once the handlers that wait have returned.
  virtual void ExitProgram() = 0;
  /// Ends the program at once, with an error.
  virtual void Abort() = 0;
};

}  // namespace blunko

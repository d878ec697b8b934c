#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/Desktop.h"
#include "engine/GameOptions.h"
#include "engine/GameSetup.h"
#include "engine/Module1.h"
#include "engine/Program.h"
#include "engine/RandomSources.h"
#include "engine/TableControls.h"

namespace blunko {

/// Buttons of the mouse, and key codes, as the handlers take them.
inline constexpr std::int16_t LeftButton = 1;
inline constexpr std::int16_t RightButton = 2;
inline constexpr std::int16_t ShiftAlone = 1;

/// The handlers of the table: persons and computer players reach the rules through the same ones. They change the
/// shared state and the table's controls, and wait where the game waits.
class Game {
 public:
  Game(Module1& State, TableControls& Controls, const GameOptions& Options, Desktop& Screen, Program& Others,
       NumberSource& Numbers)
      : m(State), t(Controls), Settings(Options), desktop(Screen), program(Others), numbers(Numbers) {}

  // A fresh game and the end of one.
  void ClearAtStart();
  void FreshGame(const GameSetup& Setup);
  void EndGame();
  /// Margin of victory: the highest banked score less the next highest.
  std::int16_t WinMargin() const;

  // The turn.
  void cmdRoll_Click();
  void cmdPassDice_Click();
  void Picture1_MouseUp(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
  void picTray1_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y);
  void picTray2_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y);
  void ScoreDice(std::uint8_t NumDiceUp);
  void CheckRoll();
  void CheckSelection();
  void SetStatus(std::string_view Text);
  std::int16_t PointsNeeded() const;
  /// All dice take their pictures afresh from the dice set of the settings.
  void RedrawDice();

  /// Whether a left click on the die box takes the die, or takes it back from the tray.
  bool CanTake(int Index) const;
  /// Whether a person may act at all.
  bool PersonMayPlay() const;

  // Commands of a person. These look first whether a person may act at all.
  void PersonClicksDie(std::int16_t Index, std::int16_t Button);
  void PersonRolls();
  void PersonPasses();
  void Form_KeyUp(std::int16_t KeyCode, std::int16_t Shift);
  void ARCmdNewGame_Click();
  void mnuNewGame_Click();
  /// The table's window is about to close. False: the person wants to play on.
  bool Form_Unload();

  /// Whether state and controls agree with each other and with the rules, between any two events; empty if they do,
  /// else what is wrong. For tests.
  std::string Fault() const;

  Module1& m;
  TableControls& t;
  const GameOptions& Settings;
  Desktop& desktop;
  Program& program;
  NumberSource& numbers;

 private:
  std::int32_t RandomNumber(std::uint8_t Bound);
  void RollDice(std::uint8_t NumDiceUp);
  void Bubble(std::int16_t SortHowMany);
  void ShowBust();
  void MoveDieToTray(std::uint8_t Index);
  void TakeDie(int Position);
  void TakeClickedDice(int Index);
  void UndoSelection(int Index);
  void GoOut();
  void FlashLastRoll();
  void HideMarkers();
  void ClearDice();
  bool PumpBeforeNewGame();
  void GiveUpGame();
  bool IsComputerTurn() const { return m.CurrentPlayer != Absent && m.PlayerIsComputer[m.CurrentPlayer]; }
  bool SomebodyIsAPerson() const;

  bool newGameIsPending = false;
};

}  // namespace blunko

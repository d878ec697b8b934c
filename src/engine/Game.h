#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "engine/ComputerSeats.h"
#include "engine/Desktop.h"
#include "engine/GameOptions.h"
#include "engine/GameSetup.h"
#include "engine/Gate.h"
#include "engine/HighRollersCheck.h"
#include "engine/Module1.h"
#include "engine/Program.h"
#include "engine/RandomSources.h"
#include "engine/TableControls.h"

namespace blunko {

/// Buttons of the mouse, and the Shift key, as the handlers take them.
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

  /// Hands the computer seats to whoever plays them.
  void SeatComputers(ComputerSeats& Players) { computers = &Players; }
  /// Hands the scores of persons to whoever keeps the lists.
  void OfferScores(HighRollersCheck& Lists) { rollers = &Lists; }

  // A fresh game and the end of one.
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

  /// Whether a left click on the die box takes the die, or takes it back from the tray.
  bool CanTake(int Index) const;
  /// Whether a person may touch the dice at all.
  bool PersonMayPlay() const;

  // The options, which stand beside the table.
  void cmdOptions_Click();
  void ARCmdSaveOptions_Click();
  void ARCmdCancelOptions_Click();

  // A new game, and the end of the program.
  void mnuNewGame_Click();
  /// The program ends, unless the person, asked while a game runs, wants to play on. False: play goes on.
  bool Form_Unload();
  bool MayQuitGame();
  /// Whether the person, asked while a game runs, lets the program end; at the end of a session, say.
  bool MayEnd();
  /// The program ends, without a question.
  void End();

  // Commands of a person. These look first whether the table takes them at the moment.
  void PersonClicksDie(std::int16_t Index, std::int16_t Button);
  /// A click beside the dice, on row 1 (the table) or 2 (the tray).
  void PersonClicksTray(int Row, std::int16_t Button);
  void PersonRolls();
  void PersonPasses();
  void Form_KeyUp(std::int16_t KeyCode, std::int16_t Shift);
  void ARCmdNewGame_Click();
  /// `AtOnce`: with the saved defaults, without a question.
  void PersonBeginsGame(bool AtOnce = false);
  /// By the Exit button, the menu or the window's close box. True: the program ends.
  bool PersonCloses();

  /// Whether a person's commands are carried out at the moment. Those that come while a handler sleeps, or while one of
  /// its boxes or dialogs is open, come to nothing.
  bool TakesCommands() const { return (gate == Gate::Open || gate == Gate::Ajar) && !m.Quitting; }
  /// Whether a command is being carried out, and with it the turns of computers that follow.
  bool IsAtWork() const { return gate != Gate::Open; }
  /// Carries out a person's command if the table takes it. Until it is done no other is taken, unless it lets them in.
  template <typename Action>
  void Command(Action Run) {
    if (gate == Gate::Holding) return held.push_back([=, this] { Command(Run); });
    if (!TakesCommands()) return;
    {
      const GateHeld AtWork(gate, Gate::Closed);
      Run();
    }
    CarryOutHeld();
  }
  /// Lets events into a handler, and with them every command but those that touch the dice. Afterwards the game may
  /// have been given up, or the program may be quitting.
  void PumpEvents() {
    const GateHeld LettingIn(gate, Gate::Ajar);
    CarryOutHeld();
    desktop.PumpEvents();
  }
  /// The same, but sleeps until there is an event.
  void WaitForEvents() {
    const GateHeld LettingIn(gate, Gate::Ajar);
    desktop.WaitForEvents();
  }

  /// Whether state and controls agree with each other and with the rules, between any two events; empty if they do,
  /// else what is wrong.
  std::string Fault() const;
  /// Ends the program with the fault in words, if there is one between two events. Not in release builds.
  void AssertSound() const;

  Module1& m;
  TableControls& t;
  const GameOptions& Settings;
  Desktop& desktop;
  Program& program;
  NumberSource& numbers;

 private:
  /// Lets events into a handler in the middle of a change: the commands among them come when the table takes them
  /// again.
  void HoldCommands() {
    const GateHeld Holding(gate, Gate::Holding);
    desktop.PumpEvents();
  }
  void CarryOutHeld();
  std::int32_t RandomNumber(std::uint8_t Bound);
  void RollDice(std::uint8_t NumDiceUp);
  void Bubble(std::int16_t SortHowMany);
  void ShowBust();
  void MoveDieToTray(int Index);
  void TakeClickedDice(int Index);
  void UndoSelection(int Index);
  void BankTurn();
  void GoOut();
  void FlashLastRoll();
  void HideMarkers();
  void ClearDice();
  void GiveUpGame();
  void CloseOptions(bool Save);
  void RedrawDice();
  bool OptionsAreOpen() const { return !t.picGameTray.Enabled; }
  bool IsComputerTurn() const { return m.CurrentPlayer != Absent && m.PlayerIsComputer[m.CurrentPlayer]; }
  template <typename Action>
  void TouchDice(Action Run);

  ComputerSeats nobody;
  ComputerSeats* computers = &nobody;
  HighRollersCheck noLists;
  HighRollersCheck* rollers = &noLists;
  Gate gate = Gate::Open;
  std::deque<std::function<void()>> held;  ///< commands that wait
};

}  // namespace blunko

#pragma once

#include <cstdint>

#include "engine/Game.h"
#include "engine/ThisGame.h"

namespace blunko {

/// The numbers in which the three table styles differ.
struct TableStyle {
  int TakeAllBelow;  ///< with fewer dice than this left, every scorer is taken
  int StopAt[6];     ///< `TurnScore` at which the style passes, by the dice left; [0] is unused
  bool WaitsWhilePaused = true;
};

/// The computer seats. A style plays a turn through the handlers of the table, exactly as a person would, and goes by
/// `ActionSet`, the score codes and the banked scores alone.
class ComputerPlayers : public ComputerSeats {
 public:
  /// Takes the computer seats at the table.
  ComputerPlayers(Game& Table, UniformSource& Uniform)
      : game(Table), m(Table.m), t(Table.t), Settings(Table.Settings), desktop(Table.desktop), uniform(Uniform) {
    Table.SeatComputers(*this);
  }

  /// Plays the turn of the seat on turn, and those of the computer seats that follow it, one after the other. A call
  /// that comes from inside such a turn only notes that the next seat is due: the call chain doesn't grow.
  void RunComputerTurn() override;

  /// Dice that the style on turn would leave on the table: positions with a die that it hasn't marked as taken.
  void CountDiceLeft(std::uint8_t& Count) const;

 private:
  void PlayStyle(int PlayerStyle);

  // Each plays the turn of the seat on turn to its end.
  void Bot_Cautious();
  void Bot_Normal();
  void Bot_Fearless();
  void Bot_Simple();
  void Bot_Genius();
  void Bot_Moron();

  void PlayTableStyle(const TableStyle& Style);
  void ActAtTable(const TableStyle& Style);
  void DecideToPass(const TableStyle& Style);
  void TakeDice(int TakeAllBelow);
  void TakeAll(bool ClickEmptyToo);
  bool TakeFirst(const Word& Code);

  /// The loop of a turn: `Act` acts once on the action set as it stands.
  template <typename Action>
  void PlayTurn(bool WaitsWhilePaused, Action Act);

  // Actions. Once the turn is over, or the program quits, nothing comes of them.
  void BotRoll();
  void BotPass();
  void Roll();
  void Pass();
  void ClickDie(int Position);
  void MarkAndClick(int Position);

  void FindLeader();
  bool PumpAndGoOn();
  bool MayGoOn() const { return !m.Quitting && !m.TurnOver; }

  Game& game;
  Module1& m;
  TableControls& t;
  const GameOptions& Settings;
  Desktop& desktop;
  UniformSource& uniform;
  bool SeatIsDue = false;
  bool Running = false;
};

/// Acts on the action set, with the turn's waits around it. Events come in between the actions: afterwards the program
/// may be quitting, or the turn may be over because its game was given up.
template <typename Action>
void ComputerPlayers::PlayTurn(bool WaitsWhilePaused, Action Act) {
  constexpr int PauseBeforeAction = 100;  // ms
  const ThisGame Played(m);
  t.picTray1.Enabled = false;
  m.TurnOver = false;
  while (MayGoOn()) {
    while (WaitsWhilePaused && m.PauseComputer && MayGoOn()) game.WaitForEvents();
    if (!MayGoOn()) break;
    if (Settings.ComputerSpeed < SpeedRidiculous) desktop.Sleep(PauseBeforeAction);
    Act();
    if (MayGoOn()) game.PumpEvents();
  }
  // A table that was given up stays closed, and a new game has opened its own.
  if (Played.GoesOn()) t.picTray1.Enabled = true;
}

}  // namespace blunko

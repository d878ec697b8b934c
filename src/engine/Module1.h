#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/ScoreDice.h"
#include "engine/Word.h"

namespace blunko {

/// "Nothing there": no die at a position, no game (`CurrentPlayer`), nobody out (`OutPlayer`).
inline constexpr int Absent = 99;

/// Seats that a table can hold, and dice in play.
inline constexpr int MaxSeats = 8;
inline constexpr int Dice = 6;

/// Styles of the computer seats, as `PlayerStyle` holds them.
enum Style : std::uint8_t { Normal = 1, Cautious, Fearless, Simple, Random, Genius, Moron };

/// The state that all forms share. One object lives for a run; it is read and written directly, without accessors.
struct Module1 {
  // The six table positions.
  std::array<std::int16_t, Dice>
      DieFace{};  ///< 1 to 6, or `Absent`; a die in the tray keeps its face until the next roll
  std::array<Word, Dice> DieScoreCode{NoScore, NoScore, NoScore, NoScore, NoScore, NoScore};
  std::array<bool, Dice> DieUp{};              ///< lies on the table and can still be taken
  std::array<std::int16_t, Dice> ShownFace{};  ///< face drawn at the position, 0 for none

  // The six tray slots. The sixth die of a set stands in slot 5 with `TrayUsed[5]` false.
  std::array<std::int16_t, Dice> TrayFace{};  ///< 0 when the slot is empty
  std::array<bool, Dice> TrayUsed{};

  // The seats.
  std::array<std::string, MaxSeats> PlayerName;
  std::array<std::int16_t, MaxSeats> PlayerScore{};
  std::array<bool, MaxSeats> PlayerIsComputer{};
  std::array<std::uint8_t, MaxSeats> PlayerStyle{};

  // The game.
  std::uint8_t NumPlayers = 1;
  std::int16_t PlayToScore = 5000;
  std::int16_t BreakInScore = 500;
  std::uint8_t CurrentPlayer = Absent;  ///< seat on turn, `Absent` while no game runs
  std::uint8_t OutPlayer = Absent;      ///< the seat that reached `PlayToScore` first
  std::uint8_t Winner = 0;

  // The turn.
  std::int16_t TurnScore = 0;
  Word ActionSet = "r";       ///< what the seat may do: letters of r(oll), s(elect), p(ass)
  Word SavedActionSet = "r";  ///< `ActionSet` and `TurnScore` as the last roll left them: what an undo restores
  std::int16_t SavedTurnScore = 0;
  std::uint8_t TrayCountAtRoll = 0;  ///< dice that stood in the tray when the last roll started; they stay there
  bool RollIsBust = false;
  bool MayPass = false;  ///< the seat has broken in

  // Flags that are tested in loops, because an event can arrive while a handler waits.
  bool TurnOver = false;       ///< ends the loop of a computer turn
  bool GameOver = false;       ///< from the end of a game until the next fresh one
  bool Quitting = false;       ///< the main form has agreed to close
  bool PauseComputer = false;  ///< a computer turn waits while the options panel is open
  bool ResizeBlocked = false;  ///< the window's resizing is our own and leaves the score pad alone

  // The forms.
  bool ScorePadShown = false;
  std::int16_t ScorePadLeft = 0;  ///< logical pixels; where the pad stood when the table was minimised
  std::int16_t ScorePadTop = 0;
  bool FirstActivate = true;
  std::string FormMessage;  ///< a word that one form leaves for another, empty when none is pending
  std::string TempFolder;   ///< with its trailing separator
  std::string HelpFile;

  // The computer players' notes.
  std::array<bool, Dice> BotTake{};
  std::uint8_t NumDiceUp = 0;
  std::int16_t LeaderScore = 0;

  /// Counts the games begun and given up.
  std::uint32_t GameNumber = 0;
};

/// Scores stop at the limit of their 16 bits instead of turning negative.
constexpr std::int16_t AddScore(std::int16_t Score, int Points) {
  const int Sum = Score + Points;
  return static_cast<std::int16_t>(Sum > INT16_MAX ? INT16_MAX : Sum);
}

}  // namespace blunko

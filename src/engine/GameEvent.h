#pragma once

namespace blunko {

/// What happens at the table, as somebody tells it who can't see the screen.
enum class GameEvent {
  Roll,    ///< the dice lie, and something scores
  Bust,    ///< the dice lie, and nothing scores
  Taking,  ///< dice have gone to the tray
  Undo,    ///< dice have come back from the tray
  Pass,    ///< the seat on turn has banked
  Out,     ///< the seat on turn has gone out
  Turn,    ///< a seat comes on turn
  Win,     ///< the game has a winner
  // A person asks by a key:
  Scores,   ///< who has what, and whose turn it is
  Again,    ///< what was told last
  OtherKey  ///< a key without a meaning: what counts, now
};

}  // namespace blunko

#pragma once

#include <utility>

namespace blunko {

/// How far the commands of a person get, whichever way they come: by mouse, key, menu or a screen reader.
enum class Gate {
  Open,     ///< no handler is at work: every command
  Ajar,     ///< a handler lets events in: every command but those that touch the dice
  Holding,  ///< a handler lets events in: the same commands, but only when it is through
  Closed,   ///< a handler sleeps, or waits for a box or a dialog: none
  Asking,   ///< the same, and the question is whether the game may be given up
};

/// Holds the gate in a position for as long as it lives.
class GateHeld {
 public:
  GateHeld(Gate& Which, Gate Position) : gate(Which), before(std::exchange(Which, Position)) {}
  ~GateHeld() { gate = before; }
  GateHeld(const GateHeld&) = delete;
  GateHeld& operator=(const GateHeld&) = delete;

 private:
  Gate& gate;
  Gate before;
};

}  // namespace blunko

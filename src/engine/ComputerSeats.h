#pragma once

namespace blunko {

/// Who plays the computer seats. By itself nobody does: the table then waits.
class ComputerSeats {
 public:
  virtual ~ComputerSeats() = default;
  /// The seat on turn is a computer: its style plays.
  virtual void RunComputerTurn() {}
};

}  // namespace blunko

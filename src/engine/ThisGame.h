#pragma once

#include "engine/Module1.h"

namespace blunko {

/// The game in which a handler was called. Where events come in, it can be given up, another one can begin, and the
/// program can quit: then the handler has nothing more to do.
class ThisGame {
 public:
  explicit ThisGame(const Module1& State) : m(State), number(State.GameNumber) {}
  bool GoesOn() const { return m.GameNumber == number && !m.Quitting; }

 private:
  const Module1& m;
  std::uint32_t number;
};

}  // namespace blunko

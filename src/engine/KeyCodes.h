#pragma once

#include <cstdint>

namespace blunko {

/// Virtual key codes of the commands.
enum Key : std::int16_t {
  Backspace = 8,
  Escape = 27,
  Digit0 = 48,
  Digit1 = 49,
  LetterL = 76,
  LetterP = 80,
  LetterR = 82,
  LetterS = 83,
  NumPad0 = 96,
  NumPad1 = 97,
  NumPadDecimal = 110,
  F2 = 113,
};

}  // namespace blunko

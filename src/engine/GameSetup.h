#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/Module1.h"

namespace blunko {

/// The words of the styles; index + 1 is the number of the style.
inline constexpr std::array<std::string_view, 7> StyleWords{"Normal", "Cautious", "Fearless", "Simple",
                                                            "Random", "Genius",   "Moron"};

/// Seats and scores of a game, as the new game dialog hands them over.
struct GameSetup {
  struct Seat {
    std::string Name;
    bool IsComputer = false;
    std::string StyleWord = "Normal";  ///< a word that isn't in `StyleWords` leaves the seat's style as it was
  };
  std::uint8_t NumPlayers = 1;       ///< as chosen, 1 to 8; one player means a person against a computer
  std::array<Seat, MaxSeats> Seats;  ///< all eight, also those beyond the chosen number
  std::int16_t PlayToScore = 5000;
  std::int16_t BreakInScore = 500;
};

}  // namespace blunko

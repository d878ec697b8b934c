#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/Module1.h"

namespace blunko {

/// The words of the styles, by their numbers less 1.
inline constexpr std::array<std::string_view, 7> StyleWords{"Normal", "Cautious", "Fearless", "Simple",
                                                            "Random", "Genius",   "Moron"};

/// Seats and scores of a game, as the new game dialog hands them over and saves them.
struct GameSetup {
  struct Seat {
    std::string Name;
    bool IsComputer = false;
    std::uint8_t Style = Normal;  ///< a number that is no style's leaves the seat's style as it was
    bool operator==(const Seat&) const = default;
  };
  std::uint8_t NumPlayers = 1;       ///< as chosen, 1 to 8; one player means a person against a computer
  std::array<Seat, MaxSeats> Seats;  ///< all eight, also those beyond the chosen number
  std::int16_t PlayToScore = 5000;
  std::int16_t BreakInScore = 500;
  bool operator==(const GameSetup&) const = default;
};

}  // namespace blunko

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace blunko {

/// Speeds of the computer players, as `ComputerSpeed` gives them.
inline constexpr int SpeedNormal = 0;
inline constexpr int SpeedRidiculous = 2;

/// Base number of the set of dice with which the game comes: Antique.
inline constexpr std::int16_t DefaultDiceSet = 112;

/// Whether a set of dice has this base number: base + face is its picture, and the sets follow one another.
constexpr bool IsDiceSet(int Base) { return Base >= 100 && Base <= 190 && (Base - 100) % 6 == 0; }

/// The player's settings, as far as the rules read them, with their defaults; each is read afresh at each use.
struct GameOptions {
  std::int32_t ComputerSpeed = SpeedNormal;  ///< 0 Normal, 1 Fast, 2 and more Ridiculous
  bool SortDice = true;
  bool MarkScorers = true;
  std::int16_t DieColour = DefaultDiceSet;  ///< base number of the dice set, or any other
  bool SoundDisabled = false;
  std::map<std::string, std::string, std::less<>> Sounds{};  ///< paths of wave files by the names of their events

  /// Path of the wave file of an event, empty for an unknown name. Valid until the settings change.
  const std::string& GetSound(std::string_view Name) const {
    static const std::string None;
    const auto Found = Sounds.find(Name);
    return Found == Sounds.end() ? None : Found->second;
  }
  /// Number of a die's picture, 0 for no die. A number that is no set's counts as the default: a die never shows
  /// another value than it has.
  int PictureOf(int Face) const { return Face == 0 ? 0 : (IsDiceSet(DieColour) ? DieColour : DefaultDiceSet) + Face; }
};

}  // namespace blunko

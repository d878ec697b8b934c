#pragma once

#include <string>
#include <string_view>

namespace blunko {

/// Speeds of the computer players, as `ComputerSpeed` gives them.
inline constexpr int SpeedNormal = 0;
inline constexpr int SpeedRidiculous = 2;

/// The player's settings, as far as the rules read them; each is read afresh at each use.
class GameOptions {
 public:
  virtual ~GameOptions() = default;

  virtual int ComputerSpeed() const = 0;  ///< 0 Normal, 1 Fast, 2 Ridiculous
  virtual bool SortDice() const = 0;
  virtual bool MarkScorers() const = 0;
  virtual int DieColour() const = 0;  ///< base number of the dice set: base + face is the bitmap
  virtual bool SoundDisabled() const = 0;
  /// Path of the wave file of an event, empty for an unknown name. Valid until the settings change.
  virtual const std::string& GetSound(std::string_view Name) const = 0;
};

/// Base number of the set with which the game comes: Antique.
inline constexpr int DefaultDiceSet = 112;

/// Options as plain values, for games without a settings file.
struct PlainOptions : GameOptions {
  int Speed = SpeedRidiculous;
  bool Sort = true;
  bool Mark = true;
  int Colour = DefaultDiceSet;
  bool Silent = false;
  std::string Sound;

  int ComputerSpeed() const override { return Speed; }
  bool SortDice() const override { return Sort; }
  bool MarkScorers() const override { return Mark; }
  int DieColour() const override { return Colour; }
  bool SoundDisabled() const override { return Silent; }
  const std::string& GetSound(std::string_view) const override { return Sound; }
};

}  // namespace blunko

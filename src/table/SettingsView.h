#pragma once

#include "engine/GameOptions.h"
#include "storage/GameSettings.h"
#include "table/DiceSets.h"

namespace blunko {

/// The settings, as the rules see them.
class SettingsView : public GameOptions {
 public:
  explicit SettingsView(const GameSettings& Settings) : settings(Settings) {}
  int ComputerSpeed() const override { return settings.ComputerSpeed(); }
  bool SortDice() const override { return settings.SortDice(); }
  bool MarkScorers() const override { return settings.MarkScorers(); }
  int DieColour() const override { return DrawableSet(settings.DieColour()); }
  bool SoundDisabled() const override { return settings.SoundDisabled(); }
  const std::string& GetSound(std::string_view Name) const override { return settings.GetSound(Name); }

 private:
  const GameSettings& settings;
};

}  // namespace blunko

#pragma once

#include <QString>

#include <array>

#include "storage/GameSettings.h"
#include "storage/IniInfo.h"

namespace blunko {

/// The default game that the new game dialog saves and opens with.
struct SavedSetup {
  static constexpr int Seats = 8;
  static constexpr int Styles = 7;

  struct Seat {
    QString Name;
    bool IsComputer = false;
    int Style = 0;  ///< index in the list of styles, 0 to 6
    bool operator==(const Seat&) const = default;
  };

  int NumPlayers = 1;  ///< 1 to 8 as chosen: with one, seat 1 is the computer opponent
  std::array<Seat, Seats> Players;
  int PlayToScore = 5000;
  int BreakInScore = 500;
  bool operator==(const SavedSetup&) const = default;

  /// The seats as the dialog lays them out for a number of players.
  static SavedSetup ForPlayers(int NumPlayers);
  /// Reads the saved game; every unusable field takes the dialog's own value. Keys that are missing are written.
  static SavedSetup Load(const IniInfo& Info, const GameSettings& Settings);
  void Save(const IniInfo& Info, const GameSettings& Settings) const;
};

}  // namespace blunko

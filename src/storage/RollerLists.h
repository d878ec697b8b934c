#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace blunko {

/// An entry of the lists.
struct HighRoller {
  QString Name;  ///< may be empty
  std::int16_t Score = 0;
  bool operator==(const HighRoller&) const = default;
};

/// The top ten, best first.
using RollerList = std::array<HighRoller, 10>;

/// Index of the entry that a score would push down: the first one that it beats, an equal one not. Nothing for a score
/// that stays out.
std::optional<int> PlaceFor(const RollerList& List, std::int16_t Score);
/// Puts the entry in its place, if it has one; the last one falls off.
void Insert(RollerList& List, const HighRoller& Entry);

/// What the file holds.
struct RollerLists {
  RollerList lstHSTS;  ///< "Highest Single Turn Score"
  RollerList lstBMoV;  ///< "Biggest Whoopin'", margin of victory
  bool operator==(const RollerLists&) const = default;

  /// The lists that a reset brings back.
  static RollerLists Default();
  /// Reads the plain text of the file, 20 lines in Latin-1; nothing for a text that isn't whole.
  static std::optional<RollerLists> OfText(const QByteArray& Text);
  QByteArray Text() const;
};

/// Picks one of the two lists.
using WhichList = RollerList RollerLists::*;

/// The scrambling of the file, byte for byte. No byte of scrambled text is 0; the plain byte 255 doesn't survive.
QByteArray ScrambleText(QByteArray Text);
QByteArray UnscrambleText(QByteArray Text);

}  // namespace blunko

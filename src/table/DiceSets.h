#pragma once

#include <QColor>
#include <QString>

#include <span>

namespace blunko {

/// A set of dice pictures with the tray colours that go with it. The picture of face F is number `Base` + F.
/// The trays are painted at three moments, which don't agree for every set.
struct DiceSet {
  const char* Name;
  int Base;
  QRgb Start;  ///< at program start
  QRgb Open;   ///< when the options panel opens
  QRgb Pick;   ///< when the set is clicked in the list
};

/// The sets that the options panel offers, in the order of its list.
std::span<const char* const> OfferedDiceSets();

/// The set of a base number or a name; null when there is none.
const DiceSet* FindDiceSet(int Base);
const DiceSet* FindDiceSet(const QString& Name);

/// Tray colour at program start; black for a base that is no set's.
QColor StartColour(int Base);

}  // namespace blunko

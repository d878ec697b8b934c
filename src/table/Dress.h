#pragma once

#include <QColor>
#include <QString>

#include <cstdint>

#include "storage/GameSettings.h"

namespace blunko {

/// What the table wears, besides what the game shows on it. The options panel changes it, the window draws it.
struct Dress {
  QColor Trays = Qt::black;           ///< both trays, and the dice boxes in them
  QColor Cover = QColor(0, 0, 128);   ///< the plate over the lower tray while a sample is shown
  std::uint32_t TextColour = 0;       ///< of the labels, 0xBBGGRR
  QString Background = NoBackground;  ///< path of a picture
  int SampleSet = 0;                  ///< base of the set whose faces lie in the upper tray instead of the game's; or 0
  bool Covered = false;               ///< the lower tray and the marks are out of sight

  bool operator==(const Dress&) const = default;
};

}  // namespace blunko

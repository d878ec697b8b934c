#pragma once

#include <QRect>

namespace blunko {

/// Logical pixels of a length in twips: 15 twips are one logical pixel.
constexpr int Pixels(int Twips) { return Twips >= 0 ? (Twips + 7) / 15 : -((-Twips + 7) / 15); }

/// Rectangle in logical pixels of one in twips. Edges are rounded, not sizes, so that what touches goes on touching.
constexpr QRect TwipsRect(int Left, int Top, int Width, int Height) {
  return QRect(QPoint(Pixels(Left), Pixels(Top)), QPoint(Pixels(Left + Width) - 1, Pixels(Top + Height) - 1));
}

}  // namespace blunko

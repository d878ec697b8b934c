#include "widgets/FitLabel.h"

#include <QPainter>

#include <utility>

#include "widgets/Letters.h"
#include "widgets/Materials.h"
#include "widgets/Pictures.h"

namespace blunko {

void FitLabel::setLoud(bool Loud) {
  if (std::exchange(loud, Loud) != Loud) update();
}

void FitLabel::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  constexpr int Side = 3;  // px, for the edges of the letters
  const QRectF Room = QRectF(contentsRect()).adjusted(Side, 0, -Side, 0);
  QFont Font = font();
  if (loud) {
    Font.setPixelSize(Font.pixelSize() * 5 / 4);
    Font.setBold(true);
  }
  const QColor Ink = loud ? LoudRed : palette().color(QPalette::WindowText);
  DrawLetters(Painter, Room, alignment(), text(), Font, Ink, GroundUnder(*this, ground, Ink));
}

}  // namespace blunko

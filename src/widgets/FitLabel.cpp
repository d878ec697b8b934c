#include "widgets/FitLabel.h"

#include <QPainter>

namespace blunko {

namespace {

const QColor LoudRed(176, 0, 24);
constexpr int Side = 3;  // px, for the halo

}  // namespace

void FitLabel::setForeColor(const QColor& Colour) {
  if (foreColor == Colour) return;
  foreColor = Colour;
  update();
}

void FitLabel::setLoud(bool Loud) {
  if (loud == Loud) return;
  loud = Loud;
  update();
}

void FitLabel::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  const QRectF Room = QRectF(contentsRect()).adjusted(Side, 0, -Side, 0);
  QFont Letters = font();
  if (loud) {
    Letters.setPixelSize(Letters.pixelSize() * 5 / 4);
    Letters.setBold(true);
  }
  words.Draw(Painter, Room, alignment(), text(), Letters, loud ? LoudRed : foreColor);
}

}  // namespace blunko

#include "widgets/FitLabel.h"

#include <QPainter>

#include "widgets/Pictures.h"

namespace blunko {

namespace {

const QColor LoudRed(176, 0, 24);
constexpr int Side = 3;  // px, for the edges of the letters

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
  QFont Font = font();
  if (loud) {
    Font.setPixelSize(Font.pixelSize() * 5 / 4);
    Font.setBold(true);
  }
  const QColor Ink = loud ? LoudRed : foreColor;
  words.Draw(Painter, Room, alignment(), text(), Font, Ink, GroundUnder(*this, ground, Ink));
}

}  // namespace blunko

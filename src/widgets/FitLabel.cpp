#include "widgets/FitLabel.h"

#include <QPainter>

namespace blunko {

void FitLabel::setForeColor(const QColor& Colour) {
  if (foreColor == Colour) return;
  foreColor = Colour;
  update();
}

void FitLabel::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  const QRectF Room = QRectF(contentsRect()).adjusted(HaloText::Reach, 0, -HaloText::Reach, 0);
  words.Draw(Painter, Room, alignment(), text(), font(), foreColor);
}

}  // namespace blunko

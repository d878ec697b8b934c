#include "table/FitLabel.h"

#include <QMouseEvent>
#include <QPainter>

namespace blunko {

namespace {

constexpr int SmallestText = 7;  // px

}  // namespace

void FitLabel::setForeColor(const QColor& Colour) {
  if (foreColor == Colour) return;
  foreColor = Colour;
  update();
}

void FitLabel::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  QFont Font = font();
  const int Flags = static_cast<int>(alignment());
  while (Font.pixelSize() > SmallestText && QFontMetrics(Font).size(Flags, text()).width() > width()) {
    Font.setPixelSize(Font.pixelSize() - 1);
  }
  Painter.setFont(Font);
  QColor Ink = foreColor;
  if (testAttribute(Qt::WA_ForceDisabled)) Ink.setAlphaF(0.5F);  // not faded together with a table that stands still
  Painter.setPen(Ink);
  Painter.drawText(rect(), Flags, text());
}

void FitLabel::mousePressEvent(QMouseEvent* Event) { Event->accept(); }

void FitLabel::mouseReleaseEvent(QMouseEvent* Event) {
  if (Event->button() == Qt::LeftButton && rect().contains(Event->position().toPoint())) emit clicked();
}

}  // namespace blunko

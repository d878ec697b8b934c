#include "table/FitLabel.h"

#include <QMouseEvent>
#include <QPainter>

namespace blunko {

namespace {

constexpr int SmallestText = 9;  // px

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
  const auto Needed = [&] { return QFontMetrics(Font).size(Flags, text()).width(); };
  while (Font.pixelSize() > SmallestText && Needed() > width()) Font.setPixelSize(Font.pixelSize() - 1);
  Painter.setFont(Font);
  QRect Room = rect();
  if (Needed() > width()) {  // smaller letters couldn't be read: these are narrowed
    Room.setWidth(Needed());
    Painter.scale(static_cast<qreal>(width() - 1) / Room.width(), 1);
  }
  QColor Ink = foreColor;
  if (testAttribute(Qt::WA_ForceDisabled)) Ink.setAlphaF(0.5F);  // not faded together with a table that stands still
  Painter.setPen(Ink);
  Painter.drawText(Room, Flags, text());
}

void FitLabel::mousePressEvent(QMouseEvent* Event) { Event->accept(); }

void FitLabel::mouseReleaseEvent(QMouseEvent* Event) {
  if (Event->button() == Qt::LeftButton && rect().contains(Event->position().toPoint())) emit clicked();
}

}  // namespace blunko

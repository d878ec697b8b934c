#include "widgets/FitLabel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "widgets/Colours.h"

namespace blunko {

namespace {

constexpr int SmallestText = 9;    // px
constexpr qreal Narrowest = 0.85;  // letters are narrowed so far before they get smaller; the smallest even further

}  // namespace

void FitLabel::setForeColor(const QColor& Colour) {
  if (foreColor == Colour) return;
  foreColor = Colour;
  update();
}

void FitLabel::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  if (hasFocus()) {
    Painter.setPen(QPen(FocusColour, 2));
    Painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
  QFont Font = font();
  const int Flags = static_cast<int>(alignment());
  QRectF Room = contentsRect();
  const auto Needed = [&] { return QFontMetrics(Font).size(Flags, text()).width(); };
  while (Font.pixelSize() > SmallestText && Needed() * Narrowest > Room.width()) {
    Font.setPixelSize(Font.pixelSize() - 1);
  }
  Painter.setFont(Font);
  // Smaller letters stand on the line of the others.
  if (alignment() & Qt::AlignTop) Room.translate(0, fontMetrics().ascent() - QFontMetrics(Font).ascent());
  const int Width = Needed();
  if (Width > Room.width()) {
    Painter.translate(Room.topLeft());
    Painter.scale((Room.width() - 1) / Width, 1);
    Room = QRectF(0, 0, Width, Room.height());
  }
  QColor Ink = foreColor;
  if (testAttribute(Qt::WA_ForceDisabled)) Ink.setAlphaF(0.5F);  // not faded together with a table that stands still
  Painter.setPen(Ink);
  Painter.drawText(Room, Flags, text());
}

void FitLabel::keyPressEvent(QKeyEvent* Event) {
  const int Key = Event->key();
  if (Key == Qt::Key_Space || Key == Qt::Key_Return || Key == Qt::Key_Enter) {
    emit clicked();
  } else {
    QLabel::keyPressEvent(Event);
  }
}

void FitLabel::mousePressEvent(QMouseEvent* Event) { Event->accept(); }

void FitLabel::mouseReleaseEvent(QMouseEvent* Event) {
  if (Event->button() == Qt::LeftButton && rect().contains(Event->position().toPoint())) emit clicked();
}

}  // namespace blunko

#include "table/DieBox.h"

#include <QMouseEvent>
#include <QPainter>

namespace blunko {

namespace {

int ButtonNumber(Qt::MouseButton Button) {
  switch (Button) {
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 1;
  }
}

}  // namespace

DieBox::DieBox(int Index, Bitmaps& Pictures, QWidget* Parent) : QWidget(Parent), index(Index), bitmaps(Pictures) {}

void DieBox::setPicture(int Number) {
  if (picture == Number) return;
  picture = Number;
  update();
}

void DieBox::setBackColor(const QColor& Colour) {
  backColor = Colour;
  update();
}

void DieBox::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.fillRect(rect(), backColor);
  const QPixmap& Die = bitmaps.Get(picture, devicePixelRatioF());
  Painter.drawPixmap(0, 0, Die);
}

void DieBox::mousePressEvent(QMouseEvent* Event) { Event->accept(); }

void DieBox::mouseReleaseEvent(QMouseEvent* Event) {
  if (rect().contains(Event->position().toPoint())) emit mouseUp(index, ButtonNumber(Event->button()));
}

void DiceTray::setBackColor(const QColor& Colour) {
  backColor = Colour;
  update();
}

void DiceTray::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.fillRect(rect(), backColor);
  const qreal Line = 1 / devicePixelRatioF();
  Painter.setPen(QPen(QColor(0, 0, 0, 190), Line));
  Painter.drawRect(QRectF(rect()).adjusted(Line / 2, Line / 2, -Line / 2, -Line / 2));
}

void DiceTray::mousePressEvent(QMouseEvent* Event) { Event->accept(); }

void DiceTray::mouseReleaseEvent(QMouseEvent* Event) {
  if (rect().contains(Event->position().toPoint())) emit mouseUp(ButtonNumber(Event->button()));
}

}  // namespace blunko

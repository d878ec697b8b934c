#include "table/DieBox.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

#include "widgets/Materials.h"

namespace blunko {

constexpr qreal RingRadius = 10;           // px
constexpr QRect FeltPlace(0, 0, 359, 50);  // in a tray: its right and lower edges are the frame's

DieBox::DieBox(int Index, Bitmaps& Pictures, QWidget* Parent)
    : QAbstractButton(Parent), index(Index), bitmaps(Pictures) {
  setFocusPolicy(Qt::TabFocus);
  hide();
  connect(this, &QAbstractButton::clicked, this, [this] { emit mouseUp(index, Qt::LeftButton); });
}

void DieBox::setPicture(int Number) {
  if (std::exchange(picture, Number) == Number) return;
  setVisible(picture != 0);
  parentWidget()->update();  // its shadow, too
}

void DieBox::setTakeable(bool Takeable) {
  if (std::exchange(takeable, Takeable) == Takeable) return;
  setCursor(takeable ? Qt::PointingHandCursor : Qt::ArrowCursor);
  update();
}

void DieBox::setPale(bool Pale) {
  if (std::exchange(pale, Pale) != Pale) parentWidget()->update();
}

void DieBox::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  const qreal Scale = devicePixelRatioF();
  const QPixmap& Die = bitmaps.Get(picture, Scale);
  Painter.setOpacity(pale ? 0.3 : 1);
  Painter.drawPixmap(QPoint(), Die);
  if (takeable && underMouse()) {
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(QPen(Thin(Qt::white, 0.9), 1.5));
    Painter.drawRoundedRect(QRectF(QPointF(), Die.deviceIndependentSize()).adjusted(0.75, 0.75, -0.75, -0.75),
                            RingRadius, RingRadius);
  }
  if (hasFocus()) DrawFocusRing(Painter, rect(), RingRadius);
}

void DieBox::DrawShadow(QPainter& Painter) const {
  Painter.setOpacity(pale ? 0.3 : 1);
  Painter.drawPixmap(pos(), bitmaps.ShadowOf(picture, devicePixelRatioF()));
}

void DieBox::mousePressEvent(QMouseEvent* Event) {
  QAbstractButton::mousePressEvent(Event);
  Event->accept();  // the tray below has clicks of its own
}

void DieBox::mouseReleaseEvent(QMouseEvent* Event) {
  QAbstractButton::mouseReleaseEvent(Event);
  Event->accept();
  if (Event->button() == Qt::LeftButton) return;
  if (hitButton(Event->position().toPoint())) emit mouseUp(index, Event->button());
}

/// Left and Right go from die to die within the row.
void DieBox::keyPressEvent(QKeyEvent* Event) {
  const int Step = Event->key() == Qt::Key_Right ? 1 : Event->key() == Qt::Key_Left ? -1 : 0;
  if (Step == 0) return QAbstractButton::keyPressEvent(Event);
  const auto Row = parentWidget()->findChildren<DieBox*>(Qt::FindDirectChildrenOnly);
  auto Next = Row.indexOf(this) + Step;
  while (Next >= 0 && Next < Row.size() && Row[Next]->isHidden()) Next += Step;
  if (Next >= 0 && Next < Row.size()) Row[Next]->setFocus();
}

void DiceTray::setBackColor(const QColor& Colour) {
  if (std::exchange(backColor, Colour) != Colour) update();
}

void DiceTray::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  const QRect Place = FeltPlace.translated(0, -sunk);
  Painter.drawPixmap(Place.topLeft(), Felt(FeltPlace.size(), backColor, devicePixelRatioF()));
  Painter.setClipRect(Place);
  for (const DieBox* Die : findChildren<DieBox*>(Qt::FindDirectChildrenOnly)) {
    if (!Die->isHidden()) Die->DrawShadow(Painter);
  }
}

void DiceTray::mousePressEvent(QMouseEvent* Event) { Event->accept(); }

void DiceTray::mouseReleaseEvent(QMouseEvent* Event) {
  if (rect().contains(Event->position().toPoint())) emit mouseUp(Event->button());
}

}  // namespace blunko

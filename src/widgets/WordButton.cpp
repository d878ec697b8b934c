#include "widgets/WordButton.h"

#include <QPainter>

#include "widgets/Materials.h"
#include "widgets/Pictures.h"

namespace blunko {

namespace {

constexpr qreal Radius = 5;  // px

}  // namespace

WordButton::WordButton(const QString& Caption, QWidget* Parent) : QPushButton(Caption, Parent) {
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  setAutoDefault(true);  // Enter presses it, too
}

void WordButton::setForeColor(const QColor& Colour) {
  foreColor = Colour;
  update();
}

QSize WordButton::sizeHint() const {
  return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2 * FocusRingWidth + 4, 2 * FocusRingWidth);
}

void WordButton::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  if (isEnabled() && (underMouse() || isDown())) {
    QColor Tint = BestGround(foreColor);
    Tint.setAlphaF(isDown() ? 0.6F : 0.4F);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(Tint);
    Painter.drawRoundedRect(rect(), Radius, Radius);
  }
  if (hasFocus()) DrawFocusRing(Painter, rect(), Radius);
  QColor Ink = foreColor;
  if (testAttribute(Qt::WA_ForceDisabled)) Ink.setAlphaF(0.5F);  // not faded together with a table that stands still
  const QRectF Room = QRectF(rect()).adjusted(FocusRingWidth, 0, -FocusRingWidth, 0);
  words.Draw(Painter, Room, Qt::AlignCenter, text(), font(), Ink, GroundUnder(*this, ground, Ink));
}

}  // namespace blunko

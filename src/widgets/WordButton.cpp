#include "widgets/WordButton.h"

#include <QPainter>

#include "widgets/Letters.h"
#include "widgets/Materials.h"
#include "widgets/Pictures.h"

namespace blunko {

WordButton::WordButton(const QString& Caption, QWidget* Parent) : QPushButton(Caption, Parent) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  setAutoDefault(true);  // Enter presses it, too
}

QSize WordButton::sizeHint() const {
  return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2 * FocusRingWidth + 4, 2 * FocusRingWidth);
}

void WordButton::paintEvent(QPaintEvent*) {
  constexpr qreal Radius = 5;  // px
  const QColor Words = palette().color(QPalette::WindowText);
  QPainter Painter(this);
  if (isEnabled() && (underMouse() || isDown())) {
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(Thin(BestGround(Words), isDown() ? 0.6 : 0.4));
    Painter.drawRoundedRect(rect(), Radius, Radius);
  }
  if (hasFocus()) DrawFocusRing(Painter, rect(), Radius);
  // Not faded together with a table that stands still.
  const QColor Ink = Thin(Words, testAttribute(Qt::WA_ForceDisabled) ? 0.5 : 1);
  const QRectF Room = QRectF(rect()).adjusted(FocusRingWidth, 0, -FocusRingWidth, 0);
  DrawLetters(Painter, Room, Qt::AlignCenter, text(), font(), Ink, GroundUnder(*this, ground, Ink));
}

}  // namespace blunko

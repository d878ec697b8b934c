#include "table/Swatch.h"

#include <QPainter>

#include "widgets/Colours.h"
#include "widgets/FocusRing.h"
#include "widgets/TickBox.h"

namespace blunko {

Swatch::Swatch(const QColor& Colour, QWidget* Parent) : QAbstractButton(Parent), colour(Colour) {
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
}

void Swatch::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setPen(QPen(QColor(60, 60, 60), 1));
  Painter.setBrush(colour);
  Painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  if (hasFocus()) DrawFocusRing(Painter, rect(), 2);
  if (isChecked()) DrawTick(Painter, QRectF(rect()), BestGround(colour));
}

}  // namespace blunko

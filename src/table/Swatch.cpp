#include "table/Swatch.h"

#include <QPainter>

#include "widgets/Materials.h"
#include "widgets/TickBox.h"

namespace blunko {

Swatch::Swatch(const QColor& Colour, QWidget* Parent) : QAbstractButton(Parent), colour(Colour) { setCheckable(true); }

void Swatch::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.setRenderHint(QPainter::Antialiasing);
  const QRectF Field = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  Painter.setPen(QPen(Brass, 1));
  Painter.setBrush(colour);
  Painter.drawRoundedRect(Field, 3, 3);
  // Enamel: a rim in the light and in the shade.
  Painter.setPen(QPen(Thin(Qt::white, 0.45), 1));
  Painter.drawLine(QPointF(3, 1.5), QPointF(width() - 3, 1.5));
  Painter.setPen(QPen(Thin(Shade, 0.3), 1));
  Painter.drawLine(QPointF(3, height() - 1.5), QPointF(width() - 3, height() - 1.5));
  if (hasFocus()) DrawFocusRing(Painter, rect(), 2);
  if (isChecked()) DrawTick(Painter, QRectF(rect()), BestGround(colour));
}

}  // namespace blunko

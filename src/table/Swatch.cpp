#include "table/Swatch.h"

#include <QPainter>

#include "widgets/Colours.h"
#include "widgets/TickBox.h"

namespace blunko {

Swatch::Swatch(const QColor& Colour, const QColor& Tick, QWidget* Parent)
    : QAbstractButton(Parent), colour(Colour), tick(Tick) {
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
}

void Swatch::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setPen(hasFocus() ? QPen(FocusColour, 2) : QPen(QColor(60, 60, 60), 1));
  Painter.setBrush(colour);
  const qreal Inset = hasFocus() ? 1 : 0.5;
  Painter.drawRect(QRectF(rect()).adjusted(Inset, Inset, -Inset, -Inset));
  if (isChecked()) DrawTick(Painter, QRectF(rect()), tick);
}

}  // namespace blunko

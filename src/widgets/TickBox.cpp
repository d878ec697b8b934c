#include "widgets/TickBox.h"

#include <QPainter>

#include "widgets/Materials.h"

namespace blunko {

constexpr int Side = 15;  // px, of the square

TickBox::TickBox(QWidget* Parent) : QCheckBox(Parent) { setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); }

QSize TickBox::sizeHint() const { return {Side + 2 * FocusRingWidth, Side + 2 * FocusRingWidth}; }

void TickBox::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.translate(FocusRingWidth, FocusRingWidth);
  const QRectF Square(0.5, 0.5, Side - 1, Side - 1);
  if (hasFocus()) {
    constexpr qreal Around = FocusRingWidth + 0.5;
    DrawFocusRing(Painter, Square.adjusted(-Around, -Around, Around, Around), FocusRingWidth);
  }
  Painter.setPen(QPen(Mixed(Brass, WalnutDark, 0.3), 1));
  Painter.setBrush(isDown() ? Paper.darker(115) : Paper);
  Painter.drawRoundedRect(Square, 2.5, 2.5);
  if (isChecked()) DrawTick(Painter, QRectF(0, 0, Side, Side), PaperInk);
}

void DrawTick(QPainter& Painter, const QRectF& Place, const QColor& Colour) {
  const qreal Unit = qMin(Place.width(), Place.height()) / 15;
  const auto At = [&](qreal X, qreal Y) { return Place.center() + Unit * QPointF(X - 7.5, Y - 7.5); };
  Painter.setPen(QPen(Colour, 2.4 * Unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  Painter.setBrush(Qt::NoBrush);
  Painter.drawPolyline(QPolygonF{At(3.2, 7.8), At(6.2, 11.2), At(11.8, 3.6)});
}

}  // namespace blunko

#include "widgets/FocusRing.h"

#include <QPainter>

namespace blunko {

namespace {

constexpr qreal Line = FocusRingWidth / 2.0;
const QColor Light(255, 190, 64), Dark(16, 20, 44);  // 10:1, so at least 3:1 between one of them and any colour

}  // namespace

void DrawFocusRing(QPainter& Painter, const QRectF& Outer, qreal Radius) {
  Painter.save();
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setBrush(Qt::NoBrush);
  for (const auto& [Colour, Depth] : {std::pair(Dark, Line / 2), std::pair(Light, Line * 3 / 2)}) {
    Painter.setPen(QPen(Colour, Line));
    const qreal Round = qMax(0.0, Radius - Depth);
    Painter.drawRoundedRect(Outer.adjusted(Depth, Depth, -Depth, -Depth), Round, Round);
  }
  Painter.restore();
}

}  // namespace blunko

#include "widgets/LinkLabel.h"

#include <QPainter>

#include "widgets/Fonts.h"
#include "widgets/Materials.h"

namespace blunko {

constexpr int Margin = FocusRingWidth + 1;  // px

LinkLabel::LinkLabel(const QString& Caption, QWidget* Parent) : QPushButton(Caption, Parent) {
  QFont Font = FontOf(Typeface::Verdana, 13);
  Font.setUnderline(true);
  setFont(Font);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LinkLabel::sizeHint() const {
  return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2 * Margin, 2 * Margin);
}

void LinkLabel::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  const QColor Link = palette().color(QPalette::Link);
  Painter.setPen(isDown() ? Link.darker(130) : Link);
  Painter.drawText(rect(), Qt::AlignCenter, text());
  if (hasFocus()) DrawFocusRing(Painter, rect(), Margin);
}

}  // namespace blunko

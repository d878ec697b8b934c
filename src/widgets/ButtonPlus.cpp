#include "widgets/ButtonPlus.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include "widgets/Fonts.h"
#include "widgets/Materials.h"

namespace blunko {

constexpr int CaptionSpace = 8;  // px at either side

ButtonPlus::ButtonPlus(const QString& Caption, QWidget* Parent) : QPushButton(Caption, Parent), body(ButtonNavy) {
  setFont(FontOf(Typeface::Verdana, 13));
  setAutoDefault(true);  // Enter presses it, too
}

void ButtonPlus::setBackColor(const QColor& Colour) { body = Mixed(ButtonNavy, Colour, 0.2); }

void ButtonPlus::setHero() {
  hero = true;
  body = HeroNavy;
}

QSize ButtonPlus::sizeHint() const {
  const QSize Text = fontMetrics().size(Qt::TextShowMnemonic, text());
  return {Text.width() + 4 * CaptionSpace, Text.height() + 16};
}

/// Enter that is held presses once.
void ButtonPlus::keyPressEvent(QKeyEvent* Event) {
  if (!Event->isAutoRepeat()) QPushButton::keyPressEvent(Event);
}

void ButtonPlus::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  const QRectF Face = QRectF(rect()).adjusted(1, 1, -1, -3).translated(0, isDown() ? 1 : 0);
  const bool Lit = underMouse() && !isDown();
  const QColor Ink =
      DrawButton(Painter, Face, {Lit ? body.lighter(118) : body, hero, isEnabled(), isDown(), hasFocus()});

  const QRectF Room = Face.adjusted(CaptionSpace, 0, -CaptionSpace, 0);
  Painter.setFont(FittedFont(font(), text(), Room.width()));
  const bool ShowLetter = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
  const int How = Qt::AlignCenter | (ShowLetter ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
  Painter.setPen(Thin(BestGround(Ink), 0.6));  // stamped into the face
  Painter.drawText(Room.translated(0, -1), How, text());
  Painter.setPen(Ink);
  Painter.drawText(Room, How, text());
}

}  // namespace blunko

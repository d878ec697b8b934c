#include "widgets/ButtonPlus.h"

#include <QEnterEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionButton>

#include "widgets/Colours.h"
#include "widgets/Fonts.h"

namespace blunko {

namespace {

constexpr qreal Radius = 6;      // px
constexpr int CaptionSpace = 8;  // px at either side

}  // namespace

ButtonPlus::ButtonPlus(const QString& Caption, QWidget* Parent)
    : QPushButton(Caption, Parent), backColor(palette().color(QPalette::Button)) {
  setFont(FontOf(Typeface::Verdana, 9.75));
  setAttribute(Qt::WA_Hover);
  setAutoDefault(true);  // Enter presses it, too
}

void ButtonPlus::setBackColor(const QColor& Colour) {
  backColor = Colour;
  update();
}

QSize ButtonPlus::sizeHint() const {
  const QSize Text = fontMetrics().size(Qt::TextShowMnemonic, text());
  return {Text.width() + 4 * CaptionSpace, Text.height() + 16};
}

void ButtonPlus::enterEvent(QEnterEvent* Event) {
  QPushButton::enterEvent(Event);
  update();
}

void ButtonPlus::leaveEvent(QEvent* Event) {
  QPushButton::leaveEvent(Event);
  update();
}

void ButtonPlus::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.setRenderHint(QPainter::Antialiasing);
  const bool Lit = isEnabled() && underMouse();
  const bool Down = isDown();
  const QRectF Face = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -2.5).translated(0, Down ? 1 : 0);

  if (!Down && isEnabled()) {  // a soft edge of shadow lifts the button off the table
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(QColor(0, 0, 0, 70));
    Painter.drawRoundedRect(Face.translated(0, 1.5), Radius, Radius);
  }

  QColor Base = backColor;
  if (Lit) Base = Base.lighter(108);
  QLinearGradient Light(Face.topLeft(), Face.bottomLeft());
  Light.setColorAt(0, Base.lighter(Down ? 96 : 112));
  Light.setColorAt(0.5, Base);
  Light.setColorAt(1, Base.darker(Down ? 104 : 116));
  Painter.setBrush(isEnabled() ? QBrush(Light) : QBrush(Base.darker(103)));
  Painter.setPen(QPen(isEnabled() ? backColor.darker(210) : backColor.darker(150), 1));
  Painter.drawRoundedRect(Face, Radius, Radius);
  if (isEnabled() && !Down) {
    Painter.setPen(QPen(QColor(255, 255, 255, 150), 1));
    Painter.setBrush(Qt::NoBrush);
    Painter.drawRoundedRect(Face.adjusted(1, 1, -1, -1), Radius - 1, Radius - 1);
  }
  if (hasFocus()) {
    Painter.setPen(QPen(FocusColour, 2));
    Painter.setBrush(Qt::NoBrush);
    Painter.drawRoundedRect(Face.adjusted(1, 1, -1, -1), Radius - 1, Radius - 1);
  }

  const QRect Room = Face.toRect().adjusted(CaptionSpace, 0, -CaptionSpace, 0);
  QFont Font = font();
  while (Font.pixelSize() > 7 && QFontMetrics(Font).size(Qt::TextShowMnemonic, text()).width() > Room.width()) {
    Font.setPixelSize(Font.pixelSize() - 1);
  }
  Painter.setFont(Font);
  const QColor Ink = qGray(backColor.rgb()) > 110 ? QColor(24, 24, 32) : QColor(255, 255, 255);
  Painter.setPen(isEnabled() ? Ink : QColor::fromRgbF(Ink.redF(), Ink.greenF(), Ink.blueF(), 0.42F));
  const bool ShowLetter = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
  Painter.drawText(Room, Qt::AlignCenter | (ShowLetter ? Qt::TextShowMnemonic : Qt::TextHideMnemonic), text());
}

void FixButtonColours(QWidget& Form) {
  const QColor Face = QGuiApplication::palette().color(QPalette::Button);
  for (ButtonPlus* Button : Form.findChildren<ButtonPlus*>()) Button->setBackColor(Face);
}

}  // namespace blunko

#include "widgets/ButtonPlus.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include "widgets/Colours.h"
#include "widgets/FocusRing.h"
#include "widgets/Fonts.h"

namespace blunko {

namespace {

constexpr qreal Radius = 6;      // px
constexpr int CaptionSpace = 8;  // px at either side

QColor Faded(QColor Colour, float Alpha) {
  Colour.setAlphaF(Alpha);
  return Colour;
}

/// The style of that name is the plain look of a desktop that has no theme; on a dark one, light faces would glare.
bool IsThemeActive() {
  constexpr double Light = 0.4;
  return QApplication::style()->name() != QLatin1String("windows") &&
         Luminance(QApplication::palette().color(QPalette::Button)) > Light;
}

}  // namespace

ButtonPlus::ButtonPlus(const QString& Caption, QWidget* Parent) : QPushButton(Caption, Parent), backColor(ButtonBlue) {
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

/// Enter that is held presses once.
void ButtonPlus::keyPressEvent(QKeyEvent* Event) {
  if (!Event->isAutoRepeat()) QPushButton::keyPressEvent(Event);
}

void ButtonPlus::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.setRenderHint(QPainter::Antialiasing);
  const bool Down = isDown();
  const QRectF Face = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -2.5).translated(0, Down ? 1 : 0);
  if (isEnabled()) {
    DrawFace(Painter, Face);
  } else {  // flat and see-through
    Painter.setPen(QPen(Faded(backColor.darker(210), 0.45F), 1));
    Painter.setBrush(Faded(backColor, 0.4F));
    Painter.drawRoundedRect(Face, Radius, Radius);
  }
  if (hasFocus()) DrawFocusRing(Painter, rect(), Radius + 1.5);

  const QRectF Room = Face.adjusted(CaptionSpace, 0, -CaptionSpace, 0);
  Painter.setFont(FittedFont(font(), text(), Room.width()));
  const bool DarkInk = BestGround(backColor) == QColor(Qt::black);
  const QColor Ink = DarkInk ? QColor(20, 24, 48) : QColor(Qt::white);
  Painter.setPen(isEnabled() ? Ink : Faded(Ink, 0.5F));
  const bool ShowLetter = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
  Painter.drawText(Room, Qt::AlignCenter | (ShowLetter ? Qt::TextShowMnemonic : Qt::TextHideMnemonic), text());
}

void ButtonPlus::DrawFace(QPainter& Painter, const QRectF& Face) const {
  const bool Down = isDown();
  if (!Down) {  // a soft edge of shadow lifts the button off the table
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(Faded(Qt::black, 0.28F));
    Painter.drawRoundedRect(Face.translated(0, 1.5), Radius, Radius);
  }
  const QColor Base = underMouse() && !Down ? backColor.lighter(109) : backColor;
  QLinearGradient Light(Face.topLeft(), Face.bottomLeft());
  Light.setColorAt(0, Down ? Base.darker(118) : Base.lighter(112));
  Light.setColorAt(0.5, Down ? Base.darker(108) : Base);
  Light.setColorAt(1, Down ? Base : Base.darker(116));
  Painter.setBrush(Light);
  Painter.setPen(QPen(backColor.darker(210), 1));
  Painter.drawRoundedRect(Face, Radius, Radius);
  if (Down) return;
  Painter.setPen(QPen(Faded(Qt::white, 0.55F), 1));
  Painter.setBrush(Qt::NoBrush);
  Painter.drawRoundedRect(Face.adjusted(1, 1, -1, -1), Radius - 1, Radius - 1);
}

void FixButtonColours(QWidget& Form) {
  if (IsThemeActive()) return;
  const QColor Face = QApplication::palette().color(QPalette::Button);
  for (ButtonPlus* Button : Form.findChildren<ButtonPlus*>()) Button->setBackColor(Face);
}

}  // namespace blunko

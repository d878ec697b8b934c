#include "widgets/Letters.h"

#include <QColorSpace>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

#include "widgets/Fonts.h"
#include "widgets/Materials.h"
#include "widgets/Pictures.h"

namespace blunko {

namespace {

constexpr qreal Narrowest = 0.85;  // letters are narrowed so far before they get smaller; the smallest even further
constexpr int Reach = 5;           // px, of shadow and light beyond the letters
constexpr double Plain = 7, Least = 4.5;  // contrasts: from the one on no edge, from the other on a hint of a shadow

/// The part of black to white, 0 to 1, that a grey of the luminance has on the screen.
double ShadeOf(double Luminance) {
  static const auto ToShade = QColorSpace(QColorSpace::SRgbLinear).transformationToColorSpace(QColorSpace::SRgb);
  const auto Grey = static_cast<float>(Luminance);
  return ToShade.map(QColor::fromRgbF(Grey, Grey, Grey)).redF();
}

/// How strong a light, or a dark, behind the letters must be to give them the contrast on the ground.
double StrengthFor(const QColor& Ink, const QColor& Ground) {
  constexpr double Wanted = 6.8;  // the letters' own soft edges take some of it
  const bool Dark = BestGround(Ink) == QColor(Qt::black);
  const double Light = Luminance(Ink) + 0.05, Here = ShadeOf(Luminance(Ground));
  const double There = ShadeOf(qBound(0.0, (Dark ? Light / Wanted : Light * Wanted) - 0.05, 1.0));
  return qBound(0.0, Dark ? 1 - There / qMax(Here, 0.01) : (There - Here) / qMax(1 - Here, 0.01), 1.0);
}

/// The shadow or light itself, at full strength next to the letters.
QPixmap EdgeOf(const QString& Text, const QFont& Font, const QColor& Colour, qreal Stretch, qreal Scale) {
  const QFontMetricsF Metrics(Font);
  const QSizeF Size(Metrics.horizontalAdvance(Text) * Stretch + 2 * Reach,
                    std::ceil(Metrics.ascent()) + Metrics.descent() + 2 * Reach);
  QPixmap Picture = EmptyPicture(Size + QSizeF(1, 1) / Scale, Scale), Edge = Picture;
  QPainter Painter(&Picture);
  Painter.translate(Reach, Reach + std::ceil(Metrics.ascent()));
  Painter.scale(Stretch, 1);
  Painter.setFont(Font);
  Painter.setPen(Colour);
  Painter.drawText(QPointF(), Text);
  Painter.end();
  const QImage Soft = Blurred(Picture.toImage(), 2.6 * Scale);
  Painter.begin(&Edge);
  for (int Coat = 0; Coat < 12; ++Coat) Painter.drawImage(QPoint(), Soft);
  Painter.end();
  return Edge;
}

}  // namespace

void DrawLetters(QPainter& Painter, const QRectF& Room, Qt::Alignment Side, const QString& Text, const QFont& Font,
                 const QColor& Ink, const QColor& Ground) {
  if (Text.trimmed().isEmpty()) return;
  const QFont Fitted = FittedFont(Font, Text, Room.width() / Narrowest);
  const QFontMetricsF Metrics(Fitted);
  const qreal Needed = Metrics.horizontalAdvance(Text);
  const qreal Stretch = qMin(1.0, Room.width() / Needed);

  QPointF Start = Room.topLeft();
  if (Side & Qt::AlignRight) Start.setX(Room.right() - Needed * Stretch);
  if (Side & Qt::AlignHCenter) Start.setX(Room.center().x() - Needed * Stretch / 2);
  // Smaller letters stand on the line of the others.
  Start.ry() += Side & Qt::AlignVCenter ? (Room.height() - Metrics.height()) / 2 + Metrics.ascent()
                                        : QFontMetricsF(Font).ascent();
  const qreal Scale = Painter.device()->devicePixelRatioF();
  Start = QPointF(qRound(Start.x() * Scale), qRound(Start.y() * Scale)) / Scale;
  Painter.save();
  Painter.translate(Start);
  Painter.setFont(Fitted);
  const auto Write = [&](const QColor& Colour, QPointF Place) {
    Painter.setPen(Colour);
    Painter.drawText(Place, Text);
  };
  const double Standing = Contrast(Ink, Ground);
  const QColor Edge = BestGround(Ink);
  if (Standing < Least) {
    const QString Looks = QStringLiteral("letters %1 %2 %3 ").arg(Edge.name()).arg(Stretch).arg(Scale);
    const QPixmap Behind =
        Cached(Looks + Fitted.key() + Text, [&] { return EdgeOf(Text, Fitted, Edge, Stretch, Scale); });
    Painter.setOpacity(Ink.alphaF() * StrengthFor(Ink, Ground));
    Painter.drawPixmap(QPointF(-Reach, -Reach - std::ceil(Metrics.ascent())), Behind);
    Painter.setOpacity(1);
  }
  Painter.scale(Stretch, 1);
  if (Standing >= Least && Standing < Plain) Write(Thin(Edge, 0.25 * Ink.alphaF()), {1, 1});
  Write(Ink, {});
  Painter.restore();
}

}  // namespace blunko

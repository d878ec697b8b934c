#include "widgets/HaloText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

#include "widgets/Colours.h"
#include "widgets/Fonts.h"

namespace blunko {

namespace {

constexpr qreal Narrowest = 0.85;  // letters are narrowed so far before they get smaller; the smallest even further

/// The halo is made of rings around the letters, drawn over one another; it is whole up to `Reach` of the last.
constexpr struct {
  qreal Reach;
  float Alpha;
} Rings[] = {{HaloText::Reach, 0.12F}, {4, 0.22F}, {3, 0.45F}, {2.2, 1}};

/// How strong the halo must be for letters of the colour to have the contrast even where all around is like them.
double StrengthFor(const QColor& Ink) {
  constexpr double Contrast = 7.5;  // the letters' own soft edges take some of it
  const double Light = Luminance(Ink) + 0.05;
  const bool Dark = BestGround(Ink) == QColor(Qt::black);
  const double Wanted = ShadeOf(qBound(0.0, (Dark ? Light / Contrast : Light * Contrast) - 0.05, 1.0));
  return Dark ? 1 - Wanted : Wanted;
}

}  // namespace

void HaloText::Draw(QPainter& Painter, const QRectF& Room, Qt::Alignment Side, const QString& Text, const QFont& Font,
                    const QColor& Ink) {
  if (Text.trimmed().isEmpty()) return;
  const QFont Fitted = FittedFont(Font, Text, Room.width() / Narrowest);
  const QFontMetricsF Letters(Fitted);
  const qreal Needed = Letters.horizontalAdvance(Text);
  const qreal Stretch = qMin(1.0, Room.width() / Needed);

  QPointF Start = Room.topLeft();
  if (Side & Qt::AlignRight) Start.setX(Room.right() - Needed * Stretch);
  if (Side & Qt::AlignHCenter) Start.setX(Room.center().x() - Needed * Stretch / 2);
  // Smaller letters stand on the line of the others.
  Start.ry() += Side & Qt::AlignVCenter ? (Room.height() - Letters.height()) / 2 + Letters.ascent()
                                        : QFontMetricsF(Font).ascent();
  const qreal Scale = Painter.device()->devicePixelRatioF();
  const Looks Now{Text, Fitted, BestGround(Ink).rgb(), Stretch, Scale};
  if (!(Now == drawn)) {
    drawn = Now;
    Render();
  }
  Start = QPointF(qRound(Start.x() * Scale), qRound(Start.y() * Scale)) / Scale;
  Painter.save();
  Painter.translate(Start);
  Painter.setOpacity(Ink.alphaF() * StrengthFor(Ink));
  Painter.drawPixmap(QPointF(-Reach, -Reach - std::ceil(Letters.ascent())), halo);
  Painter.setOpacity(1);
  Painter.scale(Stretch, 1);
  Painter.setFont(Fitted);
  Painter.setPen(Ink);
  Painter.drawText(QPointF(), Text);
  Painter.restore();
}

void HaloText::Render() {
  const QFontMetricsF Letters(drawn.Font);
  const QSizeF Size(Letters.horizontalAdvance(drawn.Text) * drawn.Stretch + 2 * Reach,
                    std::ceil(Letters.ascent()) + Letters.descent() + 2 * Reach);
  halo = QPixmap((Size * drawn.Scale).toSize() + QSize(1, 1));
  halo.setDevicePixelRatio(drawn.Scale);
  halo.fill(Qt::transparent);
  QPainterPath Outline;
  Outline.addText({}, drawn.Font, drawn.Text);
  Outline = QTransform(drawn.Stretch, 0, 0, 1, Reach, Reach + std::ceil(Letters.ascent())).map(Outline);
  QPainter Painter(&halo);
  Painter.setRenderHint(QPainter::Antialiasing);
  QColor Ground(drawn.Ground);
  for (const auto& Ring : Rings) {
    Ground.setAlphaF(Ring.Alpha);
    Painter.strokePath(Outline, QPen(Ground, 2 * Ring.Reach, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
}

}  // namespace blunko

#include "widgets/HaloText.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

#include "widgets/Colours.h"
#include "widgets/Fonts.h"

namespace blunko {

namespace {

constexpr qreal Narrowest = 0.85;  // letters are narrowed so far before they get smaller; the smallest even further

constexpr float Whole = 2.2F;  // px round the letters where the halo has its full strength; it fades from there

/// How far each dot of the picture lies from the next one that a letter fills, in dots: told on from neighbour to
/// neighbour, down the picture and up again. Wants a margin round the letters.
std::vector<float> DistancesFromLetters(const QImage& Letters) {
  constexpr float Straight = 0.96F, Across = 1.36F;  // so chosen that no way errs by more than 4 %
  const int Width = Letters.width(), Dots = Width * Letters.height();
  std::vector<float> Distance(static_cast<std::size_t>(Dots), 1000);
  const auto* Dot = reinterpret_cast<const QRgb*>(Letters.constBits());
  for (int At = Width + 1; At < Dots - Width - 1; ++At) {
    if (qAlpha(Dot[At]) != 0) Distance[At] = 1 - static_cast<float>(qAlpha(Dot[At])) / 255;
  }
  const auto HearFrom = [&](int At, int Side) {
    const auto* Here = &Distance[At];
    Distance[At] = std::min({Here[0], Here[Side] + Straight, Here[Side * Width] + Straight,
                             Here[Side * (Width - 1)] + Across, Here[Side * (Width + 1)] + Across});
  };
  for (int At = Width + 1; At < Dots - Width - 1; ++At) HearFrom(At, -1);
  for (int At = Dots - Width - 2; At > Width; --At) HearFrom(At, 1);
  return Distance;
}

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
  QImage Picture((Size * drawn.Scale).toSize() + QSize(1, 1), QImage::Format_ARGB32_Premultiplied);
  Picture.setDevicePixelRatio(drawn.Scale);
  Picture.fill(Qt::transparent);
  QPainter Painter(&Picture);
  Painter.translate(Reach, Reach + std::ceil(Letters.ascent()));
  Painter.scale(drawn.Stretch, 1);
  Painter.setFont(drawn.Font);
  Painter.drawText(QPointF(), drawn.Text);
  Painter.end();
  auto* Dot = reinterpret_cast<QRgb*>(Picture.bits());
  for (const float Distance : DistancesFromLetters(Picture)) {
    const float Px = (Distance - 0.5F) / static_cast<float>(drawn.Scale);  // from the letter's edge
    const float Part = std::clamp((Reach - Px) / (Reach - Whole), 0.F, 1.F);
    *Dot++ = qPremultiply((drawn.Ground & RGB_MASK) | static_cast<QRgb>(255 * Part * Part) << 24);
  }
  halo = QPixmap::fromImage(std::move(Picture));
}

}  // namespace blunko

#include "widgets/Fonts.h"

#include <QFontMetricsF>
#include <QStringList>

namespace blunko {

namespace {

constexpr int SmallestText = 9;  // px

QStringList Families(Typeface Face) {
  switch (Face) {
    case Typeface::Verdana:
      return {QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans"), QStringLiteral("Bitstream Vera Sans"),
              QStringLiteral("sans-serif")};
    case Typeface::ComicSans:
      return {QStringLiteral("Comic Sans MS"), QStringLiteral("Comic Neue"), QStringLiteral("Comic Relief"),
              QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")};
    case Typeface::CourierNew:
      return {QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono"),
              QStringLiteral("monospace")};
  }
  return {};
}

}  // namespace

QFont FontOf(Typeface Face, double Points, bool Bold) {
  QFont Font;
  Font.setFamilies(Families(Face));
  if (Face == Typeface::CourierNew) Font.setStyleHint(QFont::Monospace);
  Font.setPixelSize(qRound(Points * 20 / 15));
  Font.setBold(Bold);
  return Font;
}

QFont FittedFont(QFont Font, const QString& Text, double Width) {
  while (Font.pixelSize() > SmallestText && QFontMetricsF(Font).horizontalAdvance(Text) > Width) {
    Font.setPixelSize(Font.pixelSize() - 1);
  }
  return Font;
}

}  // namespace blunko

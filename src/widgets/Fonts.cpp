#include "widgets/Fonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>

namespace blunko {

namespace {

constexpr int SmallestText = 9;  // px

/// Of each typeface: its family, and those that stand in for it.
constexpr const char* Families[] = {"Verdana,DejaVu Sans,Bitstream Vera Sans,sans-serif",
                                    "Comic Sans MS,Comic Neue,Comic Relief,DejaVu Sans,sans-serif",
                                    "Courier New,Liberation Mono,DejaVu Sans Mono,monospace",
                                    "DejaVu Serif,Bitstream Vera Serif,Georgia,serif"};

/// The families from the first one on that is installed: for each that isn't, the toolkit would sort all fonts there
/// are by how well they stand in for it.
QStringList InstalledFamilies(Typeface Face) {
  const QStringList Names = QString::fromLatin1(Families[static_cast<int>(Face)]).split(QLatin1Char(','));
  const QStringList Installed = QFontDatabase::families();
  const auto First = std::find_if(Names.begin(), Names.end(), [&](auto& Name) { return Installed.contains(Name); });
  return First == Names.end() ? Names : QStringList(First, Names.end());
}

}  // namespace

QFont FontOf(Typeface Face, int Size, bool Bold) {
  QFont Font;
  Font.setFamilies(InstalledFamilies(Face));
  if (Face == Typeface::CourierNew) Font.setStyleHint(QFont::Monospace);
  Font.setPixelSize(Size);
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

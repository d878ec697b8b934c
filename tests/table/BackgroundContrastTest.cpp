#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

#include "storage/GameSettings.h"

namespace blunko::test {
namespace {

constexpr int PixelsPerUnit = 2;  // a picture is painted at twice the table's size
constexpr int Width = 393 * PixelsPerUnit, Height = 513 * PixelsPerUnit;
constexpr int BlockSide = 8;
constexpr double LeastContrast = 3;
constexpr qint64 MostBytes = 4 * 1024 * 1024;

struct Place {
  const char* Label;
  QRect Where;
};

/// Where the texts of the table stand. The status line rises by 12 for the last rolls.
constexpr std::array Places{Place{"lblMnuGame", {12, 5, 38, 17}},      Place{"lblMnuHelp", {60, 5, 34, 17}},
                            Place{"lblStatus", {6, 207, 381, 30}},     Place{"lblStatus, risen", {6, 195, 381, 30}},
                            Place{"lblLastRoll", {6, 236, 381, 24}},   Place{"Label1", {10, 300, 180, 26}},
                            Place{"lblPlayer", {200, 300, 185, 26}},   Place{"lblTurnScoreLabel", {10, 330, 180, 26}},
                            Place{"lblTurnScore", {200, 330, 185, 26}}};

double Linear(int Channel) {
  const double c = Channel / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

/// Relative luminance, 0 for black to 1 for white.
double Luminance(int Red, int Green, int Blue) {
  static const auto Table = [] {
    std::array<double, 256> Values;
    for (int i = 0; i < 256; ++i) Values[static_cast<std::size_t>(i)] = Linear(i);
    return Values;
  }();
  const auto Of = [](int Channel) { return Table[static_cast<std::size_t>(Channel)]; };
  return 0.2126 * Of(Red) + 0.7152 * Of(Green) + 0.0722 * Of(Blue);
}

double LuminanceOfColour(std::uint32_t BlueFirst) {
  return Luminance(BlueFirst & 0xFF, BlueFirst >> 8 & 0xFF, BlueFirst >> 16 & 0xFF);
}

/// The contrast of a text against the block behind the label on which it reads worst.
double WorstContrast(const QImage& Picture, const QRect& Behind, double Text) {
  double Worst = 21;
  for (int Top = Behind.top(); Top <= Behind.bottom(); Top += BlockSide) {
    for (int Left = Behind.left(); Left <= Behind.right(); Left += BlockSide) {
      const QRect Block = QRect(Left, Top, BlockSide, BlockSide) & Behind;
      double Sum = 0;
      for (int y = Block.top(); y <= Block.bottom(); ++y) {
        const auto* Line = reinterpret_cast<const QRgb*>(Picture.constScanLine(y));
        for (int x = Block.left(); x <= Block.right(); ++x) {
          Sum += Luminance(qRed(Line[x]), qGreen(Line[x]), qBlue(Line[x]));
        }
      }
      const double Ground = Sum / (Block.width() * Block.height());
      Worst = std::min(Worst, (std::max(Ground, Text) + 0.05) / (std::min(Ground, Text) + 0.05));
    }
  }
  return Worst;
}

void ExpectLegible(const QString& Name, const QImage& Picture, int ColourIndex) {
  const double Text = LuminanceOfColour(ColourOfIndex(ColourIndex));
  for (const Place& p : Places) {
    const QRect Behind(p.Where.topLeft() * PixelsPerUnit, p.Where.size() * PixelsPerUnit);
    const double Contrast = WorstContrast(Picture, Behind, Text);
    EXPECT_GE(Contrast, LeastContrast) << qPrintable(Name) << ": text colour " << ColourIndex << " behind " << p.Label
                                       << " has a contrast of " << Contrast;
  }
}

QFileInfoList Pictures() { return QDir(QStringLiteral(TBK_BACKGROUNDS)).entryInfoList({QStringLiteral("*.jpg")}); }

TEST(BackgroundPictures, AllAreThereAndTogetherSmall) {
  QStringList Names;
  qint64 Bytes = 0;
  for (const QFileInfo& File : Pictures()) {
    Names += File.completeBaseName();
    Bytes += File.size();
  }
  for (const char* Name : {"Autumn", "Baby Seal", "Blonde Chick", "Blueprints", "CC Moose", "Evergreen", "Nautical",
                           "Old Glory", "Quacker", "Satin", "Strawberries"}) {
    EXPECT_TRUE(Names.contains(QLatin1String(Name))) << Name;
  }
  EXPECT_LE(Bytes, MostBytes);
}

TEST(BackgroundPictures, TheirTextColoursAreLegibleBehindEveryLabel) {
  static const QRegularExpression OneIndex(QStringLiteral(R"(^[0-7]\s*$)"));
  for (const QFileInfo& File : Pictures()) {
    const QString Name = File.completeBaseName();
    const QImage Picture = QImage(File.filePath()).convertToFormat(QImage::Format_RGB32);
    const bool RightSize = Picture.size() == QSize(Width, Height);
    EXPECT_TRUE(RightSize) << qPrintable(Name) << " is " << Picture.width() << " x " << Picture.height();

    QFile ColourFile(File.path() + QLatin1Char('/') + Name + QStringLiteral(".clr"));
    const bool Opened = ColourFile.open(QIODevice::ReadOnly);
    const QString Text = QString::fromLatin1(ColourFile.readAll());
    const bool RightColour = Opened && OneIndex.match(Text).hasMatch();
    EXPECT_TRUE(RightColour) << qPrintable(Name) << ": colour file \"" << qPrintable(Text) << '"';
    if (!RightSize || !RightColour) continue;
    ExpectLegible(Name, Picture, Text.left(1).toInt());
  }
}

// The default picture meets the default text colour at the very first start, before its colour file is read.
TEST(BackgroundPictures, BlackTextIsLegibleOnTheDefaultPicture) {
  const QImage Satin(QStringLiteral(TBK_BACKGROUNDS "/Satin.jpg"));
  ASSERT_EQ(Satin.size(), QSize(Width, Height));
  ExpectLegible(QStringLiteral("Satin"), Satin.convertToFormat(QImage::Format_RGB32), 0);
}

}  // namespace
}  // namespace blunko::test

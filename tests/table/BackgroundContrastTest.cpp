#include <QDir>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "storage/GameSettings.h"

namespace blunko::test {
namespace {

constexpr int PixelsPerUnit = 2;  // a picture is painted at twice the table's size
constexpr int BlockSide = 8;
constexpr double LeastContrast = 3;

/// Where the texts of the table stand. The status line rises by 12 for the last rolls.
const struct {
  const char* Label;
  QRect Where;
} Places[] = {{"lblMnuGame", {12, 5, 38, 17}},      {"lblMnuHelp", {60, 5, 34, 17}},
              {"lblStatus", {6, 219, 381, 30}},     {"lblStatus, risen", {6, 207, 381, 30}},
              {"lblLastRoll", {6, 236, 381, 24}},   {"Label1", {10, 300, 180, 26}},
              {"lblPlayer", {200, 300, 185, 26}},   {"lblTurnScoreLabel", {10, 330, 180, 26}},
              {"lblTurnScore", {200, 330, 185, 26}}};

/// Relative luminance, 0 for black to 1 for white.
double Luminance(QRgb Colour) {
  static const auto Linear = [] {
    std::array<double, 256> Values;
    for (std::size_t i = 0; i < 256; ++i) {
      const double c = static_cast<double>(i) / 255;
      Values[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    }
    return Values;
  }();
  return 0.2126 * Linear[Colour >> 16 & 0xFF] + 0.7152 * Linear[Colour >> 8 & 0xFF] + 0.0722 * Linear[Colour & 0xFF];
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
        for (int x = Block.left(); x <= Block.right(); ++x) Sum += Luminance(Line[x]);
      }
      const double Ground = Sum / (Block.width() * Block.height());
      Worst = std::min(Worst, (std::max(Ground, Text) + 0.05) / (std::min(Ground, Text) + 0.05));
    }
  }
  return Worst;
}

TEST(BackgroundPictures, AreAllThereWithTextColoursThatAreLegibleBehindEveryLabel) {
  static const QRegularExpression OneIndex(R"(^[0-7]\s*$)");
  QStringList Names;
  qint64 Bytes = 0;
  for (const QFileInfo& File : QDir(TBK_BACKGROUNDS).entryInfoList({"*.jpg"})) {
    SCOPED_TRACE(qPrintable(File.fileName()));
    Names += File.completeBaseName();
    Bytes += File.size();
    const QImage Picture = QImage(File.filePath()).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(Picture.size(), QSize(393, 513) * PixelsPerUnit);
    QFile ColourFile(File.path() + '/' + Names.back() + ".clr");
    EXPECT_TRUE(ColourFile.open(QIODevice::ReadOnly));
    const QString Index = ColourFile.readAll();
    EXPECT_TRUE(OneIndex.match(Index).hasMatch()) << "colour file \"" << qPrintable(Index) << '"';
    if (HasFailure()) continue;
    std::vector<int> Indices{Index.left(1).toInt()};
    // The default picture meets the default text colour at the very first start, before its colour file is read.
    if (Names.back() == "Satin") Indices.push_back(0);
    for (const int Each : Indices) {
      const std::uint32_t BlueFirst = ColourOfIndex(Each);
      const double Text = Luminance(qRgb(BlueFirst & 0xFF, BlueFirst >> 8 & 0xFF, BlueFirst >> 16 & 0xFF));
      for (const auto& [Label, Where] : Places) {
        const QRect Behind(Where.topLeft() * PixelsPerUnit, Where.size() * PixelsPerUnit);
        EXPECT_GE(WorstContrast(Picture, Behind, Text), LeastContrast) << "text colour " << Each << " behind " << Label;
      }
    }
  }
  EXPECT_EQ(Names, (QStringList{"Autumn", "Baby Seal", "Blonde Chick", "Blueprints", "CC Moose", "Evergreen",
                                "Nautical", "Old Glory", "Quacker", "Satin", "Strawberries"}));
  EXPECT_LE(Bytes, 4 << 20);
}

}  // namespace
}  // namespace blunko::test

#include <QScreen>

#include "storage/GameSettings.h"
#include "table/frmScorePad.h"
#include "tests/table/TableForm.h"
#include "widgets/Colours.h"
#include "widgets/Fonts.h"

namespace blunko::test {
namespace {

/// The least contrast of the dots two px beside a letter's own, which are where `Mask` has the letter's colour.
double WorstContrastBesideLetters(const QImage& Picture, const QImage& Mask, const QColor& Ink) {
  const auto Letter = [&](int x, int y) { return Mask.rect().contains(x, y) && Mask.pixelColor(x, y) == Ink; };
  double Worst = 100;
  for (int y = 0; y < Picture.height(); ++y) {
    for (int x = 0; x < Picture.width(); ++x) {
      const bool Beside = Letter(x - 2, y) || Letter(x + 2, y) || Letter(x, y - 2) || Letter(x, y + 2);
      const bool Edge = Letter(x, y) || Letter(x - 1, y) || Letter(x + 1, y) || Letter(x, y - 1) || Letter(x, y + 1);
      if (!Beside || Edge) continue;
      const double One = Luminance(Ink) + 0.05, Other = Luminance(Picture.pixelColor(x, y)) + 0.05;
      Worst = std::min(Worst, std::max(One, Other) / std::min(One, Other));
    }
  }
  return Worst;
}

class ScorePad : public testing::Test, public TableForm {
 protected:
  frmScorePad Pad{m, &Form};

  FitLabel* Label(const QString& Name) { return Pad.findChild<FitLabel*>(Name); }
};

TEST_F(ScorePad, ShowsLimitsNamesScoresAndTheSeatOnTurn) {
  Begin({"WWWWWWWWWWWWWW", "Genius", "Bob", "Moron"});
  m.PlayToScore = 10000;
  m.PlayerScore = {0, 32767, 4050, 50};
  Pad.show();
  for (const int OnTurn : {0, 1, 3, Absent}) {
    m.CurrentPlayer = static_cast<std::uint8_t>(OnTurn);
    ++m.PlayerScore[0];
    Pad.UpdateActivePlayer();
    const QImage Grey = Pad.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    for (int i = 0; i < 4; ++i) {
      SCOPED_TRACE(i);
      const auto Seat = static_cast<std::size_t>(i);
      const FitLabel *Name = Label(QStringLiteral("lblPlayer(%1)").arg(i)),
                     *Score = Label(QStringLiteral("lblScore(%1)").arg(i));
      const QColor Ink = i == OnTurn ? QColor(0x30, 0xFF, 0x30) : QColor(Qt::black);
      EXPECT_TRUE(Name->ForeColor() == Ink && Score->ForeColor() == Ink);
      EXPECT_EQ(Name->font().italic(), m.PlayerIsComputer[Seat]);
      EXPECT_EQ(Name->text().toStdString(), m.PlayerName[Seat]);
      EXPECT_EQ(Score->text(), QString::number(m.PlayerScore[Seat]));
      EXPECT_EQ(qGray(Grey.pixel(Pad.width() - 10, Score->y() + 8)) < 60, i == OnTurn) << "told without colour";
    }
  }
}

TEST_F(ScorePad, StandsAtTheSideWhereTheScreenHasRoomAndHoldsItsSeats) {
  Begin({"Ann", "Bob"});
  const QRect Screen = Form.screen()->geometry();
  for (const bool RoomAtTheRight : {true, false}) {
    Form.move(RoomAtTheRight ? Screen.x() + 10 : Screen.right() - Form.width(), Screen.y() + 40);
    m.NumPlayers = RoomAtTheRight ? 2 : 8;
    Pad.SetPosition();
    Pad.show();
    EXPECT_TRUE(Pad.rect().contains(Label(RoomAtTheRight ? "lblScore(1)" : "lblScore(7)")->geometry()));
    EXPECT_EQ(Pad.x() > Form.geometry().right(), RoomAtTheRight);
    EXPECT_FALSE(Pad.frameGeometry().intersects(Form.frameGeometry()));
    EXPECT_TRUE(Screen.contains(Pad.frameGeometry()));
  }
}

TEST_F(ScorePad, HandsKeysToTheTable) {
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 3, 4, 4, 5});
  Pad.show();
  Pad.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Pad, 2000));
  QTest::keyClick(&Pad, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100);
}

/// Letters of every colour of the list, on grounds that swallow them.
TEST(Letters, StandOutFromEveryGroundByTheirHalo) {
  for (int Index = 0; Index < 8; ++Index) {
    const std::uint32_t BlueFirst = ColourOfIndex(Index);
    const QColor Ink(BlueFirst & 0xFF, BlueFirst >> 8 & 0xFF, BlueFirst >> 16 & 0xFF);
    const auto On = [&](const QColor& Ground) {
      QWidget Picture;
      Picture.setPalette(Ground);
      FitLabel Words(QStringLiteral("HILE"), &Picture);
      Words.setFont(FontOf(Typeface::Verdana, 24, true));
      Words.setForeColor(Ink);
      Words.setGeometry(10, 10, 150, 50);
      return Picture.grab().toImage();
    };
    const QImage Mask = On(QColor(255 - Ink.red(), 255 - Ink.green(), 255 - Ink.blue()));
    for (const QColor& Ground : {QColor(Qt::black), QColor(Qt::gray), QColor(Qt::white), Ink}) {
      const double Contrast = WorstContrastBesideLetters(On(Ground), Mask, Ink);
      EXPECT_TRUE(Contrast >= 4.5 && Contrast <= 21)
          << Contrast << ": colour " << Index << " on " << qPrintable(Ground.name());
    }
  }
}

}  // namespace
}  // namespace blunko::test

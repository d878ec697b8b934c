#include <QScreen>

#include "table/frmScorePad.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

class ScorePad : public testing::Test, public TableForm {
 protected:
  frmScorePad Pad{m, &Form};

  FitLabel* Label(const QString& Name) { return Pad.findChild<FitLabel*>(Name); }
};

TEST_F(ScorePad, ShowsLimitsNamesScoresAndTheSeatOnTurn) {
  Begin({"WWWWWWWWWWWWWW", "Genius", "Bob", "Moron"});
  m.PlayToScore = 10000;
  m.BreakInScore = 1000;
  m.PlayerScore = {0, 32767, 4050, 50};
  Pad.show();
  EXPECT_EQ(Label("lblGoal")->text(), "(Playing to 10000)");
  EXPECT_EQ(Label("label_break_in")->text(), "(1000 to break in)");
  for (const int OnTurn : {0, 1, 3, Absent}) {
    m.CurrentPlayer = static_cast<std::uint8_t>(OnTurn);
    ++m.PlayerScore[0];
    Pad.UpdateActivePlayer();
    for (std::size_t i = 0; i < 4; ++i) {
      SCOPED_TRACE(i);
      const FitLabel *Name = Label(QStringLiteral("lblPlayer(%1)").arg(i)),
                     *Score = Label(QStringLiteral("lblScore(%1)").arg(i));
      const QColor Ink = static_cast<int>(i) == OnTurn ? QColor(0x30, 0xFF, 0x30) : QColor(Qt::black);
      EXPECT_TRUE(Name->ForeColor() == Ink && Score->ForeColor() == Ink);
      EXPECT_EQ(Name->font().italic(), m.PlayerIsComputer[i]);
      EXPECT_FALSE(Score->font().italic());
      EXPECT_EQ(Name->text().toStdString(), m.PlayerName[i]);
      EXPECT_EQ(Score->text(), QString::number(m.PlayerScore[i]));
    }
  }
  m.PlayerIsComputer[0] = true;  // a slanted name is the widest
  Pad.UpdateActivePlayer();
  for (FitLabel* Each : Pad.findChildren<FitLabel*>()) Each->setForeColor(Qt::black);
  ExpectNoTextCut(Pad, Qt::black);
}

TEST_F(ScorePad, StandsAtTheSideWhereTheScreenHasRoomAndIsAsHighAsItsSeats) {
  Begin({"Ann", "Bob"});
  const QRect Screen = Form.screen()->geometry();
  Pad.SetPosition();
  Pad.show();  // from now on its frame is known
  const int Gap = 12, Width = Form.frameGeometry().width(), Own = Pad.frameGeometry().width();
  const int Last = Screen.right() + 1 - Width - Gap;  // here the pad would begin where the screen ends
  const std::array<int, 4> Rows[] = {{Screen.x() + 10, Screen.x() + 10 + Width + Gap, 1, 1800},
                                     {Last - 1, Screen.right(), 2, 1800},
                                     {Last, Last - Gap - Own, 3, 2220},
                                     {Screen.right() - 50, Screen.right() - 50 - Gap - Own, 8, 4320}};
  for (const auto& [TableLeft, PadLeft, Seats, LastRow] : Rows) {
    m.NumPlayers = static_cast<std::uint8_t>(Seats);
    Form.move(TableLeft, Screen.y() + 40);
    Pad.SetPosition();
    Pad.show();
    const QRect Expected(PadLeft, Screen.y() + 40, 173, (LastRow + 375) / 15);
    EXPECT_EQ(QRect(Pad.pos(), Pad.size()), Expected) << Seats << " seats";
    EXPECT_EQ(Pad.minimumSize(), Pad.maximumSize());
    Pad.hide();
  }
}

TEST_F(ScorePad, AClickChangesNothingAndKeysGoToTheTable) {
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 3, 4, 4, 5});
  Pad.show();
  Pad.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Pad, 2000));
  const QImage Before = Pad.grab().toImage();
  QTest::mouseClick(&Pad, Qt::LeftButton, {}, QPoint(60, 100));
  EXPECT_EQ(Pad.grab().toImage(), Before);
  QTest::keyClick(&Pad, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100);
  EXPECT_EQ(Difference(Form, t), "");
}

}  // namespace
}  // namespace blunko::test

#include <QScreen>

#include <gtest/gtest.h>

#include "table/frmScorePad.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

class ScorePad : public testing::Test, public TableForm {
 protected:
  frmScorePad Pad{m, &Form};

  FitLabel* Label(const QString& Name) { return Pad.findChild<FitLabel*>(Name); }
  FitLabel* Row(const char* Name, int Seat) {
    return Label(QStringLiteral("%1(%2)").arg(QLatin1String(Name)).arg(Seat));
  }
};

TEST_F(ScorePad, EveryLabelIsAtItsPlace) {
  struct Place {
    QString Name;
    int Left, Top, Width, Height;  // twips
  };
  std::vector<Place> Places{{QStringLiteral("lblGoal"), 120, 90, 2250, 375},
                            {QStringLiteral("label_break_in"), 120, 480, 2250, 375},
                            {QStringLiteral("Label2"), 240, 960, 1095, 375},
                            {QStringLiteral("Label3"), 1800, 960, 615, 375}};
  for (int i = 0; i < 8; ++i) {
    Places.push_back({QStringLiteral("lblPlayer(%1)").arg(i), 240, 1380 + 420 * i, 1560, 375});
    Places.push_back({QStringLiteral("lblScore(%1)").arg(i), 1800, 1380 + 420 * i, 750, 255});
  }
  const auto Edge = [](int Twips) { return qRound(Twips / 15.0); };
  for (const Place& Each : Places) {
    SCOPED_TRACE(Each.Name.toStdString());
    ASSERT_NE(Label(Each.Name), nullptr);
    EXPECT_EQ(Label(Each.Name)->geometry(),
              QRect(QPoint(Edge(Each.Left), Edge(Each.Top)),
                    QPoint(Edge(Each.Left + Each.Width) - 1, Edge(Each.Top + Each.Height) - 1)));
    EXPECT_TRUE(Label(Each.Name)->font().bold());
  }
  for (const char* Yellow : {"lblGoal", "label_break_in", "Label2", "Label3"}) {
    EXPECT_EQ(Label(QLatin1String(Yellow))->ForeColor(), QColor(Qt::yellow)) << Yellow;
  }
  EXPECT_TRUE(Label(QStringLiteral("Label2"))->font().underline());
  EXPECT_TRUE(Label(QStringLiteral("Label3"))->font().underline());
  EXPECT_EQ(Pad.windowTitle(), QLatin1String(" Score Pad"));
  EXPECT_EQ(Pad.grab().toImage().pixelColor(3, 3), QColor(2, 127, 255));
}

TEST_F(ScorePad, ShowsLimitsNamesScoresAndTheSeatOnTurn) {
  Begin({"Ann", "Genius", "Bob", "Moron"});
  m.PlayToScore = 10000;
  m.BreakInScore = 1000;
  m.PlayerScore = {0, 32767, 4050, 50};
  Pad.show();
  EXPECT_EQ(Label(QStringLiteral("lblGoal"))->text(), QLatin1String("(Playing to 10000)"));
  EXPECT_EQ(Label(QStringLiteral("label_break_in"))->text(), QLatin1String("(1000 to break in)"));
  for (const int OnTurn : {0, 1, 3, Absent}) {
    m.CurrentPlayer = static_cast<std::uint8_t>(OnTurn);
    ++m.PlayerScore[0];
    Pad.UpdateActivePlayer();
    for (int i = 0; i < 4; ++i) {
      SCOPED_TRACE(i);
      const QColor Ink = i == OnTurn ? QColor(0x30, 0xFF, 0x30) : QColor(Qt::black);
      EXPECT_EQ(Row("lblPlayer", i)->ForeColor(), Ink);
      EXPECT_EQ(Row("lblScore", i)->ForeColor(), Ink);
      EXPECT_EQ(Row("lblPlayer", i)->font().italic(), i == 1 || i == 3);
      EXPECT_FALSE(Row("lblScore", i)->font().italic());
      EXPECT_EQ(Row("lblPlayer", i)->text().toStdString(), m.PlayerName[static_cast<std::size_t>(i)]);
      EXPECT_EQ(Row("lblScore", i)->text(), QString::number(m.PlayerScore[static_cast<std::size_t>(i)]));
    }
  }
}

TEST_F(ScorePad, IsAsHighAsItsSeats) {
  Begin({"Ann", "Bob"});
  for (int Seats = 1; Seats <= 8; ++Seats) {
    m.NumPlayers = static_cast<std::uint8_t>(Seats);
    Pad.SetPosition();
    Pad.show();
    const int LastRow = 1380 + 420 * std::max(Seats - 1, 1);
    EXPECT_EQ(Pad.size(), QSize(173, qRound((LastRow + 375) / 15.0))) << Seats;
    EXPECT_EQ(Pad.minimumSize(), Pad.maximumSize());
    Pad.hide();
  }
}

TEST_F(ScorePad, StandsAtTheSideWhereTheScreenHasRoom) {
  Begin({"Ann", "Bob"});
  const QRect Screen = Form.screen()->geometry();
  Pad.SetPosition();
  Pad.show();  // from now on its frame is known
  const int Gap = 12, Table = Form.frameGeometry().width(), Own = Pad.frameGeometry().width();
  struct Place {
    int TableLeft, PadLeft;
  };
  const int Last = Screen.right() + 1 - Table - Gap;  // here the pad would begin where the screen ends
  const Place Places[] = {{Screen.x() + 10, Screen.x() + 10 + Table + Gap},
                          {Last - 1, Screen.right()},
                          {Last, Last - Gap - Own},
                          {Screen.right() - 50, Screen.right() - 50 - Gap - Own}};
  for (const Place& Each : Places) {
    Form.move(Each.TableLeft, Screen.y() + 40);
    Pad.SetPosition();
    Pad.show();
    EXPECT_EQ(Pad.pos(), QPoint(Each.PadLeft, Screen.y() + 40));
    Pad.hide();
  }
}

TEST_F(ScorePad, NoTextIsCut) {
  Begin({"WWWWWWWWWWWWWW", "Genius", "WWWWWWWWWWWWWW"});
  m.PlayerIsComputer[2] = true;
  m.PlayToScore = 10000;
  m.PlayerScore = {32767, 32767, 32767};
  m.CurrentPlayer = Absent;
  Pad.show();
  for (FitLabel* Label : Pad.findChildren<FitLabel*>()) {
    if (Label->text().isEmpty()) continue;
    Label->setForeColor(Qt::black);
    const QRect Ink = Inked(*Label, Qt::black);
    EXPECT_GT(Ink.width(), 4) << Label->objectName().toStdString();
    EXPECT_TRUE(Label->rect().adjusted(0, 0, -1, 0).contains(Ink)) << Label->objectName().toStdString();
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

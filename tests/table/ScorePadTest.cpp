#include <QScreen>

#include "table/frmScorePad.h"
#include "tests/table/TableForm.h"
#include "widgets/PlacedDialog.h"

namespace blunko::test {

class ScorePad : public testing::Test, public TableForm {
 protected:
  frmScorePad Pad{m, &Form};

  FitLabel* Label(const QString& Name) { return Pad.findChild<FitLabel*>(Name); }
};

TEST_F(ScorePad, TellsTheSeatOnTurnByColourAndInGreyAndComputersBySlantedNames) {
  Begin({"Ann", "Genius", "Bob", "Moron"});
  for (const int OnTurn : {0, 1, 3, Absent}) {
    m.CurrentPlayer = static_cast<std::uint8_t>(OnTurn);
    ++m.PlayerScore[0];
    OnTurn == 0 ? Pad.show() : Pad.UpdateActivePlayer();
    const QImage Grey = Pad.grab().scaled(Pad.size()).toImage().convertToFormat(QImage::Format_Grayscale8);
    for (int i = 0; i < 4; ++i) {
      SCOPED_TRACE(i);
      const FitLabel *Name = Label(QStringLiteral("lblPlayer(%1)").arg(i)),
                     *Score = Label(QStringLiteral("lblScore(%1)").arg(i));
      const QColor Ink = i == OnTurn ? QColor(0x30, 0xFF, 0x30) : QColor(Qt::black);
      for (const FitLabel* Text : {Name, Score}) EXPECT_EQ(Text->palette().color(QPalette::WindowText), Ink);
      EXPECT_EQ(Name->font().italic(), i % 2 == 1);
      EXPECT_EQ(Score->text().toInt(), m.PlayerScore[static_cast<std::size_t>(i)]);
      EXPECT_EQ(qGray(Grey.pixel(Pad.width() - 10, Score->y() + 8)) < 60, i == OnTurn);
    }
  }
}

TEST_F(ScorePad, StandsAtTheLeftWhereTheRightHasNoRoomAndHoldsItsSeats) {
  Begin({"Ann", "Bob"});
  const QRect Screen = Form.screen()->geometry();
  Form.move(Screen.right() - Form.width(), Screen.y() + 40);
  m.NumPlayers = 8;
  Pad.SetPosition();
  Pad.show();
  EXPECT_TRUE(Pad.rect().contains(Label("lblScore(7)")->geometry()));
  EXPECT_EQ(Form.frameGeometry().left() - Pad.frameGeometry().right(), 13) << "px, one more than lie between";
  EXPECT_TRUE(Screen.contains(Pad.frameGeometry()));
  for (const QPoint Corner : {Screen.bottomRight(), Screen.topLeft() - QPoint(300, 500)}) {
    PlacedDialog Box(&Form, "box", "over a table that is partly off the screen");
    Form.move(Corner);
    Box.show();
    EXPECT_TRUE(Screen.contains(Box.frameGeometry()));
  }
}

}  // namespace blunko::test

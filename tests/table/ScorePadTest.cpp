#include <QScreen>

#include "table/frmScorePad.h"
#include "tests/table/TableForm.h"
#include "widgets/PlacedDialog.h"

namespace blunko::test {

TEST(ScorePad, StandsAtTheLeftWhereTheRightHasNoRoomAndHoldsItsSeats) {
  TableForm Game;
  QWidget& Form = Game.Form;
  frmScorePad Pad(Game.m, &Form);
  Game.Begin({"Ann", "Bob"});
  const QRect Screen = Form.screen()->geometry();
  Form.move(Screen.right() - Form.width(), Screen.y() + 40);
  Game.m.NumPlayers = 8;
  Pad.SetPosition();
  Pad.show();
  EXPECT_TRUE(Pad.rect().contains(Pad.findChild<FitLabel*>("lblScore(7)")->geometry()));
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

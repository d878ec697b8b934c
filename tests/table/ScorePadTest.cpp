#include <QScreen>

#include "table/frmScorePad.h"
#include "tests/table/TableForm.h"
#include "widgets/PlacedDialog.h"

namespace blunko::test {

TEST(ScorePad, StandsAtTheLeftWhereTheRightHasNoRoomAndHoldsItsSeats) {
  TableForm Game;
  frmScorePad Pad(Game.m, &Game.Form);
  Game.Begin({"Ann", "Bob"});
  const QRect Screen = Game.Form.screen()->geometry();
  Game.Form.move(Screen.right() - Game.Form.width(), Screen.y() + 40);
  Game.m.NumPlayers = 8;
  Pad.SetPosition();
  Pad.show();
  EXPECT_TRUE(Pad.rect().contains(Pad.findChild<FitLabel*>("lblScore(7)")->geometry()));
  EXPECT_EQ(Game.Form.frameGeometry().left() - Pad.frameGeometry().right(), 13) << "px, one more than lie between";
  for (const QPoint Corner : {Screen.bottomRight(), Screen.topLeft() - QPoint(300, 500)}) {
    PlacedDialog Box(&Game.Form, "box", "over a table that is partly off the screen");
    Game.Form.move(Corner);
    Box.show();
    EXPECT_TRUE(Screen.contains(Box.frameGeometry()));
    Box.move(Corner);  // as a manager does while it comes up
    EXPECT_TRUE(QTest::qWaitFor([&] { return Screen.contains(Box.frameGeometry()); }));
  }
}

}  // namespace blunko::test

#include "app/frmCongrats.h"
#include "tests/app/Run.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

TEST(Congrats, EngravesTheWinnerWhenTheSoundStartsAndItsButtonsLeaveTheirWords) {
  const std::tuple<ButtonPlus * frmCongrats::*, const char*, const char*, Lines> Rows[] = {
      {&frmCongrats::cmdSameGame, "Same Game", "SameGame", {"beep"}},
      {&frmCongrats::cmdDifferentGame, "Different Game", "DifferentGame", {"beep"}},
      {&frmCongrats::cmdQuit, "Quit", "Quit", {}},
      {nullptr, "", "", {}}};
  TableForm Game;
  Game.Begin({"Ann", "WWWWWWWWWWWWWW"});
  Game.m.Winner = 1;
  Answers Next;
  for (const auto& [Button, Caption, Word, Heard] : Rows) {
    SCOPED_TRACE(Caption);
    Game.m.FormMessage.clear();
    Game.TakeLog();
    Next.Expect<frmCongrats>([&](frmCongrats& Dialog) {
      const FitLabel& Plate = *Dialog.lblWinner;
      Game.Screen.OnSleep = [&] { EXPECT_EQ(Plate.text(), QLatin1String("Engraving...")); };
      EXPECT_TRUE(QTest::qWaitFor([&] { return Plate.text() == QLatin1String("* WWWWWWWWWWWWWW *"); }, 5000));
      EXPECT_EQ(Game.TakeLog(), (Lines{"sleep 500", "sound GameOver"}));
      EXPECT_TRUE(Plate.rect().adjusted(1, 0, -1, 0).contains(Inked(*Dialog.lblWinner, Qt::yellow)));
      EXPECT_EQ(Dialog.pos(), Game.Form.TableCorner());
      EXPECT_EQ(Dialog.windowTitle(), QLatin1String("Congratulations WWWWWWWWWWWWWW !!!"));
      if (Button == nullptr) return QTest::keyClick(&Dialog, Qt::Key_Escape);
      EXPECT_EQ((Dialog.*Button)->text(), QLatin1String(Caption));
      Click(Dialog.*Button);
    });
    frmCongrats(Game.game, Game.Form).exec();
    EXPECT_EQ(Game.m.FormMessage, Word);
    EXPECT_EQ(Game.TakeLog(), Heard);
  }
}

}  // namespace
}  // namespace blunko::test

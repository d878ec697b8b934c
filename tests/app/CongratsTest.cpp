#include "app/frmCongrats.h"
#include "tests/app/Run.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

TEST(Congrats, EngravesTheWinnerWhenTheSoundStartsAndItsButtonsLeaveTheirWords) {
  const std::tuple<ButtonPlus * frmCongrats::*, const char*, Lines> Rows[] = {
      {&frmCongrats::cmdSameGame, "SameGame", {"beep"}},
      {&frmCongrats::cmdDifferentGame, "DifferentGame", {"beep"}},
      {&frmCongrats::cmdQuit, "Quit", {}},
      {nullptr, "", {}}};
  TableForm Game;
  Answers Next;
  for (const auto& [Button, Word, Heard] : Rows) {
    SCOPED_TRACE(Word);
    std::string Message;
    Game.TakeLog();
    Next.Expect<frmCongrats>([&](frmCongrats& Dialog) {
      const FitLabel& Plate = *Dialog.lblWinner;
      Game.Screen.OnSleep = [&] { EXPECT_EQ(Plate.text(), QLatin1String("Engraving...")); };
      EXPECT_TRUE(QTest::qWaitFor([&] { return Plate.text() == QLatin1String("* WWWWWWWWWWWWWW *"); }, 5000));
      EXPECT_EQ(Game.TakeLog(), (Lines{"sleep 500", "sound GameOver"}));
      EXPECT_TRUE(Plate.rect().adjusted(1, 0, -1, 0).contains(Inked(*Dialog.lblWinner, Qt::yellow)));
      EXPECT_EQ(Dialog.frameGeometry(), Game.Form.frameGeometry());
      EXPECT_EQ(Dialog.focusWidget(), Dialog.cmdSameGame);
      if (Button == nullptr) return QTest::keyClick(&Dialog, Qt::Key_Escape);
      Click(Dialog.*Button);
    });
    frmCongrats("WWWWWWWWWWWWWW", Message, Game.Screen, Game.Options, Game.Form).exec();
    EXPECT_EQ(Message, Word);
    EXPECT_EQ(Game.TakeLog(), Heard);
  }
}

}  // namespace
}  // namespace blunko::test

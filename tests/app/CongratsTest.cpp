#include "app/frmCongrats.h"
#include "tests/app/Run.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

class Congrats : public testing::Test, public TableForm {
 protected:
  Answers Next;

  Congrats() {
    Begin({"Ann", "WWWWWWWWWWWWWW"});
    TakeLog();
  }
  static bool Engraved(const frmCongrats& Dialog) {
    return QTest::qWaitFor([&] { return Dialog.lblWinner->text().startsWith(QLatin1Char('*')); }, 5000);
  }
};

TEST_F(Congrats, EngravesTheWinnerWhenTheSoundStarts) {
  frmCongrats Dialog(game, Form);
  Lines Plate{Dialog.lblWinner->text().toStdString()};
  Screen.OnSleep = [&] { Plate.push_back(Dialog.lblWinner->text().toStdString()); };
  Dialog.show();
  Dialog.activateWindow();
  EXPECT_TRUE(Engraved(Dialog));
  EXPECT_EQ(Plate, (Lines{"Engraving...", "Engraving..."}));
  EXPECT_EQ(Dialog.lblWinner->text(), QLatin1String("* Ann *"));
  EXPECT_EQ(TakeLog(), (Lines{"sleep 500", "sound GameOver"}));
  for (QWidget* Window : {static_cast<QWidget*>(&Form), static_cast<QWidget*>(&Dialog)}) {  // away and back: once more
    Window->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == Window; }, 5000));
  }
  EXPECT_EQ(TakeLog(), (Lines{"sleep 500", "sound GameOver"}));
}

TEST_F(Congrats, LiesOverTheTableAndItsButtonsLeaveTheirWords) {
  m.Winner = 1;
  Form.move(300, 40);
  Form.SetStripWidth(126);
  const std::tuple<ButtonPlus * frmCongrats::*, const char*, const char*, Lines> Rows[] = {
      {&frmCongrats::cmdSameGame, "Same Game", "SameGame", {"beep"}},
      {&frmCongrats::cmdDifferentGame, "Different Game", "DifferentGame", {"beep"}},
      {&frmCongrats::cmdQuit, "Quit", "Quit", {}},
      {nullptr, "", "", {}}};
  for (const auto& [Button, Caption, Word, Heard] : Rows) {
    SCOPED_TRACE(Caption);
    m.FormMessage.clear();
    Next.Expect<frmCongrats>([&](frmCongrats& Dialog) {
      EXPECT_TRUE(Engraved(Dialog));
      EXPECT_EQ(Dialog.pos(), Form.TableCorner());
      EXPECT_EQ(Dialog.size(), QSize(393, 513));
      EXPECT_EQ(Dialog.windowTitle(), QLatin1String("Congratulations WWWWWWWWWWWWWW !!!"));
      EXPECT_TRUE(Dialog.lblWinner->rect().adjusted(1, 0, -1, 0).contains(Inked(*Dialog.lblWinner, Qt::yellow)));
      TakeLog();
      if (Button == nullptr) return QTest::keyClick(&Dialog, Qt::Key_Escape);
      EXPECT_EQ((Dialog.*Button)->text(), QLatin1String(Caption));
      test::Click(Dialog.*Button);
    });
    frmCongrats(game, Form).exec();
    EXPECT_EQ(m.FormMessage, Word);
    EXPECT_EQ(TakeLog(), Heard);
  }
}

}  // namespace
}  // namespace blunko::test

#include "app/frmCongrats.h"
#include "tests/app/Run.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

using Lines = std::vector<std::string>;

class Congrats : public testing::Test, public TableForm {
 protected:
  Answers Next;

  Congrats() {
    Begin({"Ann", "WWWWWWWWWWWWWW"});
    TakeLog();
  }
};

TEST_F(Congrats, EngravesTheWinnerWhenTheSoundStarts) {
  frmCongrats Dialog(game, Form);
  Lines Plate{Dialog.lblWinner->text().toStdString()};
  Screen.OnSleep = [&] { Plate.push_back(Dialog.lblWinner->text().toStdString()); };
  const auto Activate = [](QWidget& Window) {
    Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &Window; }, 2000));
  };
  Dialog.show();
  Activate(Dialog);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Dialog.lblWinner->text() == QLatin1String("* Ann *"); }, 2000));
  EXPECT_EQ(Plate, (Lines{"Engraving...", "Engraving..."}));
  EXPECT_EQ(TakeLog(), (Lines{"sleep 500", "sound GameOver"}));

  Activate(Form);  // away and back: once more, with the name on the plate
  Activate(Dialog);
  EXPECT_EQ(Plate.back(), "* Ann *");
  EXPECT_EQ(TakeLog(), (Lines{"sleep 500", "sound GameOver"}));
}

TEST_F(Congrats, LiesOverTheTableWithEveryControlAtItsPlace) {
  m.Winner = 1;
  Form.move(300, 40);
  Form.SetStripWidth(126);
  frmCongrats Dialog(game, Form);
  Dialog.show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Dialog.lblWinner->text().startsWith(QLatin1Char('*')); }, 2000));
  EXPECT_EQ(Dialog.pos(), Form.TableCorner());
  EXPECT_EQ(Dialog.size(), QSize(393, 513));
  EXPECT_EQ(Dialog.windowTitle(), QLatin1String("Congratulations WWWWWWWWWWWWWW !!!"));
  const auto Edge = [](int Twips) { return qRound(Twips / 15.0); };
  const std::tuple<QWidget*, int, int, int, int> Places[] = {{Dialog.lblWinner, 1695, 6120, 2565, 375},
                                                             {Dialog.cmdSameGame, 150, 6990, 1695, 495},
                                                             {Dialog.cmdDifferentGame, 2070, 6990, 1695, 495},
                                                             {Dialog.cmdQuit, 3990, 6990, 1695, 495}};
  for (const auto& [Control, Left, Top, Width, Height] : Places) {
    EXPECT_EQ(Control->geometry(),
              QRect(QPoint(Edge(Left), Edge(Top)), QPoint(Edge(Left + Width) - 1, Edge(Top + Height) - 1)))
        << Control->objectName().toStdString();
  }
  EXPECT_EQ(Dialog.Image2->geometry(), QRect(0, 0, 391, 513));
  EXPECT_EQ(Dialog.Image1->size(), QSize(371, 147));
  EXPECT_EQ(Dialog.Image1->x(), (393 - 371) / 2);
  EXPECT_EQ(Dialog.lblWinner->ForeColor(), QColor(Qt::yellow));
  EXPECT_EQ(Dialog.lblWinner->grab().toImage().pixelColor(1, 1), QColor(0, 0, 128));
  const QRect Ink = Inked(*Dialog.lblWinner, Qt::yellow);
  EXPECT_GT(Ink.width(), 100);
  EXPECT_TRUE(Dialog.lblWinner->rect().adjusted(1, 0, -1, 0).contains(Ink));
}

TEST_F(Congrats, ButtonsLeaveTheirWords) {
  const std::tuple<const char*, const char*, bool> Buttons[] = {{"cmdSameGame", "SameGame", true},
                                                                {"cmdDifferentGame", "DifferentGame", true},
                                                                {"cmdQuit", "Quit", false},
                                                                {nullptr, "", false}};
  const char* const Captions[] = {"Same Game", "Different Game", "Quit"};
  int i = 0;
  for (const auto& [Name, Word, Beeps] : Buttons) {
    SCOPED_TRACE(Word);
    m.FormMessage.clear();
    Next.Expect<frmCongrats>([&](frmCongrats& Dialog) {
      EXPECT_TRUE(QTest::qWaitFor([&] { return Dialog.lblWinner->text().startsWith(QLatin1Char('*')); }, 2000));
      TakeLog();
      if (Name == nullptr) return QTest::keyClick(&Dialog, Qt::Key_Escape);
      auto* Button = Dialog.findChild<ButtonPlus*>(QLatin1String(Name));
      EXPECT_EQ(Button->text(), QLatin1String(Captions[i]));
      QTest::mouseClick(Button, Qt::LeftButton);
    });
    frmCongrats(game, Form).exec();
    EXPECT_EQ(m.FormMessage, Word);
    EXPECT_EQ(TakeLog(), Beeps ? Lines{"beep"} : Lines{});
    ++i;
  }
}

}  // namespace
}  // namespace blunko::test

#include <QAction>
#include <QBitmap>
#include <QMenu>

#include "table/KeyCodes.h"
#include "tests/table/TableForm.h"

namespace blunko::test {

class TheTable : public testing::Test, public TableForm {};

TEST_F(TheTable, ClicksAndKeysReachTheGame) {
  using Input = std::function<void()>;
  const auto Click = [this](int Index, Qt::MouseButton Button) {
    return Input([=, this] { QTest::mouseClick(Box(Index), Button); });
  };
  const auto Beside = [](QWidget* Tray, Qt::MouseButton Button) {  // between the first two dice
    return Input([=] { QTest::mouseClick(Tray, Button, {}, QPoint(59, 30)); });
  };
  const auto Key = [this](Qt::Key Code) { return Input([=, this] { QTest::keyClick(Form.cmdHighRollers, Code); }); };
  const std::tuple<const char*, Input, int> Rows[] = {
      // with the score afterwards
      {"a scorer", Click(0, Qt::LeftButton), 100},
      {"the tray die", Click(10, Qt::LeftButton), 0},
      {"a digit", Key(Qt::Key_1), 100},
      {"Backspace", Key(Qt::Key_Backspace), 0},
  };
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 3, 4, 4, 5});
  for (const auto& [Rule, Do, Score] : Rows) {
    Do();
    EXPECT_EQ(Form.lblTurnScore->text().toInt(), Score) << Rule;
  }
  QTest::mousePress(Box(0), Qt::LeftButton);
  QTest::mouseRelease(Box(0), Qt::LeftButton, {}, QPoint(-20, 10));
  QTest::keyClick(&Form, Qt::Key_Space);
  QTest::keyClick(&Form, Qt::Key_Return);
  EXPECT_EQ(m.TurnScore, 0) << "neither a die left before the release, nor Space or Return without a button";
  Click(5, Qt::LeftButton)();
  QTest::mouseDClick(Box(0), Qt::LeftButton);
  QTest::mouseRelease(Box(0), Qt::LeftButton);
  EXPECT_EQ(m.TurnScore, 150) << "a quick second click counts";

  for (const Input& RightClick : {Click(3, Qt::RightButton), Click(10, Qt::RightButton),
                                  Beside(Form.picTray1, Qt::RightButton), Key(Qt::Key_R)}) {
    Begin({"Ann", "Bob"});
    PressRoll({1, 1, 1, 2, 3, 4});
    Click(0, Qt::LeftButton)();
    const int Before = Numbers.Draws;
    RightClick();
    EXPECT_GT(Numbers.Draws, Before);
  }
}

TEST_F(TheTable, AKeyIsACommandOnceAtItsReleaseAfterAPressHere) {
  Begin({"Ann", "Bob"});
  PressRoll({1, 1, 5, 2, 3, 4});
  QTest::keyRelease(&Form, Qt::Key_1);  // pressed in a dialog that has closed since
  QTest::keyPress(&Form, Qt::Key_1);
  QKeyEvent Repeat(QEvent::KeyRelease, Qt::Key_1, {}, "1", true);
  QApplication::sendEvent(&Form, &Repeat);
  EXPECT_EQ(m.TurnScore, 0);
  for (int i = 0; i < 2; ++i) QTest::keyRelease(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100);
  QTest::keyPress(&Form, Qt::Key_1);
  QWidget Other;
  Activate(Other);
  Activate(Form);
  QTest::keyRelease(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100) << "another window was active in between";
}

TEST_F(TheTable, MenusAndButtonsCallTheProgram) {
  Others.OnShowOptions = [this] { game.ARCmdCancelOptions_Click(); };
  for (const auto& [Signal, What] : {std::pair(&frmMain::highRollersAsked, "HighRollers"),
                                     {&frmMain::howToPlayAsked, "HowToPlay"},
                                     {&frmMain::helpAsked, "GoHelp"},
                                     {&frmMain::aboutAsked, "About"}}) {
    QObject::connect(&Form, Signal, &Form, [this, What = What] { Screen.Log.push_back(What); });
  }
  for (const auto& [Label, Menu] : {std::pair(Form.lblMnuGame, Form.mnuGame), {Form.lblMnuHelp, Form.mnuHelpMe}}) {
    QTest::mouseClick(Label, Qt::LeftButton);
    EXPECT_TRUE(Menu->isVisible());
    Menu->close();
    for (QAction* Action : Menu->actions()) Action->trigger();
    m.Quitting = false;
    Form.show();
  }
  for (ButtonPlus* Button : {Form.cmdOptions, Form.cmdHighRollers, Form.ARCmdNewGame, Form.cmdExit}) {
    QTest::mouseClick(Button, Qt::LeftButton);
  }
  const std::string Options = "sound GameOver; cancel options; hide options; sound GameOver; ";
  EXPECT_EQ(Told(),
            "new game; " + Options + "exit; HowToPlay; GoHelp; About; " + Options + "HighRollers; new game; exit");
}

/// Space on a button that happened to take over the focus would play for the person.
TEST_F(TheTable, AButtonThatGoesOffLeavesTheFocusToTheTable) {
  EXPECT_EQ(QApplication::focusWidget(), Form.ARCmdNewGame) << "on the first table";
  QWidget Dialog;
  Others.OnNewGame = [&] {  // the table isn't active when the button is hidden
    Activate(Dialog);
    Begin({"Ann", "Bob"});
    Dialog.hide();
    Form.activateWindow();
  };
  const auto Press = [this](ButtonPlus* Button) {
    Button->setFocus();
    QTest::keyClick(Button, Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Form, 2000));
    EXPECT_EQ(QApplication::focusWidget(), &Form) << Button->objectName().toStdString();
  };
  Press(Form.ARCmdNewGame);
  Script({1, 1, 1, 2, 3, 4});
  Press(Form.cmdRoll);
  QTest::keyClick(&Form, Qt::Key_1);
  EXPECT_EQ(QApplication::focusWidget(), Form.cmdRoll) << "it had the focus before it went off";
  Press(Form.cmdPassDice);
  EXPECT_EQ(m.CurrentPlayer, 1);
  PressRoll({1, 1, 5, 2, 3, 4});
  Box(0)->setFocus();
  QTest::keyClick(Box(0), Qt::Key_Left);
  QTest::keyClick(Box(0), Qt::Key_Right);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_FALSE(Box(1)->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), Box(0)) << "the first die that is left in the row";
  for (int i = 0; i < 20; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), &Form) << "Tab stops on what is seen";
  }
}

TEST(KeyCodes, CountByThePlaceOnlyWhereThePlacesAreKnown) {
  const std::tuple<const char*, int, quint32, int, bool> Rows[] = {
      {"xcb", Qt::Key_Eacute, 11, '2', false}, {"wayland-egl", Qt::Key_Eacute, 11, '2', false},
      {"cocoa", Qt::Key_Eacute, 11, 0, false}, {"windows", Qt::Key_Backspace, 14, 8, false},
      {"xcb", 0x0416, 27, 'R', false},         {"windows", 0x0416, 27, 0, false},  // a letter of another script
      {"xcb", Qt::Key_5, 84, 101, true},       {"xcb", Qt::Key_Period, 91, 110, true},
      {"xcb", Qt::Key_Comma, 91, 110, true},   {"xcb", Qt::Key_Period, 60, 0, false}};
  for (const auto& [Platform, Key, ScanCode, Code, NumPad] : Rows) {
    const QKeyEvent Event(QEvent::KeyRelease, Key, NumPad ? Qt::KeypadModifier : Qt::NoModifier, ScanCode, 0, 0);
    EXPECT_EQ(KeyCodeOf(Event, Platform), Code) << Platform << ' ' << Key;
  }
}

TEST_F(TheTable, NoTextIsCut) {
  Begin({"WWWWWWWWWWWWWW", "Bob"});
  Form.Wears.TextColour = 0x0000FF;
  t.lblTurnScore.Caption = "32767";
  t.lblLastRoll.Caption = "(Last Roll - Need 32767 To Take The Lead)";
  t.ShowLastRoll();
  for (const char* Status : {"Select Dice or Pass Dice. (Undo)", "Roll, select, or pass the dice. (Undo)"}) {
    t.lblStatus.Caption = Status;
    Form.ShowControls();
    for (FitLabel* Label : Form.picGameTray->findChildren<FitLabel*>()) {
      const QRect Ink = QRegion(Label->grab().createMaskFromColor(Qt::red, Qt::MaskOutColor)).boundingRect();
      const bool Whole = Ink.width() > 4 && Label->rect().adjusted(0, 0, -1, 0).contains(Ink);
      EXPECT_TRUE(Whole || Label->text().isEmpty()) << Label->objectName().toStdString();
    }
  }
  for (const ButtonPlus* Button : Form.picGameTray->findChildren<ButtonPlus*>()) {
    EXPECT_GE(Button->width(), Button->sizeHint().width()) << Button->objectName().toStdString();
  }
}

}  // namespace blunko::test

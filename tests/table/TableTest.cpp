#include <QAction>
#include <QElapsedTimer>
#include <QMenu>

#include <random>

#include "table/KeyCodes.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

using Names = std::vector<std::string>;

class TheTable : public testing::Test, public TableForm {};

TEST_F(TheTable, HasItsSizeAndRoomForTheCaptionsOfItsButtons) {
  EXPECT_EQ(Form.size(), QSize(391, 513));
  EXPECT_EQ(Form.minimumSize(), Form.maximumSize());
  for (const ButtonPlus* Button : Form.picGameTray->findChildren<ButtonPlus*>()) {
    EXPECT_TRUE(Form.rect().contains(Button->geometry())) << Button->objectName().toStdString();
    EXPECT_GE(Button->width(), Button->sizeHint().width()) << Button->objectName().toStdString();
  }
}

TEST_F(TheTable, TheBackgroundLiesBehindAndTheCoverBefore) {
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 2, 3, 4, 6});
  const auto OnTop = [this](QWidget* Control) { return Form.childAt(Control->mapTo(&Form, Control->rect().center())); };
  for (auto* Control : Form.picGameTray->findChildren<QWidget*>()) {
    const bool Below = Control == Form.Image1 || Control == Form.picTray1 || Control == Form.picTray2;
    if (Below || !Control->isVisible() || Control->testAttribute(Qt::WA_TransparentForMouseEvents)) continue;
    EXPECT_EQ(OnTop(Control), Control) << Control->objectName().toStdString();
  }
  for (const bool Covered : {true, false}) {
    Form.Wears.Covered = Covered;
    Form.ShowControls();
    EXPECT_EQ(OnTop(Box(10)), Covered ? static_cast<QWidget*>(Form.picSampleDice) : Box(10));
  }
}

TEST_F(TheTable, ClicksAndKeysReachTheGame) {
  using Input = std::function<void()>;
  QWidget* Focus = nullptr;
  const auto Click = [this](int Index, Qt::MouseButton Button) {
    return Input([=, this] { QTest::mouseClick(Box(Index), Button); });
  };
  const auto Left = [&](int Index) { return Click(Index, Qt::LeftButton); };
  const auto Right = [&](int Index) { return Click(Index, Qt::RightButton); };
  const auto Gap = [](QWidget* Tray, Qt::MouseButton Button) {  // between the first two dice
    return Input([=] { QTest::mouseClick(Tray, Button, {}, QPoint(59, 30)); });
  };
  const auto Key = [&Focus](Qt::Key Code, Qt::KeyboardModifiers With = {}) {
    return Input([=, &Focus] { QTest::keyClick(Focus, Code, With); });
  };
  const auto All = [](const std::vector<Input>& Inputs) {
    return Input([Inputs] { std::ranges::for_each(Inputs, [](const Input& Each) { Each(); }); });
  };
  const std::string Quit = "ask Quit?: Are you sure you want to quit the current game?", Die = "sound MoveDie";
  const std::string Undone = "status Select Dice. (Undo)";
  const std::tuple<const char*, Input, const char*, Names> Rows[] = {
      // with the score and the log afterwards
      {"what is off",
       All({Right(0), Gap(Form.picTray1, Qt::RightButton), Key(Qt::Key_R), Key(Qt::Key_0, Qt::KeypadModifier),
            Key(Qt::Key_P), Key(Qt::Key_Period, Qt::KeypadModifier), Key(Qt::Key_Backspace)}),
       "0",
       {}},
      {"where no die is", All({Gap(Form.picTray1, Qt::LeftButton), Left(12), Key(Qt::Key_6), Key(Qt::Key_7)}), "0", {}},
      {"a die that doesn't score", All({Left(1), Key(Qt::Key_4)}), "0", {"beep", "beep"}},
      {"left on a scorer", Left(0), "100", {Die, "status Select dice or roll."}},
      {"left on its empty place", Left(0), "100", {}},
      {"left on the tray die", Left(10), "0", {Undone, "sound Undo"}},
      {"1", Key(Qt::Key_1), "100", {Die, "status Select dice or roll."}},
      {"1 again", Key(Qt::Key_1), "100", {}},
      {"5 of the number pad", Key(Qt::Key_5, Qt::KeypadModifier), "150", {Die, "status Roll the dice."}},
      {"Backspace", Key(Qt::Key_Backspace), "0", {Undone, "sound Undo", "sound Undo"}},
      {"F2", Key(Qt::Key_F2), "0", {"beep", Quit}},
      {"Escape", Key(Qt::Key_Escape), "0", {"unload others", "beep", Quit}},
  };
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 3, 4, 4, 5});
  Screen.Answer = false;
  for (QWidget* Each : {static_cast<QWidget*>(&Form), static_cast<QWidget*>(Form.cmdHighRollers)}) {
    (Focus = Each)->setFocus();
    for (const auto& [Rule, Do, Score, Log] : Rows) {
      SCOPED_TRACE(Rule);
      TakeLog();
      Do();
      EXPECT_EQ(Form.lblTurnScore->text().toStdString(), Score);
      EXPECT_EQ(TakeLog(), Log);
      EXPECT_EQ(Difference(Form, t), "");
    }
  }
  QTest::mousePress(Box(0), Qt::LeftButton);
  QTest::mouseRelease(Box(0), Qt::LeftButton, {}, QPoint(-20, 10));
  QTest::keyClick(Focus = &Form, Qt::Key_Space);
  QTest::keyClick(&Form, Qt::Key_Return);
  EXPECT_EQ(m.TurnScore, 0) << "neither a die left before the release, nor Space or Return without a button";
  Left(5)();
  QTest::mouseDClick(Box(0), Qt::LeftButton);
  QTest::mouseRelease(Box(0), Qt::LeftButton);
  EXPECT_EQ(m.TurnScore, 150) << "a quick second click counts";

  const std::string Rolls = "status Rolling...", Passes = "sound Passem1";
  const std::tuple<const char*, Input, std::string> Moves[] = {
      // with the first line of the log
      {"right on an empty place", Right(0), Rolls},
      {"right on a die", Right(3), Rolls},
      {"right on a tray die", Right(10), Rolls},
      {"right on an empty slot", Right(15), Rolls},
      {"right on the upper gap", Gap(Form.picTray1, Qt::RightButton), Rolls},
      {"right on the lower gap", Gap(Form.picTray2, Qt::RightButton), Rolls},
      {"R", Key(Qt::Key_R), Rolls},
      {"0 of the number pad", Key(Qt::Key_0, Qt::KeypadModifier), Rolls},
      {"P", Key(Qt::Key_P), Passes},
      {"point of the number pad", Key(Qt::Key_Period, Qt::KeypadModifier), Passes},
      {"comma of the number pad", Key(Qt::Key_Comma, Qt::KeypadModifier), Passes},
      {"plain 0 and point", All({Key(Qt::Key_0), Key(Qt::Key_Period)}), "none"},
  };
  for (const auto& [Rule, Do, First] : Moves) {
    SCOPED_TRACE(Rule);
    Begin({"Ann", "Bob"});
    PressRoll({1, 1, 1, 2, 3, 4});
    Left(0)();
    ASSERT_EQ(m.TurnScore, 1000);
    TakeLog();
    Script({1, 2, 3});
    Do();
    Screen.Log.push_back("none");
    EXPECT_EQ(Screen.Log.front(), First);
    EXPECT_EQ(Difference(Form, t), "");
  }
}

TEST_F(TheTable, AKeyIsACommandOnceAtItsReleaseAfterAPressHere) {
  Begin({"Ann", "Bob"});
  PressRoll({1, 1, 5, 2, 3, 4});
  QTest::keyRelease(&Form, Qt::Key_1);  // pressed in a dialog that has closed since
  QTest::keyPress(&Form, Qt::Key_1);
  for (const QEvent::Type Type : {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
    QKeyEvent Repeat(Type, Qt::Key_1, {}, "1", true);
    QApplication::sendEvent(&Form, &Repeat);
  }
  EXPECT_EQ(m.TurnScore, 0);
  QTest::keyRelease(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100);
  QTest::keyRelease(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100);

  QTest::keyPress(&Form, Qt::Key_1);
  QWidget Other;
  for (QWidget* Window : {&Other, static_cast<QWidget*>(&Form)}) {
    Window->show();
    Window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window, 2000));
  }
  QTest::keyRelease(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100) << "another window was active in between";
}

TEST_F(TheTable, MenusAndButtonsCallTheProgram) {
  for (const auto& [Signal, What] : {std::pair(&frmMain::optionsAsked, "Options"),
                                     {&frmMain::highRollersAsked, "HighRollers"},
                                     {&frmMain::howToPlayAsked, "HowToPlay"},
                                     {&frmMain::helpAsked, "GoHelp"},
                                     {&frmMain::aboutAsked, "About"}}) {
    QObject::connect(&Form, Signal, &Form, [this, What = What] { Screen.Log.push_back(What); });
  }
  for (const auto& [Label, Menu, Entries] :
       {std::tuple(Form.lblMnuGame, Form.mnuGame, Names{"new game", "Options", "exit"}),
        std::tuple(Form.lblMnuHelp, Form.mnuHelpMe, Names{"HowToPlay", "GoHelp", "About"})}) {
    QTest::mouseClick(Label, Qt::RightButton);
    EXPECT_FALSE(Menu->isVisible());
    QTest::mouseClick(Label, Qt::LeftButton);
    EXPECT_TRUE(Menu->isVisible());
    EXPECT_EQ(Menu->pos(), Label->mapToGlobal(QPoint(0, Label->height())));
    Menu->close();
    for (QAction* Action : Menu->actions()) Action->trigger();
    EXPECT_EQ(TakeLog(), Entries);
    m.Quitting = false;  // after mnuExit
    Form.show();
  }
  for (ButtonPlus* Button : {Form.cmdOptions, Form.cmdHighRollers, Form.ARCmdNewGame, Form.cmdExit}) {
    QTest::mouseClick(Button, Qt::LeftButton);
  }
  EXPECT_EQ(TakeLog(), (Names{"Options", "HighRollers", "new game", "exit"}));
}

/// Space on a button that happened to take over the focus would play for the person.
TEST_F(TheTable, AButtonThatGoesOffLeavesTheFocusToTheTable) {
  EXPECT_EQ(QApplication::focusWidget(), Form.ARCmdNewGame) << "on the first table";
  QWidget Dialog;
  Others.OnNewGame = [&] {  // the table isn't active when the button is hidden
    Dialog.show();
    Dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Dialog, 2000));
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
  for (int i = 0; i < 20; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), &Form) << "Tab stops on what is seen";
  }
}

TEST_F(TheTable, ShowsTheRecordAfterEveryHandler) {
  constexpr Qt::Key Keys[] = {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4,         Qt::Key_5,      Qt::Key_6,
                              Qt::Key_R, Qt::Key_P, Qt::Key_R, Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_F2};
  std::mt19937 Chance(20);
  const auto Draw = [&Chance](int Below) { return static_cast<int>(Chance() % static_cast<unsigned>(Below)); };
  int Games = 0;
  Others.OnCongrats = [&] { m.FormMessage = Draw(2) == 0 ? "SameGame" : "DifferentGame"; };
  Others.OnNewGame = [&] {
    ++Games;
    if (Draw(4) != 0) Table::Begin({"Ann", "Bob"});
  };
  for (int i = 0; i < 3000; ++i) {
    while (Numbers.Faces.size() < 200) Numbers.Faces.push_back(Draw(6) + 1);
    Screen.Answer = Draw(8) == 0;
    switch (Draw(4)) {
      case 0: QTest::mouseClick(Box(Draw(6) + 10 * Draw(2)), Draw(3) == 0 ? Qt::RightButton : Qt::LeftButton); break;
      case 1: QTest::mouseClick(Form.cmdRoll, Qt::LeftButton); break;
      case 2:
        if (Form.ARCmdNewGame->isVisible()) QTest::mouseClick(Form.ARCmdNewGame, Qt::LeftButton);
        break;
      default: QTest::keyClick(&Form, Keys[Draw(std::size(Keys))]); break;
    }
    m.Quitting = false;
    ASSERT_EQ(Difference(Form, t), "") << "after command " << i;
  }
  EXPECT_GT(Games, 5);
}

TEST(KeyCodes, CountByThePlaceOnlyWhereThePlacesAreKnown) {
  const struct {
    const char* Platform;
    int Key;
    quint32 ScanCode;
    int Code;
  } Rows[] = {{"xcb", Qt::Key_Eacute, 11, '2'}, {"wayland-egl", Qt::Key_Eacute, 11, '2'},
              {"cocoa", Qt::Key_Eacute, 11, 0}, {"windows", Qt::Key_Backspace, 14, 8},
              {"windows", Qt::Key_5, 6, '5'},   {"xcb", 0x0416, 27, 'R'},
              {"windows", 0x0416, 27, 0},       {"xcb", Qt::Key_Backspace, 22, 8}};
  for (const auto& Row : Rows) {
    const QKeyEvent Event(QEvent::KeyRelease, Row.Key, {}, Row.ScanCode, 0, 0);
    EXPECT_EQ(KeyCodeOf(Event, Row.Platform), Row.Code) << Row.Platform << ' ' << Row.Key;
  }
}

TEST_F(TheTable, TellsAScreenReaderWhatIsDrawn) {
  const auto Told = [this](int First) {
    std::string All;
    for (int i = 0; i < 6; ++i) All += Box(First + i)->accessibleName().toStdString() + "; ";
    return All;
  };
  const std::string Nothing = "; ; ; ; ; ; ; ; ; ; ; ; ";
  Begin({"Ann", "Bob"});
  EXPECT_EQ(Told(0) + Told(10), Nothing);
  PressRoll({1, 2, 2, 3, 5, 6});
  EXPECT_EQ(Told(0), "Die 1: one, scores; Die 2: two; Die 3: two; Die 4: three; Die 5: five, scores; Die 6: six; ");
  QTest::mouseClick(Box(4), Qt::LeftButton);
  EXPECT_EQ(Box(4)->accessibleName(), "");
  EXPECT_EQ(Box(10)->accessibleName(), "Tray 1: five, can be taken back");
  PressRoll({2, 2, 3, 4, 6});  // a blunko
  EXPECT_EQ(Told(0) + Told(10), Nothing);
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
    ExpectNoTextCut(*Form.picGameTray, QColor(255, 0, 0));
  }
  EXPECT_LE(Form.lblStatus->geometry().bottom(), Form.lblLastRoll->y());
}

}  // namespace
}  // namespace blunko::test

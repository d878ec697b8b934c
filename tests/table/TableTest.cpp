#include <QAction>
#include <QElapsedTimer>
#include <QMenu>
#include <QSignalSpy>

#include <gtest/gtest.h>
#include <random>

#include "table/QtDesktop.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

using Names = std::vector<std::string>;

class TheTable : public testing::Test, public TableForm {};

TEST_F(TheTable, EveryControlIsAtItsPlace) {
  struct Row {
    const char* Name;
    const char* Parent;
    int Left, Top, Width, Height;  // twips
  };
  std::vector<Row> Rows{
      {"picGameTray", "frmMain", 0, 0, 5895, 7725},           {"Image1", "picGameTray", 0, 0, 5895, 7695},
      {"picTray1", "picGameTray", 195, 435, 5470, 945},       {"picTray2", "picGameTray", 195, 1380, 5470, 945},
      {"picSampleDice", "picGameTray", 195, 1410, 5470, 945},
  };
  constexpr int Lefts[] = {60, 960, 1845, 2745, 3645, 4530};
  const char* const Boxes[] = {"Picture1(0)",  "Picture1(1)",  "Picture1(2)",  "Picture1(3)",
                               "Picture1(4)",  "Picture1(5)",  "Picture1(10)", "Picture1(11)",
                               "Picture1(12)", "Picture1(13)", "Picture1(14)", "Picture1(15)"};
  for (int i = 0; i < 12; ++i) Rows.push_back({Boxes[i], i < 6 ? "picTray1" : "picTray2", Lefts[i % 6], 45, 816, 816});
  for (const Row& Each : Rows) {
    SCOPED_TRACE(Each.Name);
    const auto* Control = Form.findChild<QWidget*>(QString::fromLatin1(Each.Name));
    ASSERT_NE(Control, nullptr);
    EXPECT_EQ(Control->parent()->objectName(), QLatin1String(Each.Parent));
    const auto Edge = [](int Twips) { return qRound(Twips / 15.0); };
    const QRect Place(QPoint(Edge(Each.Left), Edge(Each.Top)),
                      QPoint(Edge(Each.Left + Each.Width) - 1, Edge(Each.Top + Each.Height) - 1));
    EXPECT_EQ(Control->geometry(), Place);
  }
  EXPECT_EQ(Form.size(), QSize(393, 513));
  EXPECT_EQ(Form.minimumSize(), Form.maximumSize());
  EXPECT_FALSE(Form.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_TRUE(Form.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  EXPECT_EQ(Form.windowTitle(), QLatin1String(" Tollmoor Blunko"));

  // The marks are pictures of 5 by 5 pixels above the upper tray, the bar stands in the lower one.
  constexpr int Marks[] = {40, 100, 159, 219, 279, 338};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(Form.picMarker[i]->geometry(), QRect(Marks[i], 20, 5, 5));
    EXPECT_EQ(Form.picMarker[i]->parent(), Form.picGameTray);
    EXPECT_LT(Form.picMarker[i]->geometry().bottom(), Form.picTray1->y());
  }
  EXPECT_EQ(Form.pctDivider->parent(), Form.picTray2);
  EXPECT_EQ(Form.pctDivider->y(), 8);

  // What has no place by measure stands in order.
  EXPECT_LT(Form.cmdRoll->geometry().right(), Form.cmdPassDice->x());
  EXPECT_GT(Form.ARCmdNewGame->geometry().right(), Form.cmdPassDice->x());
  EXPECT_LT(Form.ARCmdNewGame->x(), Form.cmdRoll->geometry().right());
  const QSize Low = Form.cmdOptions->size();
  EXPECT_TRUE(Form.cmdHighRollers->size() == Low && Form.cmdExit->size() == Low);
  EXPECT_LT(Form.cmdOptions->geometry().right(), Form.cmdHighRollers->x());
  EXPECT_LT(Form.cmdHighRollers->geometry().right(), Form.cmdExit->x());
  for (const ButtonPlus* Button : Form.picGameTray->findChildren<ButtonPlus*>()) {
    EXPECT_TRUE(Form.rect().contains(Button->geometry())) << Button->objectName().toStdString();
    EXPECT_GE(Button->width(), Button->sizeHint().width()) << Button->objectName().toStdString();
  }
}

TEST_F(TheTable, TheBackgroundLiesBehindAndTheCoverBefore) {
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 2, 3, 4, 6});
  const auto IsOnTop = [this](QWidget* Control, QWidget* Expected) {
    const QPoint Middle = Control->mapTo(&Form, Control->rect().center());
    return Form.childAt(Middle) == Expected;
  };
  for (auto* Control : Form.picGameTray->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!Control->isVisible() || Control == Form.Image1 || Control == Form.picTray1 || Control == Form.picTray2)
      continue;
    if (Control->testAttribute(Qt::WA_TransparentForMouseEvents)) continue;
    EXPECT_TRUE(IsOnTop(Control, Control)) << Control->objectName().toStdString();
  }
  EXPECT_EQ(Form.picGameTray->children().indexOf(Form.Image1), 0);
  EXPECT_TRUE(IsOnTop(Box(3), Box(3)));
  EXPECT_TRUE(IsOnTop(Box(13), Box(13)));
  Form.CoverTray(true);
  EXPECT_TRUE(IsOnTop(Box(10), Form.picSampleDice));
  EXPECT_TRUE(IsOnTop(Form.picSampleDice, Form.picSampleDice->findChild<QWidget*>(QStringLiteral("lblSampleDice"))));
  Form.CoverTray(false);
  EXPECT_TRUE(IsOnTop(Box(10), Box(10)));
}

TEST_F(TheTable, ClicksReachDiceTraysAndGaps) {
  const QPoint Gap(59, 30);  // between the first two dice
  const auto Left = [this](int Index) { QTest::mouseClick(Box(Index), Qt::LeftButton); };
  const auto Right = [this](int Index) { QTest::mouseClick(Box(Index), Qt::RightButton); };
  struct Row {
    const char* What;
    std::function<void()> Do;
    const char* Score;
    Names Log;
  };
  const Row Rows[] = {
      {"left on the gap", [&] { QTest::mouseClick(Form.picTray1, Qt::LeftButton, {}, Gap); }, "0", {}},
      {"right on a die, Roll off", [&] { Right(0); }, "0", {}},
      {"right on the gap, Roll off", [&] { QTest::mouseClick(Form.picTray1, Qt::RightButton, {}, Gap); }, "0", {}},
      {"left on a non-scorer", [&] { Left(1); }, "0", {"beep"}},
      {"pressed on a scorer, released outside",
       [&] {
         QTest::mousePress(Box(0), Qt::LeftButton);
         QTest::mouseRelease(Box(0), Qt::LeftButton, {}, QPoint(-20, 10));
       },
       "0",
       {}},
      {"left on an empty slot", [&] { Left(12); }, "0", {}},
      {"left on a scorer", [&] { Left(0); }, "100", {"sound MoveDie", "status Select dice or roll."}},
      {"left on its empty place", [&] { Left(0); }, "100", {}},
      {"left on the tray die", [&] { Left(10); }, "0", {"status Select Dice. (Undo)", "sound Undo"}},
      {"a double click on a scorer",
       [&] {
         Left(5);
         Left(0);
         QTest::mouseDClick(Box(0), Qt::LeftButton);
         QTest::mouseRelease(Box(0), Qt::LeftButton);
       },
       "150",
       {"sound MoveDie", "status Select dice or roll.", "sound MoveDie", "status Roll the dice."}},
  };
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 3, 4, 4, 5});
  for (const Row& Each : Rows) {
    SCOPED_TRACE(Each.What);
    TakeLog();
    Each.Do();
    EXPECT_EQ(Form.lblTurnScore->text().toStdString(), Each.Score);
    EXPECT_EQ(TakeLog(), Each.Log);
    EXPECT_EQ(Difference(Form, t), "");
  }

  const std::function<void()> Rolls[] = {[&] { Right(0); },
                                         [&] { Right(3); },
                                         [&] { Right(10); },
                                         [&] { Right(15); },
                                         [&] { QTest::mouseClick(Form.picTray1, Qt::RightButton, {}, Gap); },
                                         [&] { QTest::mouseClick(Form.picTray2, Qt::RightButton, {}, Gap); }};
  for (std::size_t i = 0; i < std::size(Rolls); ++i) {
    SCOPED_TRACE(i);
    Begin({"Ann", "Bob"});
    PressRoll({1, 2, 3, 4, 4, 5});
    Left(0);
    TakeLog();
    Script({1, 2, 3, 4, 6});
    Rolls[i]();
    EXPECT_EQ(TakeLog("status Rolling").size(), 1U);
    EXPECT_EQ(Difference(Form, t), "");
  }
}

TEST_F(TheTable, KeysDoWhatClicksDo) {
  const std::string Ask = "ask Quit?: Are you sure you want to quit the current game?";
  struct Row {
    Qt::Key Key;
    Qt::KeyboardModifiers With;
    const char* Score;
    Names Log;
  };
  const Row Rows[] = {
      {Qt::Key_R, {}, "0", {}},
      {Qt::Key_P, {}, "0", {}},
      {Qt::Key_0, Qt::KeypadModifier, "0", {}},
      {Qt::Key_Period, Qt::KeypadModifier, "0", {}},
      {Qt::Key_Backspace, {}, "0", {}},
      {Qt::Key_4, {}, "0", {"beep"}},
      {Qt::Key_6, {}, "0", {}},
      {Qt::Key_7, {}, "0", {}},
      {Qt::Key_Space, {}, "0", {}},
      {Qt::Key_Return, {}, "0", {}},
      {Qt::Key_1, {}, "100", {"sound MoveDie", "status Select dice or roll."}},
      {Qt::Key_1, {}, "100", {}},
      {Qt::Key_5, Qt::KeypadModifier, "150", {"sound MoveDie", "status Roll the dice."}},
      {Qt::Key_Backspace, {}, "0", {"status Select Dice. (Undo)", "sound Undo", "sound Undo"}},
      {Qt::Key_F2, {}, "0", {"beep", Ask}},
      {Qt::Key_Escape, {}, "0", {"unload others", "beep", Ask}},
  };
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 3, 4, 4, 5});
  Screen.Answer = false;
  for (QWidget* Focus : {static_cast<QWidget*>(&Form), static_cast<QWidget*>(Form.cmdHighRollers)}) {
    Focus->setFocus();
    for (const Row& Each : Rows) {
      if (Focus != &Form && (Each.Key == Qt::Key_Space || Each.Key == Qt::Key_Return)) continue;  // press the button
      SCOPED_TRACE(QKeySequence(Each.Key).toString().toStdString());
      TakeLog();
      QTest::keyClick(Focus, Each.Key, Each.With);
      EXPECT_EQ(Form.lblTurnScore->text().toStdString(), Each.Score);
      EXPECT_EQ(TakeLog(), Each.Log);
      EXPECT_EQ(Difference(Form, t), "");
    }
  }

  const std::tuple<Qt::Key, Qt::KeyboardModifiers, std::string> Moves[] = {
      {Qt::Key_R, {}, "status Rolling..."},
      {Qt::Key_0, Qt::KeypadModifier, "status Rolling..."},
      {Qt::Key_P, {}, "sound Passem1"},
      {Qt::Key_Period, Qt::KeypadModifier, "sound Passem1"},
      {Qt::Key_Comma, Qt::KeypadModifier, "sound Passem1"},
      {Qt::Key_0, {}, ""},
      {Qt::Key_Period, {}, ""},
  };
  for (const auto& [Key, With, First] : Moves) {
    SCOPED_TRACE(QKeySequence(Key | With).toString().toStdString());
    Begin({"Ann", "Bob"});
    PressRoll({1, 1, 1, 2, 3, 4});
    QTest::keyClick(&Form, Qt::Key_1);
    ASSERT_EQ(m.TurnScore, 1000);
    TakeLog();
    QTest::keyClick(&Form, Key, With);
    const Names Log = TakeLog();
    EXPECT_EQ(Log.empty() ? "" : Log.front(), First);
    EXPECT_EQ(Difference(Form, t), "");
  }
}

TEST_F(TheTable, AKeyIsACommandOnceAtItsReleaseAfterAPressHere) {
  Begin({"Ann", "Bob"});
  PressRoll({1, 1, 5, 2, 3, 4});
  const auto Repeat = [this](QEvent::Type Type) {
    QKeyEvent Event(Type, Qt::Key_1, {}, QStringLiteral("1"), true);
    QApplication::sendEvent(&Form, &Event);
  };
  QTest::keyRelease(&Form, Qt::Key_1);  // pressed in a dialog that has closed since
  EXPECT_EQ(m.TurnScore, 0);
  QTest::keyPress(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 0);
  for (int i = 0; i < 3; ++i) {
    Repeat(QEvent::KeyRelease);
    Repeat(QEvent::KeyPress);
  }
  EXPECT_EQ(m.TurnScore, 0);
  QTest::keyRelease(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100);
  QTest::keyRelease(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100);

  QTest::keyPress(&Form, Qt::Key_1);
  QWidget Other;
  Other.show();
  Other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Other, 2000));
  Form.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Form, 2000));
  QTest::keyRelease(&Form, Qt::Key_1);
  EXPECT_EQ(m.TurnScore, 100);
}

TEST_F(TheTable, TheTwoLabelsOpenTheirMenus) {
  struct Entry {
    QMenu* Menu;
    const char* Name;
    const char* Caption;
    std::string Log;  ///< or the command
  };
  Names Called;
  Form.OnCommand.Options = [&] { Called.push_back("Options"); };
  Form.OnCommand.HowToPlay = [&] { Called.push_back("HowToPlay"); };
  Form.OnCommand.GoHelp = [&] { Called.push_back("GoHelp"); };
  Form.OnCommand.About = [&] { Called.push_back("About"); };
  Form.OnCommand.HighRollers = [&] { Called.push_back("HighRollers"); };
  const Entry Entries[] = {
      {Form.mnuGame, "mnuNewGame", "&New Game  (F2)", "new game"},
      {Form.mnuGame, "mnuOptions", "&Options...", "Options"},
      {Form.mnuGame, "mnuSep1", "", ""},
      {Form.mnuGame, "mnuExit", "&Exit", "exit"},
      {Form.mnuHelpMe, "mnuHowToPlay", "How to Play...", "HowToPlay"},
      {Form.mnuHelpMe, "mnuGoHelp", "&Show Tollmoor Blunko Help...", "GoHelp"},
      {Form.mnuHelpMe, "mnuSep99", "", ""},
      {Form.mnuHelpMe, "mnuAbout", "About Tollmoor Blunko...", "About"},
  };
  Names Found;
  for (QMenu* Menu : {Form.mnuGame, Form.mnuHelpMe}) {
    for (const QAction* Action : Menu->actions()) Found.push_back(Action->objectName().toStdString());
  }
  ASSERT_EQ(Found.size(), std::size(Entries));
  for (FitLabel* Label : {Form.lblMnuGame, Form.lblMnuHelp}) {
    QMenu* Menu = Label == Form.lblMnuGame ? Form.mnuGame : Form.mnuHelpMe;
    EXPECT_EQ(Label->text(), Label == Form.lblMnuGame ? QLatin1String("Game") : QLatin1String("Help"));
    QTest::mouseClick(Label, Qt::RightButton);
    EXPECT_FALSE(Menu->isVisible());
    QTest::mouseClick(Label, Qt::LeftButton);
    EXPECT_TRUE(Menu->isVisible());
    EXPECT_EQ(Menu->pos(), Label->mapToGlobal(QPoint(0, Label->height())));
    Menu->close();
  }
  for (std::size_t i = 0; i < std::size(Entries); ++i) {
    const Entry& Each = Entries[i];
    SCOPED_TRACE(Each.Name);
    EXPECT_EQ(Found[i], Each.Name);
    auto* Action = Each.Menu->findChild<QAction*>(QString::fromLatin1(Each.Name));
    EXPECT_EQ(Action->text(), QLatin1String(Each.Caption));
    EXPECT_EQ(Action->isSeparator(), Each.Log.empty());
    Action->trigger();
    Names Heard = TakeLog();
    Heard.insert(Heard.end(), Called.begin(), Called.end());
    Called.clear();
    EXPECT_EQ(Heard, Each.Log.empty() ? Names{} : Names{Each.Log});
  }

  m.Quitting = false;  // after mnuExit
  Form.show();
  for (ButtonPlus* Button : {Form.cmdOptions, Form.cmdHighRollers, Form.ARCmdNewGame, Form.cmdExit}) {
    QTest::mouseClick(Button, Qt::LeftButton);
  }
  EXPECT_EQ(Called, (Names{"Options", "HighRollers"}));
  EXPECT_EQ(TakeLog(), (Names{"new game", "exit"}));
}

/// Space on a button that happened to take over the focus would play for the person.
TEST_F(TheTable, AButtonThatGoesOffLeavesTheFocusToTheTable) {
  QWidget Dialog;
  Others.OnNewGame = [&] {  // the table isn't active when the button is hidden
    Dialog.show();
    Dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Dialog, 2000));
    Begin({"Ann", "Bob"});
    Dialog.hide();
    Form.activateWindow();
  };
  Form.ARCmdNewGame->setFocus();
  QTest::keyClick(Form.ARCmdNewGame, Qt::Key_Space);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Form, 2000));
  EXPECT_EQ(QApplication::focusWidget(), &Form);

  Form.cmdRoll->setFocus();
  Script({1, 1, 1, 2, 3, 4});
  QTest::keyClick(Form.cmdRoll, Qt::Key_Space);
  EXPECT_EQ(QApplication::focusWidget(), &Form);
  QTest::keyClick(&Form, Qt::Key_1);
  Form.cmdPassDice->setFocus();
  QTest::keyClick(Form.cmdPassDice, Qt::Key_Space);
  EXPECT_EQ(m.CurrentPlayer, 1);
  EXPECT_EQ(QApplication::focusWidget(), &Form);
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
      default: QTest::keyClick(&Form, Keys[static_cast<std::size_t>(Draw(std::size(Keys)))]); break;
    }
    m.Quitting = false;
    ASSERT_EQ(Difference(Form, t), "") << "after command " << i;
  }
  EXPECT_GT(Games, 5);
}

TEST_F(TheTable, TellsAScreenReaderWhatIsDrawn) {
  const auto Told = [this](int First) {
    Names All;
    for (int i = 0; i < 6; ++i) All.push_back(Box(First + i)->accessibleName().toStdString());
    return All;
  };
  const Names NoDice{"Die 1: empty", "Die 2: empty", "Die 3: empty", "Die 4: empty", "Die 5: empty", "Die 6: empty"};
  const Names NoTray{"Tray 1: empty", "Tray 2: empty", "Tray 3: empty",
                     "Tray 4: empty", "Tray 5: empty", "Tray 6: empty"};
  EXPECT_EQ(Told(0), NoDice);
  EXPECT_EQ(Told(10), NoTray);
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 2, 3, 5, 6});
  EXPECT_EQ(Told(0), (Names{"Die 1: one, scores", "Die 2: two", "Die 3: two", "Die 4: three", "Die 5: five, scores",
                            "Die 6: six"}));
  QTest::mouseClick(Box(4), Qt::LeftButton);
  EXPECT_EQ(Told(0)[4], "Die 5: empty");
  EXPECT_EQ(Told(10)[0], "Tray 1: five");
  PressRoll({2, 2, 3, 4, 6});  // a blunko
  EXPECT_EQ(Told(0), NoDice);
  EXPECT_EQ(Told(10), NoTray);
}

TEST_F(TheTable, NoTextIsCut) {
  Begin({"WWWWWWWWWWWWWW", "Bob"});
  Form.ColourLabels(0x0000FF);
  EXPECT_EQ(Form.lblPlayer->ForeColor(), QColor(255, 0, 0));
  t.lblTurnScore.Caption = "32767";
  t.lblLastRoll.Caption = "(Last Roll - Need 32767 To Take The Lead)";
  t.ShowLastRoll();
  for (const char* Status : {"Select Dice or Pass Dice. (Undo)", "Roll, select, or pass the dice. (Undo)"}) {
    t.lblStatus.Caption = Status;
    Form.ShowControls();
    for (FitLabel* Label : Form.picGameTray->findChildren<FitLabel*>()) {
      const QRect Ink = Inked(*Label, QColor(255, 0, 0));
      EXPECT_GT(Ink.width(), 4) << Label->objectName().toStdString();
      EXPECT_TRUE(Label->rect().adjusted(1, 0, -1, 0).contains(Ink)) << Label->objectName().toStdString();
    }
  }
  EXPECT_LE(Form.lblStatus->geometry().bottom(), Form.lblLastRoll->y());
}

/// A game on the real desktop: what the person sees while a handler waits.
class Rolling : public testing::TestWithParam<double> {};

TEST_P(Rolling, EveryDrawnFaceIsPaintedAtOnce) {
  Module1 m;
  TableControls t;
  PlainOptions Options;
  QtDesktop Screen;
  QuietProgram Others;
  ScriptedDice Numbers;
  Game game{m, t, Options, Screen, Others, Numbers};
  frmMain Form(game);
  Screen.WaitFactor = GetParam();
  Screen.ShowControls = [&] { Form.ShowControls(); };
  GameSetup Setup;
  Setup.NumPlayers = 2;
  Form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&Form, 2000));
  Form.Handle([&] { game.FreshGame(Setup); });

  constexpr int Cycles = 5;
  std::vector<int> First{0};  // what the first die shows, from the empty place on
  for (int Cycle = 0; Cycle < Cycles; ++Cycle) {
    for (int Die = 0; Die < 6; ++Die) Numbers.Faces.push_back((Cycle + Die) % 6 + 1);
    First.push_back(112 + Cycle + 1);
  }
  Numbers.Faces.insert(Numbers.Faces.end(), {6, 4, 4, 3, 2, 1});
  First.push_back(112 + 1);  // sorted

  std::vector<int> Painted{0};
  std::string Status;
  PaintCounter Die(Form.Picture1[0]), Line(Form.lblStatus);
  Die.OnPaint = [&] {
    if (Painted.back() != Form.Picture1[0]->Picture()) Painted.push_back(Form.Picture1[0]->Picture());
  };
  Line.OnPaint = [&] { Status += Form.lblStatus->text().toStdString() + '|'; };
  QElapsedTimer Clock;
  Clock.start();
  QTest::mouseClick(Form.cmdRoll, Qt::LeftButton);
  EXPECT_GE(Clock.elapsed(), static_cast<qint64>(Cycles * 6 * 10 * GetParam()));
  EXPECT_EQ(Painted, First);
  EXPECT_EQ(Status, "Rolling...|Select Dice.|");
}

INSTANTIATE_TEST_SUITE_P(Waits, Rolling, testing::Values(0.0, 0.5),
                         [](const auto& Info) { return Info.param == 0 ? "WithoutEvents" : "HalfAsLong"; });

}  // namespace
}  // namespace blunko::test

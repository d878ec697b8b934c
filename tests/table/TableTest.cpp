#include <QAction>
#include <QMenu>
#include <QScreen>
#include <QWheelEvent>

#include "table/KeyEvents.h"
#include "tests/support/Rows.h"
#include "tests/table/TableForm.h"
#include "widgets/HeldKeys.h"

namespace blunko::test {

class TheTable : public testing::Test, public TableForm {};

TEST_F(TheTable, ClicksAndKeysReachTheGame) {
  using Input = std::function<void()>;
  const auto Click = [this](int Index, Qt::MouseButton Button) {
    return Input([=, this] { QTest::mouseClick(Box(Index), Button); });
  };
  const Input BesideTheDice = [this] { QTest::mouseClick(Form.picTray1, Qt::RightButton, {}, QPoint(59, 30)); };
  const auto Key = [this](Qt::Key Code) { return Input([=, this] { QTest::keyClick(Form.cmdHighRollers, Code); }); };
  Begin({"Ann", "Bob"});
  PressRoll({1, 2, 3, 4, 4, 5});
  for (const auto& [Take, Undo] :
       {std::pair(Click(0, Qt::LeftButton), Click(10, Qt::LeftButton)), {Key(Qt::Key_1), Key(Qt::Key_Backspace)}}) {
    Take();
    EXPECT_EQ(m.TurnScore, 100);
    Undo();
    EXPECT_EQ(m.TurnScore, 0);
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

  for (const Input& Roll : {Click(3, Qt::RightButton), Click(10, Qt::RightButton), BesideTheDice, Key(Qt::Key_R)}) {
    Begin({"Ann", "Bob"});
    PressRoll({1, 1, 1, 2, 3, 4});
    Click(0, Qt::LeftButton)();
    const int Before = Numbers.Draws;
    Roll();
    EXPECT_GT(Numbers.Draws, Before);
  }
}

/// The toolkit's way to a screen reader: takes each key of the system's, and sends a copy of it later.
struct ReadersBridge : QObject {
  bool eventFilter(QObject* Receiver, QEvent* Event) override {
    if (!Event->spontaneous() || (Event->type() != QEvent::KeyPress && Event->type() != QEvent::KeyRelease))
      return false;
    const auto& Key = static_cast<QKeyEvent&>(*Event);
    QCoreApplication::postEvent(Receiver, new QKeyEvent(Key.type(), Key.key(), Key.modifiers(), Key.nativeScanCode(), 0,
                                                        0, Key.text(), Key.isAutoRepeat()));
    return true;
  }
};

TEST_F(TheTable, AKeyIsACommandOnceAtItsReleaseInTheWindowOfItsPress) {
  const auto Rows = RowsOf("table/keys.txt");
  const std::map<char, std::pair<quint32, int>> Keys{{'E', {9, Qt::Key_Escape}},
                                                     {'1', {10, Qt::Key_1}},
                                                     {'S', {0, Qt::Key_Shift}},
                                                     {'F', {0, Qt::Key_F2}},
                                                     {'R', {36, Qt::Key_Return}}};
  const HeldKeys Held(false);
  ReadersBridge Bridge;
  Screen.Answer = false;
  for (std::size_t Row = 0; Row < 2 * Rows.size(); ++Row) {
    if (Row == Rows.size()) qApp->installEventFilter(&Bridge);  // all again for a reader
    const auto& [Strokes, Outcome, Rule] = Rows[Row % Rows.size()];
    QWidget Dialog;
    ButtonPlus OK("OK", &Dialog);
    QObject::connect(&OK, &QPushButton::clicked, [this] { Screen.Log.push_back("OK"); });
    Begin({"Ann", "Bob"});
    PressRoll({1, 1, 5, 2, 3, 4});
    TakeLog(), m.FormMessage.clear();
    bool Shift = false;
    quint64 Moment = 0;
    QWidget* Active = &Form;
    for (const QString& Stroke : QString::fromStdString(Strokes).split(' ')) {
      const char What = Stroke.front().toLatin1();
      if (What == 'M') QTest::mouseClick(Form.lblMnuGame, Qt::LeftButton);
      if (What == 'T' || What == 'D') Activate(*(Active = What == 'T' ? &Form : &Dialog));
      if (Stroke.size() == 1) continue;
      const auto& [Place, Key] = Keys.at(Stroke.back().toLatin1());
      if (Key == Qt::Key_Shift) Shift = What == '+';
      for (const QEvent::Type Type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        if ((Type == QEvent::KeyRelease) == (What == '+')) continue;
        QKeyEvent Event(Type, Shift && Key == Qt::Key_1 ? Qt::Key_Exclam : Key,
                        Shift ? Qt::ShiftModifier : Qt::NoModifier, Place, 0, 0);
        Event.setTimestamp(Type == QEvent::KeyPress ? Moment : ++Moment);
        QSpontaneKeyEvent::setSpontaneous(&Event);
        qApp->notify(Active->windowHandle(), &Event);
      }
      QCoreApplication::sendPostedEvents();
    }
    Dialog.hide();
    Activate(Form);
    std::string Came = m.TurnScore == 100 ? "1" : "";
    for (const std::string& Line : TakeLog()) {
      Came += Line == Question ? "Q" : Line == "new game" ? "N" : Line == "OK" ? "K" : "";
    }
    EXPECT_EQ(Came, Outcome) << Rule;
  }
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
  QTest::mouseClick(Form.cmdHighRollers, Qt::LeftButton);
  const std::string Options = "sound GameOver; cancel options; hide options; sound GameOver; ";
  EXPECT_EQ(Told(), "new game; " + Options + "exit; HowToPlay; GoHelp; About; HighRollers");
}

/// Space on a button that happened to take over the focus would play for the person: but for Roll Dice none does.
TEST_F(TheTable, AButtonThatGoesOffLeavesTheFocusToRollDiceOrToTheTable) {
  EXPECT_EQ(QApplication::focusWidget(), Form.ARCmdNewGame) << "on the first table";
  QWidget Dialog;
  Others.OnNewGame = [&] {  // the table isn't active when the button is hidden
    Activate(Dialog);
    Begin({"Ann", "Bob"});
    Dialog.hide();
    Form.activateWindow();
  };
  const auto Press = [this](ButtonPlus* Button, QWidget* Next) {
    Button->setFocus();
    QTest::keyClick(Button, Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Form, 2000));
    EXPECT_EQ(QApplication::focusWidget(), Next) << Button->objectName().toStdString();
  };
  Press(Form.ARCmdNewGame, Form.cmdRoll);
  Script({1, 1, 1, 2, 3, 4});
  Press(Form.cmdRoll, &Form);
  QTest::keyClick(&Form, Qt::Key_1);
  EXPECT_EQ(QApplication::focusWidget(), Form.cmdRoll) << "it had the focus before it went off";
  Press(Form.cmdPassDice, Form.cmdRoll);
  EXPECT_EQ(m.CurrentPlayer, 1);
  PressRoll({1, 1, 5, 2, 3, 4});
  Box(0)->setFocus();
  for (const auto Key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space})
    QTest::keyClick(QApplication::focusWidget(), Key);
  EXPECT_FALSE(Box(1)->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), Box(0)) << "the first die that is left in the row";
  Form.cmdExit->setFocus();
  QTest::keyClick(Form.cmdExit, Qt::Key_5);
  EXPECT_EQ(QApplication::focusWidget(), Form.cmdExit) << "what hasn't gone off keeps it";
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
  EXPECT_EQ(ShiftMaskOf({QEvent::KeyRelease, Qt::Key_F2, Qt::ControlModifier | Qt::AltModifier}), 2 + 4);
}

TEST_F(TheTable, AllOfItIsReachedOnALowScreen) {
  const QRect Screen = Form.screen()->availableGeometry();
  Form.setFixedSize(Form.width(), Screen.height() + 100);
  Form.cmdExit->move(0, Form.height() - 80);
  const auto Turn = [this](int Wheel) {
    QWheelEvent Event({}, {}, {}, {0, Wheel}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Form, &Event);
    return Form.frameGeometry();
  };
  EXPECT_EQ(Turn(-9000).bottom(), Screen.bottom());
  EXPECT_EQ(Turn(9000).top(), Screen.top());
  EXPECT_EQ(Turn(-60).top(), Screen.top() - 30);
  Form.cmdHighRollers->setFocus();
  QTest::keyClick(Form.cmdHighRollers, Qt::Key_Tab);
  EXPECT_EQ(Form.cmdExit->mapToGlobal(Form.cmdExit->rect().bottomLeft()).y() + 12, Screen.bottom());
}

}  // namespace blunko::test

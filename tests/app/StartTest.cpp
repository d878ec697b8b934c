#include <QMenu>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>

#include "app/Scale.h"
#include "app/frmCongrats.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

const std::string Box = "Tollmoor Blunko: ";
const std::string Version = Box + "Would you like to check for a new version of Tollmoor Blunko";
const std::string QuitGame = "Quit?: Are you sure you want to quit the current game?";
const QByteArray TwoPersons =
    "ShowWelcomeMessage=0\ndefNumPlayers=2\ndefPlayerIsCompString=False\xA4"
    "False\xA4\n";

class Playing : public TheProgram {
 protected:
  QWidget* Pad() const { return Run->Form->findChild<QWidget*>(QStringLiteral("frmScorePad")); }
  std::string Score(int Seat) const {
    return Pad()->findChild<FitLabel*>(QStringLiteral("lblScore(%1)").arg(Seat))->text().toStdString();
  }
  void Begin(int Seats, bool Computers) {
    GameSetup Setup;
    Setup.NumPlayers = static_cast<std::uint8_t>(Seats);
    for (auto& Seat : Setup.Seats) Seat = {"Somebody", Computers, Simple};
    Run->Form->Handle([&] { Run->Table.FreshGame(Setup); });
  }
  void Key(int Code) {
    for (const auto Type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent Event(Type, Code, {});
      QApplication::sendEvent(Run->Form.get(), &Event);
    }
  }
  using Step = std::function<void()>;
  const std::array<std::pair<const char*, Step>, 4> Ways{
      {{"the button", [this] { Run->Form->cmdExit->click(); }},
       {"the menu", [this] { Run->Form->mnuGame->actions().last()->trigger(); }},
       {"Esc", [this] { Key(Qt::Key_Escape); }},
       {"the close box", [this] { Run->Form->close(); }}}};
  /// Rolls with the button; the dice tumble first, then show the faces.
  void Roll(std::initializer_list<int> Faces) {
    constexpr int Cycles[] = {0, 20, 15, 10, 8, 7, 5};
    Dice->Faces.assign(Faces.size() * static_cast<std::size_t>(Cycles[Faces.size()]), 6);
    Dice->Faces.insert(Dice->Faces.end(), Faces);
    Click(Run->Form->cmdRoll);
  }
  /// Two persons play with the mouse until the first has won by 6000 to 4000, and leave the trophy by this button.
  void PlayGame(
      ButtonPlus* frmCongrats::*Button, const std::function<void()>& Afterwards = [] {}) {
    frmMain& Form = *Run->Form;
    ASSERT_TRUE(Form.cmdRoll->isVisible() && Form.cmdRoll->isEnabled());
    EXPECT_EQ(Form.lblPlayer->text() + Form.lblStatus->text(), QLatin1String("Player1Roll the dice."));
    EXPECT_EQ(Score(1), "0");
    Roll({1, 1, 1, 1, 3, 2});
    Click(Form.Picture1[0]);
    EXPECT_EQ(Form.lblTurnScore->text(), QLatin1String("2000"));
    Click(Form.cmdPassDice);
    EXPECT_EQ(Form.lblPlayer->text(), QLatin1String("Player2"));
    Roll({2, 3, 3, 4, 6, 6});  // a blunko
    EXPECT_EQ(Form.lblPlayer->text(), QLatin1String("Player1"));
    Roll({1, 1, 1, 1, 1, 2});
    Click(Form.Picture1[2]);
    Next.Press(&GameBox::cmdOK);  // going out
    Click(Form.cmdPassDice);
    EXPECT_EQ(Form.lblLastRoll->text(), QLatin1String("(Last Roll - Need 6050 To Win)"));
    Roll({1, 1, 1, 1, 1, 2});
    Click(Form.Picture1[0]);
    Next.Expect<frmCongrats>([this, Button](frmCongrats& Dialog) {
      EXPECT_EQ(Dialog.windowTitle(), QLatin1String("Congratulations Player1 !!!"));
      EXPECT_TRUE(QTest::qWaitFor([&] { return Dialog.lblWinner->text() == QLatin1String("* Player1 *"); }, 5000));
      EXPECT_EQ(Score(0) + ' ' + Score(1), "6000 4000");
      Click(Dialog.*Button);
    });
    Afterwards();
    Click(Form.cmdPassDice);
  }
};

TEST_F(Playing, TwoPersonsReachTheTrophyWithTheMouse) {
  Start(TwoPersons);
  frmMain& Form = *Run->Form;
  const auto NewGame = [&] {
    Next.Press(&frmNewGame::cmdPlay);
    Click(Form.ARCmdNewGame);
    EXPECT_FALSE(Form.ARCmdNewGame->isVisible());
  };
  NewGame();
  PlayGame(&frmCongrats::cmdSameGame);
  PlayGame(&frmCongrats::cmdDifferentGame, [&] { Next.Press(&frmNewGame::cmdCancel); });
  EXPECT_TRUE(Form.ARCmdNewGame->isVisible() && Form.ARCmdNewGame->isEnabled());
  EXPECT_FALSE(Form.cmdRoll->isVisible() || Form.cmdPassDice->isVisible() || Form.lblLastRoll->isVisible());
  EXPECT_EQ(Run->State.CurrentPlayer, Absent);
  NewGame();
  Next.Seen.clear();
  PlayGame(&frmCongrats::cmdQuit);
  EXPECT_EQ(Next.Seen.size(), 2U) << "after the trophy nothing is asked";
  EXPECT_TRUE(Run->State.Quitting);
  EXPECT_FALSE(Form.isVisible());
}

TEST_F(Playing, EveryWayOutEndsItInTheMiddleOfAComputersTurn) {
  for (const auto& [Way, Out] : Ways) {
    for (const int Delay : {0, 3, 30}) {
      SCOPED_TRACE(std::string(Way) + " after " + std::to_string(Delay));
      Start();
      const auto LeaveSoon = [&, &Out = Out] { QTimer::singleShot(Delay, Run->Form.get(), Out); };
      Next.Expect<GameBox>([&](GameBox& Question) {
        LeaveSoon();
        Question.cmdNo->click();
      });
      Next.Press(&GameBox::cmdYes);
      LeaveSoon();
      Begin(8, true);
      EXPECT_EQ(std::exchange(Next.Seen, {}), Lines(2, QuitGame));
      EXPECT_TRUE(Run->State.Quitting);
      EXPECT_FALSE(Run->Form->isVisible());
      EXPECT_EQ(Run->Table.Fault(), "");
    }
  }
}

/// A window that is gone while its process lives on is a game lost.
TEST_F(Playing, EveryWayOutInsideEveryOtherLeavesTheTableOrEndsTheProgram) {
  frmMain* Form = nullptr;
  const auto Within = [this](Step Out, ButtonPlus* GameBox::*Answer) {
    Next.Expect<GameBox>([Out = std::move(Out), Answer](GameBox& Box) {
      Out();
      (Box.*Answer)->click();
    });
  };
  std::vector<std::tuple<std::string, int, std::function<void(const Step&)>>> Places{
      // with the questions asked; each is answered with No
      {"the new game dialog", 0,
       [&](const Step& Out) {
         Next.Expect<frmNewGame>([&](frmNewGame& Dialog) {
           Out();
           Dialog.reject();
         });
         Key(Qt::Key_F2);
       }},
      {"a roll", 0,
       [&](const Step& Out) {
         Run->Screen.WaitFactor = 0.01;
         QTimer::singleShot(0, Form, Out);
         Roll({1, 2, 3, 3, 4, 6});
         Run->Screen.WaitFactor = 0;
       }},
      {"the going-out box and the flash", 0,
       [&](const Step& Out) {
         Run->State.PlayerScore = {5000, 0};
         Roll({1, 1, 1, 2, 3, 3});
         Click(Form->Picture1[0]);
         Run->Screen.WaitFactor = 0.01;
         Within([&] { QTimer::singleShot(0, Form, Out), Out(); }, &GameBox::cmdOK);
         Click(Form->cmdPassDice);
         Run->Screen.WaitFactor = 0;
       }},
      {"the options", 1,
       [&](const Step& Out) {
         Form->cmdOptions->click();
         // The button is off, and Esc closes the panel and no more.
         const bool Asks = &Out == &Ways[1].second || &Out == &Ways[3].second;
         Asks ? Next.Press(&GameBox::cmdNo) : Next.Seen.push_back(QuitGame);
         Out();
         Run->CancelOptions();
       }},
  };
  for (const auto& [Outer, Do] : Ways) {
    Places.emplace_back(Outer, 1, [&Within, &Do = Do](const Step& Out) {
      Within(Out, &GameBox::cmdNo);
      Do();
    });
  }
  for (const auto& [Place, Questions, In] : Places) {
    for (const auto& [Way, Out] : Ways) {
      SCOPED_TRACE(Place + ", " + Way);
      Start(TwoPersons);
      Form = Run->Form.get();
      const bool Dialog = Place == "the new game dialog";
      if (!Dialog) Begin(2, false);
      Next.Seen.clear();
      In(Out);
      EXPECT_EQ(std::ranges::count(Next.Seen, QuitGame), Questions);
      EXPECT_FALSE(Run->State.Quitting);
      EXPECT_TRUE(Form->isVisible());
      EXPECT_EQ(Run->Table.Fault(), "");
      if (!Dialog) Next.Press(&GameBox::cmdYes);
      Out();
      EXPECT_TRUE(Run->State.Quitting);
      EXPECT_FALSE(Form->isVisible());
    }
  }
}

TEST_F(Playing, TheScorePadGoesAndComesBackToItsPlaceWithTheTable) {
  Start();
  Begin(2, false);
  EXPECT_EQ(Pad()->pos(), QPoint(Run->Form->frameGeometry().right() + 1 + 12, Run->Form->y()));
  Pad()->move(17, 301);
  const QPoint Before = Pad()->pos();
  Run->Form->showMinimized();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Pad()->isVisible(); }, 5000));
  Run->Form->showNormal();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Pad()->isVisible(); }, 5000));
  EXPECT_EQ(Pad()->pos(), Before);
}

TEST(Scale, MakesNoWindowLargerThanTheScreenNorSmallerThanItIs) {
  const std::tuple<int, QSize, double> Rows[] = {
      {150, {1920, 1080}, 1.5}, {400, {5300, 1120}, 2}, {400, {1590, 5600}, 3}, {200, {800, 480}, 1}};
  for (const auto& [PerCent, Screen, Scale] : Rows) EXPECT_DOUBLE_EQ(FittingScale(PerCent, Screen), Scale) << PerCent;
}

TEST_F(TheProgram, AsksItsTwoQuestionsAtTheFirstStartAlone) {
  const char* const Survey =
      "Tollmoor Blunko: To better serve our customers we would like to record the hardware configuration of your "
      "computer.  This information is reported anonymously and contains no personally identifying information.\nMay we "
      "do this?";
  for (const auto Answer : {&GameBox::cmdYes, &GameBox::cmdNo}) {
    const bool Yes = Answer == &GameBox::cmdYes;
    QFile::remove(Path("game.ini"));
    Create();
    Next.Press(Answer);
    if (Yes) Next.Press(&GameBox::cmdOK);
    Next.Press(&GameBox::cmdNo);
    EXPECT_TRUE(Run->Main());
    EXPECT_EQ(std::exchange(Next.Seen, {}),
              Yes ? (Lines{Survey, Box + "Thank You", Version}) : (Lines{Survey, Version}));
    EXPECT_EQ(Dice->Draws, 0);
    EXPECT_EQ(QFile::remove(Path("hardware.txt")), Yes);

    for (int Drawn = 1; Drawn <= 5; ++Drawn) {
      Create();
      Dice->Faces = {Drawn};
      if (Drawn == 1) Next.Press(&GameBox::cmdNo);
      EXPECT_TRUE(Run->Main());
      EXPECT_EQ(std::exchange(Next.Seen, {}), Drawn == 1 ? Lines{Version} : Lines{});
    }
  }
}

TEST_F(TheProgram, TellsWhatTheVersionCheckFound) {
  const std::string Latest = "You have the latest version.";
  const std::string Newer = "A newer version is available, would you like to go to the web site to download it?";
  const std::tuple<QByteArray, std::string, ButtonPlus * GameBox::*, bool> Rows[] = {
      {"0.9.9\n", Latest, &GameBox::cmdOK, true},
      {"1.0.0\n", Latest, &GameBox::cmdOK, true},
      {"1.0.1\n", Newer, &GameBox::cmdNo, true},
      {"1.0.1\n", Newer, &GameBox::cmdYes, false},
      {"<html>404", "An error has occurred. Please try again later.", &GameBox::cmdOK, true}};
  QByteArray Newest;
  QTcpServer Server;
  ASSERT_TRUE(Server.listen(QHostAddress::LocalHost));
  QObject::connect(&Server, &QTcpServer::newConnection, &Server, [&] {
    QTcpSocket* Socket = Server.nextPendingConnection();
    QObject::connect(Socket, &QTcpSocket::readyRead, Socket, [&, Socket] {
      Socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + Newest);
      Socket->disconnectFromHost();
    });
  });
  Put(Path("game.ini"), "[Info]\nScanned=True\n");
  for (const auto& [Text, Told, Answer, Starts] : Rows) {
    SCOPED_TRACE(Text.toStdString() + Told);
    const Shell Browser;
    Newest = Text;
    Create();
    Run->Util = TbkUtil(QStringLiteral("http://127.0.0.1:%1/version.txt").arg(Server.serverPort()), 3000);
    Dice->Faces = {1};
    Next.Press(&GameBox::cmdYes);
    Next.Press(Answer);
    EXPECT_EQ(Run->Main(), Starts);
    EXPECT_EQ(std::exchange(Next.Seen, {}), (Lines{Version, Box + Told}));
    EXPECT_EQ(Run->Form != nullptr, Starts);
    EXPECT_EQ(Browser.Opened.size(), Starts ? 0U : 1U);
    Run.reset();
  }
}

}  // namespace
}  // namespace blunko::test

#include <QElapsedTimer>
#include <QMenu>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>

#include "app/Scale.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

const std::string Version = "Tollmoor Blunko: Would you like to check for a new version of Tollmoor Blunko";
const std::string QuitGame = "Quit?: Are you sure you want to quit the current game?";

class Playing : public TheProgram {
 protected:
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
  void ExpectTable(bool Stays) {
    EXPECT_EQ(Run->State.Quitting, !Stays);
    EXPECT_EQ(Run->Form->isVisible(), Stays);
    EXPECT_EQ(Run->Table.Fault(), "");
  }
};

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
      ExpectTable(false);
    }
  }
}

/// A window that is gone while its process lives on is a game lost.
TEST_F(Playing, EveryWayOutInsideEveryOtherLeavesTheTableOrEndsTheProgram) {
  const auto Within = [this](ButtonPlus* GameBox::*Answer, Step Out) {
    Next.Expect<GameBox>([Answer, Out = std::move(Out)](GameBox& Box) {
      Out();
      (Box.*Answer)->click();
    });
  };
  const auto Soon = [this](const Step& Out) {
    Run->Screen.WaitFactor = 0.01;
    QTimer::singleShot(0, Run->Form.get(), Out);
  };
  const struct {
    const char *Where, *Asked;  ///< how often each way asks; the answer is No
    std::function<void(const Step& Out, char Asked)> In;
  } Places[] = {
      {"the new game dialog", "0000",
       [&](const Step& Out, char) {
         Next.Expect<frmNewGame>([&](frmNewGame& Dialog) {
           Out();
           Dialog.reject();
         });
         Key(Qt::Key_F2);
       }},
      {"a roll", "0000", [&](const Step& Out, char) { Soon(Out), Click(Run->Form->cmdRoll); }},
      {"the going-out box and the flash", "0000",
       [&](const Step& Out, char) {
         Within(&GameBox::cmdOK, [&] { Soon(Out), Out(); });
         Run->State.PlayerScore = {5000, 0};
         Run->State.TurnScore = 1000;
         Run->Controls.cmdPassDice.Enabled = true;
         Run->Form->Handle([&] { Run->Table.PersonPasses(); });
       }},
      {"the options", "0101",  // the button is off, and Esc closes the panel and no more
       [&](const Step& Out, char Asked) {
         Run->Form->cmdOptions->click();
         if (Asked == '1') Next.Press(&GameBox::cmdNo);
         Out();
         Run->CancelOptions();
       }},
      {"every way's question", "4444",
       [&](const Step& Out, char) {
         for (const auto& [Way, Ask] : Ways) Within(&GameBox::cmdNo, Out), Ask();
       }},
  };
  for (const auto& Place : Places) {
    for (std::size_t i = 0; i < Ways.size(); ++i) {
      const auto& [Way, Out] = Ways[i];
      SCOPED_TRACE(std::string(Place.Where) + ", " + Way);
      Start();
      const bool Plays = &Place != Places;
      if (Plays) Begin(2, false);
      Next.Seen.clear();
      Place.In(Out, Place.Asked[i]);
      EXPECT_EQ(std::ranges::count(Next.Seen, QuitGame), Place.Asked[i] - '0');
      ExpectTable(true);
      if (Plays) Next.Press(&GameBox::cmdYes);
      Out();
      ExpectTable(false);
    }
  }
}

/// What the person sees while a handler waits, or doesn't.
TEST_F(Playing, EveryFaceOfTumblingDiceIsPaintedAtOnce) {
  struct : QObject {
    std::vector<int> Faces{0};  ///< of the first die, from the empty place on
    std::string Status;
    bool eventFilter(QObject* Painted, QEvent* Event) override {
      if (Event->type() != QEvent::Paint) return false;
      if (const auto* Label = qobject_cast<FitLabel*>(Painted)) Status += Label->text().toStdString() + '|';
      const auto* Die = qobject_cast<DieBox*>(Painted);
      if (Die != nullptr && Faces.back() != Die->Picture()) Faces.push_back(Die->Picture());
      return false;
    }
  } Seen;
  for (const double WaitFactor : {0.0, 0.5}) {
    SCOPED_TRACE(WaitFactor);
    Start();
    Begin(2, false);
    Run->Screen.WaitFactor = WaitFactor;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Run->Form.get(), 2000));
    Dice->Faces.clear();
    for (int i = 0; i < 30; ++i) Dice->Faces.push_back((i / 6 + i % 6) % 6 + 1);
    Dice->Faces.insert(Dice->Faces.end(), {6, 4, 4, 3, 2, 1});
    Seen.Faces = {0};
    Seen.Status.clear();
    Run->Form->Picture1[0]->installEventFilter(&Seen);
    Run->Form->lblStatus->installEventFilter(&Seen);
    QElapsedTimer Clock;
    Clock.start();
    Click(Run->Form->cmdRoll);
    EXPECT_GE(Clock.elapsed(), static_cast<qint64>(5 * 6 * 10 * WaitFactor));
    EXPECT_EQ(Seen.Faces, (std::vector{0, 113, 114, 115, 116, 117, 113})) << "five tumbling, then sorted";
    EXPECT_EQ(Seen.Status, "Rolling...|Select Dice.|");
  }
}

TEST(Scale, MakesNoWindowLargerThanTheScreenNorSmallerThanItIs) {
  const std::tuple<int, QSize, double> Rows[] = {
      {150, {1920, 1080}, 1.5}, {400, {5300, 1120}, 2}, {400, {1590, 5600}, 3}, {200, {800, 480}, 1}};
  for (const auto& [PerCent, Screen, Scale] : Rows) EXPECT_DOUBLE_EQ(FittingScale(PerCent, Screen), Scale) << PerCent;
}

TEST_F(TheProgram, AsksItsTwoQuestionsAtTheFirstStartAlone) {
  for (const bool Yes : {true, false}) {
    QFile::remove(Path("game.ini"));
    for (int Drawn = 0; Drawn <= 5; ++Drawn) {  // nothing is drawn at the first start
      Create();
      Dice->Faces = {Drawn};
      if (Drawn == 0) Next.Press(Yes ? &GameBox::cmdYes : &GameBox::cmdNo);
      if (Drawn == 0 && Yes) Next.Press(&GameBox::cmdOK);
      if (Drawn <= 1) Next.Press(&GameBox::cmdNo);
      EXPECT_TRUE(Run->Main());
      EXPECT_EQ(Dice->Draws == 0, Drawn == 0);
      Next.Seen.insert(Next.Seen.begin(), "");
      EXPECT_EQ(std::exchange(Next.Seen, {}).back(), Drawn <= 1 ? Version : "");
    }
    EXPECT_EQ(QFile::remove(Path("hardware.txt")), Yes);
  }
}

TEST_F(TheProgram, TellsWhatTheVersionCheckFound) {
  const std::string Newer = "A newer version is available, would you like to go to the web site to download it?";
  const std::tuple<QByteArray, std::string, ButtonPlus * GameBox::*, bool> Rows[] = {
      {"1.0.0\n", "You have the latest version.", &GameBox::cmdOK, true},
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
    EXPECT_EQ(std::exchange(Next.Seen, {}), (Lines{Version, "Tollmoor Blunko: " + Told}));
    EXPECT_EQ(Run->Form != nullptr, Starts);
    EXPECT_EQ(Browser.Opened.size(), Starts ? 0U : 1U);
  }
}

}  // namespace
}  // namespace blunko::test

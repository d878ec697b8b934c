#include <QDesktopServices>
#include <QPushButton>
#include <QRadioButton>
#include <QTcpServer>
#include <QTcpSocket>

#include "app/Application.h"
#include "app/frmCongrats.h"
#include "storage/DayNumber.h"
#include "tests/app/Run.h"
#include "tests/engine/Table.h"

namespace blunko::test {
namespace {

using Lines = std::vector<std::string>;

const std::string Survey =
    "Tollmoor Blunko: To better serve our customers we would like to record the hardware configuration of your "
    "computer.  This information is reported anonymously and contains no personally identifying information.\n"
    "May we do this?";
const std::string Thanks = "Tollmoor Blunko: Thank You";
const std::string Version = "Tollmoor Blunko: Would you like to check for a new version of Tollmoor Blunko";
const std::string Newer =
    "Tollmoor Blunko: A newer version is available, would you like to go to the web site to download it?";
const std::string QuitGame = "Quit?: Are you sure you want to quit the current game?";

const QByteArray TwoPersons =
    "defNumPlayers=2\ndefPlayerNameString=Ann\xA4"
    "Bob\xA4\ndefPlayerIsCompString=False\xA4"
    "False\xA4\n";

/// The whole program in a folder of its own, with scripted dice; its waits are instant.
class TheProgram : public testing::Test {
 protected:
  QTemporaryDir Place;
  ScriptedDice* Dice = nullptr;
  std::unique_ptr<Application> Run;
  Answers Next;

  QString Path(const char* Name) const { return Place.filePath(QString::fromLatin1(Name)); }
  void Put(const QByteArray& Keys) const {
    QFile File(Path("game.ini"));
    ASSERT_TRUE(File.open(QIODevice::WriteOnly));
    File.write("[Info]\n" + Keys);
  }
  void Create() {
    auto Numbers = std::make_unique<ScriptedDice>();
    Dice = Numbers.get();
    Run = std::make_unique<Application>(FoldersIn(Place), std::move(Numbers));
    Run->Screen.WaitFactor = 0;
  }
  /// A later start, with nothing asked; neither is a person who makes a list, unless the name is one of the dialog's.
  void Start(const QByteArray& Keys = {}) {
    Put("Scanned=True\nShowWelcomeMessage=0\nComputerFast=2\nNoHS=" + DayNumber(QDate::currentDate()).toLatin1() +
        "\n" + Keys);
    Create();
    Dice->Faces = {2};
    ASSERT_TRUE(Run->Main());
    Dice->Faces.clear();
  }
  QWidget* Pad() const { return Run->Form->findChild<QWidget*>(QStringLiteral("frmScorePad")); }
  static void Click(QWidget* Control, Qt::MouseButton Button = Qt::LeftButton) { QTest::mouseClick(Control, Button); }

  void Begin(int Seats, bool Computers) {
    GameSetup Setup;
    Setup.NumPlayers = static_cast<std::uint8_t>(Seats);
    for (int i = 0; i < Seats; ++i) {
      Setup.Seats[static_cast<std::size_t>(i)] = {"Seat" + std::to_string(i), Computers, "Simple"};
    }
    Run->Form->Handle([&] { Run->Table.FreshGame(Setup); });
  }
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
    EXPECT_EQ(Form.lblPlayer->text(), QLatin1String("Ann"));
    EXPECT_EQ(Form.lblStatus->text(), QLatin1String("Roll the dice."));
    EXPECT_EQ(Pad()->findChild<FitLabel*>(QStringLiteral("lblScore(1)"))->text(), QLatin1String("0"));
    Roll({1, 1, 1, 1, 3, 2});
    Click(Form.Picture1[0]);
    EXPECT_EQ(Form.lblTurnScore->text(), QLatin1String("2000"));
    Click(Form.cmdPassDice);
    EXPECT_EQ(Form.lblPlayer->text(), QLatin1String("Bob"));
    Roll({2, 3, 3, 4, 6, 6});  // a blunko
    EXPECT_EQ(Form.lblPlayer->text(), QLatin1String("Ann"));
    Roll({1, 1, 1, 1, 1, 2});
    Click(Form.Picture1[2]);
    Next.Press(QMessageBox::Ok);
    Click(Form.cmdPassDice);
    EXPECT_TRUE(Form.lblLastRoll->isVisible());
    EXPECT_EQ(Form.lblLastRoll->text(), QLatin1String("(Last Roll - Need 6050 To Win)"));
    Roll({1, 1, 1, 1, 1, 2});
    Click(Form.Picture1[0]);
    Next.Expect<frmCongrats>([this, Button](frmCongrats& Dialog) {
      EXPECT_EQ(Dialog.windowTitle(), QLatin1String("Congratulations Ann !!!"));
      EXPECT_TRUE(QTest::qWaitFor([&] { return Dialog.lblWinner->text() == QLatin1String("* Ann *"); }, 2000));
      EXPECT_EQ(Pad()->findChild<FitLabel*>(QStringLiteral("lblScore(0)"))->text(), QLatin1String("6000"));
      EXPECT_EQ(Pad()->findChild<FitLabel*>(QStringLiteral("lblScore(1)"))->text(), QLatin1String("4000"));
      Click(Dialog.*Button);
    });
    Afterwards();
    Click(Form.cmdPassDice);
  }
};

TEST_F(TheProgram, AsksItsTwoQuestionsAtTheFirstStartAlone) {
  for (const auto Answer : {QMessageBox::Yes, QMessageBox::No}) {
    const bool Yes = Answer == QMessageBox::Yes;
    QFile::remove(Path("game.ini"));
    Create();
    Next.Press(Answer);
    if (Yes) Next.Press(QMessageBox::Ok);
    Next.Press(QMessageBox::No);
    EXPECT_TRUE(Run->Main());
    EXPECT_TRUE(Run->Form->isVisible());
    EXPECT_EQ(Next.Boxes, Yes ? (Lines{Survey, Thanks, Version}) : (Lines{Survey, Version}));
    EXPECT_EQ(Dice->Draws, 0);
    EXPECT_EQ(QFile::remove(Path("hardware.txt")), Yes);
    EXPECT_TRUE(BytesOf(Path("game.ini")).contains("Scanned=True\n"));

    for (int Drawn = 1; Drawn <= 5; ++Drawn) {
      Next.Boxes.clear();
      Create();
      Dice->Faces = {Drawn};
      if (Drawn == 1) Next.Press(QMessageBox::No);
      EXPECT_TRUE(Run->Main());
      EXPECT_EQ(Next.Boxes, Drawn == 1 ? Lines{Version} : Lines{});
    }
    Next.Boxes.clear();
  }
  EXPECT_EQ(Run->State.CurrentPlayer, Absent);
  EXPECT_TRUE(Run->Form->ARCmdNewGame->isVisible() && Run->Form->ARCmdNewGame->isEnabled());
  EXPECT_EQ(Run->Table.Fault(), "");
}

/// Answers every request with a version.
class VersionServer : public QTcpServer {
 public:
  explicit VersionServer(const QByteArray& Text) {
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this, Text] {
      QTcpSocket* Socket = nextPendingConnection();
      connect(Socket, &QTcpSocket::readyRead, Socket, [Socket, Text] {
        Socket->write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(Text.size()) +
                      "\r\nConnection: close\r\n\r\n" + Text);
        Socket->disconnectFromHost();
      });
    });
  }
  QString Address() const { return QStringLiteral("http://127.0.0.1:%1/version.txt").arg(serverPort()); }
};

/// Stands in for the browser.
class Browser : public QObject {
  Q_OBJECT

 public:
  Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "Open"); }
  ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

  QList<QUrl> Opened;

 public slots:
  void Open(const QUrl& Address) { Opened << Address; }
};

TEST_F(TheProgram, TellsWhatTheVersionCheckFound) {
  struct Row {
    QByteArray Newest;
    std::string Told;
    QMessageBox::StandardButton Answer;
    bool Starts;
  };
  const std::string Error = "Tollmoor Blunko: An error has occurred. Please try again later.";
  const std::string Latest = "Tollmoor Blunko: You have the latest version.";
  const Row Rows[] = {{"0.9.9\n", Latest, QMessageBox::Ok, true},
                      {"1.0.0\n", Latest, QMessageBox::Ok, true},
                      {"1.0.1\n", Newer, QMessageBox::No, true},
                      {"1.0.1\n", Newer, QMessageBox::Yes, false},
                      {"<html>404", Error, QMessageBox::Ok, true}};
  Browser Web;
  for (const Row& Each : Rows) {
    SCOPED_TRACE(Each.Newest.toStdString() + Each.Told);
    const VersionServer Server(Each.Newest);
    Put("Scanned=True\n");
    Create();
    Run->Util = TbkUtil(Server.Address(), 3000);
    Dice->Faces = {1};
    Next.Boxes.clear();
    Next.Press(QMessageBox::Yes);
    Next.Press(Each.Answer);
    EXPECT_EQ(Run->Main(), Each.Starts);
    EXPECT_EQ(Next.Boxes, (Lines{Version, Each.Told}));
    EXPECT_EQ(Run->Form != nullptr, Each.Starts);
    EXPECT_EQ(std::exchange(Web.Opened, {}).size(), Each.Starts ? 0 : 1);
  }
}

TEST_F(TheProgram, TheScorePadGoesAndComesWithTheTable) {
  Start();
  frmMain& Form = *Run->Form;
  const auto Minimise = [&](bool Down) {
    Down ? Form.showMinimized() : Form.showNormal();
    QTest::qWait(20);
    return Form.isMinimized() == Down;
  };
  ASSERT_TRUE(Minimise(true));
  ASSERT_TRUE(Minimise(false));
  EXPECT_EQ(Pad(), nullptr);

  Begin(2, false);
  ASSERT_NE(Pad(), nullptr);
  EXPECT_TRUE(Pad()->isVisible());
  EXPECT_EQ(Pad()->x(), Form.frameGeometry().right() + 1 + 12);
  EXPECT_EQ(Pad()->y(), Form.y());
  for (const QPoint Dragged : {QPoint(17, 301), QPoint(3000, 2500)}) {
    Pad()->move(Dragged);
    const QPoint Seen = Pad()->pos();
    ASSERT_TRUE(Minimise(true));
    EXPECT_FALSE(Pad()->isVisible());
    ASSERT_TRUE(Minimise(false));
    EXPECT_TRUE(Pad()->isVisible());
    EXPECT_EQ(Pad()->pos(), Seen);
  }

  // Esc takes it away; after a No it comes back with the table, or with the next game.
  for (const bool Again : {false, true}) {
    Next.Press(QMessageBox::No);
    QTest::keyClick(&Form, Qt::Key_Escape);
    EXPECT_FALSE(Pad()->isVisible());
    if (Again) {
      Begin(3, false);
      EXPECT_EQ(Pad()->y(), Form.y());
    } else {
      ASSERT_TRUE(Minimise(true));
      ASSERT_TRUE(Minimise(false));
    }
    EXPECT_TRUE(Pad()->isVisible());
  }
}

TEST_F(TheProgram, TwoPersonsPlayToTheTrophyWithTheMouse) {
  Start(TwoPersons);
  frmMain& Form = *Run->Form;
  const auto NewGame = [&] {
    Next.Expect<frmNewGame>([](frmNewGame& Dialog) { Click(Dialog.cmdPlay); });
    Click(Form.ARCmdNewGame);
    EXPECT_FALSE(Form.ARCmdNewGame->isVisible());
  };
  NewGame();
  PlayGame(&frmCongrats::cmdSameGame);
  PlayGame(&frmCongrats::cmdDifferentGame,
           [&] { Next.Expect<frmNewGame>([](frmNewGame& Dialog) { Click(Dialog.cmdCancel); }); });
  EXPECT_TRUE(Form.ARCmdNewGame->isVisible() && Form.ARCmdNewGame->isEnabled());
  EXPECT_FALSE(Form.cmdRoll->isVisible() || Form.cmdPassDice->isVisible() || Form.lblLastRoll->isVisible());
  EXPECT_EQ(Run->State.CurrentPlayer, Absent);
  NewGame();
  Next.Boxes.clear();
  PlayGame(&frmCongrats::cmdQuit);
  EXPECT_EQ(Next.Boxes.size(), 1U) << "the box of going out alone";
  EXPECT_TRUE(Run->State.Quitting);
  EXPECT_FALSE(Form.isVisible());
}

TEST_F(TheProgram, ClosesInTheMiddleOfAComputersTurn) {
  for (const int Delay : {0, 1, 3, 10, 30}) {
    SCOPED_TRACE(Delay);
    Start();
    const auto CloseSoon = [&] { QTimer::singleShot(Delay, Run->Form.get(), [this] { Run->Form->close(); }); };
    Next.Expect<QMessageBox>([&](QMessageBox& Box) {
      CloseSoon();
      Box.button(QMessageBox::No)->click();
    });
    Next.Press(QMessageBox::Yes);
    Next.Boxes.clear();
    CloseSoon();
    Begin(8, true);
    EXPECT_EQ(Next.Boxes, (Lines{QuitGame, QuitGame}));
    EXPECT_TRUE(Run->State.Quitting);
    EXPECT_FALSE(Run->Form->isVisible());
    EXPECT_EQ(Run->Table.Fault(), "");
    BeginLoops();
  }
}

TEST_F(TheProgram, ClosesUnderADialog) {
  {
    Start();
    Next.Expect<frmNewGame>([this](frmNewGame&) { Run->Form->close(); });
    Click(Run->Form->ARCmdNewGame);
    EXPECT_TRUE(Run->State.Quitting);
    EXPECT_EQ(Run->State.GameNumber, 0U);
    BeginLoops();
  }
  {
    Start(TwoPersons);
    Run->State.FormMessage = "RestartGame";
    Run->Form->Handle([&] { Run->Table.ARCmdNewGame_Click(); });
    Run->State.PlayerScore = {6000, 0};
    Run->State.OutPlayer = 0;
    Run->State.CurrentPlayer = 1;
    Next.Expect<frmCongrats>([this](frmCongrats& Dialog) {
      Next.Press(QMessageBox::No);
      Run->Form->close();
      EXPECT_TRUE(Dialog.isVisible());
      Next.Press(QMessageBox::Yes);
      Run->Form->close();
    });
    const auto Games = Run->State.GameNumber;
    Roll({2, 3, 3, 4, 6, 6});
    EXPECT_TRUE(Run->State.Quitting);
    EXPECT_EQ(Run->State.GameNumber, Games);
    EXPECT_FALSE(Run->Form->isVisible());
  }
}

}  // namespace
}  // namespace blunko::test

#include "StartTest.moc"

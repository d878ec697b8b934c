#include <QMenu>

#include <algorithm>

#include "app/OpenInShell.h"
#include "app/Scale.h"
#include "tests/app/Run.h"

namespace blunko::test {

const std::string Version = " Question: Would you like to check for a new version of Tollmoor Blunko";
const std::string QuitGame = "Quit? Question: Are you sure you want to quit the current game?";

class Playing : public TheProgram {
 protected:
  void Key(Qt::Key Code) { QTest::keyClick(Run->Form.get(), Code); }
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

/// A window that is gone while its process lives on is a game lost.
TEST_F(Playing, EveryWayOutInsideEveryOtherLeavesTheTableOrEndsTheProgram) {
  const auto Within = [this](ButtonPlus* GameBox::*Answer, Step Out) {
    Next.Expect<GameBox>([Answer, Out = std::move(Out)](GameBox& Box) {
      Out();
      (Box.*Answer)->click();
    });
  };
  const struct {
    const char *Where, *Asked;  ///< how often each way asks; the answer is No until the program ends
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
      {"the options", "0101",  // the button is off, and Esc closes the panel and no more
       [&](const Step& Out, char Asked) {
         Run->Form->cmdOptions->click();
         if (Asked == '1') Next.Press(&GameBox::cmdNo);
         Out();
         Run->Form->Handle([this] { Run->Table.ARCmdCancelOptions_Click(); });
       }},
      {"every way's question", "4444",
       [&](const Step& Out, char) {
         for (const auto& [Way, Ask] : Ways) Within(&GameBox::cmdNo, Out), Ask();
       }},
      {"a computer's turn", "2222",  // which goes on until the program ends
       [&](const Step& Out, char) {
         const auto OutSoon = [&] { QTimer::singleShot(30, Run->Form.get(), Out); };
         Within(&GameBox::cmdNo, OutSoon);
         Next.Press(&GameBox::cmdYes);
         OutSoon();
         Begin(8, 0xFF);
       }},
  };
  for (const auto& Place : Places) {
    for (std::size_t i = 0; i < Ways.size(); ++i) {
      const auto& [Way, Out] = Ways[i];
      SCOPED_TRACE(std::string(Place.Where) + ", " + Way);
      Start();
      const bool Plays = &Place != Places, Ends = Place.Asked[i] == '2';
      if (Plays && !Ends) Begin(2, 0);
      Next.Seen.clear();
      Place.In(Out, Place.Asked[i]);
      EXPECT_EQ(std::ranges::count(Next.Seen, QuitGame), Place.Asked[i] - '0');
      ExpectTable(!Ends);
      if (Ends) continue;
      if (Plays) Next.Press(&GameBox::cmdYes);
      Out();
      ExpectTable(false);
    }
  }
}

TEST_F(Playing, EveryFaceOfTumblingDiceIsPaintedAtOnce) {
  struct : QObject {
    std::vector<int> Faces{0};  ///< from the empty place on
    bool eventFilter(QObject* Painted, QEvent* Event) override {
      const int Face = static_cast<DieBox*>(Painted)->Picture();
      if (Event->type() == QEvent::Paint && Face != Faces.back()) Faces.push_back(Face);
      return false;
    }
  } Seen;
  Start();
  Begin(2, 0);
  Run->Screen.WaitFactor = 0.5;
  ASSERT_TRUE(QTest::qWaitForWindowExposed(Run->Form.get(), 2000));
  for (int i = 0; i < 36; ++i) Dice->Faces.push_back(i < 30 ? (i / 6 + i % 6) % 6 + 1 : 36 - i);
  Run->Form->Picture1[0]->installEventFilter(&Seen);
  Click(Run->Form->cmdRoll);
  EXPECT_EQ(Seen.Faces, (std::vector{0, 113, 114, 115, 116, 117, 113})) << "five tumbling, then sorted";
}

TEST_F(Playing, TheTableIsAsKeptInEveryStateAndDiesWithoutAQuestion) {
  Start("ShowWelcomeMessage=0\nDieColor=124\n");
  frmMain& Form = *Run->Form;
  ExpectAsKept(Form, "-start");
  EXPECT_EQ(QApplication::windowIcon().availableSizes().size(), 5);
  Run->Screen.SetMousePointer(MousePointer::Hourglass);
  EXPECT_EQ(Form.cursor().shape(), Qt::WaitCursor);
  Begin(3, 2);
  Form.Wears.TextColour = 0x1800B0;  // letters with a hint of a shadow
  Roll(30, {1, 1, 2, 3, 5, 5});
  ExpectAsKept(Form, "-turn");
  auto& Pad = *Form.findChild<frmScorePad*>();
  EXPECT_GT(Pad.x(), Form.frameGeometry().right());
  Pad.close();
  QTest::mouseClick(Form.windowHandle(), Qt::LeftButton, {}, {100, 320});
  EXPECT_TRUE(Pad.isVisible()) << "a click on the scores brings it back";
  Pad.move(30, 40);
  for (const bool Minimises : {true, false}) {
    Minimises ? Form.showMinimized() : Form.showNormal();
    EXPECT_TRUE(Pad.isVisible() != Minimises && Pad.pos() == QPoint(30, 40)) << "it goes and comes with the table";
  }
  Run->Controls.Busted = Run->Controls.lblStatus.Loud = true;  // lost dice are pale, samples aren't
  Click(Form.cmdOptions);
  ExpectAsKept(Form, "-options");
  Key(Qt::Key_Escape);
  Roll(35, {1, 1, 2, 5, 5});
  Run->Controls.lblLastRoll.Caption = "(Last Roll - Need 32767 To Take The Lead)";  // the longest
  Run->Controls.lblStatus = {"Roll, select, or pass the dice. (Undo)", true, StatusTop};
  Run->Controls.lblPlayer.Caption = "WWWWWWWWWWWWWW";
  Run->Controls.ShowLastRoll();
  Run->Controls.Busted = true;
  Form.Wears.TextColour = 0xFFFFFF;  // letters that stand out by their edge alone
  for (QWidget* Part : Form.findChildren<QWidget*>()) Part->setAttribute(Qt::WA_UnderMouse);
  Form.cmdHighRollers->setDown(true), Form.lblMnuHelp->setDown(true);
  Form.cmdExit->setText("A caption that is too long");
  Form.ShowControls();
  ExpectAsKept(Form, "-last-turn");
  Next.Expect<GameBox>([](GameBox& Box) {
    ExpectAsKept(Box, "-question");
    Click(Box.cmdYes);
  });
  Next.Expect<frmNewGame>([&](frmNewGame& Dialog) {
    EXPECT_TRUE(Form.ARCmdNewGame->isVisible()) << "behind a dialog the table stands as the game has it";
    Click(Dialog.cmdPlay);
  });
  Key(Qt::Key_F2);
  EXPECT_TRUE(Form.cmdRoll->isVisible());
  Begin(3, 2);
  Run->State.TurnScore = 600;
  Form.Handle([this] { Run->Table.cmdPassDice_Click(); });
  ExpectAsKept(Pad);
  QEvent Quit(QEvent::Quit);  // told to die by the system
  QSpontaneKeyEvent::setSpontaneous(&Quit);
  qApp->notify(qApp, &Quit);
  EXPECT_FALSE(Form.isVisible());
}

TEST(Scale, MakesNoWindowLargerThanTheScreenNorSmallerThanItIs) {
  const std::tuple<int, QSize, double> Rows[] = {
      {150, {1920, 1080}, 1.5}, {400, {5300, 1120}, 2}, {400, {1590, 5600}, 3}, {200, {800, 480}, 1}};
  for (const auto& [PerCent, Screen, Scale] : Rows) EXPECT_DOUBLE_EQ(FittingScale(PerCent, Screen), Scale) << PerCent;
}

TEST(OpenInShell, HandsOnTheEnvironmentWithoutWhatTheGameSetForItself) {
  const Place At;
  At.Put("xdg-open", "#!/bin/sh\necho \"$1 $KEPT $OTHER\" >\"$0.told\"\n");
  At.Chmod("xdg-open", 0755);
  const QByteArray Path = qgetenv("PATH");
  for (const char* Name : {"KEPT", "OTHER", "PATH"}) qputenv(Name, QFile::encodeName(At.Path()) + ':' + Path);
  const KeptVariables Kept({"KEPT"});
  OpenInShell("mailto:a%20b");
  EXPECT_TRUE(QTest::qWaitFor([&] { return At.Get("xdg-open.told").endsWith('\n'); }, 5000));
  EXPECT_EQ(At.Get("xdg-open.told"), "mailto:a%20b  " + qgetenv("PATH") + '\n');
  qputenv("PATH", Path);
}

TEST_F(TheProgram, AsksItsQuestionsAtTheFirstStartAndForTheVersionNowAndThen) {
  const std::string Newer =
      " Question: A newer version is available, would you like to go to the web site to download it?";
  const struct {
    const char* Answers;  ///< yes, no, OK
    int Drawn;            ///< 0 at the first start
    const char* Newest;
    std::string Last;
    bool Starts = true;
  } Rows[] = {
      {"yon", 0, "", Version},
      {"nn", 0, "", Version},
      {"", 5, "", ""},
      {"yo", 1, "1.0.0", "Blunko: You have the latest version."},
      {"yy", 1, "1.0.1", Newer, false},
      {"yo", 1, "2.0", "An error has occurred. Please try again later."},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(&Row - Rows);
    if (Row.Drawn == 0) QFile::remove(Folder.Path("game.ini"));
    Create();
    Run->Util = TbkUtil("http://x/", 5000, Folder.Put("asker", QByteArray("#!/bin/sh\necho '") + Row.Newest + "'"));
    Folder.Chmod("asker", 0755);
    Dice->Faces = {Row.Drawn};
    for (const char Answer : std::string_view(Row.Answers)) {
      Next.Expect<GameBox>([Answer, this](GameBox& Box) {
        QEvent Quit(QEvent::Quit);
        QSpontaneKeyEvent::setSpontaneous(&Quit);
        EXPECT_FALSE(static_cast<QObject&>(*Run).eventFilter(qApp, &Quit)) << "there is no table to ask yet";
        Click(Answer == 'y' ? Box.cmdYes : Answer == 'n' ? Box.cmdNo : Box.cmdOK);
      });
    }
    Next.Seen = {""}, Next.Opened.clear();
    EXPECT_EQ(Run->Main(), Row.Starts);
    EXPECT_THAT(Next.Seen.back(), testing::EndsWith(Row.Last));
    EXPECT_EQ(Next.Seen.size(), std::string_view(Row.Answers).size() + 1);
    EXPECT_EQ(QFile::remove(Folder.Path("hardware.txt")), *Row.Answers == 'y' && Row.Drawn == 0);
    EXPECT_EQ(Next.Opened.size(), Row.Starts ? 0U : 1U);
  }
}

}  // namespace blunko::test

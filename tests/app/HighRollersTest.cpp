#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "app/frmHighRollers.h"
#include "app/frmViewHRListYN.h"
#include "storage/DayNumber.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

using testing::ElementsAre;

/// A folder with the two files, and the real writer.
struct Files : Table {
  QTemporaryDir Place;
  QString File = Place.filePath(QStringLiteral("highscores.dat"));
  IniInfo Info{Place.filePath(QStringLiteral("game.ini"))};
  TbkUtil Util{QString()};

  Files() { Util.UtilSetFolder(Place.path()); }
  HighRollers Copy() {
    HighRollers Made(File, Util);
    Made.LoadHighRollers();
    return Made;
  }
  /// Name and score of an entry as the file holds it.
  std::string Held(WhichList List, int Index) {
    const HighRoller Entry = (Copy().Lists().*List)[static_cast<std::size_t>(Index)];
    return (Entry.Name + QLatin1Char(' ') + QString::number(Entry.Score)).toStdString();
  }
};

/// Writes down what is asked, a line a question, and answers as told.
struct ScriptedScreen : HighRollersScreen {
  explicit ScriptedScreen(Module1& State) : m(State) {}

  Module1& m;
  Lines Log;
  QString Typed;
  std::string Word = "No";
  std::function<void()> WhileAsked = [] {}, WhileShown = [] {};

  QString AskName(const QString& Prompt, const QString& Title, const QString& Preset) override {
    Log.push_back((Title + QLatin1Char('|') + Prompt + QLatin1Char('|') + Preset).toStdString());
    return Typed;
  }
  void AskToView() override {
    Log.push_back(m.FormMessage);
    WhileAsked();
    if (!Word.empty()) m.FormMessage = Word;
  }
  void ViewLists() override {
    Log.emplace_back("lists");
    WhileShown();
  }
  QString Today() const override { return QStringLiteral("40000"); }
};

TEST(HighRollersCheck, AsksAndInserts) {
  const auto Check = [](WhichList List, const char* Name, std::int16_t Score, const char* QuietDay, const char* Typed,
                        const char* Word, const Lines& Asked, int Place, const char* Entry) {
    SCOPED_TRACE(std::string(Entry) + " quiet on " + QuietDay);
    Files files;
    ScriptedScreen Screen(files.m);
    HighRollers Rollers = files.Copy();
    files.Info.WriteInfoValue(NoQuestionKey, QLatin1String(QuietDay));
    Screen.Typed = QString::fromUtf8(Typed);
    Screen.Word = Word;
    Screen.WhileAsked = [&] { EXPECT_EQ(files.Copy().Lists(), RollerLists::Default()) << "saved after the answer"; };
    Screen.WhileShown = [&] { EXPECT_EQ(files.Held(List, Place), Entry) << "saved before the lists open"; };
    HighRollersCheck Check(files.m, files.Info, Rollers, Screen);
    List == &RollerLists::lstBMoV ? Check.CheckWhoopin(Name, Score) : Check.CheckHighTurn(Name, Score);
    EXPECT_EQ(Screen.Log, Asked);
    EXPECT_EQ(files.m.FormMessage, "");
    EXPECT_EQ(files.Copy().Lists() == RollerLists::Default(), Asked.empty());
    EXPECT_EQ(files.Held(List, Place), Entry);
  };
  const std::string Way = "Way To Go !!!|Congratulations!  You just made number ",
                    What = " top ten!  What's your name?|";
  const std::string Turns = " on the \"Highest Single Turn Score\"" + What;
  const std::string Whoops = " on the \"Biggest Whoopin'\"" + What;
  const auto Turn = &RollerLists::lstHSTS, Whoop = &RollerLists::lstBMoV;
  Check(Turn, "Ann", 1050, "", "", "Yes", {}, 9, "Vivianne 1050");  // equal to the last
  Check(Turn, "Ann", 1500, "", "", "Yes", {"Ann¤2¤turn", "lists"}, 1, "Ann 1500");
  Check(Whoop, "Ann", 1501, "Null", "", "Yes", {"Ann¤1¤whoop", "lists"}, 0, "Ann 1501");
  Check(Whoop, "Ann", 1501, "", "", "", {"Ann¤1¤whoop"}, 0, "Ann 1501");  // closed without a button
  Check(Turn, "Player 3", 1420, "", "Zoë", "No", {Way + "3" + Turns + "Player 3", "Zoë¤3¤turn"}, 2, "Zoë 1420");
  Check(Whoop, "Player1", 1600, "", "", "No", {Way + "1" + Whoops + "Player1", "¤1¤whoop"}, 0, " 1600");  // Cancel
  Check(Turn, "player 3", 1420, "39999", "", "No", {"player 3¤3¤turn"}, 2, "player 3 1420");
  Check(Turn, "Player", 1600, "", "a¤b\nÿ€c", "No", {Way + "1" + Turns + "Player", "abyc¤1¤turn"}, 0, "abyc 1600");
  Check(Turn, "Player 3", 1420, "40000", "Zoë", "Yes", {Way + "3" + Turns + "Player 3"}, 2, "Zoë 1420");
}

TEST(HighRollersCheck, WhileAskedTheTableMayCloseAndAnotherCopySave) {
  for (const bool Before : {true, false}) {
    Files files;
    ScriptedScreen Screen(files.m);
    HighRollers Here = files.Copy(), There = files.Copy();
    There.Add(&RollerLists::lstHSTS, {QStringLiteral("Early"), 1800});
    files.m.Quitting = Before;
    Screen.Word = "Yes";
    Screen.WhileAsked = [&] {
      files.m.Quitting = true;
      There.Add(&RollerLists::lstHSTS, {QStringLiteral("Faster"), 1700});
    };
    HighRollersCheck(files.m, files.Info, Here, Screen).CheckHighTurn(Before ? "Player 1" : "Ann", 1600);
    EXPECT_EQ(Screen.Log, Before ? Lines{} : Lines{"Ann¤2¤turn"});
    EXPECT_EQ(files.Held(&RollerLists::lstHSTS, Before ? 1 : 2), Before ? "Player 1 1600" : "Ann 1600") << "not lost";
  }
}

Lines RowsOf(const QPlainTextEdit* Box) {
  Lines Rows;
  for (const QString& Row : Box->toPlainText().split(QLatin1Char('\n'))) Rows.push_back(Row.toStdString());
  return Rows;
}

TEST(frmHighRollers, ShowsBothListsInColumnsAndResetsThem) {
  Files files;
  HighRollers Rollers = files.Copy();
  files.Copy().Add(&RollerLists::lstHSTS, {QString(), 12650});
  files.Copy().Add(&RollerLists::lstHSTS, {QStringLiteral("WWWWWWWWWWWWWWWÄ"), 2000});
  files.Copy().Add(&RollerLists::lstHSTS, {QStringLiteral("A name of more than sixteen letters"), 1990});
  QWidget Main;
  Main.move(70, 90);
  frmHighRollers Form(Rollers, files.Screen, &Main);
  Form.show();
  EXPECT_EQ(Form.pos(), QPoint(70, 90));
  EXPECT_THAT(
      RowsOf(Form.txtHSTSList),
      ElementsAre("................12650", "WWWWWWWWWWWWWWWÄ2000", "A name of more than sixteen letters1990",
                  "Tam.............1500", "Irene...........1450", "Marlo...........1400", "Georgiana.......1350",
                  "Bea.............1300", "Rosa............1250", "Hugo............1200"));
  EXPECT_EQ(RowsOf(Form.txtBMoVList).back(), "Georgiana.......1050");
  ExpectUsable(Form);
  for (const QPlainTextEdit* Box : {Form.txtHSTSList, Form.txtBMoVList}) {
    EXPECT_EQ(Box->horizontalScrollBar()->maximum(), 0) << "every row fits";
    EXPECT_EQ(Box->verticalScrollBar()->maximum(), 0);
  }

  EXPECT_EQ(Form.focusWidget(), Form.cmdOK);
  files.Screen.Answer = false;
  Click(Form.lblReset);
  EXPECT_EQ(files.TakeLog("ask"), Lines{"ask Reset Lists?: Are you sure you want to reset the high score lists?"});
  EXPECT_EQ(files.Held(&RollerLists::lstHSTS, 0), " 12650");
  files.Screen.Answer = true;
  QTest::keyClick(Form.lblReset, Qt::Key_Return);
  EXPECT_EQ(RowsOf(Form.txtBMoVList).front(), "Irene...........1500");
  EXPECT_EQ(Rollers.Lists(), RollerLists::Default()) << "the next score is tested against the default lists";
  EXPECT_EQ(files.Copy().Lists(), RollerLists::Default());
  Click(Form.cmdOK);
  EXPECT_FALSE(Form.isVisible());
}

TEST(frmViewHRListYN, SaysWhatWasMadeAndLeavesAWord) {
  const std::pair<const char*, const char*> Rows[] = {
      {"Ann¤3¤turn",
       "Great Job, Ann!!!|You just made number 3 on the \"Highest Single Turn Score\" top ten!  Would you like to view "
       "the "
       "high rollers list now?"},
      {"<b>WWWWWWWWWWWWWWWWWWWWWWWWWW%1&¤10¤?",
       "Great Job, <b>WWWWWWWWWWWWWWWWWWWWWWWWWW%1&!!!|You just made number 10 on the \"Biggest Whoopin'\" top ten!  "
       "Would you like to view the high rollers list now?"}};
  for (const auto& [Brought, Told] : Rows) {
    Files files;
    std::string Message = Brought;
    QWidget Main;
    frmViewHRListYN Form(Message, files.Screen, files.Info, &Main);
    Form.show();
    EXPECT_EQ((Form.lblWayToGo->text() + QLatin1Char('|') + Form.lblMessage->text()).toStdString(), Told);
    ExpectUsable(Form);
    for (QWidget* Part : {static_cast<QWidget*>(Form.lblCheck), static_cast<QWidget*>(Form.lblDontAsk)}) {
      Click(Part);
      EXPECT_EQ(files.Info.ReadInfoValue(NoQuestionKey),
                Part == Form.lblCheck ? DayNumber(QDate::currentDate()) : NoDay);
      EXPECT_EQ(files.TakeLog(), Lines{"beep"});
    }
    Form.close();
    EXPECT_EQ(Message, Brought) << "closed without a button";
    for (const auto& [Button, Word] : {std::pair(Form.cmdNo, "No"), std::pair(Form.cmdYes, "Yes")}) {
      Form.show();
      Click(Button);
      EXPECT_FALSE(Form.isVisible());
      EXPECT_EQ(Message, Word);
    }
  }
}

TEST_F(TheProgram, ABankedTurnEntersTheListOfTheRealDialogs) {
  Start();
  Run->Rollers.ResetHighRollers();
  GameSetup Setup;
  Setup.NumPlayers = 2;
  Setup.Seats[0].Name = "Player1";
  Run->Table.FreshGame(Setup);
  Next.Expect<GameBox>([](GameBox& Box) {
    QLineEdit* const Name = Box.txtAnswer;
    EXPECT_EQ(Name->text(), "Player1");
    Name->clear();
    Name->insert(QStringLiteral("Zö¤€ÿe"));  // as a paste does
    QTest::keyClicks(Name, QStringLiteral(" and many letters"));
    QTest::keyClick(Name, Qt::Key_Return);
  });
  Next.Press(&frmViewHRListYN::cmdYes);
  Next.Expect<frmHighRollers>([&](frmHighRollers& Form) {
    EXPECT_EQ(RowsOf(Form.txtHSTSList).front(), "Zöye and many ..1600");
    QTest::keyClick(&Form, Qt::Key_Return);
  });
  Run->State.TurnScore = 1600;
  Run->Table.cmdPassDice_Click();
  EXPECT_THAT(Next.Seen,
              ElementsAre("Way To Go !!!: Congratulations!  You just made number 1 on the \"Highest Single Turn "
                          "Score\" top ten!  What's your name?",
                          "Way to go !!!", "Tollmoor Blunko - High Rollers"));
  EXPECT_EQ(Run->State.PlayerName[0], "Player1") << "the seat keeps its name";
  EXPECT_EQ(Run->State.CurrentPlayer, 1);

  Next.Press(&frmHighRollers::cmdOK);
  Click(Run->Form->cmdHighRollers);
}

}  // namespace
}  // namespace blunko::test

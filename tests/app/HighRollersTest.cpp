#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "app/frmHighRollers.h"
#include "app/frmViewHRListYN.h"
#include "storage/DayNumber.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

/// The lists in their file with the real writer, and a screen that writes down what is asked, a line a question.
struct Files : Desk, HighRollersScreen {
  TbkUtil Util{QString()};
  HighRollers Rollers = Copy();
  Lines Log;
  QString Typed;
  std::string Word;
  std::function<void()> WhileAsked = [] {}, WhileShown = [] {};

  HighRollers Copy() {
    Util.UtilSetFolder(Place.path());
    HighRollers Made(Where.ListsPath(), Util);
    Made.LoadHighRollers();
    return Made;
  }
  /// Name and score of an entry as the file holds it.
  std::string Held(WhichList List, int Index) {
    const HighRoller Entry = (Copy().Lists().*List)[static_cast<std::size_t>(Index)];
    return (Entry.Name + QLatin1Char(' ') + QString::number(Entry.Score)).toStdString();
  }
  QString AskName(const QString& Prompt, const QString&, const QString& Preset) override {
    Log.push_back((Prompt + QLatin1Char('|') + Preset).toStdString());
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

const auto Turn = &RollerLists::lstHSTS, Whoop = &RollerLists::lstBMoV;

TEST(HighRollersCheck, AsksAndInserts) {
  const std::string Made = "Congratulations!  You just made number ", What = " top ten!  What's your name?|";
  const std::string Turns = " on the \"Highest Single Turn Score\"" + What;
  const std::string Whoops = " on the \"Biggest Whoopin'\"" + What;
  const struct {
    WhichList List;
    const char* Name;
    std::int16_t Score;
    const char *QuietDay, *Typed, *Word;
    Lines Asked;
    int Place;
    const char* Entry;
  } Rows[] = {
      {Turn, "Ann", 1050, "", "", "Yes", {}, 9, "Vivianne 1050"},  // equal to the last
      {Turn, "Ann", 1500, "", "", "Yes", {"Ann¤2¤turn", "lists"}, 1, "Ann 1500"},
      {Whoop, "Ann", 1501, "Null", "", "", {"Ann¤1¤whoop"}, 0, "Ann 1501"},  // closed without a button
      {Turn, "Player 3", 1420, "39999", "Zoë", "No", {Made + "3" + Turns + "Player 3", "Zoë¤3¤turn"}, 2, "Zoë 1420"},
      {Whoop, "Player1", 1600, "", "", "No", {Made + "1" + Whoops + "Player1", "¤1¤whoop"}, 0, " 1600"},  // Cancel
      {Turn, "player 3", 1420, "40000", "", "Yes", {}, 2, "player 3 1420"},
      {Turn, "Player", 1600, "", "a¤b\nÿ€c", "No", {Made + "1" + Turns + "Player", "abyc¤1¤turn"}, 0, "abyc 1600"},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(&Row - Rows);
    Files At;
    At.Info.WriteInfoValue(NoQuestionKey, QLatin1String(Row.QuietDay));
    At.Typed = QString::fromUtf8(Row.Typed);
    At.Word = Row.Word;
    At.WhileAsked = [&] { EXPECT_EQ(At.Copy().Lists(), RollerLists::Default()) << "saved after the answer"; };
    At.WhileShown = [&] { EXPECT_EQ(At.Held(Row.List, Row.Place), Row.Entry) << "saved before the lists open"; };
    HighRollersCheck Check(At.m, At.Info, At.Rollers, At);
    Row.List == Whoop ? Check.CheckWhoopin(Row.Name, Row.Score) : Check.CheckHighTurn(Row.Name, Row.Score);
    EXPECT_EQ(At.Log, Row.Asked);
    EXPECT_EQ(At.m.FormMessage, "");
    EXPECT_EQ(At.Held(Row.List, Row.Place), Row.Entry);
  }
}

TEST(HighRollersCheck, WhileAskedTheTableMayCloseAndAnotherCopySave) {
  for (const bool Before : {true, false}) {
    Files At;
    At.m.Quitting = Before;
    At.Word = "Yes";
    At.WhileAsked = [&] {
      At.m.Quitting = true;
      At.Copy().Add(Turn, {QStringLiteral("Faster"), 1700});
    };
    HighRollersCheck(At.m, At.Info, At.Rollers, At).CheckHighTurn(Before ? "Player 1" : "Ann", 1600);
    EXPECT_EQ(At.Log, Before ? Lines{} : Lines{"Ann¤1¤turn"});
    EXPECT_EQ(At.Held(Turn, Before ? 0 : 1), Before ? "Player 1 1600" : "Ann 1600") << "not lost";
  }
}

TEST(frmHighRollers, ShowsBothListsInColumnsAndResetsThem) {
  Files At;
  At.Copy().Add(Turn, {QStringLiteral("WWWWWWWWWWWWWWWÄ"), 12650});
  At.Copy().Add(Turn, {QStringLiteral("A name of more than sixteen letters"), 1990});
  frmHighRollers Form(At.Rollers, At.Screen, &At.Main);
  Form.show();
  EXPECT_TRUE(Form.txtHSTSList->toPlainText().startsWith(
      QStringLiteral("WWWWWWWWWWWWWWWÄ12650\nA name of more than sixteen letters1990\nTam.............1500\n")));
  EXPECT_TRUE(Form.txtBMoVList->toPlainText().endsWith(QLatin1String("\nGeorgiana.......1050")));
  ExpectUsable(Form);
  for (const QPlainTextEdit* Box : {Form.txtHSTSList, Form.txtBMoVList}) {
    EXPECT_EQ(Box->horizontalScrollBar()->maximum() + Box->verticalScrollBar()->maximum(), 0) << "all rows fit";
  }
  At.Screen.Answer = false;
  Click(Form.lblReset);
  EXPECT_EQ(At.TakeLog(), Lines{"ask Reset Lists?: Are you sure you want to reset the high score lists?"});
  EXPECT_EQ(At.Held(Turn, 1), "A name of more than sixteen letters 1990");
  At.Screen.Answer = true;
  QTest::keyClick(Form.lblReset, Qt::Key_Return);
  EXPECT_TRUE(Form.txtHSTSList->toPlainText().startsWith(QLatin1String("Tam")));
  EXPECT_EQ(At.Rollers.Lists(), RollerLists::Default()) << "the next score is tested against the default lists";
  EXPECT_EQ(At.Copy().Lists(), RollerLists::Default());
}

TEST(frmViewHRListYN, SaysWhatWasMadeAndLeavesAWord) {
  const std::string Brought = "<b>WWWWWWWWWWWWWWWWWWWWWWWWWW%1&¤10¤whoop";
  Desk At;
  std::string Message = Brought;
  frmViewHRListYN Form(Message, At.Screen, At.Info, &At.Main);
  Form.show();
  EXPECT_EQ(Form.lblWayToGo->text(), QLatin1String("Great Job, <b>WWWWWWWWWWWWWWWWWWWWWWWWWW%1&!!!"));
  EXPECT_TRUE(Form.lblMessage->text().startsWith(
      QLatin1String("You just made number 10 on the \"Biggest Whoopin'\" top ten!  Would")));
  ExpectUsable(Form);
  for (QWidget* Part : {static_cast<QWidget*>(Form.lblCheck), static_cast<QWidget*>(Form.lblDontAsk)}) {
    Click(Part);
    EXPECT_EQ(At.Info.ReadInfoValue(NoQuestionKey), Part == Form.lblCheck ? DayNumber(QDate::currentDate()) : NoDay);
    EXPECT_EQ(At.TakeLog(), Lines{"beep"});
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

TEST_F(TheProgram, ABankedTurnEntersTheListOfTheRealDialogs) {
  Start();
  Run->Rollers.ResetHighRollers();
  GameSetup Setup;
  Setup.NumPlayers = 2;
  Setup.Seats[0].Name = "Player1";
  Run->Table.FreshGame(Setup);
  Next.Expect<GameBox>([](GameBox& Box) {
    EXPECT_EQ(Box.txtAnswer->text(), "Player1");
    Box.txtAnswer->clear();
    Box.txtAnswer->insert(QStringLiteral("Zö¤€ÿe"));  // as a paste does
    QTest::keyClicks(Box.txtAnswer, QStringLiteral(" and many letters"));
    QTest::keyClick(Box.txtAnswer, Qt::Key_Return);
  });
  Next.Press(&frmViewHRListYN::cmdYes);
  Next.Expect<frmHighRollers>([&](frmHighRollers& Form) {
    EXPECT_TRUE(Form.txtHSTSList->toPlainText().startsWith(QStringLiteral("Zöye and many ..1600\n")));
    QTest::keyClick(&Form, Qt::Key_Return);
  });
  Run->State.TurnScore = 1600;
  Run->Table.cmdPassDice_Click();
  EXPECT_EQ(Run->State.PlayerName[0], "Player1") << "the seat keeps its name";
  EXPECT_EQ(Run->State.CurrentPlayer, 1);
}

}  // namespace
}  // namespace blunko::test

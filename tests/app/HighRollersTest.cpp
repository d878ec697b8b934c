#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "app/frmHighRollers.h"
#include "app/frmViewHRListYN.h"
#include "storage/DayNumber.h"
#include "tests/app/Run.h"

namespace blunko::test {

const auto Turn = &RollerLists::lstHSTS, Whoop = &RollerLists::lstBMoV;

/// Writes down what is asked, a line a question, and answers with `Typed` and `Word`; "Close" ends the program instead.
struct Files : Desk, HighRollersScreen {
  TbkUtil Util{QString()};
  HighRollers Rollers = Copy();
  Lines Log;
  QString Typed;
  std::string Word;

  HighRollers Copy() {
    Util.UtilSetFolder(Folder.Path());
    HighRollers Made(Where.ListsPath(), Util);
    Made.LoadHighRollers();
    return Made;
  }
  QString AskName(const QString&, const QString&, const QString& Preset) override {
    Log.push_back("ask " + Preset.toStdString());
    return Typed;
  }
  void AskToView() override {
    Log.push_back(m.FormMessage);
    EXPECT_EQ(Copy().Lists(), RollerLists::Default()) << "saved after the answer";
    m.Quitting = Word == "Close";
    if (!Word.empty()) m.FormMessage = m.Quitting ? "Yes" : Word;
  }
  void ViewLists() override {
    Log.emplace_back("lists");
    EXPECT_NE(Copy().Lists(), RollerLists::Default()) << "saved before the lists open";
  }
  QString Today() const override { return QStringLiteral("40000"); }
};

TEST(HighRollersCheck, AsksAndInserts) {
  const struct {
    WhichList List;
    const char* Name;
    std::int16_t Score;
    const char *QuietDay, *Typed, *Word;
    Lines Asked;
    std::size_t Place;
    const char* Held;
  } Rows[] = {
      {Turn, "Ann", 1050, "", "", "Yes", {}, 9, "Vivianne"},  // equal to the last
      {Turn, "Ann", 1500, "", "", "Yes", {"Ann¤2¤turn", "lists"}, 1, "Ann"},
      {Turn, "Ann", 1500, "", "", "Close", {"Ann¤2¤turn"}, 1, "Ann"},
      {Turn, "Player 1", 1600, "", "", "Closed", {}, 0, "Player 1"},
      {Whoop, "Ann", 1501, "Null", "", "", {"Ann¤1¤whoop"}, 0, "Ann"},  // closed without a button
      {Turn, "Player 3", 1420, "39999", "Zoë", "No", {"ask Player 3", "Zoë¤3¤turn"}, 2, "Zoë"},
      {Whoop, "Player1", 1600, "", "", "No", {"ask Player1", "¤1¤whoop"}, 0, ""},  // Cancel
      {Turn, "player 3", 1420, "40000", "", "Yes", {}, 2, "player 3"},
      {Turn, "Player", 1600, "", "a¤b\nÿ€c", "No", {"ask Player", "abyc¤1¤turn"}, 0, "abyc"},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(&Row - Rows);
    Files At;
    At.Info.WriteInfoValue(NoQuestionKey, QLatin1String(Row.QuietDay));
    At.Typed = QString::fromUtf8(Row.Typed);
    At.Word = Row.Word;
    At.m.Quitting = At.Word == "Closed";
    HighRollersCheck Check(At.m, At.Info, At.Rollers, At);
    Row.List == Whoop ? Check.CheckWhoopin(Row.Name, Row.Score) : Check.CheckHighTurn(Row.Name, Row.Score);
    EXPECT_EQ(At.Log, Row.Asked);
    EXPECT_EQ(At.m.FormMessage, "");
    EXPECT_EQ((At.Copy().Lists().*Row.List)[Row.Place].Name, QString::fromUtf8(Row.Held));
  }
}

TEST_F(TheProgram, ABankedTurnGoesThroughTheRealDialogs) {
  Start();
  Run->Rollers.Add(Turn, {QStringLiteral("A name of more than sixteen letters"), 1990});
  Begin(2, false, "Player1");
  Next.Expect<GameBox>([&](GameBox& Box) {
    EXPECT_EQ(Box.txtAnswer->text(), "Player1");
    ExpectAsKept(Box);
    Box.txtAnswer->clear();
    Box.txtAnswer->insert(QStringLiteral("<b>Zö¤€ÿe"));  // as a paste does
    QTest::keyClicks(Box.txtAnswer, QStringLiteral("%1& many letters"));
    QTest::keyClick(Box.txtAnswer, Qt::Key_Return);
  });
  Next.Expect<frmViewHRListYN>([&](frmViewHRListYN& Form) {
    ExpectUsable(Form);
    for (QWidget* Part : {static_cast<QWidget*>(Form.lblCheck), static_cast<QWidget*>(Form.lblDontAsk)}) {
      Click(Part);
      EXPECT_EQ(Run->InfoFile.ReadInfoValue(NoQuestionKey),
                Part == Form.lblCheck ? DayNumber(QDate::currentDate()) : NoDay);
    }
    Click(Form.cmdYes);
  });
  Next.Expect<frmHighRollers>([&](frmHighRollers& Form) {
    ExpectUsable(Form);
    const auto Shown = [&] { return Form.txtHSTSList->toPlainText().left(57); };
    const QString Entered = QStringLiteral("A name of more than sixteen letters1990\n<b>Zöye%1& man..1");
    EXPECT_EQ(Shown(), Entered);
    for (const QPlainTextEdit* Box : {Form.txtHSTSList, Form.txtBMoVList}) {
      EXPECT_EQ(Box->horizontalScrollBar()->maximum() + Box->verticalScrollBar()->maximum(), 0) << "all rows fit";
    }
    Next.Press(&GameBox::cmdNo);
    Click(Form.lblReset);
    EXPECT_EQ(Shown(), Entered);
    Next.Press(&GameBox::cmdYes);
    QTest::keyClick(Form.lblReset, Qt::Key_Return);
    EXPECT_EQ(Run->Rollers.Lists(), RollerLists::Default()) << "the next score is tested against the default lists";
    QTest::keyClick(&Form, Qt::Key_Return);
  });
  Run->State.TurnScore = 1600;
  Run->Table.cmdPassDice_Click();
  EXPECT_EQ(Run->State.PlayerName[0], "Player1") << "the seat keeps its name";
  EXPECT_EQ(Run->State.CurrentPlayer, 1);
}

}  // namespace blunko::test

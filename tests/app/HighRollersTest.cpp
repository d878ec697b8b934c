#include <QLineEdit>
#include <QPlainTextEdit>

#include "app/frmHighRollers.h"
#include "app/frmViewHRListYN.h"
#include "storage/Numbers.h"
#include "tests/app/Run.h"

namespace blunko::test {

TEST_F(TheProgram, ABankedTurnGoesThroughTheRealDialogs) {
  Start();
  Run->State.Quitting = true;  // nobody is asked
  Run->Rollers.CheckHighTurn(std::string(80, 'n'), 1990);
  Run->State.Quitting = false;
  Begin(2, 0, "Player1");
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
    const QString Entered = QStringLiteral("nnnnn…1990\n<b>Zöye%1& many letters1600");
    const auto Shown = [&] { return Form.txtHSTSList->toPlainText().mid(50, Entered.size()); };
    EXPECT_EQ(Shown(), Entered);
    Form.txtHSTSList->setFocus();
    QTest::keyClick(Form.txtHSTSList, Qt::Key_Tab);
    EXPECT_EQ(Form.focusWidget(), Form.txtBMoVList);
    Next.Press(&GameBox::cmdNo);
    Click(Form.lblReset);
    EXPECT_EQ(Shown(), Entered);
    EXPECT_THAT(Next.Seen.back(), testing::StartsWith("Reset Lists?: ")) << "no icon";
    {
      const FileLock OfAnotherCopy(Run->Util.ListsPath());
      Next.Press(&GameBox::cmdYes);
      Next.Press(&GameBox::cmdOK);  // it couldn't be done
      Click(Form.lblReset);
      EXPECT_EQ(Shown(), Entered);
    }
    Next.Press(&GameBox::cmdYes);
    QTest::keyClick(Form.lblReset, Qt::Key_Return);
    EXPECT_EQ(Run->Rollers.Lists(), RollerLists::Default()) << "the next score is tested against the default lists";
    QTest::keyClick(&Form, Qt::Key_Return);
  });
  Run->State.TurnScore = 1600;
  Run->Table.cmdPassDice_Click();
  EXPECT_EQ(Run->State.PlayerName[0], "Player1") << "the seat keeps its name";
}

}  // namespace blunko::test

#include <QAccessible>
#include <QInputDialog>
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

const QString NoHS = QStringLiteral("NoHS");

/// A folder with the two files, and the real writer.
struct Files : Table {
  QTemporaryDir Place;
  QString File = Place.filePath(QStringLiteral("highscores.dat"));
  IniInfo Info{Place.filePath(QStringLiteral("game.ini"))};
  TbkUtil Util{QString()};

  Files() { Util.UtilSetFolder(Place.path()); }
  HighRollers Copy() {
    HighRollers Made(File, [this](const QByteArray& Text) { Util.UtilStoreLists(Text); });
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
  const std::string Way = "Way To Go !!!|Congratulations!  You just made number ",
                    Name = " top ten!  What's your name?|";
  const std::string Turns = " on the \"Highest Single Turn Score\"" + Name,
                    Whoops = " on the \"Biggest Whoopin'\"" + Name;
  const struct {
    const char* What;
    bool Whoop;
    const char* Name;
    std::int16_t Score;
    const char* QuietDay;
    const char* Typed;
    const char* Word;
    Lines Asked;
    int Place;  ///< index of the entry, -1 for none
    const char* Entry;
  } Rows[] = {
      {"equal to the last", false, "Ann", 1050, "", "", "Yes", {}, -1, ""},
      {"equal to the last but one", false, "Ann", 1100, "", "", "No", {"Ann¤10¤turn"}, 9, "Ann 1100"},
      {"equal to the first", false, "Ann", 1500, "", "", "Yes", {"Ann¤2¤turn", "lists"}, 1, "Ann 1500"},
      {"margin", true, "Ann", 1501, "Null", "", "Yes", {"Ann¤1¤whoop", "lists"}, 0, "Ann 1501"},
      {"no margin", true, "Ann", 0, "", "", "Yes", {}, -1, ""},
      {"closed without a button", true, "Ann", 1501, "", "", "", {"Ann¤1¤whoop"}, 0, "Ann 1501"},
      {"default name",
       false,
       "Player 3",
       1420,
       "",
       "Zoë",
       "No",
       {Way + "3" + Turns + "Player 3", "Zoë¤3¤turn"},
       2,
       "Zoë 1420"},
      {"Cancel for a name",
       true,
       "Player1",
       1600,
       "",
       "",
       "No",
       {Way + "1" + Whoops + "Player1", "¤1¤whoop"},
       0,
       " 1600"},
      {"another case is a name", false, "player 3", 1420, "", "", "No", {"player 3¤3¤turn"}, 2, "player 3 1420"},
      {"what no file carries",
       false,
       "Player",
       1600,
       "",
       "a¤b\nÿ€c",
       "No",
       {Way + "1" + Turns + "Player", "abc¤1¤turn"},
       0,
       "abc 1600"},
      {"quiet today", false, "Player 3", 1420, "40000", "Zoë", "Yes", {Way + "3" + Turns + "Player 3"}, 2, "Zoë 1420"},
      {"quiet yesterday", false, "Ann", 1420, "39999", "", "No", {"Ann¤3¤turn"}, 2, "Ann 1420"},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.What);
    Files files;
    ScriptedScreen Screen(files.m);
    HighRollers Rollers = files.Copy();
    if (*Row.QuietDay != '\0') files.Info.WriteInfoValue(NoHS, QString::fromLatin1(Row.QuietDay));
    Screen.Typed = QString::fromUtf8(Row.Typed);
    Screen.Word = Row.Word;
    const WhichList List = Row.Whoop ? &RollerLists::lstBMoV : &RollerLists::lstHSTS;
    Screen.WhileAsked = [&] { EXPECT_EQ(files.Copy().Lists(), RollerLists::Default()) << "saved after the answer"; };
    Screen.WhileShown = [&] { EXPECT_EQ(files.Held(List, Row.Place), Row.Entry) << "saved before the lists open"; };
    HighRollersCheck Check(files.m, files.Info, Rollers, Screen);
    Row.Whoop ? Check.CheckWhoopin(Row.Name, Row.Score) : Check.CheckHighTurn(Row.Name, Row.Score);
    EXPECT_EQ(Screen.Log, Row.Asked);
    EXPECT_EQ(files.m.FormMessage, "");
    if (Row.Place < 0) {
      EXPECT_EQ(files.Copy().Lists(), RollerLists::Default());
    } else {
      EXPECT_EQ(files.Held(List, Row.Place), Row.Entry);
    }
  }
}

TEST(HighRollersCheck, WhileAskedTheTableMayCloseOrAnotherCopySave) {
  const struct {
    bool QuittingBefore, QuittingMeanwhile;
    const char* Name;
    Lines Asked;
    const char* Entry;
  } Rows[] = {{true, false, "Player 1", {}, "Player 1 1600"},
              {false, true, "Ann", {"Ann¤2¤turn"}, "Ann 1600"},
              {false, false, "Ann", {"Ann¤2¤turn", "lists"}, "Ann 1600"}};
  for (const auto& Row : Rows) {
    Files files;
    ScriptedScreen Screen(files.m);
    HighRollers Here = files.Copy(), There = files.Copy();
    There.Add(&RollerLists::lstHSTS, {QStringLiteral("Early"), 1800});
    files.m.Quitting = Row.QuittingBefore;
    Screen.Word = "Yes";
    Screen.WhileAsked = [&] {
      files.m.Quitting = Row.QuittingMeanwhile;
      There.Add(&RollerLists::lstHSTS, {QStringLiteral("Faster"), 1700});
    };
    HighRollersCheck(files.m, files.Info, Here, Screen).CheckHighTurn(Row.Name, 1600);
    EXPECT_EQ(Screen.Log, Row.Asked);
    EXPECT_EQ(files.Held(&RollerLists::lstHSTS, 0), "Early 1800");
    EXPECT_EQ(files.Held(&RollerLists::lstHSTS, Row.QuittingBefore ? 1 : 2), Row.Entry) << "not lost";
  }
}

/// Every text of the form has the room that it asks for.
void ExpectNothingCut(QWidget& Form) {
  for (QWidget* Part : Form.findChildren<QWidget*>()) {
    if (qobject_cast<QLabel*>(Part) == nullptr && qobject_cast<QAbstractButton*>(Part) == nullptr) continue;
    SCOPED_TRACE(Part->objectName().toStdString());
    const bool Wraps = Part->hasHeightForWidth();
    EXPECT_GE(Part->height(), Wraps ? Part->heightForWidth(Part->width()) : Part->sizeHint().height());
    EXPECT_GE(Part->width(), Wraps ? 0 : Part->sizeHint().width());
    EXPECT_TRUE(Form.rect().contains(QRect(Part->mapTo(&Form, QPoint()), Part->size())));
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
  EXPECT_EQ(Form.windowTitle(), "Tollmoor Blunko - High Rollers");
  EXPECT_EQ(Form.pos(), QPoint(70, 90));
  EXPECT_EQ(Form.lblHSTS->text(), "Highest Single\nTurn Score:");
  EXPECT_EQ(Form.lblBMoV->text(), "Biggest Whoopin'\n(Margin of Victory)");
  EXPECT_THAT(
      RowsOf(Form.txtHSTSList),
      ElementsAre("................12650", "WWWWWWWWWWWWWWWÄ2000", "A name of more than sixteen letters1990",
                  "Tam.............1500", "Irene...........1450", "Marlo...........1400", "Georgiana.......1350",
                  "Bea.............1300", "Rosa............1250", "Hugo............1200"));
  EXPECT_EQ(RowsOf(Form.txtBMoVList).back(), "Georgiana.......1050");
  ExpectNothingCut(Form);
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
  for (const auto Key : {Qt::Key_unknown, Qt::Key_Return, Qt::Key_Space}) {
    Rollers.Add(&RollerLists::lstBMoV, {QStringLiteral("Ann"), 2000});
    Key == Qt::Key_unknown ? Click(Form.lblReset) : QTest::keyClick(Form.lblReset, Key);
    EXPECT_EQ(RowsOf(Form.txtBMoVList).front(), "Irene...........1500");
    EXPECT_EQ(Rollers.Lists(), RollerLists::Default()) << "the next score is tested against the default lists";
    EXPECT_EQ(files.Copy().Lists(), RollerLists::Default());
  }
  Click(Form.cmdOK);
  EXPECT_FALSE(Form.isVisible());
}

TEST(frmViewHRListYN, SaysWhatWasMadeAndLeavesAWord) {
  const struct {
    const char *Message, *Name, *Number, *List;
  } Rows[] = {{"Ann¤3¤turn", "Ann", "3", "Highest Single Turn Score"},
              {"<b>%1&¤10¤whoop", "<b>%1&", "10", "Biggest Whoopin'"},
              {"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW¤1¤?", "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", "1", "Biggest Whoopin'"},
              {"¤1¤turn", "", "1", "Highest Single Turn Score"}};
  for (const auto& Row : Rows) {
    Files files;
    files.m.FormMessage = Row.Message;
    QWidget Main;
    frmViewHRListYN Form(files.m, files.Screen, files.Info, &Main);
    Form.show();
    EXPECT_EQ(Form.windowTitle(), "Way to go !!!");
    EXPECT_EQ(Form.lblWayToGo->text().toStdString(), std::string("Great Job, ") + Row.Name + "!!!");
    EXPECT_EQ(Form.lblMessage->text().toStdString(),
              std::string("You just made number ") + Row.Number + " on the \"" + Row.List +
                  "\" top ten!  Would you like to view the high rollers list now?");
    ExpectNothingCut(Form);
    Form.reject();
    EXPECT_EQ(files.m.FormMessage, Row.Message) << "closed without a button";
    for (const auto& [Button, Word] : {std::pair(Form.cmdNo, "No"), std::pair(Form.cmdYes, "Yes")}) {
      Form.show();
      Click(Button);
      EXPECT_FALSE(Form.isVisible());
      EXPECT_EQ(files.m.FormMessage, Word);
    }
  }
}

TEST(frmViewHRListYN, TheBoxIsWrittenAtOnce) {
  Files files;
  QWidget Main;
  frmViewHRListYN Form(files.m, files.Screen, files.Info, &Main);
  Form.show();
  EXPECT_FALSE(Form.lblCheck->isChecked());
  const QString Today = DayNumber(QDate::currentDate());
  Click(Form.lblCheck);
  EXPECT_TRUE(Form.lblCheck->isChecked());
  EXPECT_EQ(files.Info.ReadInfoValue(NoHS), Today);
  Click(Form.lblDontAsk);
  EXPECT_FALSE(Form.lblCheck->isChecked());
  EXPECT_EQ(files.Info.ReadInfoValue(NoHS), "Null");
  QTest::keyClick(Form.lblCheck, Qt::Key_Space);
  EXPECT_EQ(files.Info.ReadInfoValue(NoHS), Today);
  EXPECT_EQ(files.TakeLog(), Lines(3, "beep"));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(Form.lblCheck)->role(), QAccessible::CheckBox);
}

TEST_F(TheProgram, ABankedTurnEntersTheListOfTheRealDialogs) {
  Start();
  ASSERT_TRUE(QFile::remove(Path("highscores.dat")));
  Run->Rollers.LoadHighRollers();
  EXPECT_TRUE(QFile::exists(Path("highscores.dat"))) << "the first start writes the lists";
  GameSetup Setup;
  Setup.NumPlayers = 2;
  Setup.Seats[0].Name = "Player1";
  Run->Table.FreshGame(Setup);
  Next.Expect<QInputDialog>([](QInputDialog& Box) {
    auto* Name = Box.findChild<QLineEdit*>();
    EXPECT_EQ(Name->text(), "Player1");
    Name->clear();
    Name->insert(QStringLiteral("Zö¤€ÿe"));  // as a paste does
    QTest::keyClicks(Name, QStringLiteral(" and many letters"));
    QTest::keyClick(Name, Qt::Key_Return);
  });
  Next.Press(&frmViewHRListYN::cmdYes);
  Next.Expect<frmHighRollers>([&](frmHighRollers& Form) {
    EXPECT_EQ(RowsOf(Form.txtHSTSList).front(), "Zöe and many l..1600");
    QTest::keyClick(&Form, Qt::Key_Return);
  });
  Run->State.TurnScore = 1600;
  Run->Table.cmdPassDice_Click();
  EXPECT_THAT(Next.Seen, ElementsAre("Way To Go !!!", "Way to go !!!", "Tollmoor Blunko - High Rollers"));
  EXPECT_EQ(Run->State.PlayerName[0], "Player1") << "the seat keeps its name";
  EXPECT_EQ(Run->State.CurrentPlayer, 1);

  Next.Press(&frmHighRollers::cmdOK);
  Click(Run->Form->cmdHighRollers);
  Run->State.Quitting = true;
  Click(Run->Form->cmdHighRollers);
  EXPECT_EQ(Next.Seen.size(), 4U);
}

}  // namespace
}  // namespace blunko::test

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/HighRollersCheck.h"
#include "app/frmHighRollers.h"
#include "app/frmViewHRListYN.h"
#include "storage/DayNumber.h"
#include "tests/engine/Table.h"
#include "util/TbkUtil.h"

namespace blunko::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

const QString Day = QStringLiteral("40000");

/// A folder with the two files, and the real writer.
struct Files {
  QTemporaryDir Folder;
  QString File = Folder.filePath(QStringLiteral("highscores.dat"));
  IniInfo Info{Folder.filePath(QStringLiteral("game.ini"))};
  TbkUtil Util{QString()};

  Files() { Util.UtilSetFolder(Folder.path()); }
  HighRollers Copy() {
    HighRollers Made(File, [this](const QByteArray& Text) { return Util.UtilStoreLists(Text); });
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
  std::vector<std::string> Log;
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
  QString Today() const override { return Day; }
};

TEST(HighRollersCheck, AsksAndInserts) {
  const std::string Turns = "\"Highest Single Turn Score\"", Whoops = "\"Biggest Whoopin'\"";
  const auto Prompt = [](const char* Number, const std::string& List, const char* Preset) {
    return std::string("Way To Go !!!|Congratulations!  You just made number ") + Number + " on the " + List +
           " top ten!  What's your name?|" + Preset;
  };
  const struct {
    const char* What;
    bool Whoop;
    const char* Name;
    std::int16_t Score;
    const char* QuietDay;
    const char* Typed;
    const char* Word;
    std::vector<std::string> Asked;
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
       {Prompt("3", Turns, "Player 3"), "Zoë¤3¤turn"},
       2,
       "Zoë 1420"},
      {"Cancel in the name box",
       true,
       "Player1",
       1600,
       "",
       "",
       "No",
       {Prompt("1", Whoops, "Player1"), "¤1¤whoop"},
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
       {Prompt("1", Turns, "Player"), "abc¤1¤turn"},
       0,
       "abc 1600"},
      {"quiet today", false, "Player 3", 1420, "40000", "Zoë", "Yes", {Prompt("3", Turns, "Player 3")}, 2, "Zoë 1420"},
      {"quiet yesterday", false, "Ann", 1420, "39999", "", "No", {"Ann¤3¤turn"}, 2, "Ann 1420"},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.What);
    Files files;
    Module1 State;
    ScriptedScreen Screen(State);
    HighRollers Rollers = files.Copy();
    if (*Row.QuietDay != '\0') files.Info.WriteInfoValue(NoQuestionKey, QString::fromLatin1(Row.QuietDay));
    Screen.Typed = QString::fromUtf8(Row.Typed);
    Screen.Word = Row.Word;
    const WhichList List = Row.Whoop ? &RollerLists::lstBMoV : &RollerLists::lstHSTS;
    Screen.WhileAsked = [&] { EXPECT_EQ(files.Copy().Lists(), RollerLists::Default()) << "saved after the answer"; };
    Screen.WhileShown = [&] { EXPECT_EQ(files.Held(List, Row.Place), Row.Entry) << "saved before the lists open"; };
    HighRollersCheck Check(State, files.Info, Rollers, Screen);
    Row.Whoop ? Check.CheckWhoopin(Row.Name, Row.Score) : Check.CheckHighTurn(Row.Name, Row.Score);
    EXPECT_THAT(Screen.Log, ElementsAreArray(Row.Asked));
    EXPECT_EQ(State.FormMessage, "");
    EXPECT_EQ(files.Copy().Lists(), Rollers.Lists());
    if (Row.Place < 0) {
      EXPECT_EQ(Rollers.Lists(), RollerLists::Default());
    } else {
      EXPECT_EQ(files.Held(List, Row.Place), Row.Entry);
    }
  }
}

TEST(HighRollersCheck, NobodyIsAskedWhileTheTableCloses) {
  for (const bool FromTheStart : {true, false}) {
    Files files;
    Module1 State;
    ScriptedScreen Screen(State);
    HighRollers Rollers = files.Copy();
    State.Quitting = FromTheStart;
    Screen.Word = "Yes";
    Screen.WhileAsked = [&] { State.Quitting = true; };
    HighRollersCheck(State, files.Info, Rollers, Screen).CheckHighTurn(FromTheStart ? "Player 1" : "Ann", 1600);
    EXPECT_EQ(Screen.Log.size(), FromTheStart ? 0U : 1U);
    EXPECT_EQ(files.Held(&RollerLists::lstHSTS, 0), FromTheStart ? "Player 1 1600" : "Ann 1600") << "not lost";
  }
}

TEST(HighRollersCheck, AnotherCopyMaySaveWhileThePersonIsAsked) {
  Files files;
  Module1 State;
  ScriptedScreen Screen(State);
  HighRollers Here = files.Copy(), There = files.Copy();
  There.Add(&RollerLists::lstHSTS, {QStringLiteral("Early"), 1800});
  Screen.WhileAsked = [&] { There.Add(&RollerLists::lstHSTS, {QStringLiteral("Faster"), 1700}); };
  HighRollersCheck(State, files.Info, Here, Screen).CheckHighTurn("Ann", 1600);
  EXPECT_THAT(Screen.Log, ElementsAre("Ann¤2¤turn")) << "what was saved before the question counts for it";
  EXPECT_EQ(files.Held(&RollerLists::lstHSTS, 0), "Early 1800");
  EXPECT_EQ(files.Held(&RollerLists::lstHSTS, 1), "Faster 1700");
  EXPECT_EQ(files.Held(&RollerLists::lstHSTS, 2), "Ann 1600");
}

/// A desktop that counts beeps and answers as told.
struct Clicks : QuietDesktop {
  int Beeps = 0;
  bool Answer = false;
  std::vector<std::string> Questions;
  void Beep() override { ++Beeps; }
  bool AskYesNo(const std::string& Text, const std::string& Title) override {
    Questions.push_back(Title + '|' + Text);
    return Answer;
  }
};

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

std::vector<std::string> RowsOf(const QPlainTextEdit* Box) {
  std::vector<std::string> Rows;
  for (const QString& Row : Box->toPlainText().split(QLatin1Char('\n'))) Rows.push_back(Row.toStdString());
  return Rows;
}

TEST(frmHighRollers, ShowsBothListsInColumns) {
  Files files;
  HighRollers Rollers = files.Copy();
  files.Copy().Add(&RollerLists::lstHSTS, {QString(), 12650});
  files.Copy().Add(&RollerLists::lstHSTS, {QStringLiteral("WWWWWWWWWWWWWWWÄ"), 2000});
  files.Copy().Add(&RollerLists::lstHSTS, {QStringLiteral("A name of more than sixteen letters"), 1990});
  Clicks Desktop;
  QWidget Main;
  Main.move(70, 90);
  frmHighRollers Form(Rollers, Desktop, &Main);
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
  EXPECT_EQ(RowsOf(Form.txtBMoVList).front(), "Irene...........1500");
  EXPECT_EQ(RowsOf(Form.txtBMoVList).back(), "Georgiana.......1050");
  ExpectNothingCut(Form);
  for (const QPlainTextEdit* Box : {Form.txtHSTSList, Form.txtBMoVList}) {
    EXPECT_EQ(Box->horizontalScrollBar()->maximum(), 0) << "every row fits";
    EXPECT_EQ(Box->verticalScrollBar()->maximum(), 0);
    const QFontMetricsF Metrics(Box->font());
    EXPECT_EQ(Metrics.horizontalAdvance(QStringLiteral("WWWWWW")), Metrics.horizontalAdvance(QStringLiteral("......")));
  }
  EXPECT_EQ(Form.lblReset->cursor().shape(), Qt::PointingHandCursor);
  for (const int Count : {-3, 0, 1, 16}) EXPECT_EQ(frmHighRollers::DotString(Count).count('.'), qMax(Count, 0));
}

TEST(frmHighRollers, ResetsByMouseAndKeyboard) {
  const std::function<void(LinkLabel*)> Ways[] = {
      [](LinkLabel* Link) { QTest::mouseClick(Link, Qt::LeftButton); },
      [](LinkLabel* Link) { QTest::keyClick(Link, Qt::Key_Return); },
      [](LinkLabel* Link) { QTest::keyClick(Link, Qt::Key_Space); },
  };
  for (const auto& Follow : Ways) {
    Files files;
    HighRollers Rollers = files.Copy();
    Rollers.Add(&RollerLists::lstBMoV, {QStringLiteral("Ann"), 2000});
    Clicks Desktop;
    QWidget Main;
    frmHighRollers Form(Rollers, Desktop, &Main);
    Form.show();
    EXPECT_EQ(Form.focusWidget(), Form.cmdOK);
    Follow(Form.lblReset);
    EXPECT_THAT(Desktop.Questions, ElementsAre("Reset Lists?|Are you sure you want to reset the high score lists?"));
    EXPECT_EQ(files.Held(&RollerLists::lstBMoV, 0), "Ann 2000");
    Desktop.Answer = true;
    Follow(Form.lblReset);
    EXPECT_TRUE(Form.isVisible());
    EXPECT_EQ(RowsOf(Form.txtBMoVList).front(), "Irene...........1500");
    EXPECT_EQ(Rollers.Lists(), RollerLists::Default()) << "the next score is tested against the default lists";
    EXPECT_EQ(files.Held(&RollerLists::lstBMoV, 0), "Irene 1500");
    QTest::mouseClick(Form.cmdOK, Qt::LeftButton);
    EXPECT_FALSE(Form.isVisible());
  }
}

TEST(frmViewHRListYN, SaysWhatWasMade) {
  const struct {
    const char *Message, *Greeting, *List;
  } Rows[] = {
      {"Ann¤3¤turn", "Great Job, Ann!!!", "\"Highest Single Turn Score\""},
      {"<b>%1&¤10¤whoop", "Great Job, <b>%1&!!!", "\"Biggest Whoopin'\""},
      {"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW¤1¤?", "Great Job, WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW!!!", "\"Biggest Whoopin'\""},
      {"¤1¤turn", "Great Job, !!!", "\"Highest Single Turn Score\""}};
  for (const auto& Row : Rows) {
    Files files;
    Module1 State;
    State.FormMessage = Row.Message;
    Clicks Desktop;
    QWidget Main;
    frmViewHRListYN Form(State, Desktop, files.Info, &Main);
    Form.show();
    EXPECT_EQ(Form.windowTitle(), "Way to go !!!");
    EXPECT_EQ(Form.lblWayToGo->text().toStdString(), Row.Greeting);
    const QString Number = QString::fromUtf8(Row.Message).section(QStringLiteral("¤"), 1, 1);
    EXPECT_EQ(Form.lblMessage->text().toStdString(),
              "You just made number " + Number.toStdString() + " on the " + Row.List +
                  " top ten!  Would you like to view the high rollers list now?");
    EXPECT_FALSE(Form.lblCheck->isChecked());
    ExpectNothingCut(Form);
    Form.reject();
    EXPECT_EQ(State.FormMessage, Row.Message) << "closed without a button";
  }
}

TEST(frmViewHRListYN, ButtonsAndTheBox) {
  Files files;
  Module1 State;
  Clicks Desktop;
  QWidget Main;
  frmViewHRListYN Form(State, Desktop, files.Info, &Main);
  Form.show();
  const QString Today = DayNumber(QDate::currentDate());
  const auto NoHS = [&] { return files.Info.ReadInfoValue(QStringLiteral("NoHS")); };
  QTest::mouseClick(Form.lblCheck, Qt::LeftButton);
  EXPECT_TRUE(Form.lblCheck->isChecked());
  EXPECT_EQ(NoHS(), Today) << "written at once";
  QTest::mouseClick(Form.lblDontAsk, Qt::LeftButton);
  EXPECT_FALSE(Form.lblCheck->isChecked());
  EXPECT_EQ(NoHS(), "Null");
  QTest::keyClick(Form.lblCheck, Qt::Key_Space);
  EXPECT_EQ(NoHS(), Today);
  EXPECT_EQ(Desktop.Beeps, 3);
  for (const auto& [Button, Word] : {std::pair(Form.cmdNo, "No"), std::pair(Form.cmdYes, "Yes")}) {
    Form.show();
    QTest::mouseClick(Button, Qt::LeftButton);
    EXPECT_FALSE(Form.isVisible());
    EXPECT_EQ(State.FormMessage, Word);
  }
}

TEST(TickBox, DrawsItsTickAndIsACheckBox) {
  TickBox Box;
  const auto Ink = [&] {
    const QImage Drawn = Box.grab().toImage().convertToFormat(QImage::Format_RGB32);
    int Dark = 0;
    for (int y = 5; y < Drawn.height() - 5; ++y) {
      for (int x = 5; x < Drawn.width() - 5; ++x) Dark += qGray(Drawn.pixel(x, y)) < 80;
    }
    return Dark;
  };
  EXPECT_EQ(Ink(), 0);
  Box.setChecked(true);
  EXPECT_GE(Ink(), 10);
  EXPECT_LE(Ink(), 50) << "a tick, not a filled square";
  QAccessibleInterface* Accessible = QAccessible::queryAccessibleInterface(&Box);
  EXPECT_EQ(Accessible->role(), QAccessible::CheckBox);
  EXPECT_TRUE(Accessible->state().checked);
}

/// Answers the modal dialogs as they come, one step a dialog. A dialog that is not expected, or that its step leaves
/// open, is closed.
class Robot : public QObject {
 public:
  std::deque<std::function<void(QWidget*)>> Steps;
  std::vector<std::string> Seen;  ///< titles

  Robot() {
    connect(&timer, &QTimer::timeout, this, [this] {
      QWidget* Dialog = QApplication::activeModalWidget();
      if (Dialog == nullptr || Dialog == handled) return;
      handled = Dialog;
      Seen.push_back(Dialog->windowTitle().toStdString());
      const auto Step = Steps.empty() ? [](QWidget* Box) { Box->close(); } : Steps.front();
      if (!Steps.empty()) Steps.pop_front();
      Step(Dialog);
      handled = nullptr;
    });
    timer.start(5);
  }

 private:
  QTimer timer;
  QWidget* handled = nullptr;
};

TEST(Application, ABankedTurnEntersTheListOfTheRealDialogs) {
  Files files;
  files.Info.WriteInfoValue(QStringLiteral("Scanned"), QStringLiteral("True"));
  files.Info.WriteInfoValue(QStringLiteral("ShowWelcomeMessage"), QStringLiteral("0"));
  Folders Where;
  Where.Program = Where.State = files.Folder.path();
  Where.BaseName = QStringLiteral("game");
  Where.Temp = files.Folder.path() + QLatin1Char('/');
  Robot Hand;
  Application Program(Where, std::make_unique<ScriptedDice>());
  Program.Screen.WaitFactor = 0;
  ASSERT_TRUE(Program.Main());
  EXPECT_TRUE(QFile::exists(files.File)) << "the first start writes the lists";

  GameSetup Setup;
  Setup.NumPlayers = 2;
  Setup.Seats[0].Name = "Player1";
  Setup.Seats[1].Name = "Ben";
  Program.Table.FreshGame(Setup);
  std::vector<std::string> Rows;
  Hand.Steps = {
      [](QWidget* Box) {
        auto* Name = Box->findChild<QLineEdit*>();
        EXPECT_EQ(Name->text(), "Player1");
        Name->clear();
        Name->insert(QStringLiteral("Z\u00F6\u00A4\u20AC\u00FFe"));  // as a paste does
        QTest::keyClicks(Name, QStringLiteral(" and many letters"));
        QTest::keyClick(Name, Qt::Key_Return);
      },
      [](QWidget* Box) { QTest::mouseClick(static_cast<frmViewHRListYN*>(Box)->cmdYes, Qt::LeftButton); },
      [&](QWidget* Box) {
        Rows = RowsOf(static_cast<frmHighRollers*>(Box)->txtHSTSList);
        QTest::keyClick(Box, Qt::Key_Return);
      },
  };
  Program.State.TurnScore = 1600;
  Program.Table.cmdPassDice_Click();
  EXPECT_THAT(Hand.Seen, ElementsAre("Way To Go !!!", "Way to go !!!", "Tollmoor Blunko - High Rollers"));
  EXPECT_EQ(Rows.front(), "Zöe and many l..1600");
  EXPECT_EQ(Program.State.PlayerName[0], "Player1") << "the seat keeps its name";
  EXPECT_EQ(Program.State.CurrentPlayer, 1);

  Hand.Seen.clear();
  QTest::mouseClick(Program.Form->cmdHighRollers, Qt::LeftButton);
  EXPECT_THAT(Hand.Seen, ElementsAre("Tollmoor Blunko - High Rollers"));
  Program.State.Quitting = true;
  Hand.Seen.clear();
  QTest::mouseClick(Program.Form->cmdHighRollers, Qt::LeftButton);
  EXPECT_THAT(Hand.Seen, IsEmpty());
}

}  // namespace
}  // namespace blunko::test

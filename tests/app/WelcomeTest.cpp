#include <QFile>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/HelpWindow.h"
#include "app/frmWelcome.h"
#include "tests/app/Screen.h"

namespace blunko::test {
namespace {

/// Never draws a question about a new version, and rolls no dice.
class NoQuestions : public NumberSource {
 public:
  std::int32_t UtilRandom(std::int32_t) override { return 2; }
};

struct Greeting {
  QTemporaryDir Folder;
  IniInfo Info{Folder.filePath(QStringLiteral("Game.ini"))};
  LoggingDesktop Desktop;
  QStringList Topics;
  QWidget Table;
  frmWelcome Form{Info, Desktop, [this](const QString& Topic) { Topics += Topic; }, &Table};
};

enum class Way { Button, Escape, Frame };

TEST(Welcome, TheBoxIsKeptAtOnceAndClosingTellsOfIt) {
  const struct {
    const char* Why;
    const char* Stored;  ///< before the dialog opens
    bool Ticked;
    int Clicks;
    Way Closes;
    const char* Kept;
    bool Told;
  } Rows[] = {
      {"no key counts as ticked, and looking at it writes nothing", "", true, 0, Way::Button, "", false},
      {"cleared, closed by its button", "1", true, 1, Way::Button, "0", true},
      {"cleared, closed by Escape", "", true, 1, Way::Escape, "0", true},
      {"cleared, closed by its frame", "1", true, 1, Way::Frame, "0", true},
      {"cleared and ticked again", "1", true, 2, Way::Frame, "1", false},
      {"cleared for good at the second try", "", true, 3, Way::Escape, "0", true},
      {"off already: nothing new to tell", "0", false, 0, Way::Escape, "0", false},
      {"switched on", "0", false, 1, Way::Button, "1", false},
      {"a word is no tick", "True", false, 0, Way::Button, "True", false},
  };
  for (const auto& Row : Rows) {
    for (const bool OnLabel : {false, true}) {
      SCOPED_TRACE(std::string(Row.Why) + (OnLabel ? ", on the label" : ", on the box"));
      QTemporaryDir Folder;
      const IniInfo Info(Folder.filePath(QStringLiteral("Game.ini")));
      const QString Key = QStringLiteral("ShowWelcomeMessage");
      if (*Row.Stored != '\0') Info.WriteInfoValue(Key, QLatin1String(Row.Stored));
      LoggingDesktop Desktop;
      frmWelcome Form(
          Info, Desktop, [](const QString&) {}, nullptr);
      Form.show();
      EXPECT_EQ(Form.lblCheck->isChecked(), Row.Ticked);
      for (int i = 0; i < Row.Clicks; ++i) {
        QTest::mouseClick(OnLabel ? static_cast<QWidget*>(Form.lblShowWelcome) : Form.lblCheck, Qt::LeftButton);
      }
      EXPECT_EQ(Info.ReadInfoValue(Key), QLatin1String(Row.Kept)) << "before it closes";
      EXPECT_EQ(Desktop.Log.size(), Row.Clicks) << "beeps";
      Desktop.Log.clear();
      switch (Row.Closes) {
        case Way::Button: QTest::mouseClick(Form.cmdExit, Qt::LeftButton); break;
        case Way::Escape: QTest::keyClick(&Form, Qt::Key_Escape); break;
        case Way::Frame: Form.close(); break;
      }
      EXPECT_FALSE(Form.isVisible());
      if (Row.Told) {
        EXPECT_EQ(Desktop.Log,
                  QStringList{QStringLiteral(
                      "This Welcome Window will no longer be displayed when Tollmoor Blunko starts up.\nIf you want to "
                      "view it again, just click on \"Help, How to Play\" from the main menu.")});
      } else {
        EXPECT_TRUE(Desktop.Log.isEmpty());
      }
    }
  }
}

TEST(Welcome, ABoxTickedElsewhereMeanwhileIsNotTalkedAbout) {
  Greeting Shown;
  Shown.Form.show();
  Shown.Form.lblCheck->click();
  Shown.Info.WriteInfoValue(QStringLiteral("ShowWelcomeMessage"), QStringLiteral("1"));
  Shown.Form.close();
  EXPECT_EQ(Shown.Desktop.Log, QStringList{QStringLiteral("beep")});
}

TEST(Welcome, ButtonsOpenTheirTopicsAndTheWebSiteAndStay) {
  Greeting Shown;
  Shell Browser;
  Shown.Form.show();
  for (ButtonPlus* Button : {Shown.Form.cmdLearn, Shown.Form.cmdPoints, Shown.Form.cmdTips, Shown.Form.cmdWebSite}) {
    QTest::mouseClick(Button, Qt::LeftButton);
    EXPECT_TRUE(Shown.Form.isVisible());
  }
  EXPECT_EQ(Shown.Topics, (QStringList{QStringLiteral("PlayingBlunko.htm"), QStringLiteral("PlayingBlunko.htm#scoring"),
                                       QStringLiteral("StrategyAndHints.htm")}));
  ASSERT_EQ(Browser.Opened.size(), 1);
  EXPECT_TRUE(Browser.Opened[0].startsWith(QLatin1String("http"))) << Browser.Opened[0].toStdString();
}

/// The whole program in a folder of its own, with its info file.
struct Started {
  QTemporaryDir Folder;
  std::unique_ptr<Application> Program;

  explicit Started(const QByteArray& Info) {
    QFile File(Folder.filePath(QStringLiteral("Game.ini")));
    EXPECT_TRUE(File.open(QIODevice::WriteOnly));
    File.write("[Info]\nScanned=True\n" + Info);
    File.close();
    Folders Where;
    Where.Program = Where.State = Folder.path();
    Where.BaseName = QStringLiteral("Game");
    EXPECT_TRUE(QFile::link(QStringLiteral(TBK_ASSETS "/help"), Folder.filePath(QStringLiteral("help"))));
    Program = std::make_unique<Application>(Where, std::make_unique<NoQuestions>());
    EXPECT_TRUE(Program->Main());
  }
  HelpWindow* Help() const {
    for (QWidget* Window : QApplication::topLevelWidgets()) {
      if (auto* Found = qobject_cast<HelpWindow*>(Window)) return Found;
    }
    return nullptr;
  }
};

TEST(Welcome, GreetsAtTheFirstActivationOnly) {
  const struct {
    const char* Info;
    bool Greets;
  } Rows[] = {{"", true}, {"ShowWelcomeMessage=1\n", true}, {"ShowWelcomeMessage=0\n", false}};
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Info);
    Started Game(Row.Info);
    std::vector<WhileModal::Step> Steps;
    if (Row.Greets) Steps.emplace_back([](QWidget& Window) { Window.close(); });
    WhileModal Answers(Steps);
    QTest::qWait(60);
    EXPECT_EQ(Game.Program->State.FirstActivate, !Row.Greets) << "cleared on that path only";
    Game.Program->Form->hide();
    Game.Program->Form->show();
    QTest::qWait(60);
  }
}

TEST(Welcome, HelpWorksUnderItOutlivesItAndGoesWithTheGame) {
  Started Game("");
  WhileModal Answers({[&](QWidget& Window) {
    auto& Form = dynamic_cast<frmWelcome&>(Window);
    QTest::mouseClick(Form.cmdTips, Qt::LeftButton);
    ASSERT_NE(Game.Help(), nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(Game.Help()));
    // By the window system, which holds back what a modal dialog blocks.
    QTreeWidget* Contents = Game.Help()->findChild<QTreeWidget*>();
    const QRect First = Contents->visualItemRect(Contents->topLevelItem(0));
    const QPoint Place = Contents->viewport()->mapTo(Game.Help(), First.center());
    QTest::mouseClick(Game.Help()->windowHandle(), Qt::LeftButton, {}, Place);
    EXPECT_EQ(Game.Help()->Page->source().fileName(), QStringLiteral("PlayingBlunko.htm"));
    Form.close();
  }});
  QTest::qWait(200);
  ASSERT_NE(Game.Help(), nullptr);
  EXPECT_TRUE(Game.Help()->isVisible());
  QTest::keyClick(Game.Help(), Qt::Key_Escape);
  EXPECT_FALSE(Game.Help()->isVisible());
  EXPECT_FALSE(Game.Program->State.Quitting) << "Escape was the help's";

  Game.Program->ShowHelpTopic(QStringLiteral("Overview.htm"));
  EXPECT_TRUE(Game.Help()->isVisible());
  Game.Program->Form->close();
  EXPECT_FALSE(Game.Help()->isVisible());
}

TEST(Welcome, MenuOpensHelpAndAboutInTheMiddleOfAComputerTurn) {
  Started Game("ShowWelcomeMessage=0\nComputerFast=2\n");
  Game.Program->ShowHelpTopic(QStringLiteral("Overview.htm"));
  bool Answered = false;
  WhileModal Answers({[&](QWidget& Window) {
    EXPECT_EQ(Window.objectName(), QStringLiteral("frmAbout"));
    Game.Program->ShowHelpTopic(QStringLiteral("PlayingBlunko.htm"));
    EXPECT_TRUE(Window.isVisible());
    QTest::keyClick(&Window, Qt::Key_Escape);
    Answered = true;
  }});
  // The menu is chosen while the computer's turn delivers events.
  Game.Program->State.CurrentPlayer = 0;
  Game.Program->State.PlayerIsComputer[0] = true;
  QTimer::singleShot(0, Game.Program->Form.get(), [&] { Game.Program->Form->OnCommand.About(); });
  for (int i = 0; i < 100 && !Answered; ++i) Game.Program->Screen.PumpEvents();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "the turn waits until the dialog has closed";
  EXPECT_TRUE(Answered);
  EXPECT_FALSE(Game.Program->State.Quitting) << "Escape was the dialog's";
  Game.Program->State.CurrentPlayer = Absent;
}

}  // namespace
}  // namespace blunko::test

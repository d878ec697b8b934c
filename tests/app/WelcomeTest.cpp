#include "app/HelpWindow.h"
#include "app/frmWelcome.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

TEST(Welcome, TheBoxIsKeptAtOnceAndClosingTellsOfIt) {
  const struct {
    const char* Stored;  ///< before the dialog opens
    bool Ticked;
    int Clicks;
    const char* Kept;
    bool Told;
  } Rows[] = {
      {"", true, 0, "", false},  // no key counts as ticked, and looking at it writes nothing
      {"1", true, 1, "0", true},   {"", true, 3, "0", true},          {"1", true, 1, "0", true},
      {"1", true, 2, "1", false},  {"0", false, 0, "0", false},        // off already: nothing new to tell
      {"0", false, 1, "1", false}, {"True", false, 0, "True", false},  // a word is no tick
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(&Row - Rows);
    const QTemporaryDir Place;
    const IniInfo Info(Place.filePath(QStringLiteral("game.ini")));
    if (*Row.Stored != '\0') Info.WriteInfoValue(ShowWelcomeMessageKey, QLatin1String(Row.Stored));
    Table Game;
    frmWelcome Form(Info, Game.Screen, nullptr);
    Form.show();
    ExpectUsable(Form);
    EXPECT_EQ(Form.lblCheck->isChecked(), Row.Ticked);
    for (int i = 0; i < Row.Clicks; ++i) {
      Click(i % 2 == 0 ? static_cast<QWidget*>(Form.lblShowWelcome) : Form.lblCheck);
    }
    EXPECT_EQ(Info.ReadInfoValue(ShowWelcomeMessageKey), QLatin1String(Row.Kept)) << "before it closes";
    EXPECT_EQ(Game.TakeLog(), Lines(static_cast<std::size_t>(Row.Clicks), "beep"));
    const auto Way = (&Row - Rows) % 3;
    if (Way == 0) Click(Form.cmdExit);
    if (Way == 1) QTest::keyClick(&Form, Qt::Key_Escape);
    if (Way == 2) Form.close();
    EXPECT_FALSE(Form.isVisible());
    EXPECT_EQ(Game.TakeLog("box This Welcome Window will no longer be displayed").size(), Row.Told ? 1U : 0U);
  }
}

TEST(Welcome, ButtonsOpenTheirTopicsAndTheWebSiteAndStay) {
  const IniInfo Info(QStringLiteral("/nowhere"));
  Table Game;
  const Shell Browser;
  Lines Topics;
  frmWelcome Form(Info, Game.Screen, nullptr);
  QObject::connect(&Form, &frmWelcome::helpAsked, [&](const QString& Topic) { Topics.push_back(Topic.toStdString()); });
  Form.show();
  for (ButtonPlus* Button : {Form.cmdLearn, Form.cmdPoints, Form.cmdTips, Form.cmdWebSite}) Click(Button);
  EXPECT_TRUE(Form.isVisible());
  EXPECT_THAT(Topics, ElementsAre("PlayingBlunko.htm", "PlayingBlunko.htm#scoring", "StrategyAndHints.htm"));
  EXPECT_THAT(Browser.Opened, ElementsAre(StartsWith("http")));
}

TEST_F(TheProgram, GreetsAtTheFirstActivationOnly) {
  for (const char* Keys : {"", "ShowWelcomeMessage=1\n", "ShowWelcomeMessage=0\n"}) {
    SCOPED_TRACE(Keys);
    const bool Greets = !QByteArray(Keys).endsWith("0\n");
    if (Greets) Next.Expect<frmWelcome>([](frmWelcome& Form) { Form.close(); });
    Start(Keys);
    QTest::qWait(60);
    EXPECT_EQ(Run->State.FirstActivate, !Greets) << "cleared on that path only";
    Run->Form->hide();
    Run->Form->show();
    QTest::qWait(60);
  }
}

TEST_F(TheProgram, HelpWorksUnderTheWelcomeOutlivesItAndGoesWithTheGame) {
  QWidget* Help = nullptr;
  Next.Expect<frmWelcome>([&](frmWelcome& Form) {
    Click(Form.cmdTips);
    for (QWidget* Window : QApplication::topLevelWidgets()) Help = qobject_cast<HelpWindow*>(Window) ? Window : Help;
    Form.close();
  });
  Start("");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Help != nullptr && QApplication::activeModalWidget() == nullptr; }, 5000));
  EXPECT_TRUE(Help->isVisible());
  QTest::keyClick(Help, Qt::Key_Escape);
  EXPECT_FALSE(Help->isVisible() || Run->State.Quitting) << "Escape was the help's";
  Run->ShowHelpTopic(QStringLiteral("Overview.htm"));
  Run->Form->close();
  EXPECT_FALSE(Help->isVisible());
}

}  // namespace
}  // namespace blunko::test

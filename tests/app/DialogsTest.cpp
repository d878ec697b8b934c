#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>

#include "app/frmAbout.h"
#include "app/frmCongrats.h"
#include "app/frmCredits.h"
#include "app/frmCustomizeSounds.h"
#include "app/frmWelcome.h"
#include "tests/app/Run.h"
#include "tests/table/TableForm.h"

namespace blunko::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

TEST(About, DiceSoundLinksOpenAndTheCreditsScrollAtTheirPaceAndComeAgain) {
  Desk At;
  At.Where.Program = QStringLiteral(TBK_ASSETS);
  Answers Next;
  const Shell Browser;
  frmAbout Form(At.Where, At.Settings, At.Screen, nullptr);
  Next.Expect<frmAbout>([&](frmAbout&) {
    ExpectUsable(Form);
    EXPECT_FALSE(Form.Picture1->icon().isNull() || Form.Picture2->icon().isNull());
    QTest::keyClick(Form.Picture2, Qt::Key_Space);
    Click(Form.Picture1);
    const Lines Log = At.TakeLog();
    EXPECT_EQ(Log[0] + Log[1], "sound " + At.Settings.GetSound("OneDie") + "sound " + At.Settings.GetSound("MultiDie"));
    EXPECT_EQ(std::set(Log.begin(), Log.end()).size(), 6U) << "four boxes, each its own";
    for (QLabel* Link : {Form.lblURL, Form.lblMail}) Click(Link);
    EXPECT_THAT(Browser.Opened, ElementsAre(StartsWith("http"), StartsWith("mailto:")));
    Click(Form.cmdCredits);
    Click(Form.cmdOK);
  });
  Next.Expect<frmCredits>([](frmCredits& Credits) {
    int& Top = Credits.picScroll->Top;
    const int Height = Credits.picScroll->TextHeight();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Credits.IsScrolling(); }, 5000));
    const int Before = Top;
    QElapsedTimer Clock;
    Clock.start();
    QTest::qWait(400);
    EXPECT_LE(Before - Top, Clock.elapsed() / 40 + 1);
    EXPECT_GE(Before - Top, 3);  // however busy the machine is
    Top = -Height;
    EXPECT_TRUE(QTest::qWaitFor([&] { return Top != -Height; }, 5000));
    EXPECT_NEAR(Top, Credits.picScroll->height(), 2) << "the last line has gone past the upper edge";
    Click(Credits.cmdOK);
  });
  Form.exec();
}

TEST(Congrats, EngravesTheWinnerWhenTheSoundStartsAndItsButtonsLeaveTheirWords) {
  const std::tuple<ButtonPlus * frmCongrats::*, const char*, Lines> Rows[] = {
      {&frmCongrats::cmdSameGame, "SameGame", {"beep"}},
      {&frmCongrats::cmdDifferentGame, "DifferentGame", {"beep"}},
      {&frmCongrats::cmdQuit, "Quit", {}},
      {nullptr, "", {}}};
  TableForm Game;
  Answers Next;
  for (const auto& [Button, Word, Heard] : Rows) {
    SCOPED_TRACE(Word);
    std::string Message;
    Game.TakeLog();
    Next.Expect<frmCongrats>([&](frmCongrats& Dialog) {
      Game.Screen.OnSleep = [&] { EXPECT_EQ(Dialog.lblWinner->text(), QLatin1String("Engraving...")); };
      EXPECT_TRUE(QTest::qWaitFor([&] { return Dialog.lblWinner->text() == QLatin1String("* Ann *"); }, 5000));
      EXPECT_EQ(Game.TakeLog(), (Lines{"sleep 500", "sound GameOver"}));
      EXPECT_EQ(Dialog.frameGeometry(), Game.Form.frameGeometry());
      EXPECT_EQ(Dialog.focusWidget(), Dialog.cmdSameGame);
      Button != nullptr ? Click(Dialog.*Button) : QTest::keyClick(&Dialog, Qt::Key_Escape);
    });
    frmCongrats("Ann", Message, Game.Screen, Game.Options, Game.Form).exec();
    EXPECT_EQ(Message, Word);
    EXPECT_EQ(Game.TakeLog(), Heard);
  }
}

class CustomizeSounds : public testing::Test {
 protected:
  Desk At;
  Answers Next;
  frmCustomizeSounds Form{At.m.FormMessage, At.Settings, At.Screen, &At.Main};
  QString Own = At.Place.filePath(QStringLiteral("own.wav"));

  CustomizeSounds() { Put(Own, {}); }
  /// Browses for an event's sound and leaves the file dialog with this file, or none: the folder where that began.
  QString Pick(int Row, const QString& File) {
    QString Begins;
    Next.Expect<QFileDialog>([&](QFileDialog& Dialog) {
      Begins = Dialog.directory().path();
      auto* Line = Dialog.findChild<QLineEdit*>();
      Line->setText(File);
      QTest::keyClick(Line, File.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    });
    Form.lstEvents->setCurrentRow(Row);
    Click(Form.cmdBrowse);
    return Begins;
  }
};

TEST_F(CustomizeSounds, EveryEntryOfTheListIsItsEventAndOKAloneWritesAll) {
  for (ButtonPlus* Button : {Form.cmdCancel, Form.cmdOK}) {
    Form.show();
    ExpectUsable(Form);
    for (const SoundEvent& Event : SoundEvents) {
      SCOPED_TRACE(Event.Name);
      Pick(static_cast<int>(&Event - SoundEvents.data()), Own);
      EXPECT_EQ(Next.Seen.back(), std::string("Select \"") + Event.Caption + "\" sound");
      EXPECT_EQ(Form.txtSound->text(), QStringLiteral("own.wav"));
      Click(Form.cmdTest);
      EXPECT_EQ(At.TakeLog(), Lines{"test sound " + Own.toStdString()});
    }
    Click(Button);
    EXPECT_FALSE(Form.isVisible());
    for (const SoundEvent& Event : SoundEvents) {
      EXPECT_EQ(GameSettings(At.Where).GetSound(Event.Name) == Own.toStdString(), Button == Form.cmdOK);
    }
  }
}

TEST_F(CustomizeSounds, BrowsingBeginsWhereSoundsAreKeptAndBackspaceRestoresWhereverTheCursorIs) {
  qputenv("HOME", QFile::encodeName(At.Place.path()));
  Form.show();
  QDir(At.Place.path()).mkdir(QStringLiteral("mine"));
  const QString Mine = At.Place.filePath(QStringLiteral("mine"));
  Put(Mine + "/a.wav", {});
  for (QWidget* Focus : {static_cast<QWidget*>(Form.lstEvents), static_cast<QWidget*>(Form.txtSound),
                         static_cast<QWidget*>(Form.cmdOK)}) {
    SCOPED_TRACE(Focus->objectName().toStdString());
    EXPECT_EQ(Pick(7, Mine + "/a.wav"), At.Place.path()) << "the default's folder is no place for people";
    EXPECT_EQ(Pick(7, {}), Mine);
    for (const auto Other : {Qt::Key_Delete, Qt::Key_8}) QTest::keyClick(Focus, Other);
    EXPECT_EQ(Form.txtSound->text(), QStringLiteral("a.wav")) << "cancelled: nothing changes";
    QTest::keyClick(Focus, Qt::Key_Backspace);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String(SoundEvents[7].File));
    EXPECT_EQ(At.TakeLog(), Lines{"box Original Sounds Restored."});
  }
}

TEST_F(TheProgram, SwitchedOffNothingSoundsButATest) {
  Start();
  Run->Settings.setSoundDisabled(true);
  for (const bool IsTest : {false, true}) {
    Run->Screen.PlaySoundFile(Run->State.TempFolder + "undo.wav", IsTest);
    EXPECT_EQ(Run->Player.IsPlaying(), IsTest);
  }
}

TEST(Welcome, TheBoxIsKeptAtOnceAndClosingTellsOfIt) {
  const struct {
    const char* Stored;  ///< before the dialog opens
    bool Ticked;
    int Clicks;
    const char* Kept;
  } Rows[] = {
      {"1", true, 1, "0"},        {"", true, 3, "0"},
      {"0", false, 2, "0"},       {"", true, 0, ""},     // no key counts as ticked, and looking at it writes nothing
      {"1", true, 2, "1"},        {"0", false, 0, "0"},  // off already: nothing new to tell
      {"True", false, 0, "True"},                        // a word is no tick
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(&Row - Rows);
    Desk At;
    if (*Row.Stored != '\0') At.Info.WriteInfoValue(ShowWelcomeMessageKey, QLatin1String(Row.Stored));
    frmWelcome Form(At.Info, At.Screen, nullptr);
    Form.show();
    ExpectUsable(Form);
    EXPECT_EQ(Form.lblCheck->isChecked(), Row.Ticked);
    for (int i = 0; i < Row.Clicks; ++i) {
      Click(i % 2 == 0 ? static_cast<QWidget*>(Form.lblShowWelcome) : Form.lblCheck);
    }
    EXPECT_EQ(At.Info.ReadInfoValue(ShowWelcomeMessageKey), QLatin1String(Row.Kept)) << "before it closes";
    EXPECT_EQ(At.TakeLog(), Lines(static_cast<std::size_t>(Row.Clicks), "beep"));
    const auto Way = (&Row - Rows) % 3;
    if (Way == 0) Click(Form.cmdExit);
    if (Way == 1) QTest::keyClick(&Form, Qt::Key_Escape);
    if (Way == 2) Form.close();
    EXPECT_FALSE(Form.isVisible());
    const bool Told = Row.Clicks > 0 && *Row.Kept == '0';
    EXPECT_EQ(At.TakeLog("box This Welcome Window will no longer be displayed").size(), Told ? 1U : 0U);
  }
}

TEST_F(TheProgram, GreetsOnceAndTheHelpOutlivesTheWelcomeAndGoesWithTheGame) {
  const Shell Browser;
  HelpWindow* Help = nullptr;
  Next.Expect<frmWelcome>([&](frmWelcome& Form) {
    const std::pair<ButtonPlus*, const char*> Topics[] = {{Form.cmdLearn, "help/PlayingBlunko.htm"},
                                                          {Form.cmdPoints, "help/PlayingBlunko.htm#scoring"},
                                                          {Form.cmdTips, "help/StrategyAndHints.htm"}};
    for (const auto& [Button, Topic] : Topics) {
      Click(Button);
      for (QWidget* Window : QApplication::topLevelWidgets()) {
        if (auto* Found = qobject_cast<HelpWindow*>(Window)) Help = Found;
      }
      EXPECT_TRUE(Help->Page->source().toString().endsWith(QLatin1String(Topic))) << Topic;
    }
    Click(Form.cmdWebSite);
    Form.close();
  });
  Start("");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Help != nullptr && QApplication::activeModalWidget() == nullptr; }, 5000));
  EXPECT_THAT(Browser.Opened, ElementsAre(StartsWith("http")));
  EXPECT_TRUE(Help->isVisible());
  QTest::keyClick(Help, Qt::Key_Escape);
  EXPECT_FALSE(Help->isVisible() || Run->State.Quitting) << "Escape was the help's";
  Run->Form->hide();
  Run->Form->show();
  QTest::qWait(60);
  Run->ShowHelpTopic(QStringLiteral("Overview.htm"));
  Run->Form->close();
  EXPECT_FALSE(Help->isVisible());
}

}  // namespace
}  // namespace blunko::test

#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>

#include "app/frmAbout.h"
#include "app/frmCongrats.h"
#include "app/frmCredits.h"
#include "app/frmCustomizeSounds.h"
#include "app/frmWelcome.h"
#include "tests/app/Run.h"
#include "tests/table/TableForm.h"

namespace blunko::test {

TEST(About, DiceSoundLinksOpenAndTheCreditsScrollRound) {
  Desk At;
  At.Where.Program = QStringLiteral(TBK_ASSETS);
  Answers Next;
  frmAbout Form(At.Where, At.Settings, At.Screen, nullptr);
  Next.Expect<frmAbout>([&](frmAbout&) {
    ExpectUsable(Form);
    QTest::keyClick(Form.Picture2, Qt::Key_Space);
    Click(Form.Picture1);
    const Lines Log = At.TakeLog();
    EXPECT_EQ(Log[0] + Log[1], "sound " + At.Settings.GetSound("OneDie") + "sound " + At.Settings.GetSound("MultiDie"));
    EXPECT_EQ(std::set(Log.begin(), Log.end()).size(), 6U) << "four boxes, each its own";
    for (LinkLabel* Link : {Form.lblURL, Form.lblMail}) QTest::keyClick(Link, Qt::Key_Return);
    EXPECT_THAT(Next.Opened, testing::ElementsAre(testing::StartsWith("http"), testing::StartsWith("mailto:")));
    Click(Form.cmdCredits);
    Click(Form.cmdOK);
  });
  Next.Expect<frmCredits>([](frmCredits& Credits) {
    int& Top = Credits.picScroll->Top;
    ExpectAsKept(Credits);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Top > 0; }, 5000));
    Top = -Credits.picScroll->TextHeight();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Top > 0; }, 5000)) << "again from below";
    const int Before = Top;
    QTest::qWait(400);
    EXPECT_LT(Top, Before);
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
    Next.Expect<frmCongrats>([&, Button = Button](frmCongrats& Dialog) {
      Game.Screen.OnSleep = [&] {
        EXPECT_TRUE(Dialog.lblWinner->text() == QLatin1String("Engraving...") && !Dialog.cmdQuit->isEnabled());
      };
      EXPECT_TRUE(QTest::qWaitFor([&] { return Dialog.lblWinner->text() == QLatin1String("* Ann *"); }, 5000));
      EXPECT_EQ(Game.TakeLog(), (Lines{"sleep 500", "sound GameOver"}));
      ExpectAsKept(Dialog);
      Button != nullptr ? Click(Dialog.*Button) : QTest::keyClick(&Dialog, Qt::Key_Escape);
    });
    frmCongrats("Ann", Message, Game.Screen, Game.Options, Game.Form).exec();
    EXPECT_EQ(Message, Word);
    EXPECT_EQ(Game.TakeLog(), Heard);
  }
}

TEST(CustomizeSounds, EveryEntryOfTheListIsItsEventAndOKAloneWritesAll) {
  Desk At;
  Answers Next;
  frmCustomizeSounds Form(At.m.FormMessage, At.Settings, At.Screen, &At.Main);
  qputenv("HOME", QFile::encodeName(QDir::tempPath()));
  const QString Own = At.Folder.Put("own.wav", {});
  const auto Pick = [&](const QString& File, const QString& Begin) {
    Next.Expect<QFileDialog>([&](QFileDialog& Dialog) {
      EXPECT_EQ(Dialog.directory().path(), Begin);
      auto* Line = Dialog.findChild<QLineEdit*>();
      Line->setText(File);
      QTest::keyClick(Line, File.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    });
    Click(Form.cmdBrowse);
  };
  for (ButtonPlus* Button : {Form.cmdCancel, Form.cmdOK}) {
    Form.show();
    if (Button == Form.cmdCancel) ExpectUsable(Form);
    for (const SoundEvent& Event : SoundEvents) {
      SCOPED_TRACE(Event.Name);
      Form.lstEvents->setCurrentRow(static_cast<int>(&Event - SoundEvents.data()));
      Pick(Own, QDir::tempPath());  // the default's folder is no place for people
      EXPECT_EQ(Next.Seen.back(), std::string("Select \"") + Event.Caption + "\" sound");
      Pick({}, At.Folder.Path());
      EXPECT_EQ(Form.txtSound->text(), QStringLiteral("own.wav"));
      Click(Form.cmdTest);
      EXPECT_EQ(At.TakeLog(), Lines{"test sound " + Own.toStdString()});
    }
    Button == Form.cmdOK ? QTest::keyClick(Form.lstEvents, Qt::Key_Return) : Click(Button);
    for (const SoundEvent& Event : SoundEvents) {
      EXPECT_EQ(GameSettings(At.Where, At.Info).GetSound(Event.Name) == Own.toStdString(), Button == Form.cmdOK);
    }
    for (const auto Key : {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_8}) QTest::keyClick(Form.txtSound, Key);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String(SoundEvents.back().File));
    EXPECT_EQ(At.TakeLog(), Lines{"box Original Sounds Restored."});
  }
}

TEST(Welcome, TheBoxIsKeptAtOnceAndClosingTellsOfIt) {
  // stored, clicks, kept: no key counts as ticked, looking at it writes nothing, and a word is no tick
  const std::tuple<const char*, int, const char*> Rows[] = {
      {"1", 1, "0"}, {"", 3, "0"}, {"0", 2, "0"}, {"", 0, ""}, {"1", 2, "1"}, {"0", 0, "0"}, {"True", 0, "True"}};
  for (std::size_t Row = 0; const auto& [Stored, Clicks, Kept] : Rows) {
    SCOPED_TRACE(Row);
    Desk At;
    if (*Stored != '\0') At.Info.WriteInfoValue(ShowWelcomeMessageKey, QLatin1String(Stored));
    frmWelcome Form(At.Info, At.Screen, nullptr);
    Form.show();
    if (Row == 0) ExpectUsable(Form);
    EXPECT_EQ(Form.lblCheck->isChecked(), *Stored == '\0' || *Stored == '1');
    for (int i = 0; i < Clicks; ++i) Click(i % 2 == 0 ? static_cast<QWidget*>(Form.lblShowWelcome) : Form.lblCheck);
    EXPECT_EQ(At.Info.ReadInfoValue(ShowWelcomeMessageKey), QLatin1String(Kept)) << "before it closes";
    EXPECT_EQ(At.TakeLog("beep").size(), static_cast<std::size_t>(Clicks));
    Row++ % 2 == 0 ? Click(Form.cmdExit) : static_cast<void>(Form.close());
    EXPECT_FALSE(Form.isVisible());
    EXPECT_EQ(At.TakeLog("box This Welcome Window will no longer").size(), Clicks > 0 && *Kept == '0' ? 1U : 0U);
  }
}

TEST_F(TheProgram, GreetsOnceAndTheHelpOutlivesTheWelcomeAndGoesWithTheGame) {
  HelpWindow* Help = nullptr;
  Next.Expect<frmWelcome>([&](frmWelcome& Form) {
    for (const auto& [Button, Topic] : {std::pair(Form.cmdLearn, "help/PlayingBlunko.htm"),
                                        {Form.cmdPoints, "help/PlayingBlunko.htm#scoring"},
                                        {Form.cmdTips, "help/StrategyAndHints.htm"}}) {
      Click(Button);
      for (QWidget* Window : QApplication::topLevelWidgets())
        if (auto* Found = qobject_cast<HelpWindow*>(Window)) Help = Found;
      EXPECT_TRUE(Help->Page->source().toString().endsWith(QLatin1String(Topic))) << Topic;
    }
    Click(Form.cmdWebSite);
    Form.close();
  });
  Start("");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Help != nullptr && QApplication::activeModalWidget() == nullptr; }, 5000));
  EXPECT_EQ(Next.Opened.size(), 1U);
  emit Help->told(QStringLiteral("found"));
  EXPECT_TRUE(QT_VERSION >= QT_VERSION_CHECK(6, 8, 0) ||
              Run->Form->findChild<QWidget*>("announcer")->findChild<QWidget*>());
  QTest::keyClick(Help, Qt::Key_Escape);
  EXPECT_FALSE(Help->isVisible() || Run->State.Quitting) << "Escape was the help's";
  Run->ShowHelpTopic(QStringLiteral("Overview.htm"));
  std::set Sounds{Folder.Get("temp/" + QString(OutSound.File))};
  for (const SoundEvent& Sound : SoundEvents) Sounds.insert(Folder.Get("temp/" + QString(Sound.File)));
  EXPECT_TRUE(Sounds.size() == SoundEvents.size() + 1 && Sounds.begin()->startsWith("RIFF")) << "each has its own";
  Run->Settings.SoundDisabled = true;
  for (const bool IsTest : {false, true}) {  // which alone is heard
    Run->Screen.PlaySoundFile(Run->State.TempFolder + "undo.wav", IsTest);
    EXPECT_EQ(Run->Player.IsPlaying(), IsTest);
  }
  Run->Form->close();
  EXPECT_FALSE(Help->isVisible());
}

}  // namespace blunko::test

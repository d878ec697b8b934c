#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>

#include "app/frmCustomizeSounds.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

class CustomizeSounds : public testing::Test {
 protected:
  QTemporaryDir Place;
  Folders Where = FoldersIn(Place);
  GameSettings Settings{Where};
  Table Game;
  QWidget Owner;
  frmCustomizeSounds Form{Game.m.FormMessage, Settings, Game.Screen, &Owner};
  Answers Next;
  QString Own = Place.filePath(QStringLiteral("own.wav"));

  CustomizeSounds() {
    Put(Own, {});
    Form.show();
  }
  /// The file dialog comes next: it's left with this file, or none.
  void Pick(const QString& File, std::string* Begins = nullptr) {
    Next.Expect<QFileDialog>([=](QFileDialog& Dialog) {
      if (Begins != nullptr) *Begins = Dialog.directory().path().toStdString();
      auto* Line = Dialog.findChild<QLineEdit*>();
      Line->setText(File);
      QTest::keyClick(Line, File.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    });
  }
  std::string Stored(std::size_t i) const { return GameSettings(Where).GetSound(SoundEvents[i].Name); }
};

TEST_F(CustomizeSounds, EveryEntryOfTheListIsItsEventAndOKAloneWritesAll) {
  for (ButtonPlus* Button : {Form.cmdCancel, Form.cmdOK}) {
    Form.show();
    for (std::size_t i = 0; i < SoundEvents.size(); ++i) {
      SCOPED_TRACE(SoundEvents[i].Name);
      Form.lstEvents->setCurrentRow(static_cast<int>(i));
      EXPECT_EQ(Form.txtSound->text(), QLatin1String(Button == Form.cmdCancel ? SoundEvents[i].File : "own.wav"));
      Pick(Own);
      Click(Form.cmdBrowse);
      EXPECT_EQ(Next.Seen.back(), std::string("Select \"") + SoundEvents[i].Caption + "\" sound");
      EXPECT_EQ(Form.txtSound->text(), QStringLiteral("own.wav"));
      Click(Form.cmdTest);
      EXPECT_EQ(Game.TakeLog(), Lines{"test sound " + Own.toStdString()});
    }
    Click(Button);
    EXPECT_FALSE(Form.isVisible());
    for (std::size_t i = 0; i < SoundEvents.size(); ++i)
      EXPECT_EQ(Stored(i) == Own.toStdString(), Button == Form.cmdOK);
  }
}

TEST_F(CustomizeSounds, BrowsingBeginsWhereSoundsAreKeptAndACancelledChoiceChangesNothing) {
  qputenv("HOME", QFile::encodeName(Place.path()));
  const QPoint Row = Form.lstEvents->visualItemRect(Form.lstEvents->item(2)).center();
  QTest::mouseClick(Form.lstEvents->viewport(), Qt::LeftButton, {}, Row);
  std::string Home, Beside;
  Pick({}, &Home);
  QTest::mouseDClick(Form.lstEvents->viewport(), Qt::LeftButton, {}, Row);
  EXPECT_EQ(Home, Place.path().toStdString()) << "the default's folder is no place for people";
  EXPECT_EQ(Form.txtSound->text(), QLatin1String(SoundEvents[2].File));
  QDir(Place.path()).mkdir(QStringLiteral("mine"));
  Own = Place.filePath(QStringLiteral("mine/a.wav"));
  Put(Own, {});
  Pick(Own);
  Click(Form.cmdBrowse);
  Pick({}, &Beside);
  Click(Form.cmdBrowse);
  EXPECT_EQ(Beside, Place.filePath(QStringLiteral("mine")).toStdString());
  EXPECT_EQ(Form.txtSound->text(), QLatin1String("a.wav"));
}

TEST_F(CustomizeSounds, BackspaceRestoresWhereverTheCursorIsAndOKAloneStoresIt) {
  constexpr int Undo = 7;
  Settings.SetSound("Undo", "/own/before.wav");
  QWidget* const Places[] = {Form.lstEvents, Form.txtSound, Form.cmdBrowse, Form.cmdTest, Form.cmdOK, Form.cmdCancel};
  for (QWidget* Focus : Places) {
    SCOPED_TRACE(Focus->objectName().toStdString());
    Form.lstEvents->setCurrentRow(Undo);
    Pick(Own);
    Click(Form.cmdBrowse);
    Focus->setFocus();
    for (const auto Other : {Qt::Key_Delete, Qt::Key_A, Qt::Key_8}) QTest::keyClick(Focus, Other);
    Form.lstEvents->setCurrentRow(Undo);
    EXPECT_EQ(Form.txtSound->text(), QStringLiteral("own.wav"));
    QTest::keyClick(Focus, Qt::Key_Backspace);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String("undo.wav"));
    EXPECT_EQ(Game.TakeLog(), Lines{"box Original Sounds Restored."});
  }
  EXPECT_EQ(Stored(Undo), "/own/before.wav");
  Click(Form.cmdOK);
  EXPECT_EQ(Stored(Undo), (Where.Temp + QStringLiteral("undo.wav")).toStdString());
}

TEST_F(TheProgram, SwitchedOffNothingSoundsButTheTestDoes) {
  Start();
  const auto Play = [&] { Run->Screen.PlaySoundFile(Run->State.TempFolder + "undo.wav", false); };
  Run->Settings.setSoundDisabled(true);
  Play();
  EXPECT_FALSE(Run->Player.IsPlaying());
  Next.Expect<frmCustomizeSounds>([&](frmCustomizeSounds& Dialog) {
    Click(Dialog.cmdTest);
    EXPECT_TRUE(Run->Player.IsPlaying());
    Click(Dialog.cmdCancel);
  });
  Run->CustomizeSounds();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Run->Player.IsPlaying(); }, 5000));
  Run->Settings.setSoundDisabled(false);
  Play();
  EXPECT_TRUE(Run->Player.IsPlaying());
}

}  // namespace
}  // namespace blunko::test

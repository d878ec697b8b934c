#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/frmCustomizeSounds.h"
#include "tests/app/Run.h"
#include "tests/engine/Table.h"
#include "tests/table/SoundRecorder.h"

namespace blunko::test {
namespace {

struct Row {
  const char* Event;
  const char* Caption;
  const char* File;
};
const Row Rows[] = {
    {"Blunko", "Blunko", "bust.wav"},
    {"GameOver", "Game Over", "gameover.wav"},
    {"MoveDie", "Move Dice", "moveit.wav"},
    {"Passem1", "Pass Dice (w/ points)", "passem1.wav"},
    {"Passem2", "Pass Dice (w/o points)", "passem2.wav"},
    {"MultiDie", "Roll Multiple Dice", "33d.wav"},
    {"OneDie", "Roll One Die", "11d.wav"},
    {"Undo", "Undo", "undo.wav"},
};
constexpr int Undo = 7;
const std::string Restored = "box Original Sounds Restored.";

class CustomizeSounds : public testing::Test {
 protected:
  QTemporaryDir Place;
  Folders Where = FoldersIn(Place);
  GameSettings Settings{Where};
  Table Game;
  QWidget Owner;
  frmCustomizeSounds Form{Game.game, Settings, &Owner};
  QStringList Titles;
  const QByteArray InfoAtStart = InfoFile();

  CustomizeSounds() {
    Game.m.TempFolder = Where.Temp.toStdString();
    Form.show();
  }
  void Answer(const QString& Path) {
    Form.PickFile = [this, Path](const QString& Title) {
      Titles << Title;
      return Path;
    };
  }
  static void Click(ButtonPlus* Button) { QTest::mouseClick(Button, Qt::LeftButton); }
  QByteArray InfoFile() const {
    QFile File(Place.filePath(QStringLiteral("game.ini")));
    return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
  }
};

TEST_F(CustomizeSounds, EveryEntryOfTheListIsItsEvent) {
  ASSERT_EQ(Form.lstEvents->count(), static_cast<int>(std::size(Rows)));
  EXPECT_EQ(Form.lstEvents->currentRow(), 0);
  for (int i = 0; i < Form.lstEvents->count(); ++i) {
    SCOPED_TRACE(Rows[i].Event);
    EXPECT_EQ(Form.lstEvents->item(i)->text(), QLatin1String(Rows[i].Caption));
    Form.lstEvents->setCurrentRow(i);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String(Rows[i].File));
    Click(Form.cmdTest);
    EXPECT_EQ(Game.TakeLog(), std::vector{"sound " + Game.m.TempFolder + Rows[i].File});
    const QString Own = QStringLiteral("/own music/%1 ü.wav").arg(i);
    Answer(Own);
    Click(Form.cmdBrowse);
    EXPECT_EQ(Titles.takeLast(), QStringLiteral("Select \"%1\" sound").arg(QLatin1String(Rows[i].Caption)));
    EXPECT_EQ(Form.txtSound->text(), QStringLiteral("%1 ü.wav").arg(i));
  }
  EXPECT_EQ(InfoFile(), InfoAtStart);
  Click(Form.cmdOK);
  EXPECT_FALSE(Form.isVisible());
  const GameSettings Fresh(Where);
  for (int i = 0; i < Form.lstEvents->count(); ++i) {
    EXPECT_EQ(Fresh.GetSound(Rows[i].Event), QStringLiteral("/own music/%1 ü.wav").arg(i).toStdString());
    EXPECT_EQ(Settings.GetSound(Rows[i].Event), Fresh.GetSound(Rows[i].Event));
  }
}

TEST_F(CustomizeSounds, OKWritesAllEightAndCancelNone) {
  Answer(QStringLiteral("/own/x.wav"));
  Click(Form.cmdBrowse);
  Click(Form.cmdCancel);
  EXPECT_FALSE(Form.isVisible());
  EXPECT_EQ(InfoFile(), InfoAtStart);
  EXPECT_EQ(Settings.GetSound("Blunko"), Game.m.TempFolder + "bust.wav");

  frmCustomizeSounds Second(Game.game, Settings, &Owner);
  Second.show();
  Click(Second.cmdOK);
  for (const Row& Each : Rows) {
    const std::string Line = std::string(Each.Event) + "Sound=" + Game.m.TempFolder + Each.File + "\n";
    EXPECT_TRUE(InfoFile().contains(QByteArray::fromStdString(Line))) << Line;
  }
}

TEST_F(CustomizeSounds, ADoubleClickBrowsesAndACancelledChoiceChangesNothing) {
  Form.lstEvents->setCurrentRow(Undo);
  Answer(frmCustomizeSounds::NothingPicked);
  const QPoint Row = Form.lstEvents->visualItemRect(Form.lstEvents->item(Undo)).center();
  QTest::mouseClick(Form.lstEvents->viewport(), Qt::LeftButton, {}, Row);
  QTest::mouseDClick(Form.lstEvents->viewport(), Qt::LeftButton, {}, Row);
  EXPECT_EQ(Titles, QStringList(QStringLiteral("Select \"Undo\" sound")));
  EXPECT_EQ(Game.m.FormMessage, frmCustomizeSounds::NothingPicked.toStdString());
  EXPECT_EQ(Form.txtSound->text(), QLatin1String("undo.wav"));
  Click(Form.cmdTest);
  EXPECT_EQ(Game.TakeLog("sound"), std::vector{"sound " + Game.m.TempFolder + "undo.wav"});
}

TEST_F(CustomizeSounds, BackspaceRestoresWhereverTheCursorIs) {
  QWidget* const Places[] = {Form.lstEvents, Form.txtSound, Form.cmdBrowse, Form.cmdTest, Form.cmdOK, Form.cmdCancel};
  Form.lstEvents->setCurrentRow(Undo);
  Answer(QStringLiteral("/own/x.wav"));
  for (QWidget* Focus : Places) {
    SCOPED_TRACE(Focus->objectName().toStdString());
    Click(Form.cmdBrowse);
    Focus->setFocus();
    for (const int Other : {Qt::Key_Delete, Qt::Key_A, Qt::Key_8}) QTest::keyClick(Focus, static_cast<Qt::Key>(Other));
    Form.lstEvents->setCurrentRow(Undo);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String("x.wav"));
    EXPECT_TRUE(Game.TakeLog().empty());
    QTest::keyClick(Focus, Qt::Key_Backspace);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String("undo.wav"));
    EXPECT_EQ(Game.TakeLog(), std::vector{Restored});
  }
  EXPECT_EQ(InfoFile(), InfoAtStart);
}

TEST_F(CustomizeSounds, RestoredSoundsAreStoredByOKAlone) {
  Settings.SetSound("Undo", "/own/x.wav");
  for (const bool OK : {false, true}) {
    frmCustomizeSounds Again(Game.game, Settings, &Owner);
    Again.show();
    QTest::keyClick(Again.lstEvents, Qt::Key_Backspace);
    Click(OK ? Again.cmdOK : Again.cmdCancel);
    EXPECT_EQ(Settings.GetSound("Undo"), OK ? Game.m.TempFolder + "undo.wav" : "/own/x.wav");
  }
}

/// The whole program, with the sounds in its own folder and the device recorded.
TEST(SoundsOfTheProgram, SwitchedOffNothingSoundsButTheTestDoes) {
  const SoundRecorder Recorder;
  const QTemporaryDir Place;
  WriteFile(Place.filePath(QStringLiteral("game.ini")), "[Info]\nScanned=True\nShowWelcomeMessage=False\n");
  Application Program(FoldersIn(Place), std::make_unique<ScriptedDice>());
  ASSERT_TRUE(Program.Main());
  EXPECT_FALSE(QFile::exists(Recorder.Path()));  // the start opens no device

  const auto Play = [&Program](const std::string& File) {
    Program.Screen.PlaySoundFile(File, false);
    EXPECT_TRUE(WaitFor([&] { return !Program.Player.IsPlaying(); }));
  };
  Program.Settings.setSoundDisabled(true);
  for (const Row& Each : Rows) Play(Program.View.GetSound(Each.Event));
  Play(Program.State.TempFolder + "overtop.wav");
  EXPECT_FALSE(QFile::exists(Recorder.Path()));

  bool Shown = false;
  QTimer::singleShot(0, Program.Form.get(), [&] {
    auto* Dialog = qobject_cast<frmCustomizeSounds*>(QApplication::activeModalWidget());
    ASSERT_NE(Dialog, nullptr);
    Shown = true;
    QTest::mouseClick(Dialog->cmdTest, Qt::LeftButton);
    EXPECT_TRUE(WaitFor([&] { return !Program.Player.IsPlaying(); }));
    QTest::mouseClick(Dialog->cmdCancel, Qt::LeftButton);
  });
  Program.CustomizeSounds();
  ASSERT_TRUE(Shown);
  EXPECT_NEAR(Recorder.Hear().Seconds, 0.5, 0.1);  // the fall of the blunko
  const double Once = Recorder.Hear().Seconds;

  Program.Settings.setSoundDisabled(false);
  Play(Program.State.TempFolder + "overtop.wav");
  EXPECT_GT(Recorder.Hear().Seconds, Once + 0.7);
  Program.ExitProgram();
}

}  // namespace
}  // namespace blunko::test

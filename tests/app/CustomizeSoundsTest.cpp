#include <QLineEdit>
#include <QListWidget>

#include "app/frmCustomizeSounds.h"
#include "tests/app/Run.h"

namespace blunko::test {
namespace {

const struct {
  const char *Event, *Caption, *File;
} Rows[] = {
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

class CustomizeSounds : public testing::Test {
 protected:
  QTemporaryDir Place;
  Folders Where = FoldersIn(Place);
  GameSettings Settings{Where};
  Table Game;
  QWidget Owner;
  frmCustomizeSounds Form{Game.game, Settings, &Owner};
  QString Answer = QStringLiteral("/own/x.wav"), Title;

  CustomizeSounds() {
    Game.m.TempFolder = Where.Temp.toStdString();
    Form.PickFile = [this](const QString& Asked) {
      Title = Asked;
      return Answer;
    };
    Form.show();
  }
  std::string Original(int Index) const { return Game.m.TempFolder + Rows[Index].File; }
  std::string Stored(int Index) const { return GameSettings(Where).GetSound(Rows[Index].Event); }
};

TEST_F(CustomizeSounds, EveryEntryOfTheListIsItsEventAndOKWritesAll) {
  ASSERT_EQ(Form.lstEvents->count(), static_cast<int>(std::size(Rows)));
  EXPECT_EQ(Form.lstEvents->currentRow(), 0);
  for (int i = 0; i < Form.lstEvents->count(); ++i) {
    SCOPED_TRACE(Rows[i].Event);
    EXPECT_EQ(Form.lstEvents->item(i)->text(), QLatin1String(Rows[i].Caption));
    Form.lstEvents->setCurrentRow(i);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String(Rows[i].File));
    Click(Form.cmdTest);
    EXPECT_EQ(Game.TakeLog(), Lines{"test sound " + Original(i)});
    Answer = QStringLiteral("/own music/%1 ü.wav").arg(i);
    Click(Form.cmdBrowse);
    EXPECT_EQ(Title, QStringLiteral("Select \"%1\" sound").arg(QLatin1String(Rows[i].Caption)));
    EXPECT_EQ(Form.txtSound->text(), QStringLiteral("%1 ü.wav").arg(i));
  }
  for (ButtonPlus* Button : {Form.cmdCancel, Form.cmdOK}) {
    Form.show();
    Click(Button);
    EXPECT_FALSE(Form.isVisible());
    for (int i = 0; i < Form.lstEvents->count(); ++i) {
      const std::string Own = "/own music/" + std::to_string(i) + " ü.wav";
      EXPECT_EQ(Settings.GetSound(Rows[i].Event), Button == Form.cmdOK ? Own : Original(i));
      EXPECT_EQ(Stored(i), Button == Form.cmdOK ? Own : Original(i));
    }
  }
}

TEST_F(CustomizeSounds, ADoubleClickBrowsesAndACancelledChoiceChangesNothing) {
  Answer = frmCustomizeSounds::NothingPicked;
  const QPoint Row = Form.lstEvents->visualItemRect(Form.lstEvents->item(Undo)).center();
  QTest::mouseClick(Form.lstEvents->viewport(), Qt::LeftButton, {}, Row);
  QTest::mouseDClick(Form.lstEvents->viewport(), Qt::LeftButton, {}, Row);
  EXPECT_EQ(Title, QLatin1String("Select \"Undo\" sound"));
  EXPECT_EQ(Form.txtSound->text(), QLatin1String("undo.wav"));
}

TEST_F(CustomizeSounds, BackspaceRestoresWhereverTheCursorIsAndOKAloneStoresIt) {
  Settings.SetSound("Undo", "/own/before.wav");
  QWidget* const Places[] = {Form.lstEvents, Form.txtSound, Form.cmdBrowse, Form.cmdTest, Form.cmdOK, Form.cmdCancel};
  for (QWidget* Focus : Places) {
    SCOPED_TRACE(Focus->objectName().toStdString());
    Form.lstEvents->setCurrentRow(Undo);
    Click(Form.cmdBrowse);
    Focus->setFocus();
    for (const auto Other : {Qt::Key_Delete, Qt::Key_A, Qt::Key_8}) QTest::keyClick(Focus, Other);
    Form.lstEvents->setCurrentRow(Undo);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String("x.wav"));
    QTest::keyClick(Focus, Qt::Key_Backspace);
    EXPECT_EQ(Form.txtSound->text(), QLatin1String("undo.wav"));
    EXPECT_EQ(Game.TakeLog(), Lines{"box Original Sounds Restored."});
  }
  EXPECT_EQ(Stored(Undo), "/own/before.wav");
  Click(Form.cmdOK);
  EXPECT_EQ(Stored(Undo), Original(Undo));
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

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>

#include <gmock/gmock.h>

#include "storage/FileAccess.h"
#include "table/DiceSets.h"
#include "table/OptionsPanel.h"
#include "tests/support/Place.h"
#include "tests/table/TableForm.h"

namespace blunko::test {

/// A program's folder with two pictures and these settings.
struct Home {
  Place Folder;
  Folders Where{Folder.Path(), "Game", Folder.Path(), {}};
  std::optional<GameSettings> Settings;

  explicit Home(const QByteArray& InfoText) {
    Folder.Put("Background/Forest.clr", "7");
    QImage Ground(40, 40, QImage::Format_RGB32);
    for (const auto& [Name, Colour] : {std::pair("Satin.jpg", Qt::white), {"Forest.jpg", Qt::darkGreen}}) {
      Ground.fill(Colour);
      Ground.save(Picture(Name));
    }
    Folder.Put("Game.ini", "[Info]\n" + InfoText);
    Settings.emplace(Where, IniInfo(Where.InfoPath()));
  }
  QString Picture(const QString& Name) const { return Folder.Path("Background/" + Name); }
};

/// A table with an options panel, and a person's game that may run.
struct DressedTable : Home, TableForm {
  OptionsPanel* Panel = new OptionsPanel(Form, game, *Settings, {Folder.Path("Background")});

  explicit DressedTable(const QByteArray& InfoText) : Home(InfoText), TableForm(&Settings->Options()) {
    Screen.OnEvents = [this] { Form.ShowControls(); };
    Others.OnShowOptions = [this] { Panel->Open(); };
    Others.OnSettleOptions = [this](bool Save) { Panel->Settle(Save); };
    Others.OnHideOptions = [this] { Panel->Close(); };
    Form.Wears.Trays = StartColour(Settings->DieColour);
    Form.Wears.TextColour = Settings->TextColour();
    Form.Wears.Background = Settings->Background;
  }
  /// With the given dice on the table; the first `Taken` of them lie in the tray.
  void Play(const char* Faces, int Taken) {
    Begin({"Ann", "Bob"});
    PressRoll(Digits(Faces));
    for (int i = 0; i < Taken; ++i) QTest::mouseClick(Box(i), Qt::LeftButton);
  }
  void ChooseSet(const char* Name) {
    Panel->cboDiceColor->setCurrentText(Name);
    emit Panel->cboDiceColor->activated(Panel->cboDiceColor->currentIndex());
  }
  void Close(bool Save) { (Save ? Panel->ARCmdSaveOptions : Panel->ARCmdCancelOptions)->click(); }
};

TEST(OptionsPanel, SaveKeepsEveryChoiceAndCancelTakesItBack) {
  for (const bool Save : {true, false}) {
    SCOPED_TRACE(Save ? "saved" : "cancelled");
    DressedTable Dressed("TextColor=3\n");
    OptionsPanel& Panel = *Dressed.Panel;
    frmMain& Form = Dressed.Form;
    const auto Ink = [&Form] { return Form.lblStatus->palette().color(QPalette::WindowText); };
    const auto Ground = [&Form] { return Form.Image1->grab().toImage().pixelColor(1, 1); };
    Form.cmdOptions->click();
    Panel.optComputerSpeed[2]->click();
    Panel.chkSortDice->click();
    Panel.chkMarkScorers->click();
    Panel.optSound[0]->click();
    QTest::keyClick(Panel.cboDiceColor, Qt::Key_Down);  // from Antique to Marbles
    Panel.lstSkin->setCurrentRow(1);                    // Forest, with white text
    EXPECT_TRUE(Panel.lblColor[7]->isChecked() && Panel.lstSkin->accessibleName().endsWith("Forest"));
    EXPECT_EQ(Ink(), QColor(Qt::white)) << "the colour of the picture shows at once";
    Panel.lblColor[7]->setFocus();
    QTest::keyClick(Panel.lblColor[7], Qt::Key_Left);
    EXPECT_EQ(Ink(), QColor(128, 255, 255)) << "the text is paler than the swatch";
    EXPECT_EQ(Form.Picture1[4]->Picture(), 154 + 5) << "the sample shows the clicked set";
    IniInfo(Dressed.Where.InfoPath()).WriteInfoValue("DieColor", "100");  // another copy's
    Dressed.Close(Save);

    const std::string Text = Dressed.Folder.Get("Game.ini").replace(Dressed.Folder.Path().toUtf8(), "").toStdString();
    EXPECT_EQ(Text, Save ? "[Info]\nTextColor=6\nDieColor=154\nComputerFast=2\nSoundFXOFF=True\nSortDice=False\n"
                           "MarkScorers=False\nBackground=/Background/Forest.jpg\n"
                         : "[Info]\nTextColor=3\nDieColor=112\nBackground=/Background/Satin.jpg\n");
    EXPECT_EQ(Ink(), Save ? QColor(128, 255, 255) : QColor(255, 255, 0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return (Ground().lightness() < 128) == Save; })) << "the background";
    Dressed.Folder.Put("Background/Forest.jpg", "no picture");
    Form.cmdOptions->click();
    EXPECT_EQ(Panel.lstSkin->currentRow(), Save ? 1 : 2) << "(None), Forest, Satin";
    Panel.lstSkin->setCurrentRow(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Ground() == Form.Image1->palette().color(QPalette::Window); })) << "plain";
    Dressed.Close(false);
    EXPECT_EQ(Form.Picture1[4]->Picture(), 0) << "no game, no dice";
    EXPECT_EQ(QApplication::focusWidget(), Form.ARCmdNewGame);
  }
}

TEST(OptionsPanel, TrayColoursFollowTheMomentAtWhichASetIsPainted) {
  // The set in the settings, the one that is clicked, and the trays at the start, with the panel open and at the end.
  const std::tuple<const char*, int, const char*, bool, QColor, QColor, QColor> Rows[] = {
      {"Clocks, cancelled", 124, nullptr, false, {192, 0, 0}, {28, 246, 164}, {192, 0, 0}},
      {"Pablo, clicked and saved", 118, "Pablo", true, {0, 0, 128}, {236, 238, 228}, {0, 0, 128}},
      {"a set that isn't offered", 166, nullptr, true, {0, 128, 0}, {0, 128, 0}, {0, 128, 0}},
      {"no set at all", -5, nullptr, true, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}},
  };
  for (const auto& [Why, Base, Click, Save, Start, Open, End] : Rows) {
    SCOPED_TRACE(Why);
    DressedTable Dressed("ComputerFast=7\nDieColor=" + QByteArray::number(Base) + "\n");
    EXPECT_EQ(Dressed.Form.Wears.Trays, Start);
    Dressed.Form.cmdOptions->click();
    EXPECT_EQ(Dressed.Form.Wears.Trays, Open);
    if (Click != nullptr) Dressed.ChooseSet(Click);
    Dressed.Close(Save);
    Dressed.Play("123446", 0);
    EXPECT_NE(FindDiceSet(Dressed.Box(1)->Picture() - 2), nullptr) << "a two doesn't look like another face";
    EXPECT_EQ(Dressed.Form.Wears.Trays, End);
    const GameSettings Kept(Dressed.Where, IniInfo(Dressed.Where.InfoPath()));
    EXPECT_EQ(Kept.DieColour, Base) << "a set off the list stays in the settings";
    EXPECT_EQ(Kept.ComputerSpeed, 7) << "and so does a speed that no choice stands for";
  }
}

TEST(DiceSets, HaveTheNumbersAndTrayColoursOfEver) {
  QByteArray All;
  for (int Base = 0; Base < 256; ++Base) {
    const DiceSet* Set = FindDiceSet(Base);
    if (Set == nullptr) continue;
    All += Set->Name + QByteArray(" ") + QByteArray::number(Base);
    for (const QRgb Colour : {Set->Start, Set->Open, Set->Pick}) All += " " + QColor(Colour).name().toLatin1();
    All += '\n';
  }
  EXPECT_EQ(All, ReadWholeFile(TBK_TEST_FILES "/table/diceSets.txt").value());
}

TEST(OptionsPanel, DiceOfARunningGameComeBackInTheChosenSetWithTheChosenMarks) {
  const std::tuple<const char*, const char*, int, bool> Rows[] = {
      {"none set aside", "152344", 0, true},
      {"one set aside, cancelled", "152344", 1, false},
      {"six in the tray", "123456", 1, true},
  };
  for (const auto& [Why, Faces, Taken, Save] : Rows) {
    SCOPED_TRACE(Why);
    DressedTable Dressed("SortDice=False\n");
    frmMain& Form = Dressed.Form;
    Dressed.Play(Faces, Taken);
    const TableControls Before = Dressed.t;
    EXPECT_EQ(Form.picMarker[1]->isVisible(), Before.picMarker[1]);
    Dressed.Form.cmdOptions->click();
    Dressed.ChooseSet("Blue");
    Dressed.Panel->chkMarkScorers->click();
    EXPECT_EQ(Form.Picture1[0]->Picture(), 101);
    EXPECT_FALSE(Form.cmdRoll->isEnabled() || Form.picMarker[1]->isVisible());
    Dressed.Close(Save);
    for (const int First : {0, 10}) {
      for (int i = First; i < First + Dice; ++i) {
        const int Was = Before.Picture1(i), Moved = Was != 0 && Save ? 100 - 112 : 0;
        EXPECT_EQ(Dressed.t.Picture1(i), Was + Moved) << "box " << i;
      }
    }
    EXPECT_EQ(Form.picMarker[1]->isVisible(), Before.picMarker[1] && !Save);
    EXPECT_EQ(QApplication::focusWidget(), Before.cmdRoll.Enabled ? Form.cmdRoll : static_cast<QWidget*>(&Form));
    EXPECT_EQ(Dressed.game.Fault(), "");
  }
}

TEST(OptionsPanel, OpensAtTheLeftOfATableThatStaysAndAPressOfBeforeIsNobodys) {
  DressedTable Dressed("");
  frmMain& Form = Dressed.Form;
  const QRect Before = Form.geometry();
  Form.cmdOptions->click();
  EXPECT_EQ(Form.geometry(), Before.adjusted(-126, 0, 0, 0));
  const QPointF Cancel = Dressed.Panel->ARCmdCancelOptions->mapTo(&Form, QPointF(9, 9));
  for (const int Off : {126, 0}) {  // px, the place on the screen from the place in the window
    for (const auto Type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent Event(Type, Cancel, Cancel, Form.mapToGlobal(Cancel) + QPointF(Off, 0), Qt::LeftButton,
                        Type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
      qApp->notify(Form.windowHandle(), &Event);
    }
    EXPECT_EQ(Dressed.m.PauseComputer, Off != 0);
  }
  EXPECT_EQ(Form.geometry(), Before);
}

}  // namespace blunko::test

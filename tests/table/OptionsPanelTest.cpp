#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "table/DiceSets.h"
#include "table/OptionsPanel.h"
#include "table/SettingsView.h"
#include "table/frmMain.h"
#include "tests/engine/Table.h"
#include "tests/storage/Place.h"

namespace blunko::test {
namespace {

using testing::Contains;

/// A table in its window with an options panel, two pictures in the folder, and a person's game that may run.
struct DressedTable {
  explicit DressedTable(const QByteArray& InfoText = {}) {
    Where.Program = Where.State = Folder.Path();
    Where.BaseName = QStringLiteral("Game");
    Folder.Put(QStringLiteral("Background/Forest.clr"), "7");
    for (const char* Name : {"Satin", "Forest"}) {
      QImage Picture(40, 40, QImage::Format_RGB32);
      Picture.fill(Qt::darkGreen);
      Picture.save(Path(QLatin1String(Name) + QStringLiteral(".jpg")));
    }
    Folder.Put(QStringLiteral("Game.ini"), "[Info]\n" + InfoText);
    Settings.emplace(Where);
    View.emplace(*Settings);
    Table.emplace(m, t, *View, Screen, Others, Numbers);
    Form.emplace(*Table);
    Screen.OnEvents = [this] { Form->ShowControls(); };
    const QColor Start = StartColour(Settings->DieColour());
    Form->PaintTrays(Start, Start);
    Panel = new OptionsPanel(*Form, *Table, *Settings, Where.Program + QStringLiteral("/Background"));
    Form->show();
  }
  QString Path(const QString& Name) const { return Where.Program + QStringLiteral("/Background/") + Name; }

  /// A person's game with the given dice on the table; the first `Taken` of them lie in the tray.
  void Begin(std::initializer_list<int> Faces, int Taken) {
    GameSetup Setup;
    Setup.NumPlayers = 2;
    Setup.Seats[0].Name = "Ann";
    Setup.Seats[1].Name = "Bob";
    Table->FreshGame(Setup);
    Numbers.Faces.assign(30, 6);
    Numbers.Faces.insert(Numbers.Faces.end(), Faces);
    Table->cmdRoll_Click();
    for (std::int16_t i = 0; i < Taken; ++i) Table->Picture1_MouseUp(i, LeftButton, 0, 0, 0);
    Form->ShowControls();
  }

  Place Folder;
  Folders Where;
  std::optional<GameSettings> Settings;
  std::optional<SettingsView> View;
  Module1 m;
  TableControls t;
  RecordingDesktop Screen{t};
  RecordingProgram Others{Screen.Log};
  ScriptedDice Numbers;
  std::optional<Game> Table;
  std::optional<frmMain> Form;
  OptionsPanel* Panel = nullptr;
};

TEST(OptionsPanel, SaveKeepsEveryChoiceAndCancelTakesItBack) {
  for (const bool Save : {true, false}) {
    SCOPED_TRACE(Save ? "saved" : "cancelled");
    DressedTable Dressed("TextColor=3\n");
    OptionsPanel& Panel = *Dressed.Panel;
    Panel.cmdOptions_Click();
    Panel.optComputerSpeed[2]->click();
    Panel.chkSortDice->click();
    Panel.chkMarkScorers->click();
    Panel.optSound[0]->click();
    QTest::keyClick(Panel.cboDiceColor, Qt::Key_Down);  // from Antique to Marbles
    Panel.lstSkin->setCurrentRow(1);                    // Forest, with white text
    EXPECT_TRUE(Panel.lblColor[7]->isChecked());
    EXPECT_EQ(Dressed.Form->lblStatus->ForeColor(), QColor(Qt::white)) << "the colour of the picture shows at once";
    Panel.lblColor[6]->click();
    EXPECT_EQ(Dressed.Form->lblStatus->ForeColor(), QColor(128, 255, 255)) << "the text is paler than the swatch";
    EXPECT_EQ(Dressed.Form->picTray1->BackColor(), QColor(128, 128, 255));
    EXPECT_EQ(Dressed.Form->Picture1[4]->Picture(), 154 + 5) << "the sample shows the clicked set";
    (Save ? Panel.ARCmdSaveOptions : Panel.ARCmdCancelOptions)->click();

    const GameSettings Again(Dressed.Where);
    EXPECT_EQ(Again.ComputerSpeed(), Save ? 2 : 0);
    EXPECT_EQ(Again.SortDice(), !Save);
    EXPECT_EQ(Again.MarkScorers(), !Save);
    EXPECT_EQ(Again.SoundDisabled(), Save);
    EXPECT_EQ(Again.DieColour(), Save ? 154 : 112);
    EXPECT_EQ(Again.Background(), Dressed.Path(Save ? QStringLiteral("Forest.jpg") : QStringLiteral("Satin.jpg")));
    EXPECT_EQ(Again.TextColourIndex(), Save ? 6 : 3) << "the ticked swatch wins over the picture's colour";
    EXPECT_EQ(Dressed.Form->lblStatus->ForeColor(), Save ? QColor(128, 255, 255) : QColor(255, 255, 0));
    EXPECT_EQ(Dressed.Form->picTray1->BackColor(), Save ? QColor(128, 128, 255) : QColor(166, 2, 2));
    EXPECT_EQ(Dressed.Form->Picture1[4]->Picture(), 0) << "no game, no dice";
    EXPECT_FALSE(Panel.isVisible());
  }
}

TEST(OptionsPanel, TrayColoursFollowTheMomentAtWhichASetIsPainted) {
  const struct {
    const char* Why;
    int Base;
    const char* Click;  ///< clicked in the list, null for none
    bool Save;
    QColor Start, Open, End;
  } Rows[] = {
      {"Clocks, saved", 124, nullptr, true, {192, 0, 0}, {28, 246, 164}, {28, 246, 164}},
      {"Clocks, cancelled", 124, nullptr, false, {192, 0, 0}, {28, 246, 164}, {192, 0, 0}},
      {"Pablo, saved", 118, nullptr, true, {0, 0, 128}, {236, 238, 228}, {236, 238, 228}},
      {"Pablo, clicked and saved", 118, "Pablo", true, {0, 0, 128}, {236, 238, 228}, {0, 0, 128}},
      {"a set that isn't offered", 166, nullptr, true, {0, 128, 0}, {0, 128, 0}, {0, 128, 0}},
      {"no set at all", 55, nullptr, true, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Why);
    DressedTable Dressed("DieColor=" + QByteArray::number(Row.Base) + "\n");
    EXPECT_EQ(Dressed.Form->picTray2->BackColor(), Row.Start);
    Dressed.Panel->cmdOptions_Click();
    EXPECT_EQ(Dressed.Form->picTray2->BackColor(), Row.Open);
    if (Row.Click != nullptr) {
      emit Dressed.Panel->cboDiceColor->activated(Dressed.Panel->cboDiceColor->findText(QLatin1String(Row.Click)));
    }
    (Row.Save ? Dressed.Panel->ARCmdSaveOptions : Dressed.Panel->ARCmdCancelOptions)->click();
    EXPECT_EQ(Dressed.Form->picTray1->BackColor(), Row.End);
    EXPECT_EQ(Dressed.Form->Picture1[0]->BackColor(), Row.End);
    EXPECT_EQ(GameSettings(Dressed.Where).DieColour(), Row.Base) << "a set off the list stays in the settings";
  }
}

TEST(OptionsPanel, DiceOfARunningGameComeBackInTheChosenSet) {
  const struct {
    const char* Why;
    std::initializer_list<int> Faces;
    int Taken;
    bool Save;
  } Rows[] = {
      {"two set aside", {1, 5, 2, 3, 4, 4}, 2, true},
      {"two set aside, cancelled", {1, 5, 2, 3, 4, 4}, 2, false},
      {"six in the tray", {1, 2, 3, 4, 5, 6}, 1, true},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Why);
    DressedTable Dressed("SortDice=False\n");
    Dressed.Begin(Row.Faces, Row.Taken);
    const TableControls Before = Dressed.t;
    Dressed.Panel->cmdOptions_Click();
    Dressed.Panel->cboDiceColor->setCurrentIndex(0);  // Blue
    emit Dressed.Panel->cboDiceColor->activated(0);
    EXPECT_EQ(Dressed.Form->Picture1[0]->Picture(), 101);
    EXPECT_FALSE(Dressed.Form->cmdRoll->isEnabled() || Dressed.Form->picMarker[0]->isVisible());
    (Row.Save ? Dressed.Panel->ARCmdSaveOptions : Dressed.Panel->ARCmdCancelOptions)->click();
    const int Moved = Row.Save ? 100 - 112 : 0;
    for (int i = 0; i < Dice; ++i) {
      for (const int Index : {i, 10 + i}) {
        const int Was = Before.Picture1(Index);
        EXPECT_EQ(Dressed.t.Picture1(Index), Was == 0 ? 0 : Was + Moved) << "box " << Index;
        EXPECT_EQ(Dressed.Form->Picture1[static_cast<std::size_t>(Index < 10 ? i : 6 + i)]->Picture(),
                  Dressed.t.Picture1(Index));
      }
    }
    EXPECT_EQ(Dressed.t.cmdRoll.Enabled, Before.cmdRoll.Enabled);
    EXPECT_EQ(Dressed.Form->cmdRoll->isEnabled(), Before.cmdRoll.Enabled);
    EXPECT_EQ(Dressed.Table->Fault(), "");
  }
}

TEST(OptionsPanel, MarksGoWhenTheyAreTurnedOffAndSaved) {
  for (const bool Save : {true, false}) {
    DressedTable Dressed("SortDice=False\n");
    Dressed.Begin({1, 5, 2, 3, 4, 4}, 0);
    EXPECT_TRUE(Dressed.Form->picMarker[1]->isVisible());
    Dressed.Panel->cmdOptions_Click();
    Dressed.Panel->chkMarkScorers->click();
    (Save ? Dressed.Panel->ARCmdSaveOptions : Dressed.Panel->ARCmdCancelOptions)->click();
    EXPECT_EQ(Dressed.Form->picMarker[1]->isVisible(), !Save);
  }
}

TEST(OptionsPanel, TheTableStandsStillAndKeepsItsPlace) {
  DressedTable Dressed;
  Dressed.Begin({1, 5, 2, 3, 4, 4}, 1);
  frmMain& Form = *Dressed.Form;
  Form.move(300, 200);
  const QPoint Place = Form.picGameTray->mapToGlobal(QPoint(0, 0));
  const QSize Size = Form.size();
  Dressed.Panel->cmdOptions_Click();
  EXPECT_EQ(Form.picGameTray->mapToGlobal(QPoint(0, 0)), Place);
  EXPECT_EQ(Form.size(), Size + QSize(126, 0)) << "1890 twips";
  EXPECT_TRUE(Dressed.m.PauseComputer);
  const auto Score = Dressed.m.TurnScore;
  QTest::mouseClick(Form.Picture1[1], Qt::LeftButton);
  QTest::mouseClick(Form.cmdRoll, Qt::LeftButton);
  for (const Qt::Key Key : {Qt::Key_5, Qt::Key_R, Qt::Key_P, Qt::Key_Backspace, Qt::Key_F2})
    QTest::keyClick(&Form, Key);
  EXPECT_EQ(Dressed.m.TurnScore, Score) << "nothing reaches the frozen table";
  Dressed.Panel->cmdOptions_Click();
  EXPECT_EQ(Form.size(), Size + QSize(126, 0)) << "the panel opens once";
  Dressed.Panel->ARCmdCancelOptions_Click();
  EXPECT_EQ(Form.picGameTray->mapToGlobal(QPoint(0, 0)), Place);
  EXPECT_EQ(Form.size(), Size);
  EXPECT_FALSE(Dressed.m.PauseComputer);
}

TEST(OptionsPanel, LeavesTheButtonsAsTheGameNeedsThemNow) {
  DressedTable Dressed;
  Dressed.Begin({1, 5, 2, 3, 4, 4}, 0);
  Dressed.t.cmdRoll.Enabled = false;
  Dressed.Panel->cmdOptions_Click();
  Dressed.t.cmdRoll.Enabled = true;  // a computer has played on and brought the dice to a person
  Dressed.Panel->ARCmdSaveOptions_Click();
  EXPECT_TRUE(Dressed.Form->cmdRoll->isEnabled());
}

TEST(OptionsPanel, SoundsTheOpening) {
  DressedTable Dressed("GameOverSound=/tmp/over.wav\n");
  Dressed.Screen.Log.clear();
  Dressed.Panel->cmdOptions_Click();
  EXPECT_THAT(Dressed.Screen.Log, Contains("sound /tmp/over.wav").Times(2));
}

TEST(OptionsPanel, OffersTheElevenSetsAndTheNamesOfThePictures) {
  DressedTable Dressed;
  Dressed.Panel->cmdOptions_Click();
  QStringList SetNames, Pictures;
  for (int i = 0; i < Dressed.Panel->cboDiceColor->count(); ++i) SetNames << Dressed.Panel->cboDiceColor->itemText(i);
  for (int i = 0; i < Dressed.Panel->lstSkin->count(); ++i) Pictures << Dressed.Panel->lstSkin->item(i)->text();
  EXPECT_EQ(SetNames.join(QLatin1Char(' ')),
            QStringLiteral("Blue Red Clouds Antique Marbles Patriot Pablo Clocks Bubbles Computer Digital"));
  EXPECT_EQ(Pictures, (QStringList{QStringLiteral("(None)"), QStringLiteral("Forest"), QStringLiteral("Satin")}));
  EXPECT_EQ(Dressed.Panel->lstSkin->currentRow(), 2);
}

TEST(OptionsPanel, APictureThatVanishedLeavesTheTableUsable) {
  DressedTable Dressed;
  Dressed.Panel->cmdOptions_Click();
  QFile::remove(Dressed.Path(QStringLiteral("Forest.jpg")));
  Dressed.Panel->lstSkin->setCurrentRow(1);
  EXPECT_TRUE(Dressed.Form->Image1->IsEmpty());
  Dressed.Panel->ARCmdSaveOptions_Click();
  EXPECT_EQ(GameSettings(Dressed.Where).Background(), Dressed.Path(QStringLiteral("Satin.jpg")))
      << "the next start finds a picture";
}

}  // namespace
}  // namespace blunko::test

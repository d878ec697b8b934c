#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "tests/app/Run.h"

namespace blunko::test {
namespace {

/// Text of the info file, with a bar for the byte that parts the fields.
QByteArray Fields(const QByteArray& Text) { return QByteArray(Text).replace('|', '\xA4'); }

class NewGame : public testing::Test {
 protected:
  QTemporaryDir Place;
  IniInfo Info{Place.filePath(QStringLiteral("game.ini"))};
  GameSettings Settings{FoldersIn(Place)};
  Table Game;
  QWidget Main;
  frmNewGame Form{Game.game, Info, Settings, &Main};
  Answers Next;

  /// Opens the dialog, does something in it, and closes it if that hasn't.
  void Open(const std::function<void()>& Do) {
    Next.Expect<frmNewGame>([&](frmNewGame&) {
      Do();
      Form.close();
    });
    Form.ShowModal();
  }
  void Choose(int Players) { Form.optNumPlayers[static_cast<std::size_t>(Players - 1)]->click(); }
  void Seat(std::size_t i, const char* Name, int Style = -1) {
    Form.TxtPlayerName[i]->setText(QString::fromUtf8(Name));
    Form.chkComputer[i]->setChecked(Style >= 0);
    if (Style >= 0) Form.cboStyle[i]->setCurrentIndex(Style);
  }
  /// The rows that are shown: name, "*" for a computer with its style, brackets round what can't be changed.
  std::string Rows() const {
    std::string All;
    for (std::size_t i = 0; i < 8; ++i) {
      const QLineEdit& Name = *Form.TxtPlayerName[i];
      const QCheckBox& Computer = *Form.chkComputer[i];
      EXPECT_EQ(Computer.isVisible(), Name.isVisible()) << i;
      EXPECT_EQ(Computer.isEnabled(), Name.isEnabled()) << i;
      EXPECT_EQ(Form.cboStyle[i]->isVisible(), Computer.isChecked()) << i;
      if (!Name.isVisible()) continue;
      const std::string Text = Name.text().toStdString();
      All += (All.empty() ? "" : ", ") + (Name.isEnabled() ? Text : '[' + Text + ']');
      if (Computer.isChecked()) All += " *" + Form.cboStyle[i]->currentText().toStdString();
    }
    return All;
  }
  std::string Limits() const {
    return std::string(Form.optPlayTo[0]->isChecked() ? "5000" : "10000") +
           (Form.optBreakIn[0]->isChecked() ? " 500" : " 1000");
  }
  std::string Begun() const {
    return std::to_string(Game.m.NumPlayers) + ' ' + Game.m.PlayerName[0] + ' ' + std::to_string(Game.m.PlayToScore);
  }
};

TEST_F(NewGame, EveryNumberOfPlayersHasItsLayout) {
  Open([&] {
    EXPECT_EQ(Rows() + ' ' + Limits(), "Player1, [Computer] *Normal 5000 500");
    EXPECT_EQ(Form.focusWidget(), Form.cmdPlay);
    EXPECT_EQ(Game.TakeLog(), Lines{"beep"});
    for (int n : {8, 1, 2, 3, 4, 5, 6, 7, 8}) {
      SCOPED_TRACE(n);
      Seat(0, "Ann", 3);
      Choose(n);
      std::string Expected = n == 1 ? "Player1, [Computer] *Normal" : "Player1";
      for (int i = 2; i <= n; ++i) Expected += ", Player" + std::to_string(i);
      EXPECT_EQ(Rows(), Expected);
      EXPECT_EQ(Form.cboStyle[0]->currentText(), QLatin1String("Normal"));
      QTest::qWait(0);
      ExpectNothingCut(Form);
    }
  });
}

TEST_F(NewGame, SaveWritesWhatIsShownToTheLetter) {
  using Seats = std::vector<std::tuple<std::size_t, const char*, int>>;  // seat, name, list index of a computer or -1
  const auto Check = [this](int Count, const Seats& Chosen, const QByteArray& Names, const QByteArray& Computers,
                            const QByteArray& Styles) {
    SCOPED_TRACE(Count);
    const QByteArray Unused = QByteArray("~|").repeated(8 - Count);
    std::string Expected;
    Open([&] {
      Choose(Count);
      for (const auto& [Index, Name, Style] : Chosen) Seat(Index, Name, Style);
      for (const auto& Options : {Form.optPlayTo, Form.optBreakIn}) Options[Count % 2 == 0 ? 1 : 0]->click();
      Expected = Rows() + ' ' + Limits();
      Lines Captions;
      Game.Screen.OnSleep = [&] { Captions.push_back(Form.cmdSetDefault->text().toStdString()); };
      Game.TakeLog();
      Click(Form.cmdSetDefault);
      EXPECT_EQ(Captions, (Lines{"Saving...", "Done..."}));
      EXPECT_EQ(Form.cmdSetDefault->text(), QLatin1String("Save Game Setup as Default"));
      EXPECT_EQ(Game.TakeLog(), (Lines{"sleep 400", "beep", "sleep 400"}));
    });
    const QByteArray Written = BytesOf(Info.InfoPath);
    for (const QByteArray& Line :
         {"defNumPlayers=" + QByteArray::number(Count), "defPlayerNameString=" + Names + Unused,
          "defPlayerIsCompString=" + Computers + Unused, "defPlayerStyleString=" + Styles}) {
      EXPECT_TRUE(Written.contains(Fields(Line) + '\n')) << Written.toStdString();
    }
    if (Names.contains('~')) return;  // a name that is the mark of an unused seat
    Open([&] { EXPECT_EQ(Rows() + ' ' + Limits(), Expected); });
  };
  Check(3, {{0, "Ann", -1}, {1, "Box", 5}, {2, "Zoë", -1}}, "Ann|Box|Zo\xEB|", "False|True|False|",
        "00|5|22|33|44|55|66|77|");
  Check(1, {{1, "Computer", 6}}, "Player1|", "False|", "00|6|22|33|44|55|66|77|");
  Check(8, {{0, "", 0}, {1, "", 1}, {2, "", 2}, {3, "", 3}, {4, "", 4}, {5, "", 5}, {6, "", 6}, {7, "", 1}}, "||||||||",
        QByteArray("True|").repeated(8), "0|1|2|3|4|5|6|1|");
  Check(2, {{0, "a;b", -1}, {1, "~", -1}}, "a;b|~|", "False|False|", "00|11|22|33|44|55|66|77|");
}

TEST_F(NewGame, ADamagedSetupOpensSoundly) {
  const std::string Default = "Player1, [Computer] *Normal";
  const std::pair<const char*, std::string> Cases[] = {
      {"defNumPlayers=0", Default},
      {"defNumPlayers=99999999999", Default},
      {"defPlayerStyleString=00|-1|", Default},
      {"defPlayerStyleString=00|6", "Player1, [Computer] *Moron"},
      {"defNumPlayers=3\ndefPlayerNameString=Ann\ndefPlayerIsCompString=True\ndefPlayerStyleString=5",
       "Ann *Genius, Player2, Player3"},
      {"defNumPlayers=3\ndefPlayerNameString=Ann|Bob|Cid|\ndefPlayerIsCompString=true|True|1|\n"
       "defPlayerStyleString=|||",
       "Ann, Bob *Normal, Cid"},
      {"defNumPlayers=2\ndefPlayerNameString=ABCDEFGHIJKLMNOPQ|\x80"
       "B\x01"
       "c|",
       "ABCDEFGHIJKLMN, Bc *Normal"},
      {"defPlayToScore=7\ndefBreakInScore=x", Default},
  };
  for (const auto& [Keys, Expected] : Cases) {
    SCOPED_TRACE(Keys);
    Put(Info.InfoPath, "[Info]\n" + Fields(Keys) + "\n");
    Open([&] { EXPECT_EQ(Rows() + ' ' + Limits(), Expected + " 5000 500"); });
  }
}

TEST_F(NewGame, PlayReadsEverySeatAndRestartWordsNeedNoDialog) {
  const auto Word = [&](const char* Restart) {
    Game.m.FormMessage = Restart;
    Game.m.NumPlayers = 0;
    Form.ShowModal();
    EXPECT_EQ(Game.m.FormMessage, "");
    return Begun();
  };
  EXPECT_EQ(Word("RestartGame"), "2 Player1 5000");  // before any dialog
  Open([&] {
    Choose(3);
    Seat(0, "");
    Seat(1, "Box", 5);
    Seat(2, "Zoë");
    Form.optPlayTo[1]->click();
    Form.optBreakIn[1]->click();
    QTest::keyClick(Form.cmdPlay, Qt::Key_Return);
  });
  EXPECT_EQ(Begun(), "3  10000");
  EXPECT_EQ(Game.m.PlayerName[2], "Zoë");
  EXPECT_TRUE(Game.m.PlayerIsComputer[1] && !Game.m.PlayerIsComputer[2]);
  EXPECT_EQ(Game.m.PlayerStyle[1], Genius);
  EXPECT_EQ(Game.m.BreakInScore, 1000);
  Open([&] {
    Choose(7);
    Seat(0, "Bob");
    Click(Form.cmdSetDefault);
    Choose(5);
  });
  EXPECT_EQ(Word("SameGame"), "3  10000");
  EXPECT_EQ(Word("RestartGame"), "7 Bob 5000");
  EXPECT_EQ(Word("SameGame"), "7 Bob 5000");
}

TEST_F(NewGame, LeavingItBeginsNothing) {
  Game.m.FormMessage = "x";
  for (QWidget* Focus : {static_cast<QWidget*>(&Form), static_cast<QWidget*>(Form.TxtPlayerName[0])}) {
    Game.t.cmdRoll.Enabled = true;
    Open([&] { QTest::keyClick(Focus, Qt::Key_Escape); });
    EXPECT_FALSE(Game.t.cmdRoll.Enabled);
    EXPECT_EQ(Game.m.FormMessage, "x");
    EXPECT_EQ(Game.m.GameNumber, 0U);
  }
}

TEST_F(NewGame, NamesHoldWhatTheFilesCanCarry) {
  QApplication::clipboard()->setText(QString::fromUtf8("Zoë¤€Ж🎲\t&ÿñß"));
  Form.TxtPlayerName[0]->paste();
  EXPECT_EQ(Form.TxtPlayerName[0]->text(), QString::fromUtf8("Zoë&ñß"));
}

}  // namespace
}  // namespace blunko::test

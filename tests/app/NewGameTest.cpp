#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "table/Twips.h"
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
    const auto Digits = [](const auto& Options) {
      return std::string{Options[0]->isChecked() ? '1' : '0', Options[1]->isChecked() ? '1' : '0'};
    };
    return Digits(Form.optPlayTo) + ' ' + Digits(Form.optBreakIn);
  }
  std::string Begun() const {
    return std::to_string(Game.m.NumPlayers) + ' ' + Game.m.PlayerName[0] + ' ' + std::to_string(Game.m.PlayToScore);
  }
};

TEST_F(NewGame, EveryNumberOfPlayersHasItsLayout) {
  const QStringList Words{"One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight"};
  Open([&] {
    EXPECT_EQ(Rows() + ' ' + Limits(), "Player1, [Computer] *Normal 10 10");
    EXPECT_EQ(Form.focusWidget(), Form.cmdPlay);
    EXPECT_EQ(Game.TakeLog(), Lines{"beep"});
    EXPECT_EQ(Form.windowTitle(), QLatin1String(" Start New Game - Tollmoor Blunko"));
    EXPECT_EQ(Form.y(), Main.y() + Pixels(1550));
    for (int n : {8, 1, 2, 3, 4, 5, 6, 7, 8}) {
      SCOPED_TRACE(n);
      EXPECT_EQ(Form.optNumPlayers[static_cast<std::size_t>(n - 1)]->text(), Words[n - 1]);
      Seat(0, "Ann", 3);
      Choose(n);
      std::string Expected = n == 1 ? "Player1, [Computer] *Normal" : "Player1";
      for (int i = 2; i <= n; ++i) Expected += ", Player" + std::to_string(i);
      EXPECT_EQ(Rows(), Expected);
      EXPECT_EQ(Form.cboStyle[0]->currentText(), QLatin1String("Normal"));
      EXPECT_GE(Form.height(), Pixels(3495 + 360 * std::max(n - 2, 0)));
      QTest::qWait(0);
      for (const QWidget* Control : Form.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!Control->isVisible()) continue;
        EXPECT_TRUE(Form.rect().contains(Control->geometry())) << Control->metaObject()->className();
        const bool Edit = qobject_cast<const QLineEdit*>(Control) != nullptr;
        EXPECT_GE(Control->width(), Edit ? 0 : Control->minimumSizeHint().width());
      }
    }
  });
}

TEST_F(NewGame, SaveWritesWhatIsShownToTheLetter) {
  const QByteArray None = "~|";
  const struct {
    const char* What;
    int Count;
    std::vector<std::tuple<std::size_t, const char*, int>> Seats;  ///< seat, name, list index of a computer or -1
    QByteArray Names, Computers, Styles;
  } Cases[] = {
      {"three, one of them Genius",
       3,
       {{0, "Ann", -1}, {1, "Box", 5}, {2, "Zoë", -1}},
       "Ann|Box|Zo\xEB|" + None.repeated(5),
       "False|True|False|" + None.repeated(5),
       "00|5|22|33|44|55|66|77|"},
      {"one against Moron",
       1,
       {{1, "Computer", 6}},
       "Player1|" + None.repeated(7),
       "False|" + None.repeated(7),
       "00|6|22|33|44|55|66|77|"},
      {"eight computers",
       8,
       {{0, "", 0}, {1, "", 1}, {2, "", 2}, {3, "", 3}, {4, "", 4}, {5, "", 5}, {6, "", 6}, {7, "", 1}},
       QByteArray("|").repeated(8),
       QByteArray("True|").repeated(8),
       "0|1|2|3|4|5|6|1|"},
      {"two persons",
       2,
       {{0, "a;b", -1}, {1, "~", -1}},
       "a;b|~|" + None.repeated(6),
       "False|False|" + None.repeated(6),
       "00|11|22|33|44|55|66|77|"},
  };
  for (const auto& Case : Cases) {
    SCOPED_TRACE(Case.What);
    std::string Expected;
    Open([&] {
      Choose(Case.Count);
      for (const auto& [Index, Name, Style] : Case.Seats) Seat(Index, Name, Style);
      const std::size_t Limit = Case.Count % 2 == 0 ? 1 : 0;
      Form.optPlayTo[Limit]->click();
      Form.optBreakIn[Limit]->click();
      Expected = Rows() + ' ' + Limits();
      Lines Captions;
      Game.Screen.OnSleep = [&] { Captions.push_back(Form.cmdSetDefault->text().toStdString()); };
      Game.TakeLog();
      Click(Form.cmdSetDefault);
      EXPECT_EQ(Captions, (Lines{"Saving...", "Done..."}));
      EXPECT_EQ(Form.cmdSetDefault->text(), QLatin1String("Save Game Setup as Default"));
      EXPECT_EQ(Game.TakeLog(), (Lines{"sleep 400", "beep", "sleep 400"}));
      EXPECT_TRUE(Form.isVisible());
    });
    const QByteArray Written = BytesOf(Info.InfoPath);
    EXPECT_TRUE(Written.contains("defNumPlayers=" + QByteArray::number(Case.Count) + '\n'));
    for (const QByteArray& Line : {"defPlayerNameString=" + Case.Names, "defPlayerIsCompString=" + Case.Computers,
                                   "defPlayerStyleString=" + Case.Styles}) {
      EXPECT_TRUE(Written.contains(Fields(Line) + '\n')) << Written.toStdString();
    }
    if (Case.Count == 2) continue;  // whose second name is the mark of an unused seat
    Open([&] { EXPECT_EQ(Rows() + ' ' + Limits(), Expected); });
  }
}

TEST_F(NewGame, ADamagedSetupOpensSoundly) {
  const std::string Default = "Player1, [Computer] *Normal";
  const std::pair<const char*, std::string> Cases[] = {
      {"defNumPlayers=0", Default},
      {"defNumPlayers=9", Default},
      {"defNumPlayers=two", Default},
      {"defNumPlayers=99999999999", Default},
      {"defPlayerStyleString=", Default},
      {"defPlayerStyleString=00|9|", Default},
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
    Open([&] { EXPECT_EQ(Rows() + ' ' + Limits(), Expected + " 10 10"); });
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
    Click(Form.cmdPlay);
  });
  EXPECT_EQ(Begun(), "3  10000");
  EXPECT_EQ(Game.m.CurrentPlayer, 0);
  EXPECT_EQ(Game.m.PlayerName[2], "Zoë");
  EXPECT_TRUE(Game.m.PlayerIsComputer[1] && !Game.m.PlayerIsComputer[2]);
  EXPECT_EQ(Game.m.PlayerStyle[1], Genius);
  EXPECT_EQ(Game.m.BreakInScore, 1000);
  EXPECT_TRUE(Game.t.cmdRoll.Visible && Game.t.cmdRoll.Enabled);
  EXPECT_EQ(Word("SameGame"), "3  10000");

  Open([&] {
    Choose(7);
    Seat(0, "Bob");
    Click(Form.cmdSetDefault);
    Choose(5);
  });
  EXPECT_EQ(Word("SameGame"), "3  10000");
  EXPECT_EQ(Word("RestartGame"), "7 Bob 5000");
  EXPECT_EQ(Word("SameGame"), "7 Bob 5000");
  Open([&] { QTest::keyClick(Form.cmdPlay, Qt::Key_Return); });  // the saved setup
  EXPECT_EQ(Begun(), "7 Bob 5000");
}

TEST_F(NewGame, LeavingItBeginsNothing) {
  const std::function<void()> Ways[] = {[&] { Click(Form.cmdCancel); }, [&] { QTest::keyClick(&Form, Qt::Key_Escape); },
                                        [&] { QTest::keyClick(Form.TxtPlayerName[0], Qt::Key_Escape); },
                                        [&] { Form.close(); }};
  for (const auto& Leave : Ways) {
    Game.m.FormMessage = "x";
    Game.t.cmdRoll.Enabled = true;
    Open([&] {
      Leave();
      EXPECT_FALSE(Form.isVisible());
    });
    EXPECT_FALSE(Game.t.cmdRoll.Enabled);
    EXPECT_EQ(Game.m.FormMessage, "x");
    EXPECT_EQ(Game.m.GameNumber, 0U);
  }
}

TEST_F(NewGame, NamesHoldWhatTheFilesCanCarry) {
  Open([&] {
    QLineEdit* Name = Form.TxtPlayerName[0];
    Name->setFocus();
    QTest::qWait(10);
    EXPECT_EQ(Name->selectedText(), Name->text());
    for (const char* Letter : {"a", "¤", "b", "€", "Ж", "c", "🎲"}) {
      QKeyEvent Typed(QEvent::KeyPress, Qt::Key_unknown, {}, QString::fromUtf8(Letter));
      QApplication::sendEvent(Name, &Typed);
    }
    QTest::keyClicks(Name, QStringLiteral("defghijklmnop"));
    EXPECT_EQ(Name->text(), QLatin1String("abcdefghijklmn"));
    QApplication::clipboard()->setText(QString::fromUtf8("Zoë¤ & Жуж 🎲 Ÿ\tüñß 0123456789"));
    Name->selectAll();
    Name->paste();
    EXPECT_TRUE(Name->text().startsWith(QString::fromUtf8("Zoë & "))) << Name->text().toStdString();
    EXPECT_LE(Name->text().size(), 14);
    for (const QChar Letter : Name->text()) EXPECT_TRUE(Letter.unicode() < 0xFF && Letter.unicode() != 0xA4);
  });
}

}  // namespace
}  // namespace blunko::test

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "app/frmNewGame.h"
#include "table/Twips.h"
#include "tests/app/Run.h"
#include "tests/engine/Table.h"

namespace blunko::test {
namespace {

using Lines = std::vector<std::string>;

/// Text of the info file, with a bar for the byte that parts the fields.
QByteArray Fields(const QByteArray& Text) { return QByteArray(Text).replace('|', '\xA4'); }

class NewGame : public testing::Test {
 protected:
  QTemporaryDir Place;
  Folders Where = FoldersIn(Place);
  IniInfo Info{Place.filePath(QStringLiteral("game.ini"))};
  GameSettings Settings{Where};
  Table Game;
  QWidget Main;
  frmNewGame Form{Game.game, Info, Settings, &Main};
  Answers Next;

  /// Opens the dialog, does something in it, and closes it if that hasn't.
  void Open(const std::function<void()>& Do) {
    bool Opened = false;
    Next.Expect<frmNewGame>([&](frmNewGame& Shown) {
      Opened = true;
      Do();
      if (Shown.isVisible()) Click(Shown.cmdCancel);
    });
    Form.ShowModal();
    EXPECT_TRUE(Opened);
  }
  static void Click(QAbstractButton* Button) {
    if (qobject_cast<QPushButton*>(Button) != nullptr) return QTest::mouseClick(Button, Qt::LeftButton);
    QTest::mouseClick(Button, Qt::LeftButton, {}, QPoint(8, Button->height() / 2));
  }
  void Put(const QByteArray& Bytes) {
    QFile File(Info.InfoPath);
    ASSERT_TRUE(File.open(QIODevice::WriteOnly));
    File.write(Bytes);
  }
  int Count() const {
    for (int i = 0; i < 8; ++i) {
      if (Form.optNumPlayers[static_cast<std::size_t>(i)]->isChecked()) return i + 1;
    }
    return 0;
  }
  /// The rows that are shown: name, "*" for a computer with its style, brackets round what can't be changed.
  std::string Rows() const {
    std::string All;
    for (std::size_t i = 0; i < 8; ++i) {
      EXPECT_EQ(Form.chkComputer[i]->isVisible(), Form.TxtPlayerName[i]->isVisible()) << i;
      EXPECT_EQ(Form.cboStyle[i]->isVisible(), Form.chkComputer[i]->isChecked()) << i;
      EXPECT_EQ(Form.cboStyle[i]->isEnabled(), Form.chkComputer[i]->isChecked()) << i;
      EXPECT_EQ(Form.chkComputer[i]->isEnabled(), Form.TxtPlayerName[i]->isEnabled()) << i;
      if (!Form.TxtPlayerName[i]->isVisible()) {
        EXPECT_FALSE(Form.chkComputer[i]->isChecked()) << i;
        continue;
      }
      std::string Name = Form.TxtPlayerName[i]->text().toStdString();
      if (!Form.TxtPlayerName[i]->isEnabled()) Name = '[' + Name + ']';
      All += (All.empty() ? "" : ", ") + Name;
      if (Form.chkComputer[i]->isChecked()) All += " *" + Form.cboStyle[i]->currentText().toStdString();
    }
    return All;
  }
  std::string Limits() const {
    return std::string(Form.optPlayTo[0]->isChecked()   ? "5000"
                       : Form.optPlayTo[1]->isChecked() ? "10000"
                                                        : "-") +
           ' ' +
           (Form.optBreakIn[0]->isChecked()   ? "500"
            : Form.optBreakIn[1]->isChecked() ? "1000"
                                              : "-");
  }
};

TEST_F(NewGame, FirstOpensWithOnePlayerAndWritesTheDefaults) {
  Open([&] {
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Rows(), "Player1, [Computer] *Normal");
    EXPECT_EQ(Limits(), "5000 500");
    EXPECT_EQ(Form.focusWidget(), Form.cmdPlay);
    EXPECT_EQ(Game.TakeLog(), Lines{"beep"});
    EXPECT_EQ(Form.windowTitle(), QLatin1String(" Start New Game - Tollmoor Blunko"));
    EXPECT_EQ(Form.y(), Main.y() + Pixels(1550));
  });
  const QByteArray Written = BytesOf(Info.InfoPath);
  for (const char* Line : {"defPlayerNameString=Player1|Player2|Player3|Player4|Player5|Player6|Player7|Player8\n",
                           "defPlayerIsCompString=False|True|True|True|True|True|True|True|\n",
                           "defPlayerStyleString=00|0|22|33|44|55|66|77|\n"}) {
    EXPECT_TRUE(Written.contains(Fields(Line))) << Line;
  }
}

TEST_F(NewGame, EveryNumberOfPlayersHasItsLayout) {
  const char* const Words[] = {"One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight"};
  Open([&] {
    int Before = 0;
    for (int n : {8, 1, 2, 3, 4, 5, 6, 7, 8}) {
      SCOPED_TRACE(n);
      QRadioButton* Option = Form.optNumPlayers[static_cast<std::size_t>(n - 1)];
      EXPECT_EQ(Option->text(), QLatin1String(Words[n - 1]));
      Form.TxtPlayerName[0]->setText(QStringLiteral("Ann"));
      if (!Form.chkComputer[0]->isChecked()) Click(Form.chkComputer[0]);
      Form.cboStyle[0]->setCurrentIndex(3);
      Click(Option);
      std::string Expected = n == 1 ? "Player1, [Computer] *Normal" : "Player1";
      for (int i = 2; i <= n; ++i) Expected += ", Player" + std::to_string(i);
      EXPECT_EQ(Rows(), Expected);
      EXPECT_EQ(Form.cboStyle[0]->currentText(), QLatin1String("Normal"));

      EXPECT_GE(Form.height(), Pixels(3495 + 360 * std::max(n - 2, 0)));
      if (Before != 0) {
        EXPECT_EQ(Form.height(), n == 2 ? Before : Before + 24);
      }
      Before = n == 8 ? 0 : Form.height();
      EXPECT_GE(Form.width(), Pixels(6000));
      QTest::qWait(0);
      for (const QWidget* Control : Form.findChildren<QWidget*>()) {
        if (!Control->isVisible() || Control->parent() != &Form) continue;
        EXPECT_TRUE(Form.rect().contains(Control->geometry())) << Control->metaObject()->className();
        const bool Text = qobject_cast<const QLabel*>(Control) != nullptr ||
                          qobject_cast<const QAbstractButton*>(Control) != nullptr ||
                          qobject_cast<const QGroupBox*>(Control) != nullptr;
        EXPECT_GE(Control->width(), Text ? Control->minimumSizeHint().width() : 0)
            << Control->metaObject()->className();
      }
      for (int i = 1; i < std::max(n, 2); ++i) {
        const auto Row = static_cast<std::size_t>(i);
        EXPECT_EQ(Form.TxtPlayerName[Row]->y() - Form.TxtPlayerName[Row - 1]->y(), 24);
        EXPECT_GT(Form.chkComputer[Row]->x(), Form.TxtPlayerName[Row]->geometry().right());
      }
    }
  });
}

TEST_F(NewGame, SaveWritesWhatIsShownToTheLetter) {
  struct Row {
    const char* What;
    int Count;
    std::vector<std::tuple<int, const char*, int>> Seats;  ///< seat, name, list index of a computer or -1
    QByteArray Names, Computers, Styles;
  };
  const QByteArray None = "~|";
  const Row Cases[] = {
      {"three, one of them Genius",
       3,
       {{0, "Ann", -1}, {1, "Box", 5}, {2, "Zo\xEB", -1}},
       "Ann|Box|Zo\xEB|" + None.repeated(5),
       "False|True|False|" + None.repeated(5),
       "00|5|22|33|44|55|66|77|"},
      {"one against Moron",
       1,
       {{1, nullptr, 6}},
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
  for (const Row& Case : Cases) {
    SCOPED_TRACE(Case.What);
    std::string Expected, ExpectedLimits;
    Open([&] {
      Click(Form.optNumPlayers[static_cast<std::size_t>(Case.Count - 1)]);
      for (const auto& [Seat, Name, Style] : Case.Seats) {
        const auto i = static_cast<std::size_t>(Seat);
        if (Name != nullptr) Form.TxtPlayerName[i]->setText(QString::fromLatin1(Name));
        if (Style >= 0 && !Form.chkComputer[i]->isChecked()) Click(Form.chkComputer[i]);
        if (Style >= 0) Form.cboStyle[i]->setCurrentIndex(Style);
      }
      Click(Form.optPlayTo[Case.Count % 2 == 0 ? 1 : 0]);
      Click(Form.optBreakIn[Case.Count % 2 == 0 ? 1 : 0]);
      Expected = Rows();
      ExpectedLimits = Limits();

      Lines Captions{Form.cmdSetDefault->text().toStdString()};
      Game.Screen.OnSleep = [&] { Captions.push_back(Form.cmdSetDefault->text().toStdString()); };
      Game.TakeLog();
      Click(Form.cmdSetDefault);
      Captions.push_back(Form.cmdSetDefault->text().toStdString());
      EXPECT_EQ(Captions, (Lines{"Save Game Setup as Default", "Saving...", "Done...", "Save Game Setup as Default"}));
      EXPECT_EQ(Game.TakeLog(), (Lines{"sleep 400", "beep", "sleep 400"}));
      EXPECT_TRUE(Form.isVisible());
    });
    const QByteArray Written = BytesOf(Info.InfoPath);
    EXPECT_TRUE(Written.contains("defNumPlayers=" + QByteArray::number(Case.Count) + '\n'));
    EXPECT_TRUE(Written.contains(Fields("defPlayerNameString=" + Case.Names) + '\n')) << Written.toStdString();
    EXPECT_TRUE(Written.contains(Fields("defPlayerIsCompString=" + Case.Computers) + '\n')) << Written.toStdString();
    EXPECT_TRUE(Written.contains(Fields("defPlayerStyleString=" + Case.Styles) + '\n')) << Written.toStdString();
    if (Case.What != std::string("two persons")) {  // whose second name is the mark of an unused seat
      Open([&] {
        EXPECT_EQ(Rows(), Expected);
        EXPECT_EQ(Limits(), ExpectedLimits);
      });
    }
  }
  EXPECT_EQ(Form.cmdSetDefault->toolTip(),
            QLatin1String(" Click here to make Tollmoor Blunko always start with this game setup (same players and "
                          "scoring options.) "));
}

TEST_F(NewGame, ADamagedSetupOpensSoundly) {
  const std::string Default = "Player1, [Computer] *Normal";
  const std::pair<const char*, std::string> Cases[] = {
      {"defNumPlayers=0", Default},
      {"defNumPlayers=9", Default},
      {"defNumPlayers=-3", Default},
      {"defNumPlayers=two", Default},
      {"defNumPlayers=99999999999", Default},
      {"defPlayerStyleString=", Default},
      {"defPlayerStyleString=00|9|", Default},
      {"defPlayerStyleString=00|-1|", Default},
      {"defPlayerStyleString=00|Genius|", Default},
      {"defPlayerStyleString=00", Default},
      {"defPlayerStyleString=00|6", "Player1, [Computer] *Moron"},
      {"defplayerSTYLEstring=00|4|", "Player1, [Computer] *Random"},
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
    Put("[Info]\n" + Fields(Keys) + "\n");
    Open([&] {
      EXPECT_EQ(Rows(), Expected);
      EXPECT_EQ(Limits(), "5000 500");
    });
  }
}

TEST_F(NewGame, PlayReadsEverySeat) {
  Open([&] {
    Click(Form.optNumPlayers[2]);
    Form.TxtPlayerName[0]->clear();
    Form.TxtPlayerName[2]->setText(QString::fromUtf8("Zoë"));
    Click(Form.chkComputer[1]);
    Form.cboStyle[1]->setCurrentIndex(5);
    Click(Form.optPlayTo[1]);
    Click(Form.optBreakIn[1]);
    Click(Form.cmdPlay);
  });
  EXPECT_EQ(Game.m.NumPlayers, 3);
  EXPECT_EQ(Game.m.CurrentPlayer, 0);
  EXPECT_EQ(Game.m.PlayerName[0], "");
  EXPECT_EQ(Game.m.PlayerName[2], "Zo\xC3\xAB");
  EXPECT_TRUE(Game.m.PlayerIsComputer[1]);
  EXPECT_EQ(Game.m.PlayerStyle[1], Genius);
  EXPECT_EQ(Game.m.PlayToScore, 10000);
  EXPECT_EQ(Game.m.BreakInScore, 1000);
  EXPECT_TRUE(Game.t.cmdRoll.Visible && Game.t.cmdRoll.Enabled);

  Open([&] { QTest::keyClick(Form.cmdPlay, Qt::Key_Return); });  // the saved setup again
  EXPECT_EQ(Game.m.NumPlayers, 2);
  EXPECT_EQ(Game.m.PlayerName[1], "Computer");
  EXPECT_TRUE(Game.m.PlayerIsComputer[1]);
  EXPECT_EQ(Game.m.PlayerStyle[1], Normal);
  EXPECT_EQ(Game.m.PlayToScore, 5000);
  EXPECT_EQ(Game.game.Fault(), "");
}

TEST_F(NewGame, RestartWordsBeginAGameWithoutTheDialog) {
  const auto Word = [&](const char* Restart) {
    Game.m.FormMessage = Restart;
    Game.m.NumPlayers = 0;
    Form.ShowModal();
    EXPECT_EQ(Game.m.FormMessage, "");
    EXPECT_FALSE(Form.isVisible());
    return std::to_string(Game.m.NumPlayers) + ' ' + Game.m.PlayerName[0] + ' ' + std::to_string(Game.m.PlayToScore);
  };
  EXPECT_EQ(Word("RestartGame"), "2 Player1 5000");  // before any dialog
  Open([&] {
    Click(Form.optNumPlayers[3]);
    Form.TxtPlayerName[0]->setText(QStringLiteral("Ann"));
    Click(Form.optPlayTo[1]);
    Click(Form.cmdPlay);
  });
  EXPECT_EQ(Word("SameGame"), "4 Ann 10000");
  Open([&] {
    Click(Form.optNumPlayers[6]);
    Form.TxtPlayerName[0]->setText(QStringLiteral("Bob"));
    Click(Form.cmdSetDefault);
    Click(Form.optNumPlayers[4]);
  });
  EXPECT_EQ(Word("SameGame"), "4 Ann 10000");
  EXPECT_EQ(Word("RestartGame"), "7 Bob 5000");
  EXPECT_EQ(Word("SameGame"), "7 Bob 5000");
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
    EXPECT_EQ(Game.m.CurrentPlayer, Absent);
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
    EXPECT_EQ(Name->text(), QLatin1String("abc"));
    QTest::keyClicks(Name, QStringLiteral("defghijklmnop"));
    EXPECT_EQ(Name->text(), QLatin1String("abcdefghijklmn"));
    QApplication::clipboard()->setText(QString::fromUtf8("Zoë¤ & Жуж 🎲 Ÿ\tüñß 0123456789"));
    Name->selectAll();
    Name->paste();
    EXPECT_LE(Name->text().size(), 14);
    EXPECT_TRUE(Name->text().startsWith(QString::fromUtf8("Zoë & "))) << Name->text().toStdString();
    for (const QChar Letter : Name->text()) EXPECT_LT(Letter.unicode(), 0xFF);
    EXPECT_FALSE(Name->text().contains(QChar(0xA4)));
  });
}

}  // namespace
}  // namespace blunko::test

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include <sstream>

#include "tests/app/Run.h"

namespace blunko::test {
namespace {

class NewGame : public testing::Test {
 protected:
  QTemporaryDir Place;
  IniInfo Info{Place.filePath(QStringLiteral("game.ini"))};
  GameSettings Settings{FoldersIn(Place)};
  Table Game;
  QWidget Main;
  frmNewGame Form{Game.Screen, Info, Settings, &Main};
  Answers Next;

  /// Opens the dialog, does something in it, and closes it if that hasn't.
  std::optional<GameSetup> Open(const std::function<void()>& Do) {
    Next.Expect<frmNewGame>([&](frmNewGame&) {
      Do();
      Form.close();
    });
    return Form.ShowModal(Game.m.FormMessage);
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
  std::string Shown() const {
    return Rows() + (Form.optPlayTo[0]->isChecked() ? " 5000" : " 10000") +
           (Form.optBreakIn[0]->isChecked() ? " 500" : " 1000");
  }
  /// Number of players, scores, and the seats that play.
  static std::string Told(const std::optional<GameSetup>& Chosen) {
    if (!Chosen) return "nothing";
    std::ostringstream All;
    All << int{Chosen->NumPlayers} << ' ' << Chosen->PlayToScore << ' ' << Chosen->BreakInScore;
    for (int i = 0; i < qMax<int>(2, Chosen->NumPlayers); ++i) {
      const GameSetup::Seat& Seat = Chosen->Seats[i];
      All << (i == 0 ? " " : ", ") << Seat.Name;
      if (Seat.IsComputer) All << " *" << StyleWords.at(Seat.Style - 1U);
    }
    return All.str();
  }
};

TEST_F(NewGame, EveryNumberOfPlayersHasItsLayout) {
  Open([&] {
    EXPECT_EQ(Shown(), "Player1, [Computer] *Normal 5000 500");
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
      ExpectUsable(Form);
      EXPECT_EQ(Form.size(), QSize(400, 233 + 24 * qMax(0, n - 2)));
    }
  });
}

TEST_F(NewGame, SavesWhatIsShownAndOpensWithIt) {
  for (const int Count : {1, 3, 8}) {
    SCOPED_TRACE(Count);
    std::string Expected;
    Open([&] {
      Choose(Count);
      for (const auto& Options : {Form.optPlayTo, Form.optBreakIn}) Options[Count == 3 ? 1 : 0]->click();
      Seat(0, "Zoë; ~", Count == 8 ? 4 : -1);
      if (Count > 1) Seat(1, "", 5);
      Form.cboStyle[1]->setCurrentIndex(6);
      Expected = Shown();
      Lines Captions;
      Game.Screen.OnSleep = [&] { Captions.push_back(Form.cmdSetDefault->text().toStdString()); };
      Game.TakeLog();
      Click(Form.cmdSetDefault);
      EXPECT_EQ(Captions, (Lines{"Saving...", "Done..."}));
      EXPECT_EQ(Form.cmdSetDefault->text(), QLatin1String("Save Game Setup as Default"));
      EXPECT_EQ(Game.TakeLog(), (Lines{"sleep 400", "beep", "sleep 400"}));
    });
    Open([&] { EXPECT_EQ(Shown(), Expected); });
  }
}

TEST_F(NewGame, PlayReadsEverySeatRestartWordsNeedNoDialogAndLeavingItBeginsNothing) {
  const auto Word = [&](const char* Restart) {
    Game.m.FormMessage = Restart;
    const auto Chosen = Form.ShowModal(Game.m.FormMessage);
    EXPECT_EQ(Game.m.FormMessage, "");
    return Told(Chosen);
  };
  EXPECT_EQ(Word("RestartGame"), "1 5000 500 Player1, Computer *Normal");  // before any dialog
  const std::string Played = "3 10000 1000 , Box *Genius, Zoë";
  EXPECT_EQ(Told(Open([&] {
              Choose(3);
              Seat(0, "");
              Seat(1, "Box", 5);
              Seat(2, "Zoë");
              Form.optPlayTo[1]->click();
              Form.optBreakIn[1]->click();
              QTest::keyClick(Form.cmdPlay, Qt::Key_Return);
            })),
            Played);
  Game.m.FormMessage = "x";
  for (QWidget* Focus : {static_cast<QWidget*>(&Form), static_cast<QWidget*>(Form.TxtPlayerName[0])}) {
    const auto Left = Open([&] {
      Choose(2);
      Seat(0, "Bob");
      Click(Form.cmdSetDefault);
      Choose(5);
      QTest::keyClick(Focus, Qt::Key_Escape);
    });
    EXPECT_EQ(Told(Left) + Game.m.FormMessage, "nothingx");
  }
  EXPECT_EQ(Word("SameGame"), Played);
  EXPECT_EQ(Word("RestartGame"), "2 5000 500 Bob, Player2");
  EXPECT_EQ(Word("SameGame"), "2 5000 500 Bob, Player2");
}

TEST_F(NewGame, NamesHoldWhatTheFilesCanCarry) {
  const std::pair<const char*, const char*> Pasted[] = {
      {"Zoë¤€Ж🎲\t&ÿñß", "Zoë&yñß"}, {"Łukasz Dvořák’s", "Lukasz Dvorák'"}, {"e\u0301 ŒŒŒŒŒŒŒ", "é OEOEOEOEOEOE"}};
  for (const auto& [Text, Held] : Pasted) {
    Form.TxtPlayerName[2]->clear();
    QApplication::clipboard()->setText(QString::fromUtf8(Text));
    Form.TxtPlayerName[2]->paste();
    EXPECT_EQ(Form.TxtPlayerName[2]->text(), QString::fromUtf8(Held));
    EXPECT_EQ(Form.cboStyle[2]->accessibleName(), QString::fromUtf8(Held).prepend(QStringLiteral("Style of seat 3, ")));
  }
}

}  // namespace
}  // namespace blunko::test

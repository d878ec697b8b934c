#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "tests/app/Run.h"

namespace blunko::test {
namespace {

class NewGame : public testing::Test {
 protected:
  Desk At;
  frmNewGame Form{At.Screen, At.Info, At.Settings, &At.Main};
  Answers Next;

  void Choose(int Players) { Form.optNumPlayers[static_cast<std::size_t>(Players - 1)]->click(); }
  void Seat(std::size_t i, const char* Name, int Style = -1) {
    Form.TxtPlayerName[i]->setText(QString::fromUtf8(Name));
    Form.chkComputer[i]->setChecked(Style >= 0);
    Form.cboStyle[i]->setCurrentIndex(qMax(0, Style));
  }
  /// What comes of the word, or of what is done in the dialog: number of players, scores, and the seats that play.
  std::string Told(const char* Word, const std::function<void()>& Do = {}) {
    At.m.FormMessage = Word;
    if (Do) {
      Next.Expect<frmNewGame>([&](frmNewGame&) {
        Do();
        Form.close();
      });
    }
    const auto Chosen = Form.ShowModal(At.m.FormMessage);
    EXPECT_EQ(At.m.FormMessage, Do ? Word : "") << "a word is taken, all else stays";
    if (!Chosen) return "nothing";
    std::string All = std::to_string(Chosen->NumPlayers) + ' ' + std::to_string(Chosen->PlayToScore) + ' ' +
                      std::to_string(Chosen->BreakInScore);
    for (std::size_t i = 0; i < std::max<std::size_t>(2, Chosen->NumPlayers); ++i) {
      const GameSetup::Seat& Seat = Chosen->Seats[i];
      All += ", " + Seat.Name + (Seat.IsComputer ? " *" + std::string(StyleWords.at(Seat.Style - 1U)) : "");
    }
    return All;
  }
};

TEST_F(NewGame, EveryNumberOfPlayersHasItsSeats) {
  for (const int n : {8, 1, 2, 3, 4, 5, 6, 7, 8}) {
    SCOPED_TRACE(n);
    std::string Seats = n == 1 ? ", Player1, Computer *Normal" : ", Player1";
    for (int i = 2; i <= n; ++i) Seats += ", Player" + std::to_string(i);
    EXPECT_EQ(Told("x",
                   [&] {
                     Choose(9 - n);
                     Seat(0, "Ann", 3);
                     Choose(n);
                     ExpectUsable(Form);
                     for (int i = 0; i < 8; ++i) {
                       const bool Shown = i < qMax(2, n), Opponent = n == 1 && i == 1;
                       EXPECT_TRUE(Form.TxtPlayerName[i]->isVisible() == Shown &&
                                   Form.chkComputer[i]->isVisible() == Shown &&
                                   Form.cboStyle[i]->isVisible() == Opponent &&
                                   Form.TxtPlayerName[i]->isEnabled() == !Opponent &&
                                   Form.chkComputer[i]->isEnabled() == !Opponent)
                           << i;
                     }
                     QTest::keyClick(Form.focusWidget(), Qt::Key_Return);
                   }),
              std::to_string(n) + " 5000 500" + Seats);
  }
}

TEST_F(NewGame, OpensWithWhatWasSavedPlaysWhatIsShownAndTakesTheRestartWords) {
  EXPECT_EQ(Told("RestartGame"), "1 5000 500, Player1, Computer *Normal") << "before any dialog";
  At.TakeLog();
  const std::string Saved = "3 10000 1000, Zoë; ~ *Genius, , Player3";
  EXPECT_EQ(Told("x",
                 [&] {
                   Choose(3);
                   Form.optPlayTo[1]->click();
                   Form.optBreakIn[1]->click();
                   Seat(0, "Zoë; ~", 5);
                   Seat(1, "");
                   Lines Captions;
                   At.Screen.OnSleep = [&] { Captions.push_back(Form.cmdSetDefault->text().toStdString()); };
                   Click(Form.cmdSetDefault);
                   EXPECT_EQ(Captions, (Lines{"Saving...", "Done..."}));
                   EXPECT_EQ(At.TakeLog(), (Lines{"sleep 400", "beep", "sleep 400"}));
                   Choose(5);
                   QTest::keyClick(Form.TxtPlayerName[0], Qt::Key_Escape);
                 }),
            "nothing");
  EXPECT_EQ(Told("x", [&] { Click(Form.cmdPlay); }), Saved);
  const std::string Played = "2 10000 1000, Bob, Player2";
  EXPECT_EQ(Told("x",
                 [&] {
                   Choose(2);
                   Seat(0, "Bob");
                   Click(Form.cmdPlay);
                 }),
            Played);
  EXPECT_EQ(Told("x", [] {}), "nothing");
  for (const auto& [Word, Setup] : {std::pair("SameGame", Played), {"RestartGame", Saved}, {"SameGame", Saved}}) {
    EXPECT_EQ(Told(Word), Setup) << Word;
  }
}

TEST_F(NewGame, NamesHoldWhatTheFilesCanCarry) {
  const std::pair<const char*, const char*> Pasted[] = {{"Zoë¤€Ж🎲\t&ÿñß", "Zoë&yñß"},
                                                        {"e\u0301 ŒŒŒŒŒŒŒ", "é OEOEOEOEOEOE"}};
  for (const auto& [Text, Held] : Pasted) {
    Form.TxtPlayerName[2]->clear();
    QApplication::clipboard()->setText(QString::fromUtf8(Text));
    Form.TxtPlayerName[2]->paste();
    EXPECT_EQ(Form.cboStyle[2]->accessibleName(), QString::fromUtf8(Held).prepend(QStringLiteral("Style of seat 3, ")));
  }
}

}  // namespace
}  // namespace blunko::test

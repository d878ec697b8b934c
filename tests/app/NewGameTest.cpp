#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "tests/app/Run.h"

namespace blunko::test {

class NewGame : public testing::Test {
 protected:
  Desk At;
  frmNewGame Form{At.Screen, At.Info, At.Settings, &At.Main};
  Answers Next;

  void Choose(int Players) { Form.optNumPlayers[static_cast<std::size_t>(Players - 1)]->click(); }
  void Seat(std::size_t i, const char* Name, int Style = -1) {
    Form.TxtPlayerName[i]->clear();
    Form.TxtPlayerName[i]->insert(QString::fromUtf8(Name));  // as a paste does
    Form.chkComputer[i]->setChecked(Style >= 0);
    Form.cboStyle[i]->setCurrentIndex(qMax(0, Style));
  }
  /// What comes of a word, when this is done in the dialog: number of players, scores, and the seats that play.
  std::string Told(const char* Word, const std::function<void()>& Do = {}) {
    if (Do) {
      Next.Expect<frmNewGame>([&](frmNewGame&) {
        Do();
        Form.close();
      });
    }
    At.m.FormMessage = Word;
    const auto Chosen = Form.ShowModal(At.m.FormMessage);
    EXPECT_EQ(At.m.FormMessage, Do ? Word : "");
    if (!Chosen) return "nothing";
    QString All = QStringLiteral("%1 %2 %3").arg(Chosen->NumPlayers).arg(Chosen->PlayToScore).arg(Chosen->BreakInScore);
    for (std::size_t i = 0; i < std::max<std::size_t>(2, Chosen->NumPlayers); ++i) {
      const GameSetup::Seat& Seat = Chosen->Seats[i];
      All += ", " + QString::fromStdString(Seat.Name);
      if (Seat.IsComputer) All += " *" + Form.cboStyle[0]->itemText(Seat.Style - 1);
    }
    return All.toStdString();
  }
  std::string Told(const std::function<void()>& Do) { return Told("another word", Do); }
};

TEST_F(NewGame, EveryNumberOfPlayersHasItsSeats) {
  for (const int n : {8, 1, 2, 3, 4, 5, 6, 7, 8}) {
    SCOPED_TRACE(n);
    std::string Seats = n == 1 ? " 5000 500, Player1, Computer *Normal" : " 5000 500, Player1";
    for (int i = 2; i <= n; ++i) Seats += ", Player" + std::to_string(i);
    const std::string Played = Told([&] {
      Choose(9 - n);
      Seat(0, "Ann", 3);
      Choose(n);
      if (n <= 2 || n == 8) ExpectUsable(Form, QStringLiteral("-%1").arg(n));
      QTest::keyClick(Form.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(Played, std::to_string(n) + Seats);
  }
}

TEST_F(NewGame, OpensWithWhatWasSavedPlaysWhatIsShownAndTakesTheRestartWords) {
  EXPECT_EQ(Told("RestartGame"), "1 5000 500, Player1, Computer *Normal") << "before any dialog";
  const std::string Saved = "3 10000 1000, Zoë; ~ *Genius, , Player3", Played = "2 10000 1000, Bob, Player2";
  const std::string Left = Told([&] {
    Choose(3);
    for (QRadioButton* Option : {Form.optPlayTo[1], Form.optBreakIn[1]}) Option->click();
    Seat(0, "Zoë; ~", 5);
    Seat(1, "");
    At.TakeLog();
    Lines Captions;
    At.Screen.OnSleep = [&] { Captions.push_back(Form.cmdSetDefault->text().toStdString()); };
    Click(Form.cmdSetDefault);
    EXPECT_EQ(Captions, (Lines{"Saving...", "Done..."}));
    EXPECT_EQ(Form.cmdSetDefault->text(), "Save Game Setup as Default");
    EXPECT_EQ(At.TakeLog(), (Lines{"sleep 400", "beep", "sleep 400"}));
    Choose(5);
    QTest::keyClick(Form.TxtPlayerName[0], Qt::Key_Escape);
  });
  EXPECT_EQ(Left, "nothing");
  EXPECT_EQ(Told([&] { Click(Form.cmdPlay); }), Saved);
  const std::string Bobs = Told([&] {
    Choose(2);
    Seat(0, "B¤ob");
    Click(Form.cmdPlay);
  });
  EXPECT_EQ(Bobs, Played);
  EXPECT_EQ(Told([&] { Click(Form.cmdCancel); }), "nothing");
  for (const auto& [Word, Setup] : {std::pair("SameGame", Played), {"RestartGame", Saved}, {"SameGame", Saved}}) {
    EXPECT_EQ(Told(Word), Setup) << Word;
  }
  At.Screen.OnSleep = {};
  Told([&] {
    Choose(1);
    Form.cboStyle[1]->setCurrentIndex(Moron - Normal);
    Click(Form.cmdSetDefault);
    Seat(0, "Ann", Genius - Normal);
  });
  EXPECT_EQ(Told([&] { Form.chkComputer[0]->click(), Click(Form.cmdPlay); }),
            "1 10000 1000, Player1 *Normal, Computer *Moron");
  EXPECT_EQ(At.TakeLog("beep").size(), 4U) << "three times at loading, once at Save";
}

}  // namespace blunko::test

#include <algorithm>

#include "engine/Game.h"
#include "engine/ScoreDice.h"
#include "engine/ThisGame.h"

namespace blunko {

namespace {

struct Upside {
  bool Any = false;
  bool Scorer = false;
  bool NonScorer = false;

  explicit Upside(const Module1& m) {
    for (int i = 0; i < Dice; ++i) {
      if (!m.DieUp[i]) continue;
      Any = true;
      (m.DieScoreCode[i] == NoScore ? NonScorer : Scorer) = true;
    }
  }
  bool AllScore() const { return Any && !NonScorer; }
};

bool HasBrokenIn(const Module1& m) {
  return m.PlayerScore[m.CurrentPlayer] >= m.BreakInScore || m.TurnScore >= m.BreakInScore;
}

}  // namespace

void Game::CheckRoll() {
  m.RollIsBust = std::none_of(m.DieScoreCode.begin(), m.DieScoreCode.end(), IsScorer);
  m.MayPass = HasBrokenIn(m);
  const bool TrayIsEmpty = std::none_of(m.TrayUsed.begin(), m.TrayUsed.end(), [](bool Used) { return Used; });

  t.cmdRoll.Enabled = false;
  if (Upside(m).AllScore()) {
    t.cmdPassDice.Enabled = false;
    m.ActionSet = "s";
    SetStatus("Select Dice.");
  } else if (m.RollIsBust) {
    t.cmdPassDice.Enabled = false;
    const ThisGame Played(m);
    program.Announce(GameEvent::Bust);
    ShowBust();
    if (m.CurrentPlayer != Absent && Played.GoesOn()) m.ActionSet = "p";
    return;
  } else if (m.MayPass && !TrayIsEmpty) {  // cmdPassDice is enabled already, from before the roll
    m.ActionSet = "sp";
    SetStatus("Select Dice or Pass Dice.");
  } else {
    t.cmdPassDice.Enabled = false;
    m.ActionSet = "s";
    SetStatus("Select Dice.");
  }
  program.Announce(GameEvent::Roll);
}

void Game::CheckSelection() {
  m.MayPass = HasBrokenIn(m);
  const Upside Up(m);
  const bool Computer = IsComputerTurn();
  const auto Offer = [&](std::string_view Text, const Word& Set) {
    const auto Switch = [&](Button& Which, char Action) {  // nothing is switched on for a computer
      if (!(Computer && Set.contains(Action))) Which.Enabled = Set.contains(Action);
    };
    Switch(t.cmdRoll, 'r');
    Switch(t.cmdPassDice, 'p');
    m.ActionSet = Set;
    SetStatus(Text);
  };

  if (Up.AllScore()) {
    Offer("Select Dice.", "s");
  } else if (!Up.Any) {
    Offer("All dice score - You must roll.", "r");
  } else if (!Up.Scorer) {
    m.MayPass ? Offer("Roll or pass the dice.", "rp") : Offer("Roll the dice.", "r");
  } else {
    m.MayPass ? Offer("Roll, select, or pass the dice.", "rsp") : Offer("Select dice or roll.", "rs");
  }
}

void Game::SetStatus(std::string_view Text) {
  t.lblStatus.Caption = Text;
  desktop.Refresh();
}

}  // namespace blunko

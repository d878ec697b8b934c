#include "bots/ComputerPlayers.h"
#include "engine/ScoreDice.h"

namespace blunko {

namespace {

constexpr int SimpleRollsUpTo = 350;     // points
constexpr int GeniusDaresBehind = 1000;  // points

}  // namespace

/// Takes everything and stops at a fixed score.
void ComputerPlayers::Bot_Simple() {
  PlayTurn(true, [this] {
    const Word Actions = m.ActionSet;
    if (Actions == "r") return Roll();
    if (Actions == "p") return Pass();
    if (Actions == "rp") return m.TurnScore > SimpleRollsUpTo ? Pass() : Roll();
    for (int i = 0; i < Dice; ++i) {
      if (m.DieScoreCode[i] != NoScore) ClickDie(i);
    }
  });
}

/// Takes as little as it may and stops as soon as it may.
void ComputerPlayers::Bot_Moron() {
  PlayTurn(true, [this] {
    const Word Actions = m.ActionSet;
    if (Actions == "r" || Actions == "rs") return Roll();
    if (Actions != "s") return Pass();
    for (int i = 0; i < Dice; ++i) {
      if (m.DieScoreCode[i] == NoScore) continue;
      ClickDie(i);
      bool NonScorerUp = false;
      for (int j = 0; j < Dice; ++j) NonScorerUp = NonScorerUp || (m.DieScoreCode[j] == NoScore && m.DieUp[j]);
      if (NonScorerUp) return;
    }
  });
}

/// Plays by the race: daring when far behind.
void ComputerPlayers::Bot_Genius() {
  FindLeader();
  const int OwnTotal = m.PlayerScore[m.CurrentPlayer] + m.TurnScore;
  m.LeaderScore > OwnTotal + GeniusDaresBehind ? Bot_Fearless() : Bot_Normal();
}

}  // namespace blunko

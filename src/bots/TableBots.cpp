#include <string>

#include "bots/ComputerPlayers.h"
#include "engine/ScoreDice.h"

namespace blunko {

namespace {

constexpr TableStyle CautiousStyle{5, {0, 250, 300, 350, 500, 700}, false};
constexpr TableStyle NormalStyle{4, {0, 350, 400, 450, 600, 900}};
constexpr TableStyle FearlessStyle{3, {0, 400, 450, 500, 1100, 1500}};

/// From this turn score on a seat with nothing banked takes all it can. It doesn't follow the break-in score.
constexpr int BreakInHunger = 500;

}  // namespace

void ComputerPlayers::Bot_Cautious() { PlayTableStyle(CautiousStyle); }
void ComputerPlayers::Bot_Normal() { PlayTableStyle(NormalStyle); }
void ComputerPlayers::Bot_Fearless() { PlayTableStyle(FearlessStyle); }

void ComputerPlayers::PlayTableStyle(const TableStyle& Style) {
  PlayTurn(Style.WaitsWhilePaused, [this, &Style] { return ActAtTable(Style); });
}

void ComputerPlayers::ActAtTable(const TableStyle& Style) {
  const Word Actions = m.ActionSet;
  if (Actions == "r") return BotRoll();
  if (Actions == "p") return BotPass();
  if (Actions == "s" || Actions == "sp") return TakeDice(Style.TakeAllBelow);
  if (Actions == "rs" || Actions == "rsp") {
    CountDiceLeft(m.NumDiceUp);
    const bool Hungry = m.PlayerScore[m.CurrentPlayer] == 0 && m.TurnScore >= BreakInHunger;
    if (Hungry || m.NumDiceUp < Style.TakeAllBelow) return TakeDice(Style.TakeAllBelow);
    return BotRoll();
  }
  if (Actions == "rp") DecideToPass(Style);
}

/// No scorer is up and the seat may bank: pass or roll on.
void ComputerPlayers::DecideToPass(const TableStyle& Style) {
  if (m.OutPlayer != Absent) {
    FindLeader();
    const int OwnTotal = m.PlayerScore[m.CurrentPlayer] + m.TurnScore;
    m.LeaderScore < OwnTotal ? BotPass() : BotRoll();
    return;
  }
  if (m.PlayerScore[m.CurrentPlayer] == 0) return BotPass();
  CountDiceLeft(m.NumDiceUp);
  if (m.NumDiceUp < 1 || m.NumDiceUp > 5) {
    desktop.MessageBox("NumDiceUp = " + std::to_string(m.NumDiceUp) +
                       "\nError 529 - Bot Click - Please contact Tollmoor Games.");
    game.Form_Unload();
    return;
  }
  m.TurnScore >= Style.StopAt[m.NumDiceUp] ? BotPass() : BotRoll();
}

/// Takes one die, or one batch of dice: everything when every die scores, when few dice are left or when there is a
/// combination; else a single one, else a single five, and three twos last.
void ComputerPlayers::TakeDice(int TakeAllBelow) {
  if (!PumpAndGoOn()) return;
  CountDiceLeft(m.NumDiceUp);
  bool AllScore = true;
  bool Combination = false;
  for (int i = 0; i < Dice; ++i) {
    if (m.BotTake[i]) continue;
    const Word Code = m.DieScoreCode[i];
    if (Code == NoScore) AllScore = false;
    if (IsCombination(Code) && Code != ThreeTwos) Combination = true;
  }
  if (AllScore) return TakeAll(false);
  if (!PumpAndGoOn()) return;
  if (m.NumDiceUp < TakeAllBelow) return TakeAll(false);
  if (!PumpAndGoOn()) return;
  if (Combination) return TakeAll(true);
  for (const Word& Code : {Single1, Single5, ThreeTwos}) {
    if (!PumpAndGoOn() || TakeFirst(Code)) return;
  }

  desktop.MessageBox("Msg 519 -- Please contact Tollmoor Games Tech Support.");
  m.Quitting = true;
  game.program.Abort();
}

void ComputerPlayers::TakeAll(bool ClickEmptyToo) {
  for (int i = 0; i < Dice; ++i) {
    const Word Code = m.DieScoreCode[i];
    if (Code != NoScore && !m.BotTake[i] && (ClickEmptyToo || Code != NoDie)) MarkAndClick(i);
  }
}

bool ComputerPlayers::TakeFirst(const Word& Code) {
  for (int i = 0; i < Dice; ++i) {
    if (m.DieScoreCode[i] == Code && !m.BotTake[i]) return MarkAndClick(i), true;
  }
  return false;
}

}  // namespace blunko

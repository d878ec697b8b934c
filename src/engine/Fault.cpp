#include <cstdio>
#include <cstdlib>
#include <string>

#include "engine/Game.h"
#include "engine/ScoreDice.h"

namespace blunko {

namespace {

/// Writes down the rules that don't hold.
struct Demands {
  std::string Broken;
  void operator()(bool Holds, const char* Rule) {
    if (!Holds) Broken.append(Rule).append("; ");
  }
};

void LooksOfTheTable(Demands& Demand, const Module1& m, const TableControls& t) {
  Demand(t.cmdRoll.Visible == t.cmdPassDice.Visible, "Roll and Pass are visible together");
  Demand(t.cmdRoll.Visible != t.ARCmdNewGame.Visible, "either the game buttons or New Game is visible");
  Demand(t.lblStatus.Top == (t.lblLastRoll.Visible ? StatusTop - StatusRise : StatusTop),
         "the status line gives way to the last-roll line and only then");
  Demand(m.CurrentPlayer == Absent || m.CurrentPlayer < m.NumPlayers, "the seat on turn is one of the game's");
  Demand(m.OutPlayer == Absent || m.OutPlayer < m.NumPlayers, "the seat that is out is one of the game's");
  Demand(m.TurnScore >= 0 && (m.TurnScore % 50 == 0 || m.TurnScore == INT16_MAX), "a turn scores in steps of 50");
  for (const int Score : m.PlayerScore) {
    Demand(Score >= 0 && (Score % 50 == 0 || Score == INT16_MAX), "a seat scores in steps of 50");
  }
}

/// How many dice lie where.
struct Lying {
  int Up = 0, InTray = 0, TrayMarks = 0;
};

Lying WhatLiesWhere(Demands& Demand, const Module1& m, const TableControls& t, bool Running) {
  Lying Counted;
  for (int i = 0; i < Dice; ++i) {
    Counted.Up += m.DieUp[i];
    Counted.InTray += t.Picture1(10 + i) != 0;
    Counted.TrayMarks += m.TrayUsed[i];
    Demand((t.Picture1(i) != 0) == (m.ShownFace[i] != 0), "a table picture is the face that is noted as shown");
    Demand((t.Picture1(10 + i) != 0) == (m.TrayFace[i] != 0), "a tray picture is the face that is noted in the tray");
    Demand(m.TrayFace[i] >= 0 && m.TrayFace[i] <= 6, "a face in the tray is 1 to 6");
    Demand(i == 0 || t.Picture1(10 + i) == 0 || t.Picture1(9 + i) != 0, "the tray has no gap");
    if (Running) {
      Demand(m.ShownFace[i] == (m.DieUp[i] ? m.DieFace[i] : 0), "exactly the dice that are up are shown");
      Demand(!m.DieUp[i] || (m.DieFace[i] >= 1 && m.DieFace[i] <= 6), "a die that is up has a face");
    } else {
      Demand(t.Picture1(i) == 0 && t.Picture1(10 + i) == 0, "a table without a game is empty");
    }
    Demand(!t.picMarker[i] || (Running && m.DieUp[i] && IsScorer(m.DieScoreCode[i])),
           "a mark stands over a scorer that is up");
  }
  const int Earlier = m.TrayCountAtRoll;
  Demand(!t.pctDivider.Visible || (Earlier >= 1 && Earlier < Dice && Earlier <= Counted.InTray),
         "the divider stands behind dice of an earlier roll");
  return Counted;
}

void WhatAPersonMayDo(Demands& Demand, const Module1& m, const TableControls& t, const Lying& Counted) {
  const bool CanRoll = t.cmdRoll.Enabled, CanPass = t.cmdPassDice.Enabled;
  if (Counted.Up + Counted.InTray == 0) return Demand(!CanPass, "nobody passes before the first roll");
  Demand(CanRoll == m.ActionSet.contains('r'), "Roll is enabled exactly when the action set has r");
  Demand(CanPass == m.ActionSet.contains('p'), "Pass is enabled exactly when the action set has p");
  Demand(t.lblTurnScore.Caption == std::to_string(m.TurnScore), "the table shows the turn's score");
  const bool BrokenIn = m.PlayerScore[m.CurrentPlayer] >= m.BreakInScore || m.TurnScore >= m.BreakInScore;
  Demand(!CanPass || BrokenIn, "only a seat that has broken in can bank");
  Demand(CanRoll || CanPass || Counted.Up > 0, "there is always a move");
}

}  // namespace

std::string Game::Fault() const {
  Demands Demand;
  LooksOfTheTable(Demand, m, t);
  const bool Running = m.CurrentPlayer != Absent && t.cmdRoll.Visible;
  const Lying Counted = WhatLiesWhere(Demand, m, t, Running);
  if (!Running) return Demand.Broken;

  const auto& [Up, InTray, TrayMarks] = Counted;
  Demand(InTray == (TrayMarks == 5 && InTray == 6 ? 6 : TrayMarks), "the tray's marks are its dice");
  Demand(Up + InTray == Dice || Up + InTray == 0, "six dice lie on table and tray, or none before the first roll");
  Demand(t.lblLastRoll.Visible == (m.OutPlayer != Absent), "the last-roll line shows when somebody is out");
  Demand(t.lblPlayer.Caption == m.PlayerName[m.CurrentPlayer], "the table names the seat on turn");
  if (IsComputerTurn()) {
    Demand(!t.cmdRoll.Enabled && !t.cmdPassDice.Enabled, "a person can neither roll nor pass for a computer");
  } else {
    WhatAPersonMayDo(Demand, m, t, Counted);
  }
  return Demand.Broken;
}

void Game::AssertSound() const {
#ifndef NDEBUG
  if (!TakesCommands()) return;  // inside a handler, which may be half done, or past the end
  const std::string Wrong = Fault();
  if (Wrong.empty()) return;
  std::fprintf(stderr, "the table is unsound: %s\n", Wrong.c_str());
  std::abort();
#endif
}

}  // namespace blunko

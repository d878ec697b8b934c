#include "app/Announcements.h"

#include <algorithm>
#include <array>
#include <vector>

#include "engine/ScoreDice.h"

namespace blunko {

namespace {

constexpr std::array<const char*, 7> Numbers{"no", "one", "two", "three", "four", "five", "six"};
constexpr std::array<const char*, 7> Plurals{"", "ones", "twos", "threes", "fours", "fives", "sixes"};

/// "a", "a and b", "a, b and c".
std::string Joined(const std::vector<std::string>& Parts) {
  std::string All;
  for (std::size_t i = 0; i < Parts.size(); ++i) {
    if (i > 0) All += i + 1 == Parts.size() ? " and " : ", ";
    All += Parts[i];
  }
  return All;
}

std::string DiceInWords(const Module1& m) {
  std::string All;
  for (int i = 0; i < Dice; ++i) {
    if (!m.DieUp[i]) continue;
    if (!All.empty()) All += ", ";
    All += Numbers[m.DieFace[i]];
  }
  return All;
}

template <typename... Parts>
std::string Text(const Parts&... Each) {
  std::string All;
  ((All += Each), ...);
  return All;
}

std::string Points(int Count) { return Text(std::to_string(Count), " points"); }

/// The status line without the mark of an undo: the listener has heard of it.
std::string WhatNext(const TableControls& t) {
  const std::string& Status = t.lblStatus.Caption;
  return Text(" ", Status.substr(0, Status.find(" (Undo)")));
}

/// "Last Roll - Need 550 To Win." while the last turns are played.
std::string LastRoll(const TableControls& t) {
  const std::string& Caption = t.lblLastRoll.Caption;
  return t.lblLastRoll.Visible && Caption.size() > 2 ? Text(" ", Caption.substr(1, Caption.size() - 2), ".") : "";
}

}  // namespace

std::string ScorersInWords(const Module1& m) {
  std::vector<std::string> Groups;
  int DiceInGroups = 0;
  for (int Face = 1; Face <= 6; ++Face) {
    int Count = 0;
    for (int i = 0; i < Dice; ++i) Count += m.DieUp[i] && m.DieFace[i] == Face && IsScorer(m.DieScoreCode[i]);
    if (Count == 1) Groups.push_back(Text("a ", Numbers[Face]));
    if (Count > 1) Groups.push_back(Text(Numbers[Count], " ", Plurals[Face]));
    DiceInGroups += Count;
  }
  const auto Has = [&m](const Word& Code) {
    return std::find(m.DieScoreCode.begin(), m.DieScoreCode.end(), Code) != m.DieScoreCode.end();
  };
  if (Has(Straight)) return "a straight scores";
  if (Has(ThreePairs)) return "three pairs score";
  return Text(Joined(Groups), DiceInGroups == 1 ? " scores" : " score");
}

std::string Announcement(GameEvent Event, const Module1& m, const TableControls& t) {
  const std::string Seat = m.CurrentPlayer == Absent ? std::string() : m.PlayerName[m.CurrentPlayer];
  const int Banked = m.CurrentPlayer == Absent ? 0 : m.PlayerScore[m.CurrentPlayer];
  switch (Event) {
    case GameEvent::Roll: return Text("Rolled ", DiceInWords(m), ": ", ScorersInWords(m), ".", WhatNext(t));
    case GameEvent::Bust: return Text("Rolled ", DiceInWords(m), ": Blunko! ", Points(m.TurnScore), " lost.");
    case GameEvent::Taking: return Text("Taken: ", Points(m.TurnScore), " this turn.", WhatNext(t));
    case GameEvent::Undo: return Text("Taken back: ", Points(m.TurnScore), " this turn.", WhatNext(t));
    case GameEvent::Pass: return Text(Seat, " banks ", std::to_string(m.TurnScore), " and has ", Points(Banked), ".");
    case GameEvent::Out: return Text(Seat, " has gone out with ", Points(Banked), ".");
    case GameEvent::Turn: {
      const bool Computer = m.PlayerIsComputer[m.CurrentPlayer];
      return Text(Seat, Computer ? ", computer," : "", " is on turn with ", Points(Banked), ".", LastRoll(t),
                  Computer ? "" : WhatNext(t));
    }
    case GameEvent::Win: return Text(m.PlayerName[m.Winner], " wins with ", Points(m.PlayerScore[m.Winner]), ".");
  }
  return {};
}

}  // namespace blunko

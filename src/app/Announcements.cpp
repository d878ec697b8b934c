#include "app/Announcements.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "engine/ScoreDice.h"

namespace blunko {

namespace {

constexpr AnnouncementQueue::Time PerLetter{40};
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

/// Everybody's points, and who is on turn.
std::string ScoresInWords(const Module1& m, const TableControls& t) {
  std::vector<std::string> Seats;
  for (int i = 0; i < m.NumPlayers && m.GameNumber > 0; ++i) {
    Seats.push_back(Text(m.PlayerName[i], " ", std::to_string(m.PlayerScore[i])));
  }
  const std::string All = Seats.empty() ? "" : Joined(Seats) + " points. ";
  if (m.CurrentPlayer == Absent || !t.cmdRoll.Visible) return All + "No game is on.";
  return Text(All, m.PlayerName[m.CurrentPlayer], " is on turn, ", Points(m.TurnScore), " this turn.", LastRoll(t));
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

SpokenLine Announcement(GameEvent Event, const Module1& m, const TableControls& t) {
  const int Seat = m.CurrentPlayer;
  const bool Computer = Seat != Absent && m.PlayerIsComputer[Seat];
  const std::string Name = Seat == Absent ? "" : m.PlayerName[Seat];
  const std::string Has = Seat == Absent ? "" : Points(m.PlayerScore[Seat]), Turn = Points(m.TurnScore);
  const std::string Rolled = Text(Computer ? Name + " rolled " : "Rolled ", DiceInWords(m), ": ");
  const std::string Next = Computer ? "" : WhatNext(t);
  SpokenLine Line{.Seat = Seat, .Game = m.GameNumber, .OfComputer = Computer, .Kept = !Computer, .AtOnce = !Computer};
  switch (Event) {
    case GameEvent::Roll: Line.Text = Text(Rolled, ScorersInWords(m), ".", Next); break;
    case GameEvent::Bust:
      Line.Text = Text(Rolled, "Blunko! ", Turn, " lost.");
      Line.Folded = Text(Name, ": Blunko, ", Turn, " lost.");
      Line.Interrupts = !Computer;
      break;
    case GameEvent::Taking:
      Line.Text = Text(Computer ? Name + " has taken " : "Taken: ", Turn, " this turn.", Next);
      break;
    case GameEvent::Undo: Line.Text = Text("Taken back: ", Turn, " this turn.", Next); break;
    case GameEvent::Pass:
      Line.Text = Line.Folded = Text(Name, " banks ", std::to_string(m.TurnScore), " and has ", Has, ".");
      break;
    case GameEvent::Out:
      Line.Text = Text(Name, " has gone out with ", Has, ".");
      Line.Kept = true;
      break;
    case GameEvent::Turn:
      Line.Text = Text(Name, Computer && Name != "Computer" ? ", computer," : "", " is on turn with ", Has, ".",
                       LastRoll(t), Next);
      Line.Kept = !Computer && t.lblLastRoll.Visible;
      Line.AtOnce = false;
      break;
    case GameEvent::Win:
      Line.Text = Text(m.PlayerName[m.Winner], " wins with ", Points(m.PlayerScore[m.Winner]), ".");
      break;
    case GameEvent::Scores: Line.Text = ScoresInWords(m, t); break;
    case GameEvent::Again: Line.Again = true; break;
    case GameEvent::OtherKey: break;
  }
  Line.Interrupts = Line.Interrupts || Event == GameEvent::Win;
  if (Event >= GameEvent::Win) Line.Kept = Line.AtOnce = true;
  return Line;
}

void AnnouncementQueue::Add(SpokenLine New, Time Now) {
  const auto IsStale = [&New](const SpokenLine& Old) {
    return Old.Game != New.Game || (New.OfComputer && Old.OfComputer && Old.Seat == New.Seat && !Old.Kept);
  };
  if (New.Again && !last.Text.empty()) {
    waiting.push_front(last);
    waiting.front().Kept = true;
  } else if (!New.Text.empty()) {
    if (std::erase_if(waiting, IsStale) > 0 && !New.Folded.empty()) New.Text = New.Folded;
    waiting.push_back(New);
  }
  if (!New.AtOnce || waiting.empty()) return;
  const auto Newest = waiting.end() - 1;
  waiting.erase(std::remove_if(waiting.begin(), Newest, [](const SpokenLine& Line) { return !Line.Kept; }), Newest);
  freeAt = Now;
  hurried = true;
}

std::optional<SpokenLine> AnnouncementQueue::Take(Time Now) {
  hurried = hurried && !waiting.empty();
  if (waiting.empty() || (Now < freeAt && !hurried)) return std::nullopt;
  last = std::move(waiting.front());
  waiting.pop_front();
  freeAt = std::max(freeAt, Now) + static_cast<Time::rep>(last.Text.size()) * PerLetter;
  return last;
}

}  // namespace blunko

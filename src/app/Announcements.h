#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>

#include "engine/GameEvent.h"
#include "engine/Module1.h"
#include "engine/TableControls.h"

namespace blunko {

/// What a listener is told of an event.
struct SpokenLine {
  std::string Text = {};    ///< none for a key that only asks for what waits
  std::string Folded = {};  ///< a whole turn of a computer in one line, at its end
  int Seat = Absent;        ///< whose turn it is
  std::uint32_t Game = 0;   ///< `GameNumber`
  bool OfComputer = false;  ///< tells what a computer does
  bool Kept = false;        ///< goes out whatever comes after it
  bool AtOnce = false;      ///< answers a person, or ends the game
  bool Again = false;       ///< asks for the line that went out last
  bool Interrupts = false;  ///< worth cutting a reader off
};

/// One or two sentences that tell an event to a person who can't see the table, and what the person can do next.
SpokenLine Announcement(GameEvent Event, const Module1& m, const TableControls& t);

/// Stands between the game's events and a reader, which throws away what comes too fast: one line after the other, each
/// when the one before has had its time. What has become stale meanwhile is left out, or folded. Keeps no clock.
class AnnouncementQueue {
 public:
  using Time = std::chrono::milliseconds;  ///< since any moment, always the same

  /// A computer's line replaces those of its turn that still wait; one that is wanted at once all that needn't be
  /// heard.
  void Add(SpokenLine New, Time Now);
  /// The next line if its time has come.
  std::optional<SpokenLine> Take(Time Now);
  /// When the next line's time comes, if one waits.
  std::optional<Time> Due() const { return waiting.empty() ? std::nullopt : std::optional(freeAt); }

 private:
  std::deque<SpokenLine> waiting;
  SpokenLine last;
  Time freeAt{};  ///< when a quick voice has read what went out
  bool hurried = false;
};

/// "two ones and a five score", of the dice that are up.
std::string ScorersInWords(const Module1& m);

}  // namespace blunko

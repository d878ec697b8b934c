#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Announcements.h"
#include "tests/app/Run.h"

namespace blunko::test {

/// Hears what the queue lets out of the events of a game, by a clock that goes as told.
struct Listener : Table {
  AnnouncementQueue Queue;
  AnnouncementQueue::Time Now{};
  Lines Heard;

  Listener() {
    Others.OnEvent = [this](GameEvent Event) {
      Queue.Add(Announcement(Event, m, t), Now);
      Listen();
    };
  }
  void Listen() {
    while (const auto Line = Queue.Take(Now)) Heard.push_back(Line->Text);
  }
  /// What is heard of moves ("wait 1000" and "bank 500" among them, and letters of keys), joined by " | ".
  std::string After(const std::string& Moves) {
    const int Number = std::atoi(Moves.c_str() + 5);
    if (Moves.starts_with("bank")) {
      Bank(Number);
    } else if (Moves.starts_with("wait")) {
      for (const auto End = Now + AnnouncementQueue::Time(Number); Now < End; Listen()) ++Now;
    } else if (Moves.size() == 1) {
      game.Form_KeyUp(Moves[0], 0);
    } else {
      Play(Moves);
    }
    std::string All;
    for (const std::string& Line : std::exchange(Heard, {})) All += (All.empty() ? "" : " | ") + Line;
    return All;
  }
};

TEST(Announcements, AGameAsAListenerHearsIt) {
  const std::pair<const char*, const char*> Rows[] = {
      {"S", "Ann 0, Normal 0 and Simple 0 points. Ann is on turn, 0 points this turn."},
      // A person's moves are told at once, the turn of the next seat when there is time.
      {"114566", "Rolled one, one, four, five, six, six: two ones and a five score. Select Dice."},
      {"@0", "Taken: 100 points this turn. Select dice or roll."},
      {"@10", "Taken back: 0 points this turn. Select Dice."},
      {"@1", "Taken: 100 points this turn. Select dice or roll."},
      {"22346", "Rolled two, two, three, four, six: Blunko! 100 points lost."},
      {"wait 2300", ""},
      {"wait 100", "Normal, computer, is on turn with 0 points."},
      {"L", "Normal, computer, is on turn with 0 points."},
      // A computer isn't prompted. What it did meanwhile gives way to what it did last.
      {"114566", ""},
      {"@0", ""},
      {"wait 2000", "Normal has taken 100 points this turn."},
      {"22346", ""},
      {"bank 5000", ""},
      {"wait 1600", "Normal has gone out with 5000 points."},
      // A whole turn in a line.
      {"114566", ""},
      {"22346", ""},
      {"bank 0", ""},
      {"wait 2000", "Simple banks 0 and has 0 points."},
      {"x", "Ann is on turn with 0 points. Last Roll - Need 5050 To Take The Lead. Roll the dice."},
      {"x", ""},
      {"123456", "Rolled one, two, three, four, five, six: a straight scores. Select Dice."},
      {"@0", "Taken: 1500 points this turn. All dice score - You must roll."},
      {"223366", "Rolled two, two, three, three, six, six: three pairs score. Select Dice."},
      {"@0", "Taken: 2000 points this turn. All dice score - You must roll."},
      {"133335", "Rolled one, three, three, three, three, five: a one, four threes and a five score. Select Dice."},
      {"@1", "Taken: 2600 points this turn. Select Dice."},
      {"12", "Rolled one, two: a one scores. Select Dice or Pass Dice."},
      {"bank 600", "Ann banks 600 and has 600 points. | Normal wins with 5000 points."},
      {"S", "Ann 600, Normal 5000 and Simple 0 points. No game is on."},
  };
  Listener Seats;
  EXPECT_EQ(Seats.After("S"), "No game is on.");
  Seats.Begin({"Ann", "Normal", "Simple"});
  for (const auto& [Moves, Words] : Rows) EXPECT_EQ(Seats.After(Moves), Words) << Moves;
}

}  // namespace blunko::test

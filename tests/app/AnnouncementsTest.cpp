#include <fstream>
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
  Listener Seats;
  EXPECT_EQ(Seats.After("S"), "No game is on.");
  Seats.Begin({"Ann", "Normal", "Simple"});
  std::ifstream Rows(TBK_TEST_FILES "/app/announcements.txt");
  for (std::string Row; std::getline(Rows, Row);) {
    if (Row.starts_with('#')) continue;
    const auto Words = Row.find(" >");
    ASSERT_NE(Words, std::string::npos) << Row;
    EXPECT_EQ(Seats.After(Row.substr(0, Words)), Row.substr(std::min(Words + 3, Row.size())));
  }
  EXPECT_EQ(Seats.m.Winner, 1);
}

}  // namespace blunko::test

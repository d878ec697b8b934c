#include <QAccessible>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Announcements.h"
#include "app/Announcer.h"
#include "tests/app/Run.h"

namespace blunko::test {

TEST(Announcements, ARollIsToldByItsScorers) {
  const std::pair<const char*, const char*> Rows[] = {
      {"222346", "three twos score"},
      {"122346", "a one scores"},
      {"133335", "a one, four threes and a five score"},
      {"123456", "a straight scores"},
      {"223366", "three pairs score"},
  };
  for (const auto& [Faces, Words] : Rows) {
    Table Seats;
    Seats.Begin({"Ann", "Bob"});
    Seats.Play(Faces);
    EXPECT_EQ(ScorersInWords(Seats.m), Words);
  }
}

TEST(Announcements, ATurnAndTheEndOfAGameAsAListenerHearsThem) {
  Table Seats;
  std::vector<std::string> Heard;
  Seats.Others.OnEvent = [&](GameEvent Event) { Heard.push_back(Announcement(Event, Seats.m, Seats.t)); };
  Seats.Begin({"Ann", "Normal"});
  Seats.Play("114566 @0 @10 @1 22346");
  Seats.Bank(5000);
  Seats.Bank(600);
  EXPECT_THAT(Heard,
              testing::ElementsAre("Ann is on turn with 0 points. Roll the dice.",
                                   "Rolled one, one, four, five, six, six: two ones and a five score. Select Dice.",
                                   "Taken: 100 points this turn. Select dice or roll.",
                                   "Taken back: 0 points this turn. Select Dice.",
                                   "Taken: 100 points this turn. Select dice or roll.",
                                   "Rolled two, two, three, four, six: Blunko! 100 points lost.",
                                   "Normal, computer, is on turn with 0 points.",
                                   "Normal banks 5000 and has 5000 points.", "Normal has gone out with 5000 points.",
                                   "Ann is on turn with 0 points. Last Roll - Need 5050 To Win. Roll the dice.",
                                   "Ann banks 600 and has 600 points.", "Normal wins with 5000 points."));
}

TEST(Announcements, OneIsStillThereForASlowListenerWhenTheNextHasCome) {
  QWidget Form;
  Announcer Speaker(&Form);
  static Lines There;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessible::setActive(true);
  const auto Former = QAccessible::installUpdateHandler([](QAccessibleEvent* Event) {
    if (const auto* Words = dynamic_cast<QAccessibleAnnouncementEvent*>(Event))
      There.push_back(Words->message().toStdString());
  });
#endif
  for (const char* Text : {"Ann banks 600.", "Bob is on turn."}) Speaker.Say(Text);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessible::installUpdateHandler(Former);
  QAccessible::setActive(false);
#else
  for (const QWidget* Note : Speaker.findChildren<QWidget*>()) There.push_back(Note->accessibleName().toStdString());
#endif
  EXPECT_THAT(There, testing::IsSupersetOf({"Ann banks 600.", "Bob is on turn."}));
}

}  // namespace blunko::test

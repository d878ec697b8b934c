#include <gtest/gtest.h>

#include "tests/support/Table.h"

namespace blunko::test {
namespace {

TEST(Turn, OfAPersonTakesItsTime) {
  Table table;
  table.Screen.TellsAll = true;
  table.Options.Speed = SpeedNormal;
  table.Begin({"Ann", "Bob"});
  EXPECT_EQ(table.Told(), "status Roll the dice.; score 0; buttons roll");
  table.Play("434214");
  EXPECT_EQ(
      table.Told(),
      "status Rolling...; sound MultiDie; dice 6/; sleep 10; dice 66/; sleep 10; dice 666/; sleep 10; dice 6666/; "
      "sleep 10; dice 66666/; sleep 10; dice 666666/; sleep 10 x25; dice 123444/; status Select Dice.; buttons ");
  table.Play("@3");
  EXPECT_EQ(table.Told(),
            "sound MoveDie; dice 12344/4; sleep 200; sound MoveDie; dice 1234/44; sleep 200; sound MoveDie; "
            "dice 123/444; sleep 200; status Select dice or roll.; score 400; buttons roll");
  table.Play("@12");
  EXPECT_EQ(table.Told(),
            "dice 1234/44; score 0; status Select Dice. (Undo); sound Undo; dice 12344/4; "
            "buttons ; sound Undo; dice 123444/; sound Undo");
  table.Play("@2 @6 @15");
  EXPECT_EQ(table.Told(), "beep") << "a die that doesn't score beeps; there are no dice elsewhere";
  table.Play("@0");
  EXPECT_EQ(table.Told(), "sound MoveDie; status Select dice or roll.; dice 23444/1; score 100; buttons roll");
  table.Play("23146");
  EXPECT_EQ(
      table.Told(),
      "status Rolling...; divider 876; sound MultiDie; dice 6/1; sleep 11; dice 66/1; sleep 11; dice 666/1; sleep 11; "
      "dice 6666/1; sleep 11; dice 66666/1; sleep 11 x31; dice 12346/1; status Select Dice.; buttons ");
}

TEST(Turn, TumblesAsTheNumberOfDiceTells) {
  const struct {
    const char* Moves;
    int Dice;
    const char *Sound, *Sleeps;
  } Rows[] = {{"111112 @0 1", 1, "OneDie", "sleep 20 x20"},       {"111123 @0 11", 2, "MultiDie", "sleep 15 x30"},
              {"111234 @0 111", 3, "MultiDie", "sleep 13 x30"},   {"112346 @0 @1 1111", 4, "MultiDie", "sleep 13 x32"},
              {"123446 @0 11111", 5, "MultiDie", "sleep 11 x35"}, {"111111", 6, "MultiDie", "sleep 10 x30"},
              {"123456 @0 111111", 6, "MultiDie", "sleep 10 x30"}};
  for (const auto& Row : Rows) {
    for (const int Speed : {-1, 0, 1, 2}) {  // of a computer, -1 for a person
      Table table;
      table.Options.Speed = std::abs(Speed);
      table.Begin({Speed < 0 ? "Ann" : "Normal", "Bob"});
      const std::string Moves = Row.Moves;
      const auto Last = Moves.rfind(' ') + 1;
      table.Play(Moves.substr(0, Last));
      table.TakeLog();
      const int Before = table.Numbers.Draws;
      table.Play(Moves.substr(Last));
      const auto Log = table.Told("s");
      EXPECT_EQ(Log, Speed == 2 ? "status Rolling...; status Select Dice."
                                : std::string("status Rolling...; sound ") + Row.Sound + "; " + Row.Sleeps +
                                      "; status Select Dice.");
      const int Tumbled = Speed == 2 ? 0 : std::stoi(std::string(Row.Sleeps).substr(10));
      EXPECT_EQ(table.Numbers.Draws - Before, Tumbled + Row.Dice) << "a draw for each step and one to stay";
    }
  }
}

}  // namespace
}  // namespace blunko::test

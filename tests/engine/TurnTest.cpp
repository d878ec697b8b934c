#include <gtest/gtest.h>

#include "tests/support/Table.h"

namespace blunko::test {

TEST(Turn, OfAPersonTakesItsTime) {
  Table table;
  table.Screen.TellsAll = true;
  table.Options.ComputerSpeed = SpeedNormal;
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
}

TEST(Turn, TumblesAsTheNumberOfDiceTells) {
  const std::tuple<const char*, std::string_view, int, const char*> Rows[] = {
      {"111112 @0", "1", 20, "20"},       {"111123 @0", "11", 30, "15"},    {"111234 @0", "111", 30, "13"},
      {"112346 @0 @1", "1111", 32, "13"}, {"123446 @0", "11111", 35, "11"}, {"123456 @0", "111111", 30, "10"}};
  for (const auto& [Before, Faces, Tumbles, Sleep] : Rows) {
    for (const int Speed : {-1, 0, 1, 2}) {  // of a computer, -1 for a person
      Table table;
      table.Options.ComputerSpeed = std::abs(Speed);
      table.Begin({Speed < 0 ? "Ann" : "Normal", "Bob"});
      table.Play(Before);
      table.TakeLog();
      const int Steps = Speed == 2 ? 0 : Tumbles, Drawn = table.Numbers.Draws;
      table.Play(Faces);
      EXPECT_EQ(table.Told("sleep"), Steps == 0 ? "" : std::string("sleep ") + Sleep + " x" + std::to_string(Steps));
      EXPECT_EQ(table.Numbers.Draws - Drawn, Steps + std::ssize(Faces)) << "one for each step and one to stay";
    }
  }
}

}  // namespace blunko::test

#include <gtest/gtest.h>

#include "tests/support/Table.h"

namespace blunko::test {
namespace {

TEST(Turn, FollowsFromDiceAndScores) {
  const struct {
    const char* Rule;
    int Banked, TurnScore;
    const char *Moves, *Look;
  } Rows[] = {
      {"a first roll must be taken from", 3000, 0, "134426", "0: 1*23446 /  / Select Dice. (s)"},
      {"a die in the tray: pass", 500, 0, "123446 @0 34123", "100: 1*2334. / 1 / Select Dice or Pass Dice. (sp)"},
      {"not broken in: select", 0, 0, "123446 @0 12334", "100: 1*2334. / 1 / Select Dice. (s)"},
      {"every die scores: no passing", 3000, 0, "111123 @0 15", "2000: 1*5*.... / 1111 / Select Dice. (s)"},
      {"one of two scorers taken", 3000, 0, "111123 @0 15 @0", "2100: .5*.... / 11111 / Select Dice. (s)"},
      {"all taken", 3000, 0, "111123 @0 15 @0 @1", "2150: ...... / 111115 / All dice score - You must roll. (r)"},
      {"break-in reached exactly", 0, 450, "233445 @5", "500: 23344. / 5 / Roll or pass the dice. (rp)"},
      {"break-in missed by 50", 0, 400, "233445 @5", "450: 23344. / 5 / Roll the dice. (r)"},
      {"a scorer left, not broken in", 0, 0, "113445 @0", "100: .1*3445* / 1 / Select dice or roll. (rs)"},
      {"a scorer left", 500, 0, "113445 @0", "100: .1*3445* / 1 / Roll, select, or pass the dice. (rsp)"},
      {"a straight: one click", 500, 0, "654321 @3", "1500: ...... / 123456 / All dice score - You must roll. (r)"},
      {"three pairs: one click", 0, 0, "155221 @2", "500: ...... / 112255 / All dice score - You must roll. (r)"},
      {"a group goes whole and counts once", 500, 0, "234242 @2", "200: ...344 / 222 / Roll or pass the dice. (rp)"},
      {"another group, and a taken place", 0, 0, "222551 @3 @3 @0", "300: ....5*5* / 2221 / Select Dice. (s)"},
      {"the score stops at its width", 0, 32000, "111123 @1", "32767: ....23 / 1111 / Roll or pass the dice. (rp)"},
      {"undo takes back all since the roll", 500, 0, "123446 @0 13345 @0 @4 @12",
       "100: 1*3345*. / 1 / Select Dice or Pass Dice. (Undo) (sp)"},
      {"not what was taken before it", 500, 0, "123446 @0 13345 @0 @4 @10",
       "250: .334.. / 115 / Roll or pass the dice. (rp)"},
      {"of a first selection: select again", 500, 0, "123446 @0 @10", "0: 1*23446 /  / Select Dice. (Undo) (s)"},
      {"no undo without a die on the table", 0, 0, "123456 @0 @12",
       "1500: ...... / 123456 / All dice score - You must roll. (r)"},
      {"a full tray comes back, and all of the new set is undone", 0, 0, "123456 @0 123446 @0 @10",
       "1500: 1*23446 /  / Select Dice. (Undo) (s)"},
  };
  for (const char* Name : {"Ann", "Normal"}) {
    for (const auto& Row : Rows) {
      Table table;
      table.Begin({Name, "Bob"});
      table.m.PlayerScore[0] = static_cast<std::int16_t>(Row.Banked);
      table.m.TurnScore = static_cast<std::int16_t>(Row.TurnScore);
      table.t.lblTurnScore.Caption = std::to_string(Row.TurnScore);
      table.Play(Row.Moves);
      EXPECT_EQ(table.Look(), std::string(Name) + ' ' + Row.Look) << Row.Rule;
    }
  }
}

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
    int Dice, Divider;
    const char *Sound, *Sleeps;
  } Rows[] = {{"111112 @0 1", 1, 4530 - 84, "OneDie", "sleep 20 x20"},
              {"111123 @0 11", 2, 3645 - 84, "MultiDie", "sleep 15 x30"},
              {"111234 @0 111", 3, 2745 - 84, "MultiDie", "sleep 13 x30"},
              {"112346 @0 @1 1111", 4, 1845 - 84, "MultiDie", "sleep 13 x32"},
              {"123446 @0 11111", 5, 960 - 84, "MultiDie", "sleep 11 x35"},
              {"111111", 6, 0, "MultiDie", "sleep 10 x30"},
              {"123456 @0 111111", 6, 0, "MultiDie", "sleep 10 x30"}};
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
      EXPECT_EQ(table.t.pctDivider.Visible ? table.t.pctDivider.Left : 0, Row.Divider);
    }
  }
}

}  // namespace
}  // namespace blunko::test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/Table.h"

namespace blunko::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string Question = "ask Quit?: Are you sure you want to quit the current game?";

TEST(FreshGame, ReadsAllSeatsAndClearsTheTable) {
  Table table;
  table.m.PlayerStyle[1] = Moron;
  GameSetup Setup;
  Setup.NumPlayers = 1;
  Setup.PlayToScore = 10000;
  Setup.BreakInScore = 1000;
  Setup.Seats[0].Name = "Ann";
  Setup.Seats[1] = {"Bot", true, 0};
  Setup.Seats[7] = {"Last", true, Genius};
  table.game.FreshGame(Setup);
  EXPECT_EQ(table.m.NumPlayers, 2) << "one player is a game of two seats";
  EXPECT_EQ(table.m.PlayerStyle[1], Moron) << "a number that is no style leaves the seat's";
  EXPECT_EQ(table.m.PlayerStyle[7], Genius) << "seats beyond the number are read too";
  EXPECT_EQ(table.m.PlayToScore, 10000);
  EXPECT_EQ(table.m.BreakInScore, 1000);
  EXPECT_TRUE(table.m.TurnOver && table.m.ScorePadShown);
  EXPECT_TRUE(table.t.cmdRoll.Enabled);
  EXPECT_EQ(table.game.Fault(), "");

  table.Roll({1, 2, 3, 4, 4, 6});
  table.Click(0);
  table.t.ShowLastRoll();
  table.TakeLog();
  table.Begin({"Normal", "Ann"});
  EXPECT_THAT(table.TakeLog("computer"), ElementsAre("computer turn")) << "seat 0 begins without a click";
  EXPECT_FALSE(table.t.cmdRoll.Enabled || table.t.cmdPassDice.Enabled);
  EXPECT_EQ(table.t.lblStatus.Top, StatusTop);
  EXPECT_EQ(table.game.Fault(), "");
}

TEST(Keys, NobodyTouchesTheDiceOfAComputer) {
  Table table;
  table.Begin({"Normal", "Ann"});
  table.Roll({1, 2, 3, 4, 4, 6});
  table.game.Picture1_MouseUp(0, LeftButton, 0, 0, 0);
  table.TakeLog();
  for (const std::int16_t Key : {49, 50, 82, 80, 8, 96, 97, 110}) table.game.Form_KeyUp(Key, 0);
  for (std::int16_t Index = 0; Index < 16; ++Index) {
    table.game.PersonClicksDie(Index, LeftButton);
    table.game.PersonClicksDie(Index, RightButton);
  }
  table.game.PersonRolls();
  table.game.PersonPasses();
  EXPECT_THAT(table.TakeLog(), IsEmpty());
  EXPECT_EQ(table.m.TurnScore, 100);
}

TEST(NewGame, AsksBeforeAGameIsGivenUp) {
  const struct {
    std::int16_t Shift;
    bool Yes;
    std::vector<std::string> Log;
    bool GivenUp;
  } Rows[] = {{0, false, {"beep", Question}, false},
              {0, true, {"beep", Question, "new game"}, true},
              {ShiftAlone, false, {"beep", "new game"}, true},
              {3, false, {"beep", Question}, false}};
  for (const auto& Row : Rows) {
    Table table;
    table.Begin({"Ann", "Bob"});
    table.Roll({1, 2, 3, 4, 4, 6});
    table.Click(0);
    table.TakeLog();
    table.Screen.Answer = Row.Yes;
    table.game.Form_KeyUp(113, Row.Shift);
    EXPECT_EQ(table.TakeLog(), Row.Log) << "shift mask " << Row.Shift;
    EXPECT_EQ(table.t.ARCmdNewGame.Visible, Row.GivenUp);
    EXPECT_EQ(table.m.CurrentPlayer, 0) << "the seat on turn isn't touched";
    EXPECT_EQ(table.game.Fault(), "");
    if (!Row.GivenUp) continue;
    table.TakeLog();
    for (const std::int16_t Key : {49, 50, 82, 80, 8}) table.game.Form_KeyUp(Key, 0);
    table.game.PersonClicksDie(1, RightButton);
    EXPECT_THAT(table.TakeLog(), IsEmpty()) << "a table that was given up is closed";
  }
}

TEST(Quit, IsAskedForWhileAGameRuns) {
  Table table;
  EXPECT_TRUE(table.game.Form_Unload());
  EXPECT_THAT(table.TakeLog(), ElementsAre("exit")) << "no game, no question";

  Table other;
  other.Begin({"Ann", "Bob"});
  other.TakeLog();
  other.Screen.Answer = false;
  other.game.Form_KeyUp(27, 0);
  EXPECT_THAT(other.TakeLog(), ElementsAre("unload others", "beep", Question));
  EXPECT_FALSE(other.m.Quitting);
  other.Screen.Answer = true;
  EXPECT_TRUE(other.game.Form_Unload());
  EXPECT_TRUE(other.m.Quitting);
}

}  // namespace
}  // namespace blunko::test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/Table.h"

namespace blunko::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// Ends the turn of the seat on turn with so many points banked.
void Bank(Table& table, int Points) {
  table.m.TurnScore = static_cast<std::int16_t>(Points);
  table.m.RollIsBust = false;
  table.game.cmdPassDice_Click();
}

TEST(PassDice, BanksAndHandsOnACleanTable) {
  Table table;
  table.Begin({"Ann", "Bob", "Cid"});
  table.m.PlayerScore[0] = 500;
  table.Roll({1, 2, 3, 4, 4, 6});
  table.Click(0);
  table.TakeLog();
  table.game.cmdPassDice_Click();
  EXPECT_THAT(table.TakeLog(), ElementsAre("sound Passem1", "high turn Ann 100", "status Roll the dice."));
  EXPECT_EQ(table.m.PlayerScore[0], 600);
  EXPECT_EQ(table.m.CurrentPlayer, 1);
  EXPECT_EQ(table.t.lblPlayer.Caption, "Bob");
  EXPECT_TRUE(table.t.cmdRoll.Enabled);
  EXPECT_FALSE(table.t.cmdPassDice.Enabled);
  EXPECT_EQ(table.game.Fault(), "");
}

TEST(PassDice, ABustBanksNothingAndSoundsDifferent) {
  Table table;
  table.Begin({"Ann", "Bob"});
  table.m.PlayerScore[0] = 4900;
  table.m.TurnScore = 4000;
  table.TakeLog();
  table.Roll({2, 3, 4, 6, 2, 3});
  EXPECT_EQ(table.m.PlayerScore[0], 4900);
  EXPECT_EQ(table.m.OutPlayer, Absent) << "a bust never goes out";
  const auto Log = table.TakeLog();
  EXPECT_THAT(Log, Contains("sound Passem2"));
  EXPECT_THAT(Log, testing::Not(Contains(testing::StartsWith("high turn"))));
}

TEST(PassDice, WaitsAsTheSpeedSays) {
  const struct {
    int Speed;
    bool NextIsComputer;
    std::vector<std::string> Waits;
  } Rows[] = {{0, false, {"sleep 1000"}},
              {1, false, {"sleep 1000"}},
              {2, false, {}},
              {0, true, {"sleep 1000", "sleep 1000"}},
              {1, true, {"sleep 1000"}},
              {2, true, {}}};
  for (const auto& Row : Rows) {
    Table table;
    table.Options.Speed = Row.Speed;
    table.Begin({"Ann", Row.NextIsComputer ? "Normal" : "Bob"});
    table.TakeLog();
    Bank(table, 600);
    EXPECT_EQ(table.TakeLog("sleep"), Row.Waits) << "speed " << Row.Speed << ", computer " << Row.NextIsComputer;
    EXPECT_EQ(table.t.cmdRoll.Enabled, !Row.NextIsComputer);
  }
}

TEST(PassDice, TheFirstSeatToReachTheTargetGoesOut) {
  const struct {
    const char* Rule;
    std::vector<const char*> Seats;
    std::vector<std::int16_t> Before;
    int Out, Banks;
    std::string Need;
    bool Shown;  ///< a box and a flash
  } Rows[] = {
      {"reaching the target exactly is enough", {"Ann", "Bob"}, {4000, 0}, 0, 1000, "5050 To Win", true},
      {"two seats, far behind", {"Ann", "Bob"}, {0, 0}, 0, 10150, "10200 To Win", true},
      {"two seats, close behind", {"Ann", "Bob"}, {0, 9000}, 0, 10150, "1200 To Win", true},
      {"three seats", {"Ann", "Bob", "Cid"}, {1000, 3000, 0}, 2, 5300, "4350 To Take The Lead", true},
      {"computers alone: no box, no flash", {"Normal", "Simple"}, {0, 0}, 0, 5000, "5050 To Win", false},
      {"a computer against a person", {"Normal", "Ann"}, {0, 0}, 0, 5000, "5050 To Win", true},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Rule);
    Table table;
    table.m.TempFolder = "/tmp/x/";
    table.Begin(Row.Seats);
    std::copy(Row.Before.begin(), Row.Before.end(), table.m.PlayerScore.begin());
    table.m.CurrentPlayer = static_cast<std::uint8_t>(Row.Out);
    table.TakeLog();
    Bank(table, Row.Banks);
    EXPECT_EQ(table.m.OutPlayer, Row.Out);
    EXPECT_EQ(table.t.lblLastRoll.Caption, "(Last Roll - Need " + Row.Need + ")");
    EXPECT_TRUE(table.t.lblLastRoll.Visible);
    const auto Seat = static_cast<std::size_t>(Row.Out);
    const std::string Box = "box " + table.m.PlayerName[Seat] +
                            " has gone out.  Everybody else gets one more roll to try and beat " +
                            std::to_string(table.m.PlayerScore[Seat]) + " points.";
    const auto Log = table.TakeLog();
    EXPECT_THAT(Log, Contains("sound /tmp/x/overtop.wav"));
    EXPECT_THAT(Log, Contains(Box).Times(Row.Shown ? 1 : 0));
    EXPECT_THAT(Log, Contains("beep").Times(Row.Shown ? 3 : 0));
    EXPECT_THAT(Log, Contains("sleep 200").Times(Row.Shown ? 4 : 0));
  }
}

TEST(PassDice, TheFlashCantBeInterruptedByARoll) {
  Table table;
  table.Options.Silent = true;
  table.Begin({"Ann", "Bob"});
  std::vector<std::string> Shown;
  table.Screen.OnEvents = [&] {
    Shown.push_back(table.t.lblLastRoll.Caption);
    table.game.PersonRolls();
    table.game.Form_KeyUp('R', 0);
    table.game.PersonClicksDie(0, RightButton);
  };
  Bank(table, 5000);
  const std::string Caption = "(Last Roll - Need 5050 To Win)";
  EXPECT_THAT(Shown, ElementsAre(Caption, "", Caption, "", Caption));
  EXPECT_EQ(table.Numbers.Draws, 0);
  EXPECT_THAT(table.TakeLog("beep"), IsEmpty()) << "silent with the sound effects off";
  EXPECT_TRUE(table.t.cmdRoll.Enabled);
}

TEST(EndGame, TheHighestScoreWinsAndTiesGoInTurnOrder) {
  const struct {
    const char* Rule;
    std::vector<std::int16_t> Scores;
    int Out, Winner, Margin;
  } Rows[] = {
      {"the seat that went out wins a tie", {0, 10100, 10100}, 1, 1, 0},
      {"among others the first after it", {10400, 10100, 10400}, 1, 2, 0},
      {"overtaken by the next", {5000, 5200, 100}, 0, 1, 200},
      {"never overtaken", {1050, 950, 0}, 0, 0, 100},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Rule);
    Table table;
    table.Begin({"Ann", "Bob", "Cid"});
    std::copy(Row.Scores.begin(), Row.Scores.end(), table.m.PlayerScore.begin());
    table.m.OutPlayer = static_cast<std::uint8_t>(Row.Out);
    table.t.ShowLastRoll();
    table.m.CurrentPlayer = static_cast<std::uint8_t>((Row.Out + 2) % 3);
    table.TakeLog();
    Bank(table, 0);
    EXPECT_EQ(table.m.Winner, Row.Winner);
    EXPECT_THAT(table.TakeLog("whoopin"),
                ElementsAre("whoopin " + table.m.PlayerName[static_cast<std::size_t>(Row.Winner)] + " " +
                            std::to_string(Row.Margin)));
    EXPECT_EQ(table.m.CurrentPlayer, Absent);
    EXPECT_TRUE(table.m.GameOver);
    EXPECT_FALSE(table.t.lblLastRoll.Visible);
    EXPECT_FALSE(table.t.cmdRoll.Enabled || table.t.cmdPassDice.Enabled);
    EXPECT_EQ(table.game.Fault(), "");
  }
}

TEST(EndGame, TheWordOfTheDialogDecidesWhatFollows) {
  const struct {
    const char* Word;
    std::vector<std::string> After;
    const char* WordLeft;
    bool NewGameButton;
  } Rows[] = {{"SameGame", {"new game"}, "SameGame", false},
              {"DifferentGame", {"new game"}, "", true},
              {"Quit", {"exit"}, "", false},
              {"", {}, "", false}};
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Word);
    Table table;
    table.Begin({"Normal", "Simple"});
    table.m.OutPlayer = 1;
    table.Others.OnCongrats = [&] { table.m.FormMessage = Row.Word; };
    table.TakeLog();
    Bank(table, 0);
    auto Log = table.TakeLog();
    Log.erase(Log.begin(), std::find(Log.begin(), Log.end(), "status  ") + 1);
    EXPECT_EQ(Log, Row.After) << "and no question: no game is running";
    EXPECT_EQ(table.m.FormMessage, Row.WordLeft);
    EXPECT_EQ(table.t.ARCmdNewGame.Visible, Row.NewGameButton);
  }
}

TEST(EndGame, ABustThatEndsTheGameWritesNothingIntoTheNext) {
  Table table;
  table.Begin({"Ann", "Bob"});
  table.m.CurrentPlayer = 0;
  table.m.OutPlayer = 1;
  table.t.ShowLastRoll();
  table.Others.OnCongrats = [&] { table.m.FormMessage = "SameGame"; };
  table.Others.OnNewGame = [&] {
    table.m.FormMessage.clear();
    table.Begin({"Ann", "Bob"});
    table.m.SavedTurnScore = 77;
  };
  table.m.TurnScore = 300;
  table.Roll({2, 3, 4, 6, 2, 3});
  EXPECT_EQ(table.m.ActionSet, "r");
  EXPECT_EQ(table.m.SavedTurnScore, 77);
  EXPECT_EQ(table.t.lblStatus.Caption, "Roll the dice.");
}

}  // namespace
}  // namespace blunko::test

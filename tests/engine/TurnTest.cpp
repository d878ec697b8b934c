#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/Table.h"

namespace blunko::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TurnOptions, FollowFromDiceAndScores) {
  const struct {
    const char* Rule;
    int Banked, TurnScore;
    const char *First, *TakenOfFirst;  ///< an earlier roll of the turn, empty for none, and the places of dice taken
    const char *Roll, *Taken;
    const char* Status;
    const char* ActionSet;
    int TurnScoreAfter;
  } Rows[] = {
      {"a first roll must be taken from", 3000, 0, "", "", "123446", "", "Select Dice.", "s", 0},
      {"a die in the tray: pass", 500, 0, "123446", "0", "12334", "", "Select Dice or Pass Dice.", "sp", 100},
      {"not broken in: select", 0, 0, "123446", "0", "12334", "", "Select Dice.", "s", 100},
      {"every die scores: no passing", 3000, 0, "111123", "0", "15", "", "Select Dice.", "s", 2000},
      {"one of two scorers taken: the other too", 3000, 0, "111123", "0", "15", "0", "Select Dice.", "s", 2100},
      {"all taken", 3000, 0, "111123", "0", "15", "01", "All dice score - You must roll.", "r", 2150},
      {"break-in reached exactly", 0, 450, "", "", "233445", "5", "Roll or pass the dice.", "rp", 500},
      {"break-in missed by 50", 0, 400, "", "", "233445", "5", "Roll the dice.", "r", 450},
      {"a scorer left, not broken in", 0, 0, "", "", "113445", "0", "Select dice or roll.", "rs", 100},
      {"a scorer left", 500, 0, "", "", "113445", "0", "Roll, select, or pass the dice.", "rsp", 100},
      {"a straight: one click", 500, 0, "", "", "654321", "3", "All dice score - You must roll.", "r", 1500},
      {"three pairs: one click", 0, 0, "", "", "115522", "2", "All dice score - You must roll.", "r", 500},
  };
  for (const bool Computer : {false, true}) {
    for (const auto& Row : Rows) {
      SCOPED_TRACE(std::string(Row.Rule) + (Computer ? " (computer)" : ""));
      Table table;
      table.Begin({Computer ? "Normal" : "Ann", "Bob"});
      table.m.PlayerScore[0] = static_cast<std::int16_t>(Row.Banked);
      table.m.TurnScore = static_cast<std::int16_t>(Row.TurnScore);
      if (*Row.First != 0) table.Roll(Digits(Row.First));
      for (const int Index : Digits(Row.TakenOfFirst)) table.Click(Index);
      table.Roll(Digits(Row.Roll));
      for (const int Index : Digits(Row.Taken)) table.Click(Index);
      const std::string Set = Row.ActionSet;
      EXPECT_EQ(table.t.lblStatus.Caption, Row.Status);
      EXPECT_EQ(std::string_view(table.m.ActionSet), Set);
      EXPECT_EQ(table.m.TurnScore, Row.TurnScoreAfter);
      EXPECT_EQ(table.t.cmdRoll.Enabled, !Computer && Set.find('r') != Set.npos);
      EXPECT_EQ(table.t.cmdPassDice.Enabled, !Computer && Set.find('p') != Set.npos);
      EXPECT_EQ(table.game.Fault(), "");
    }
  }
}

TEST(ShowBust, PlaysOutForAPersonAndAtNormalSpeedAndHurriesOtherwise) {
  const std::string Spelled = "BLUNKO - Passing the dice.";
  for (const bool Computer : {false, true}) {
    for (const int Speed : {0, 1, 2}) {
      SCOPED_TRACE((Computer ? "computer, speed " : "person, speed ") + std::to_string(Speed));
      const bool Full = !Computer || Speed == 0;
      std::vector<std::string> Expected{"pointer 11"};
      const auto Add = [&](const std::string& Line) { Expected.push_back(Line); };
      if (Full) Add("sleep 250");
      Add("sound Blunko");
      for (int Blink = 0; Blink < 3; ++Blink) {
        for (const char* Text : {"status BLUNKO !!!", "status "}) {
          Add(Text);
          if (Full) Add("sleep 100");
        }
      }
      Add("status BLUNKO !!!");
      if (Full) {
        Add("sleep 300");
      }
      for (std::size_t Length = Full ? 10 : 25; Length < 26; ++Length) {
        if (Spelled[Length - 1] == ' ') continue;
        Add("status " + Spelled.substr(0, Length));
        Add("sleep 20");
      }
      Add("status " + Spelled);
      if (!Computer) Add("sleep 300");
      Add("pointer 0");

      Table table;
      table.Options.Speed = Speed;
      table.Begin({Computer ? "Normal" : "Ann", "Bob"});
      table.Roll({2, 3, 4, 6, 2, 3});
      auto Log = table.TakeLog();
      const auto From = std::find(Log.begin(), Log.end(), "pointer 11");
      const auto To = std::find(From, Log.end(), "pointer 0");
      ASSERT_NE(To, Log.end());
      EXPECT_EQ(std::vector<std::string>(From, To + 1), Expected);
      EXPECT_EQ(table.m.CurrentPlayer, Computer ? 0 : 1) << "a person's show passes the dice, a computer passes itself";
      EXPECT_EQ(table.m.ActionSet, "p");
      EXPECT_EQ(table.t.lblTurnScore.Caption, "0");
    }
  }
}

TEST(SelectDice, GroupsGoWholeInOrder) {
  Table table;
  table.Options.Sort = false;
  table.Begin({"Ann", "Bob"});
  table.Roll({6, 2, 4, 2, 6, 4});
  table.TakeLog();
  table.Click(0);
  EXPECT_THAT(table.Tray(), ElementsAre(2, 2, 4, 4, 6, 6)) << "three pairs reach the tray in ascending order";
  EXPECT_EQ(table.TakeLog("sleep").size(), 6U) << "200 ms after every die of a group, the last too";
  EXPECT_FALSE(table.m.TrayUsed[5]) << "the sixth die stays where it entered";

  table.Roll({2, 1, 5, 2, 2, 3});
  table.TakeLog();
  table.Click(3);
  EXPECT_THAT(table.Tray(), ElementsAre(2, 2, 2));
  EXPECT_EQ(table.m.TurnScore, 700) << "a group's points count once";
  table.Click(1);
  EXPECT_THAT(table.Tray(), ElementsAre(2, 2, 2, 1));
  table.Click(5);
  EXPECT_THAT(table.TakeLog("beep"), ElementsAre("beep")) << "a die that doesn't score beeps";
  for (const int Silent : {1, 3, 13, 7, -1, 16}) table.Click(Silent == 13 ? 15 : Silent);
  EXPECT_EQ(table.m.TurnScore, 800) << "clicks on taken dice, empty slots and no dice at all do nothing";
  EXPECT_THAT(table.TakeLog(), IsEmpty());
}

TEST(SelectDice, UndoTakesBackAllSinceTheRollAndNothingElse) {
  Table table;
  table.Begin({"Ann", "Bob"});
  table.m.PlayerScore[0] = 500;
  table.Roll({1, 2, 3, 4, 4, 6});
  table.Click(0);
  table.Roll({1, 3, 3, 4, 5});
  table.Click(0);
  table.Click(4);
  ASSERT_EQ(table.m.TurnScore, 250);
  table.Click(10);
  EXPECT_EQ(table.m.TurnScore, 250) << "a die of an earlier roll is frozen";
  table.TakeLog();
  table.Click(12);
  EXPECT_EQ(table.m.TurnScore, 100);
  EXPECT_THAT(table.m.ShownFace, ElementsAre(1, 3, 3, 4, 5, 0));
  EXPECT_THAT(table.Tray(), ElementsAre(1));
  EXPECT_THAT(table.t.picMarker, ElementsAre(true, false, false, false, true, false));
  EXPECT_EQ(table.t.lblStatus.Caption, "Select Dice or Pass Dice. (Undo)");
  EXPECT_EQ(table.TakeLog("sound").size(), 2U) << "one sound a die";
  EXPECT_TRUE(table.t.cmdPassDice.Enabled);
  EXPECT_FALSE(table.t.cmdRoll.Enabled);
  EXPECT_EQ(table.game.Fault(), "");
}

TEST(SelectDice, SixTakenDiceStayAndTheNextSetCanBeUndone) {
  Table table;
  table.Begin({"Ann", "Bob"});
  table.Roll({1, 2, 3, 4, 5, 6});
  table.Click(0);
  table.Click(12);
  EXPECT_EQ(table.Tray().size(), 6U) << "with no die left on the table there is no undo";
  table.Roll({1, 2, 3, 4, 4, 6});
  table.Click(0);
  ASSERT_EQ(table.m.TrayCountAtRoll, 6);
  table.Click(10);
  EXPECT_EQ(table.m.TurnScore, 1500);
  EXPECT_THAT(table.Tray(), IsEmpty());
}

TEST(SelectDice, ScoresStopAtTheLimitOfTheirWidth) {
  Table table;
  table.Begin({"Ann", "Bob"});
  table.m.TurnScore = 32000;
  table.m.PlayerScore[0] = 1000;
  table.Roll({1, 1, 1, 1, 2, 3});
  table.Click(0);
  EXPECT_EQ(table.m.TurnScore, 32767);
  table.game.cmdPassDice_Click();
  EXPECT_EQ(table.m.PlayerScore[0], 32767);
}

TEST(SelectDice, TheRightButtonRollsIfRollingIsAllowed) {
  Table table;
  table.Begin({"Ann", "Bob"});
  table.Numbers.Faces.assign(36, 1);
  table.Click(3, RightButton);
  EXPECT_GT(table.Numbers.Draws, 0);
  const int Draws = table.Numbers.Draws;
  table.TakeLog();
  table.Click(0, RightButton);
  table.game.picTray1_MouseUp(RightButton, 0, 0, 0);
  table.game.picTray2_MouseUp(LeftButton, 0, 0, 0);
  EXPECT_EQ(table.Numbers.Draws, Draws);
  EXPECT_THAT(table.TakeLog(), IsEmpty()) << "no beep either";
}

}  // namespace
}  // namespace blunko::test

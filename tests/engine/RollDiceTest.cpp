#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/Table.h"

namespace blunko::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Puts dice into the tray as earlier rolls of the turn would have.
void FillTray(Table& table, int Dice) {
  for (int i = 0; i < Dice; ++i) {
    table.t.Picture1(10 + i) = 112 + 1;
    table.m.TrayFace[static_cast<std::size_t>(i)] = 1;
    table.m.TrayUsed[static_cast<std::size_t>(i)] = i < 5;
  }
}

TEST(RollDice, TumblesForAPersonAsTheNumberOfDiceTells) {
  const struct {
    int InTray;
    int Dice, Cycles, Wait;
    const char* Sound;
  } Rows[] = {{5, 1, 20, 20, "sound OneDie"},  {4, 2, 15, 15, "sound MultiDie"}, {3, 3, 10, 13, "sound MultiDie"},
              {2, 4, 8, 13, "sound MultiDie"}, {1, 5, 7, 11, "sound MultiDie"},  {0, 6, 5, 10, "sound MultiDie"},
              {6, 6, 5, 10, "sound MultiDie"}};
  for (const auto& Row : Rows) {
    Table table;
    table.Begin({"Ann", "Bob"});
    FillTray(table, Row.InTray);
    table.TakeLog();
    table.Numbers.Faces.assign(36, 1);  // never a bust
    table.game.cmdRoll_Click();
    const auto Log = table.TakeLog();
    EXPECT_EQ(std::count(Log.begin(), Log.end(), Row.Sound), 1) << Row.Dice << " dice";
    EXPECT_EQ(std::count(Log.begin(), Log.end(), "sleep " + std::to_string(Row.Wait)), Row.Dice * Row.Cycles)
        << Row.Dice << " dice";
    EXPECT_EQ(table.Numbers.Draws, Row.Dice * (Row.Cycles + 1)) << "every die is drawn once a cycle and once to stay";
    EXPECT_EQ(table.m.TrayCountAtRoll, Row.InTray);
    EXPECT_EQ(table.t.pctDivider.Visible, Row.InTray >= 1 && Row.InTray <= 5) << Row.InTray << " in the tray";
    if (Row.InTray == 5) {
      EXPECT_EQ(table.t.pctDivider.Left, 4530 - 84) << "just left of the first free slot";
    }
    for (int i = 0; i < Dice; ++i) EXPECT_EQ(table.t.Picture1(i) != 0, i < Row.Dice) << "position " << i;
  }
}

TEST(RollDice, AFullTrayComesBackAndTheTurnGoesOn) {
  Table table;
  table.Begin({"Ann", "Bob"});
  FillTray(table, 6);
  table.m.TurnScore = 1500;
  table.Roll({1, 2, 3, 4, 4, 6});
  EXPECT_THAT(table.Tray(), IsEmpty());
  EXPECT_EQ(table.m.TurnScore, 1500);
  EXPECT_EQ(table.m.SavedTurnScore, 1500);
}

TEST(RollDice, AComputerTumblesBelowRidiculousOnly) {
  for (const int Speed : {0, 1, 2}) {
    Table table;
    table.Options.Speed = Speed;
    table.Begin({"Normal", "Ann"});
    table.TakeLog();
    table.Numbers.Faces.assign(36, 1);
    table.game.cmdRoll_Click();
    EXPECT_EQ(table.TakeLog("sound").empty(), Speed == 2) << "speed " << Speed;
    EXPECT_EQ(table.Numbers.Draws, Speed == 2 ? 6 : 36) << "speed " << Speed;
  }
}

TEST(RollDice, SortsFacesAndMarksScorersAsTheOptionsSay) {
  for (const bool On : {true, false}) {
    Table table;
    table.Options.Sort = table.Options.Mark = On;
    table.Begin({"Ann", "Bob"});
    table.Roll({5, 3, 6, 1, 4, 3});
    EXPECT_THAT(table.m.ShownFace, On ? ElementsAre(1, 3, 3, 4, 5, 6) : ElementsAre(5, 3, 6, 1, 4, 3));
    EXPECT_THAT(table.t.picMarker, On ? ElementsAre(true, false, false, false, true, false)
                                      : ElementsAre(false, false, false, false, false, false));
    EXPECT_EQ(table.t.Picture1(0), 112 + (On ? 1 : 5)) << "the picture is the set's base plus the face";
  }
}

}  // namespace
}  // namespace blunko::test

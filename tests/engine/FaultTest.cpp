#include <gtest/gtest.h>

#include "tests/support/Table.h"

namespace blunko::test {
namespace {

TEST(Fault, NamesTheRuleThatIsBroken) {
  const struct {
    const char* Rule;
    std::function<void(Table&)> Break;
  } Rows[] = {
      {"Roll and Pass are visible together", [](Table& _) { _.t.cmdRoll.Visible = false; }},
      {"either the game buttons or New Game", [](Table& _) { _.t.ARCmdNewGame.Visible = true; }},
      {"the status line gives way", [](Table& _) { _.t.lblStatus.Top -= StatusRise; }},
      {"the seat on turn is one", [](Table& _) { _.m.CurrentPlayer = 2; }},
      {"the seat that is out is one", [](Table& _) { _.m.OutPlayer = 2; }},
      {"a table picture is the face", [](Table& _) { _.t.Picture1(5) = 113; }},
      {"a tray picture is the face", [](Table& _) { _.t.Picture1(15) = 113; }},
      {"a face in the tray is 1 to 6", [](Table& _) { _.m.TrayFace[0] = 7; }},
      {"the tray has no gap", [](Table& _) { _.m.TrayFace[2] = 1, _.t.Picture1(12) = 113; }},
      {"exactly the dice that are up are shown", [](Table& _) { _.m.ShownFace[0] = 6; }},
      {"a die that is up has a face", [](Table& _) { _.m.DieFace[1] = _.m.ShownFace[1] = 7; }},
      {"a table without a game is empty", [](Table& _) { _.m.CurrentPlayer = Absent; }},
      {"a mark stands over a scorer", [](Table& _) { _.t.picMarker[1] = true; }},
      {"a mark stands over a scorer", [](Table& _) { _.m.CurrentPlayer = Absent; }},
      {"the divider stands behind dice", [](Table& _) { _.m.TrayCountAtRoll = 0; }},
      {"the divider stands behind dice", [](Table& _) { _.m.TrayCountAtRoll = 2; }},
      {"a turn scores in steps of 50", [](Table& _) { _.m.TurnScore = 30; }},
      {"a seat scores in steps of 50", [](Table& _) { _.m.PlayerScore[1] = -50; }},
      {"the tray's marks are its dice", [](Table& _) { _.m.TrayUsed[0] = false; }},
      {"six dice lie on table and tray",
       [](Table& _) { _.m.DieUp[1] = false, _.m.ShownFace[1] = _.t.Picture1(1) = 0; }},
      {"the last-roll line shows", [](Table& _) { _.m.OutPlayer = 1; }},
      {"the table names the seat", [](Table& _) { _.t.lblPlayer.Caption = "Bob"; }},
      {"a person can neither roll nor pass", [](Table& _) { _.m.PlayerIsComputer[0] = true; }},
      {"nobody passes before the first roll", [](Table& _) { _.Begin({"Ann"}), _.t.cmdPassDice.Enabled = true; }},
      {"Roll is enabled exactly", [](Table& _) { _.t.cmdRoll.Enabled = true; }},
      {"Pass is enabled exactly", [](Table& _) { _.t.cmdPassDice.Enabled = false; }},
      {"the table shows the turn's score", [](Table& _) { _.t.lblTurnScore.Caption = '0'; }},
      {"only a seat that has broken in", [](Table& _) { _.m.PlayerScore[0] = 450; }},
      {"there is always a move",
       [](Table& _) {
         _.Begin({"Ann", "Bob"}), _.Play("123456 @0"), _.t.cmdRoll.Enabled = false;
       }},
  };
  for (const auto& Row : Rows) {
    Table table;
    table.Begin({"Ann", "Bob"});
    table.m.PlayerScore[0] = 500;
    table.Play("123446 @0 12345");
    ASSERT_EQ(table.game.Fault(), "");
    Row.Break(table);
    EXPECT_NE(table.game.Fault().find(Row.Rule), std::string::npos) << Row.Rule << ": " << table.game.Fault();
  }
}

TEST(Fault, StopsTheProgramInDebugBuilds) {
  Table table;
  table.t.ARCmdNewGame.Visible = table.t.cmdRoll.Visible = true;
  EXPECT_DEBUG_DEATH(table.game.AssertSound(), "either the game buttons or New Game is visible");
}

}  // namespace
}  // namespace blunko::test

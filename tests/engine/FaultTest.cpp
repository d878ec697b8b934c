#include <gtest/gtest.h>

#include "tests/support/Table.h"

namespace blunko::test {

TEST(Fault, NamesTheRulesThatAreBroken) {
  const std::pair<std::vector<const char*>, std::function<void(Module1&, TableControls&)>> Rows[] = {
      {{"either the game buttons",      "the status line gives way",  "a table picture is the face",
        "a face in the tray is",        "a tray picture is the face", "the tray has no gap",
        "exactly the dice that are up", "a die that is up has a",     "a mark stands over a scorer",
        "the divider stands behind",    "a turn scores in steps",     "a seat scores in steps",
        "the seat that is out is one",  "the last-roll line shows",   "the tray's marks are its",
        "the table names the",          "six dice lie on table and",  "Roll is enabled exactly",
        "Pass is enabled exactly",      "the table shows the turn"},
       [](Module1& m, TableControls& t) {
         t.ARCmdNewGame.Visible = t.picMarker[1] = t.cmdRoll.Enabled = true;
         t.Picture1(5) = t.Picture1(15) = 113, t.lblStatus.Top -= StatusRise, t.lblPlayer.Caption = "Bob";
         t.cmdPassDice.Enabled = m.TrayUsed[0] = false;
         m.TrayFace[0] = m.DieFace[1] = 7, m.TrayCountAtRoll = 0, m.TurnScore = 30, m.PlayerScore[1] = -50;
         m.OutPlayer = 2;
       }},
      {{"Roll and Pass are", "a table without a"}, [](auto&, TableControls& t) { t.cmdRoll.Visible = false; }},
      {{"the seat on turn is one"}, [](Module1& m, auto&) { m.CurrentPlayer = 2; }},
      {{"the divider stands behind"}, [](Module1& m, auto&) { m.TrayCountAtRoll = 2; }},
      {{"a person can neither roll nor pass"}, [](Module1& m, auto&) { m.PlayerIsComputer[0] = true; }},
      {{"nobody passes before"}, [](Module1& m, auto& t) { m.DieUp.fill(false), t.Picture1 = {}; }},
      {{"only a seat that has broken in"}, [](Module1& m, auto&) { m.PlayerScore[0] = 450; }},
      {{"there is always a move"}, [](auto& m, auto& t) { m.DieUp.fill(false), t.cmdPassDice.Enabled = false; }},
  };
  for (const auto& [Rules, Break] : Rows) {
    Table table;
    table.Begin({"Ann", "Bob"});
    table.m.PlayerScore[0] = 500;
    table.Play("123446 @0 12345");
    ASSERT_EQ(table.game.Fault(), "");
    Break(table.m, table.t);
    const std::string Fault = table.game.Fault();
    for (const char* Rule : Rules) EXPECT_NE(Fault.find(Rule), std::string::npos) << Rule << ": " << Fault;
  }
}

TEST(Fault, StopsTheProgramInDebugBuilds) {
  Table table;
  table.t.ARCmdNewGame.Visible = table.t.cmdRoll.Visible = true;
  EXPECT_DEBUG_DEATH(table.game.AssertSound(), "either the game buttons or New Game is visible");
}

}  // namespace blunko::test

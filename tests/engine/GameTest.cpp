#include <gtest/gtest.h>

#include "engine/KeyCodes.h"
#include "tests/support/Table.h"

namespace blunko::test {
namespace {

const std::string Question = "ask Quit?: Are you sure you want to quit the current game?";

TEST(FreshGame, ReadsAllSeatsAndClearsTheTable) {
  Table table;
  GameSetup Setup;
  Setup.PlayToScore = 10000;
  Setup.BreakInScore = 1000;
  Setup.Seats[0].Name = "Ann";
  Setup.Seats[1] = {"Bot", true, Simple};
  Setup.Seats[7] = {"Last", true, Genius};
  table.game.FreshGame(Setup);
  Setup.Seats[1].Style = 0;
  Setup.Seats[2].Style = 8;
  table.m.PlayerStyle[2] = Moron;
  table.game.FreshGame(Setup);
  EXPECT_EQ(table.m.NumPlayers, 2) << "one player is a game of two seats";
  EXPECT_EQ(table.m.PlayerStyle[1], Simple) << "a number that is no style leaves the seat's";
  EXPECT_EQ(table.m.PlayerStyle[2], Moron);
  EXPECT_EQ(table.m.PlayerStyle[7], Genius) << "seats beyond the number are read too";
  EXPECT_EQ(table.m.PlayToScore + table.m.BreakInScore, 11000);
  EXPECT_TRUE(table.m.TurnOver && table.m.ScorePadShown && table.t.cmdRoll.Enabled);
  EXPECT_EQ(table.Look(), "Ann 0: ...... /  / Roll the dice. (r)");

  table.t.ShowLastRoll();
  table.Begin({"Normal", "Ann"});
  EXPECT_EQ(table.Look(), "Normal 0: ...... /  / Roll the dice. (r)");
}

TEST(PassDice, BanksOrNotAndHandsOn) {
  const struct {
    const char* Next;
    int Speed;
    const char *Moves, *Told;
    int Banked;
  } Rows[] = {
      {"Bob", 0, "123446 @0 pass", "sound Passem1; sleep 1000; high turn Ann 100; status Roll the dice.", 600},
      {"Bob", 2, "123446 @0 pass", "sound Passem1; high turn Ann 100; status Roll the dice.", 600},
      {"Bob", 1, "123446 @0 23346", "sound Passem2; sleep 1000; status Roll the dice.", 500},
      {"Normal", 0, "123446 @0 pass",
       "sound Passem1; sleep 1000; high turn Ann 100; status Roll the dice.; sleep 1000; computer turn", 600},
      {"Normal", 1, "123446 @0 23346", "sound Passem2; sleep 1000; status Roll the dice.; computer turn", 500},
      {"Normal", 2, "123446 @0 23346", "sound Passem2; status Roll the dice.; computer turn", 500},
  };
  for (const auto& Row : Rows) {
    Table table;
    table.Options.Speed = Row.Speed;
    table.Begin({"Ann", Row.Next});
    table.m.PlayerScore[0] = 500;
    table.Play(Row.Moves);
    const std::string Told = table.Told();
    EXPECT_EQ(Told.substr(Told.find("sound Passem")), Row.Told);
    EXPECT_EQ(table.m.PlayerScore[0], Row.Banked);
    EXPECT_EQ(table.m.CurrentPlayer, 1);
    EXPECT_EQ(table.Others.PadUpdates, Row.Banked == 600 ? 2 : 1);
    const std::string Action = Row.Banked == 500 ? "(p)" : "(r)";  // a person's bust writes over what its pass left
    EXPECT_EQ(table.Look(), std::string(Row.Next) + " 0: ...... /  / Roll the dice. " + Action);
  }
}

TEST(PassDice, ABustIsShown) {
  const std::string Person =
      "pointer 11; buttons ; sleep 250; sound Blunko; status BLUNKO !!!; sleep 100; status ; sleep 100; "
      "status BLUNKO !!!; sleep 100; status ; sleep 100; status BLUNKO !!!; sleep 100; status ; sleep 100; "
      "status BLUNKO !!!; sleep 300; status BLUNKO - P; sleep 20; status BLUNKO - Pa; sleep 20; status BLUNKO - Pas; "
      "sleep 20; status BLUNKO - Pass; sleep 20; status BLUNKO - Passi; sleep 20; status BLUNKO - Passin; sleep 20; "
      "status BLUNKO - Passing; sleep 20; status BLUNKO - Passing t; sleep 20; status BLUNKO - Passing th; sleep 20; "
      "status BLUNKO - Passing the; sleep 20; status BLUNKO - Passing the d; sleep 20; "
      "status BLUNKO - Passing the di; sleep 20; status BLUNKO - Passing the dic; sleep 20; "
      "status BLUNKO - Passing the dice; sleep 20; status BLUNKO - Passing the dice.; score 0; sleep 300; ";
  const std::string Hurried =
      "pointer 11; sound Blunko; status BLUNKO !!!; status ; status BLUNKO !!!; status ; status BLUNKO !!!; status ; "
      "status BLUNKO !!!; status BLUNKO - Passing the dice; sleep 20; status BLUNKO - Passing the dice.; score 0; ";
  std::string Computer = Person.substr(0, Person.size() - 11);  // it passes the dice by itself
  Computer.erase(Computer.find("buttons ; "), 10);
  for (const int Speed : {0, 1, 2}) {
    for (const bool IsPerson : {true, false}) {
      Table table;
      table.Options.Speed = Speed;
      table.Begin({IsPerson ? "Ann" : "Normal", "Bob"});
      table.Screen.TellsAll = true;
      table.Play("123446 @0 23346");
      std::string Told = table.Told();
      Told.erase(0, Told.find("pointer 11"));
      Told.erase(std::min(Told.size(), Told.find("pointer 0")));
      EXPECT_EQ(Told, IsPerson ? Person : Speed == 0 ? Computer : Hurried) << Speed;
      EXPECT_EQ(table.m.CurrentPlayer, IsPerson ? 1 : 0);
      EXPECT_EQ(table.m.ActionSet, "p");
    }
  }
}

TEST(PassDice, TheFirstSeatToReachTheTargetGoesOut) {
  const struct {
    const char* Rule;
    std::vector<const char*> Seats;
    std::vector<std::int16_t> Before;
    std::size_t Out;
    int Banks;
    const char* Need;
    std::size_t Boxes, Blinks;
  } Rows[] = {
      {"reaching the target exactly is enough", {"Ann", "Bob"}, {4000, 0}, 0, 1000, "5050 To Win", 1, 3},
      {"two seats, far behind", {"Ann", "Bob"}, {0, 0}, 0, 10150, "10200 To Win", 1, 3},
      {"two seats, close behind", {"Ann", "Bob"}, {0, 9000}, 0, 10150, "1200 To Win", 1, 3},
      {"three seats", {"Ann", "Bob", "Cid"}, {1000, 3000, 0}, 2, 5300, "4350 To Take The Lead", 1, 3},
      {"the target is higher", {"Ann", "Bob", "Cid"}, {0, 1000, 0}, 0, 5000, "4050 To Take The Lead", 1, 3},
      {"computers alone", {"Normal", "Simple"}, {0, 0}, 0, 5000, "5050 To Win", 0, 0},
      {"a computer against a person", {"Normal", "Ann"}, {0, 0}, 0, 5000, "5050 To Win", 1, 3},
      {"a person against a computer", {"Ann", "Normal"}, {0, 0}, 0, 5000, "5050 To Win", 1, 0},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Rule);
    Table table;
    table.Begin(Row.Seats);
    std::copy(Row.Before.begin(), Row.Before.end(), table.m.PlayerScore.begin());
    table.m.CurrentPlayer = static_cast<std::uint8_t>(Row.Out);
    table.Bank(Row.Banks);
    const auto Log = table.TakeLog();
    const auto Count = [&](std::string_view Kind) {
      return std::count_if(Log.begin(), Log.end(), [&](const std::string& Line) { return Line.starts_with(Kind); });
    };
    EXPECT_EQ(Count("box " + table.m.PlayerName[Row.Out] + " has gone out."), Row.Boxes);
    EXPECT_EQ(Count("beep"), Row.Blinks);
    EXPECT_EQ(table.m.OutPlayer, Row.Out);
    EXPECT_EQ(table.t.lblLastRoll.Caption, "(Last Roll - Need " + std::string(Row.Need) + ")");
    EXPECT_EQ(table.game.Fault(), "");
  }
}

TEST(PassDice, TheLastRollFlashes) {
  for (const bool Silent : {false, true}) {
    Table table;
    table.Screen.TellsAll = true;
    table.Options.Silent = Silent;
    table.m.TempFolder = "/tmp/x/";
    table.Begin({"Ann", "Bob"});
    table.TakeLog();
    table.Bank(5000);
    const std::string Beep = Silent ? "" : "beep; ", Shown = "last roll (Last Roll - Need 5050 To Win)^3105; ";
    const std::string Blank = "sleep 200; last roll ^3105; sleep 200; ";
    EXPECT_EQ(table.Told(),
              "sound Passem1; high turn Ann 5000; sound /tmp/x/overtop.wav; buttons ; box Ann has gone out.  "
              "Everybody else gets one more roll to try and beat 5000 points.; last roll ^3105; " +
                  Beep + "status ; " + Shown + Blank + Beep + Shown + Blank + Beep + Shown +
                  "status Roll the dice.; buttons roll");
  }
}

TEST(EndGame, TheHighestScoreWinsAndTiesGoInTurnOrder) {
  const struct {
    const char* Rule;
    std::vector<std::int16_t> Scores;
    int Out;
    const char* Whoopin;
  } Rows[] = {
      {"the seat that went out wins a tie", {0, 10100, 10100}, 1, "whoopin Bob 0; "},
      {"among others the first after it", {10400, 10100, 10400}, 1, "whoopin Cid 0; "},
      {"overtaken by the next", {5000, 5200, 100}, 0, "whoopin Bob 200; "},
      {"never overtaken", {1050, 950, 0}, 0, "whoopin Ann 100; "},
      {"a computer's win isn't offered to the lists", {900, 950, 0, 5000}, 0, ""},
  };
  for (const auto& Row : Rows) {
    Table table;
    table.Begin({"Ann", "Bob", "Cid", "Normal"});
    table.m.NumPlayers = static_cast<std::uint8_t>(Row.Scores.size());
    table.m.PlayerScore[3] = 20000;  // of an earlier, larger game
    std::copy(Row.Scores.begin(), Row.Scores.end(), table.m.PlayerScore.begin());
    table.m.OutPlayer = static_cast<std::uint8_t>(Row.Out);
    table.t.ShowLastRoll();
    table.m.CurrentPlayer = static_cast<std::uint8_t>((Row.Out + table.m.NumPlayers - 1) % table.m.NumPlayers);
    table.m.RollIsBust = true;
    table.TakeLog();
    table.game.cmdPassDice_Click();
    EXPECT_EQ(table.Told(), "sound Passem2; sleep 500; " + std::string(Row.Whoopin) + "congrats; status  ") << Row.Rule;
    EXPECT_EQ(table.Look(), "  0: ...... /  /   (r)");
    EXPECT_TRUE(table.m.CurrentPlayer == Absent && table.m.GameOver && !table.t.lblLastRoll.Visible);
    EXPECT_FALSE(table.t.cmdRoll.Enabled || table.t.cmdPassDice.Enabled);
  }
}

TEST(EndGame, TheWordOfTheDialogDecidesWhatFollows) {
  const struct {
    const char *Word, *Told, *WordLeft;
    bool NewGameButton;
  } Rows[] = {{"SameGame", "; new game", "SameGame", false},
              {"DifferentGame", "; new game", "", true},
              {"Quit", "; exit", "", false},
              {"", "", "", false}};
  for (const auto& Row : Rows) {
    Table table;
    table.Begin({"Normal", "Ann"});
    table.m.OutPlayer = 1;
    table.t.ShowLastRoll();
    table.Others.OnCongrats = [&] { table.m.FormMessage = Row.Word; };
    table.TakeLog();
    table.Bank(0);
    EXPECT_EQ(table.Told(), std::string("sound Passem1; sleep 500; whoopin Ann 0; congrats; status  ") + Row.Told)
        << "and no question: no game is running";
    EXPECT_EQ(table.m.FormMessage, Row.WordLeft);
    EXPECT_EQ(table.t.ARCmdNewGame.Visible, Row.NewGameButton);
    EXPECT_EQ(table.game.Fault(), "");
  }
}

TEST(EndGame, ABustThatEndsTheGameWritesNothingIntoTheNext) {
  Table table;
  table.Begin({"Ann", "Bob"});
  table.m.OutPlayer = 1;
  table.t.ShowLastRoll();
  table.Others.OnCongrats = [&] { table.m.FormMessage = "SameGame"; };
  table.Others.OnNewGame = [&] {
    table.m.FormMessage.clear();
    table.Begin({"Ann", "Bob"});
    table.m.SavedTurnScore = 77;
  };
  table.Play("234623");
  EXPECT_EQ(table.Look(), "Ann 0: ...... /  / Roll the dice. (r)");
  EXPECT_EQ(table.m.SavedTurnScore, 77);
}

/// The keys that are commands, and their neighbours; with Shift as well.
void PressKeys(Table& table, bool OnDiceOnly) {
  for (std::int16_t Key = 0; Key < 128; ++Key) {
    if (OnDiceOnly && (Key == Escape || Key == F2)) continue;
    for (const std::int16_t Shift : {0, 1}) table.game.Form_KeyUp(Key, Shift);
  }
}
void PressDice(Table& table) {
  PressKeys(table, true);
  for (const std::int16_t Button : {LeftButton, RightButton}) {
    for (std::int16_t Index = -1; Index <= 16; ++Index) table.game.PersonClicksDie(Index, Button);
    for (const int Row : {1, 2}) table.game.PersonClicksTray(Row, Button);
  }
  table.game.PersonRolls();
  table.game.PersonPasses();
}
void PressAll(Table& table) {
  PressDice(table);
  PressKeys(table, false);
  table.game.ARCmdNewGame_Click();
  table.game.PersonBeginsGame(true);
  table.game.Command([&] { table.Screen.Log.push_back("a command of the window"); });
  EXPECT_FALSE(table.game.PersonCloses());
}

TEST(Commands, NoneIsCarriedOutWhileAHandlerSleepsOrABoxIsOpen) {
  const auto PlayAGame = [](bool Pressing) {
    Table table;
    const auto Press = [&, Pressing] {
      if (Pressing) PressAll(table);
    };
    table.Screen.OnSleep = table.Screen.OnBox = table.Others.OnDialog = Press;
    table.Screen.OnEvents = [&] {
      if (Pressing) PressDice(table);
    };
    table.Options.Speed = SpeedNormal;
    table.Others.OnNewGame = [&] {
      table.m.FormMessage.clear();
      table.Begin({"Ann", "Bob"});
    };
    table.game.ARCmdNewGame_Click();
    table.Play("123446 @0 13345 @0 @12 @0 @4 333 @0 123456 @0 222446 @0");
    table.m.PlayerScore[0] = 4900;
    table.Play("pass 234623");  // goes out; the next seat's last turn is a bust
    EXPECT_TRUE(table.m.GameOver);
    for (const bool Yes : {true, true, false}) {  // the first finds no game, and isn't asked
      table.Screen.Answer = Yes;
      table.game.PersonBeginsGame();
    }
    table.game.PersonCloses();
    return table.Told();
  };
  EXPECT_EQ(PlayAGame(true), PlayAGame(false));
}

TEST(Commands, NobodyTouchesTheDiceOfAComputerOrOfAClosedTable) {
  for (const char* Closing : {"computer", "given up", "options", "over"}) {
    Table table;
    table.Begin({*Closing == 'c' ? "Normal" : "Ann", "Bob"});
    table.Play("123446 @0");
    if (*Closing == 'g') table.game.PersonBeginsGame();
    if (*Closing == 'o') table.t.picGameTray.Enabled = false;
    table.TakeLog();
    PressDice(table);
    EXPECT_EQ(table.Told(), "") << Closing;
    EXPECT_EQ(table.m.TurnScore, 100) << Closing;
  }
}

TEST(Commands, OfTheFlashEndTheGameThatItBelongsTo) {
  for (const char* Way : {"new", "quit"}) {
    Table table;
    table.Begin({"Ann", "Bob"});
    table.Others.OnNewGame = [&] { table.Begin({"Cid", "Dan"}); };
    table.Screen.OnEvents = [&, Pumps = 0]() mutable {
      if (++Pumps == 2) *Way == 'n' ? table.game.PersonBeginsGame() : static_cast<void>(table.game.PersonCloses());
    };
    table.TakeLog();
    table.Bank(5000);
    EXPECT_EQ(table.TakeLog("sleep").size(), 1U) << "the flash ends";
    EXPECT_EQ(table.Look(), *Way == 'n' ? "Cid 0: ...... /  / Roll the dice. (r)" : "Bob 0: ...... /  /  (r)");
  }
}

TEST(Commands, KeysAndTheRightButtonDoWhatTheButtonsDo) {
  using Hand = std::function<void(Game&)>;
  const auto Press = [](std::int16_t Key) { return [Key](Game& game) { game.Form_KeyUp(Key, 0); }; };
  const Hand Rolls[] = {[](Game& game) { game.PersonRolls(); },
                        [](Game& game) { game.PersonClicksDie(3, RightButton); },
                        [](Game& game) { game.PersonClicksTray(1, RightButton); },
                        [](Game& game) { game.PersonClicksTray(2, RightButton); },
                        Press(LetterR),
                        Press(NumPad0)};
  const Hand Passes[] = {[](Game& game) { game.PersonPasses(); }, Press(LetterP), Press(NumPadDecimal)};
  for (std::size_t i = 0; i < std::size(Rolls); ++i) {
    SCOPED_TRACE(i);
    Table table;
    table.Begin({"Ann", "Bob"});
    table.m.PlayerScore[0] = 500;
    table.game.PersonClicksTray(1, LeftButton);
    table.Script({1, 2, 3, 4, 4, 6});
    Rolls[i](table.game);
    EXPECT_EQ(table.Look(), "Ann 0: 1*23446 /  / Select Dice. (s)");
    table.TakeLog();
    Rolls[i](table.game);
    for (const std::int16_t First : {Digit1, NumPad1}) {
      for (const int Face : {2, 3, 4, 5, 6}) table.game.Form_KeyUp(static_cast<std::int16_t>(First + Face - 1), 0);
      EXPECT_EQ(table.Told(), "beep x4") << "a five isn't there, and to roll again isn't allowed";
      table.game.Form_KeyUp(First, 0);
      EXPECT_EQ(table.Look(), "Ann 100: .23446 / 1 / Roll or pass the dice. (rp)");
      if (First == Digit1) table.game.Form_KeyUp(Backspace, 0);
      table.TakeLog();
    }
    Passes[i % 3](table.game);
    EXPECT_EQ(table.Look(), "Bob 0: ...... /  / Roll the dice. (r)");
    table.TakeLog();
    for (const Hand& Pass : Passes) Pass(table.game);
    EXPECT_EQ(table.Told(), "") << "nobody passes before a roll";
  }
}

TEST(Commands, ANewGameIsAskedForAndGivesTheOldOneUp) {
  const struct {
    const char* Rule;
    std::int16_t Shift;
    bool Yes;
    std::string Told;
    bool GivenUp;
  } Rows[] = {{"No", 0, false, "beep; " + Question, false},
              {"Yes", 0, true, "beep; " + Question + "; new game", true},
              {"Shift doesn't ask", ShiftAlone, false, "beep; new game", true},
              {"Shift and Control do", 3, false, "beep; " + Question, false}};
  for (const auto& Row : Rows) {
    Table table;
    table.Begin({"Ann", "Bob"});
    table.Play("123446 @0 12334");
    const std::string Before = table.Look();
    table.TakeLog();
    table.Screen.Answer = Row.Yes;
    table.game.Form_KeyUp(F2, Row.Shift);
    EXPECT_EQ(table.Told(), Row.Told) << Row.Rule;
    EXPECT_EQ(table.Look(), Row.GivenUp ? " : ...... /  /  (s)" : Before) << Row.Rule;
    EXPECT_EQ(table.t.ARCmdNewGame.Visible, Row.GivenUp);
    EXPECT_EQ(table.t.picTray1.Enabled && table.t.picTray2.Enabled, !Row.GivenUp);
    EXPECT_EQ(table.m.CurrentPlayer, 0) << "the seat on turn isn't touched";
  }
}

TEST(Commands, EndTheProgramFromEverywhere) {
  const struct {
    const char* Rule;
    bool Key, GameRuns, PanelOpen, Yes;
    std::string Told;
  } Rows[] = {
      {"no game, no question", false, false, false, false, "exit"},
      {"Esc takes the other forms along", true, false, false, false, "unload others; exit"},
      {"No: play on", false, true, false, false, "beep; " + Question},
      {"Yes", false, true, false, true, "beep; " + Question + "; exit"},
      {"Esc", true, true, false, true, "unload others; beep; " + Question + "; exit"},
      {"Esc closes the panel first", true, true, true, true, "cancel options"},
      {"the close box doesn't", false, true, true, true, "beep; " + Question + "; exit"},
  };
  for (const auto& Row : Rows) {
    Table table;
    if (Row.GameRuns) table.Begin({"Ann", "Bob"});
    table.t.picGameTray.Enabled = !Row.PanelOpen;
    table.Screen.Answer = Row.Yes;
    table.TakeLog();
    Row.Key ? table.game.Form_KeyUp(Escape, 0) : static_cast<void>(table.game.PersonCloses());
    EXPECT_EQ(table.Told(), Row.Told) << Row.Rule;
    EXPECT_EQ(table.m.Quitting, Row.Told.ends_with("exit"));
    EXPECT_EQ(table.game.TakesCommands(), !table.m.Quitting);
    if (table.m.Quitting) {
      EXPECT_TRUE(table.game.PersonCloses()) << "the window may go";
      EXPECT_EQ(table.Told(), "");
    }
  }
}

}  // namespace
}  // namespace blunko::test

#include <gtest/gtest.h>
#include <regex>

#include "engine/KeyCodes.h"
#include "tests/support/Table.h"

namespace blunko::test {

TEST(FreshGame, ReadsAllSeats) {
  Table table;
  GameSetup Setup;
  for (const int Style : {+Simple, 0, 8}) {
    Setup.Seats[7] = {"Last", true, static_cast<std::uint8_t>(Style)};
    table.game.FreshGame(Setup);
  }
  EXPECT_EQ(table.m.NumPlayers, 2) << "one player is a game of two seats";
  EXPECT_EQ(table.m.PlayerStyle[7], Simple) << "beyond the number, too; what is no style leaves the seat's";
  EXPECT_TRUE(table.m.TurnOver && table.m.ScorePadShown);
}

TEST(PassDice, BanksOrNotAndHandsOn) {
  const std::string Box = " has gone out.  Everybody else gets one more roll to try and beat 5000 points.; ";
  const struct {
    const char *Seat, *Next;
    int Before, Speed;
    const char* Moves;
    std::string Told;
  } Rows[] = {
      {"Ann", "Bob", 500, 0, "pass", "1; sleep 1000; high turn Ann 100; status Roll the dice."},
      {"Ann", "Normal", 500, 0, "pass",
       "1; sleep 1000; high turn Ann 100; status Roll the dice.; sleep 1000; computer turn"},
      {"Ann", "Normal", 500, 1, "23346", "2; sleep 1000; status Roll the dice.; computer turn"},
      {"Ann", "Normal", 4900, 2, "pass",
       "1; high turn Ann 100; sound /tmp/overtop.wav; box Ann" + Box + "status Roll the dice.; computer turn"},
      {"Normal", "Simple", 4900, 2, "pass", "1; sound /tmp/overtop.wav; status Roll the dice.; computer turn"},
  };
  for (const auto& Row : Rows) {
    Table table;
    table.Options.ComputerSpeed = Row.Speed;
    table.m.TempFolder = "/tmp/";
    table.Begin({Row.Seat, Row.Next});
    table.m.PlayerScore[0] = static_cast<std::int16_t>(Row.Before);
    table.Play(std::string("123446 @0 ") + Row.Moves);
    const std::string Told = table.Told();
    EXPECT_EQ(Told.substr(Told.find("Passem") + 6), Row.Told);
    const bool Bust = Row.Told.front() == '2';
    EXPECT_EQ(table.Others.PadUpdates, Bust ? 1 : 2);
    const std::string Action = Bust ? "(p)" : "(r)";  // a person's bust writes over what its pass left
    EXPECT_EQ(table.Look(), std::string(Row.Next) + " 0: 000000000000, Roll the dice. " + Action);
  }
}

TEST(PassDice, ABustIsShown) {
  const std::string Blink = "status BLUNKO !!!; sleep 100; status ; sleep 100; ";
  const std::string Person = "pointer 11; buttons ; sleep 250; sound Blunko; " + Blink + Blink + Blink +
                             "status BLUNKO !!!; sleep 300; P; a; s; s; i; n; g; t; h; e; d; i; c; e; "
                             "status BLUNKO - Passing the dice.; score 0; sleep 300; ";
  const std::string Hurried =
      "pointer 11; sound Blunko; status BLUNKO !!!; status ; status BLUNKO !!!; status ; status BLUNKO !!!; status ; "
      "status BLUNKO !!!; e; status BLUNKO - Passing the dice.; score 0; ";
  std::string Computer = Person.substr(0, Person.size() - 11);  // it passes the dice by itself
  Computer.erase(Computer.find("buttons ; "), 10);
  const std::tuple<const char*, int, std::string> Rows[] = {
      {"Ann", 0, Person}, {"Ann", 2, Person}, {"Normal", 0, Computer}, {"Normal", 1, Hurried}, {"Normal", 2, Hurried}};
  for (const auto& [Seat, Speed, Shown] : Rows) {
    Table table;
    table.Options.ComputerSpeed = Speed;
    table.Begin({Seat, "Bob"});
    table.Screen.TellsAll = true;
    table.Play("123446 @0 23346");
    std::string Told = table.Told();
    Told.erase(0, Told.find("pointer 11"));
    Told.erase(std::min(Told.size(), Told.find("pointer 0")));
    Told = std::regex_replace(Told, std::regex("status BLUNKO - [^;]*(\\w); sleep 20"), "$1");  // typed by its letters
    EXPECT_EQ(Told, Shown) << Seat << ' ' << Speed;
  }
}

TEST(PassDice, TheLastRollFlashesAndBeepsUnlessSilent) {
  for (const std::string Beep : {"", "beep; "}) {
    Table table;
    table.Screen.TellsAll = true;
    table.Options.SoundDisabled = Beep.empty();
    table.Begin({"Ann", "Bob"});
    table.Bank(5000);
    const std::string On = "last roll (Last Roll - Need 5050 To Win)^3105; ", Told = table.Told();
    const std::string Again = "sleep 200; last roll ^3105; sleep 200; " + Beep + On;
    EXPECT_NE(Told.find("^3105; " + Beep + "status ; " + On + Again + Again + "status Roll"), std::string::npos)
        << Told;
  }
}

TEST(EndGame, TheWordOfTheDialogDecidesWhatFollows) {
  constexpr int Bust = -1;
  const struct {
    std::string Word;
    int Banks;
    const char *Told, *Look;
  } Rows[] = {{"SameGame", Bust, "; new game; status Roll the dice.", "Cid 0: 000000000000, Roll the dice. (r)"},
              {"DifferentGame", 0, "; new game", "  0: 000000000000,   (r)"},
              {"Quit", 0, "; exit", "  0: 000000000000,   (r)"},
              {"", 50, "", "  0: 000000000000,   (r)"}};
  for (const auto& Row : Rows) {
    Table table;
    table.Begin({"Ann", "Normal"});
    table.m.OutPlayer = 1;
    table.t.ShowLastRoll();
    table.Others.OnCongrats = [&] { table.m.FormMessage = Row.Word; };
    table.Others.OnNewGame = [&] {
      EXPECT_EQ(table.m.FormMessage, Row.Banks == Bust ? Row.Word : "") << "the dialog begins the same game by itself";
      if (Row.Banks == Bust) table.Begin({"Cid", "Dan"}), table.m.SavedTurnScore = 77;
    };
    Row.Banks == Bust ? table.Play("234623") : table.Bank(Row.Banks);
    const std::string Told = table.Told();
    const std::string List = Row.Banks == 50 ? "whoopin Ann 50; " : "";  // a computer's win isn't offered to it
    EXPECT_EQ(Told.substr(Told.find("sleep 500")), "sleep 500; " + List + "congrats; status  " + Row.Told);
    EXPECT_EQ(table.Look(), Row.Look);
    EXPECT_EQ(table.t.ARCmdNewGame.Visible, Row.Word == "DifferentGame");
    EXPECT_EQ(table.m.SavedTurnScore, Row.Banks == Bust ? 77 : 0) << "a bust writes nothing into the next game";
  }
}

TEST(Commands, NobodyTouchesTheDiceOfAComputerOrOfAClosedTable) {
  for (const char* Closing : {"computer", "given up", "options"}) {
    Table table;
    table.Begin({*Closing == 'c' ? "Normal" : "Ann", "Bob"});
    table.Play("123446 @0");
    if (*Closing == 'g') table.game.PersonBeginsGame();
    if (*Closing == 'o') table.t.picGameTray.Enabled = false;
    table.TakeLog();
    table.PressDice();
    EXPECT_EQ(table.Told(), "") << Closing;
  }
}

TEST(Commands, OfTheFlashEndTheGameThatItBelongsTo) {
  Table table;
  table.Begin({"Ann", "Bob"});
  table.Others.OnNewGame = [&] { table.Begin({"Cid", "Dan"}); };
  table.Screen.OnEvents = [&, Pumps = 0]() mutable {
    if (++Pumps == 2) table.game.PersonBeginsGame();
  };
  table.TakeLog();
  table.Bank(5000);
  EXPECT_EQ(table.TakeLog("sleep").size(), 1U) << "the flash ends";
  EXPECT_EQ(table.Look(), "Cid 0: 000000000000, Roll the dice. (r)");
}

TEST(Commands, ThatComeInTheMiddleOfAChangeComeAfterIt) {
  const std::string Asks = "events; beep; " + Question;
  const std::tuple<std::string, const char*, bool, std::string> Rows[] = {
      // the change, the seat on turn, and the answer
      {"a fresh game", "Normal", true, "status Roll the dice.; events; computer turn; a command"},
      {"a new game", "Ann", false, Asks + "; a command"},
      {"a new game", "Ann", true, Asks + "; new game; a command"},
      {"the button", "", true, "events; new game; a command"}};
  for (const auto& [Change, Seat, Yes, Told] : Rows) {
    Table table;
    if (Change == "a new game") table.Begin({Seat, "Bob"});
    table.TakeLog();
    table.Screen.Answer = Yes;
    table.Screen.OnEvents = [&, Come = false]() mutable {
      if (std::exchange(Come, true)) return;
      table.Screen.Log.push_back("events");
      table.game.PersonRolls();
      table.game.Command([&] { table.Screen.Log.push_back("a command"); });
    };
    if (Change == "a fresh game") table.Begin({Seat, "Bob"});
    if (Change == "a new game") table.game.PersonBeginsGame();
    if (Change == "the button") table.game.ARCmdNewGame_Click();
    EXPECT_EQ(table.Told(), Told) << Change;
  }
}

TEST(Commands, NewGameAndTheEndAreAskedForAndClearUp) {
  constexpr std::int16_t CloseBox = 0;
  const struct {
    const char* Rule;
    std::int16_t Key, Shift;
    bool GameRuns, PanelOpen, Yes;
    std::string Told;
  } Rows[] = {
      {"Esc takes the other forms along", Escape, 0, false, false, false, "unload others; exit"},
      {"Esc closes the panel first", Escape, 0, true, true, true, "cancel options; hide options"},
      {"the close box doesn't", CloseBox, 0, true, true, true, "beep; " + Question + "; exit"},
      {"F2: Yes", F2, 0, true, false, true, "beep; " + Question + "; new game"},
      {"Shift doesn't ask", F2, ShiftAlone, true, false, false, "beep; new game"},
      {"Shift and Control do", F2, 3, true, false, false, "beep; " + Question},
      {"no new game from the panel", F2, ShiftAlone, true, true, true, ""},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(Row.Rule);
    Table table;
    if (Row.GameRuns) table.Begin({"Ann", "Bob"}), table.Play("123446 @0 12334");
    table.t.picGameTray.Enabled = !Row.PanelOpen;
    table.Screen.Answer = Row.Yes;
    table.Screen.OnBox = [&] {  // the end of the session
      EXPECT_FALSE(std::ranges::count(table.Screen.Log, Question) == 1 && table.game.MayEnd()) << "asked already";
    };
    table.TakeLog();
    const std::string Before = table.Look();
    Row.Key != 0 ? table.game.Form_KeyUp(Row.Key, Row.Shift) : static_cast<void>(table.game.PersonCloses());
    EXPECT_EQ(table.Told(), Row.Told);
    const bool Ends = Row.Told.ends_with("exit"), GivenUp = Row.Told.ends_with("new game");
    EXPECT_EQ(table.Look(), GivenUp ? " : 000000000000,  (s)" : Before);
    EXPECT_EQ(table.t.ARCmdNewGame.Visible && !table.t.picTray1.Enabled && !table.t.picTray2.Enabled, GivenUp);
    EXPECT_EQ(table.m.Quitting, Ends);
    EXPECT_EQ(table.game.TakesCommands(), !Ends);
    EXPECT_EQ(Ends && table.game.PersonCloses(), Ends) << "the window may go";
  }
}

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
  table.Begin({"Ann", "Bob"});
  table.Play("123446 @0 12344 @0 1234 @0 123 @0 12 @0 1");
  EXPECT_EQ(table.Told("sleep"), "sleep 10 x30; sleep 11 x35; sleep 13 x62; sleep 15 x30; sleep 20 x20") << "6 to 1";
}

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

}  // namespace blunko::test

#include <gtest/gtest.h>
#include <regex>

#include "engine/KeyCodes.h"
#include "tests/support/Table.h"

namespace blunko::test {

TEST(FreshGame, ReadsAllSeats) {
  Table table;
  GameSetup Setup;
  Setup.Seats[7] = {"Last", true, Genius};
  for (const std::uint8_t Style : std::array<std::uint8_t, 3>{Simple, 0, 8}) {
    Setup.Seats[1] = {"Bot", true, Style};
    table.game.FreshGame(Setup);
  }
  EXPECT_EQ(table.m.NumPlayers, 2) << "one player is a game of two seats";
  EXPECT_EQ(table.m.PlayerStyle[1], Simple) << "a number that is no style leaves the seat's";
  EXPECT_EQ(table.m.PlayerStyle[7], Genius) << "seats beyond the number are read too";
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
    EXPECT_EQ(table.t.lblLastRoll.Caption, "(Last Roll - Need 5050 To Win)");
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
    EXPECT_EQ(table.m.ActionSet, "p");
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
    EXPECT_EQ(table.Look(), *Way == 'n' ? "Cid 0: 000000000000, Roll the dice. (r)" : "Bob 0: 000000000000,  (r)");
  }
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

}  // namespace blunko::test

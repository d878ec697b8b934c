#include <gtest/gtest.h>

#include "bots/ComputerPlayers.h"
#include "tests/support/Table.h"

namespace blunko::test {

struct OneUniform : UniformSource {
  double Value = 0;
  double Next() override { return Value; }
};

/// A table at which the computer seats play by themselves.
struct PlayingTable : Table {
  OneUniform Uniform;
  ComputerPlayers Players{game, Uniform};

  explicit PlayingTable(NumberSource* OtherDice = nullptr) : Table(nullptr, OtherDice) {}
  /// Begins a game against a person, in which the turn of the computer hasn't begun.
  void Seat(const char* Style, int Banked) {
    game.SeatComputers(Others);
    Begin({Style, "Ann"});
    game.SeatComputers(Players);
    m.PlayerScore[0] = static_cast<std::int16_t>(Banked);
    m.ActionSet = "p";  // whatever was left behind, a turn begins with a roll
    TakeLog();
  }
  /// Seat 0 plays one turn of the style with these scripted faces, against a person.
  void PlayTurn(const char* Style, const std::string& Faces, int Banked, int OpponentBanked = 0, int Out = Absent) {
    Seat(Style, Banked);
    m.PlayerScore[1] = static_cast<std::int16_t>(OpponentBanked);
    m.OutPlayer = static_cast<std::uint8_t>(Out);
    Options.SortDice = false;
    const auto Script = Digits(Faces);
    Numbers.Faces.assign(Script.begin(), Script.end());
    Players.RunComputerTurn();
  }
};

/// Points of the seat before its turn, what the turn adds, and the dice that it draws.
TEST(Styles, PlayTheirTurnsByTheirNumbers) {
  const struct {
    const char *Style, *Why, *Faces;
    int Banked, Gain, DiceDrawn, OpponentBanked = 0, Out = Absent;
  } Rows[] = {
      {"Moron", "all score: takes one after the other, then rolls", "111446155234623", 0, 1000, 6},
      {"Normal", "three twos are left for a single one", "12223423346", 500, 0, 11},
      {"Normal", "a combination takes the single one along; 500 with two dice left is enough", "144436", 500, 500, 6},
      {"Cautious", "five dice, a one and a five: both, then 250 with three left rolls", "33641615644", 500, 0, 14},
      {"Normal", "nothing banked: passes as soon as it may", "111346", 0, 1000, 6},
      {"Normal", "last rolls: equal to the leader rolls on", "111346234", 4000, 0, 9, 5000, 1},
      {"Genius", "1000 behind plays Normal: 400 with two dice left passes", "333146", 1000, 400, 6, 2000},
      {"Genius", "1050 behind plays Fearless: it rolls them", "33314623", 1000, 0, 8, 2050},
  };
  for (const auto& Row : Rows) {
    SCOPED_TRACE(std::string(Row.Style) + ": " + Row.Why);
    PlayingTable table;
    table.PlayTurn(Row.Style, Row.Faces, Row.Banked, Row.OpponentBanked, Row.Out);
    EXPECT_EQ(table.Numbers.Draws, Row.DiceDrawn) << "dice drawn";
    EXPECT_EQ(table.m.PlayerScore[0] - Row.Banked, Row.Gain) << "points banked";
    EXPECT_EQ(table.m.CurrentPlayer, Row.Out == Absent ? 1 : Absent) << "the turn is over";
  }
}

TEST(Styles, RandomDrawsItsStyleForEachTurn) {
  const std::pair<double, const char*> Rows[] = {{0.0, "Normal"},     {0.333, "Normal"},   {0.334, "Cautious"},
                                                 {0.666, "Cautious"}, {0.667, "Fearless"}, {0.999, "Fearless"}};
  for (const auto& [Uniform, Same] : Rows) {
    const char* Faces = "114436133461534135214113223346";  // the three styles end it differently
    PlayingTable random, plain;
    random.Uniform.Value = Uniform;
    random.PlayTurn("Random", Faces, 500);
    plain.PlayTurn(Same, Faces, 500);
    EXPECT_EQ(random.TakeLog("sound"), plain.TakeLog("sound")) << Uniform;
  }
}

TEST(Styles, PauseAsTheSpeedSays) {
  const std::string Roll = "sleep 100; sleep 10 x30; ", Group = "sleep 100; sleep 200 x3; ";
  const std::tuple<const char*, std::string, int, std::string> Rows[] = {
      {"Moron", "134622", 0, Roll + "sleep 1000; sleep 100 x2; sleep 200; sleep 100; sleep 1000"},
      {"Moron", "134622", 1, Roll + "sleep 100 x4; sleep 1000"},
      {"Normal", "333146", 0, Roll + "sleep 1000; " + Group + Group + "sleep 100; sleep 200; sleep 100; sleep 1000"},
      {"Normal", "333146", 2, ""}};
  for (const auto& [Style, Faces, Speed, Sleeps] : Rows) {
    PlayingTable table;
    table.Options.ComputerSpeed = Speed;
    table.PlayTurn(Style, std::string(Speed < 2 ? 30 : 0, '6') + Faces, 500);
    EXPECT_EQ(table.Told("sleep"), Sleeps) << Style << " at speed " << Speed;
  }
}

TEST(Styles, WaitWhilePausedButForCautious) {
  for (const char* Style : {"Normal", "Fearless", "Simple", "Moron", "Cautious"}) {
    PlayingTable table;
    table.m.PauseComputer = true;
    table.Screen.OnEvents = [&, Events = 0]() mutable {
      if (++Events == 5) table.m.PauseComputer = false;
      EXPECT_TRUE(*Style == 'C' || !table.m.PauseComputer || table.Numbers.Draws == 0) << Style;
    };
    table.PlayTurn(Style, "111346223", 500);
    EXPECT_GT(table.Numbers.Draws, 0) << Style;
  }
}

TEST(Styles, EndWithTheirGameAndReportWhatTheyCannotPlay) {
  const std::string Quit = "beep; ask Quit?: Are you sure you want to quit the current game?; exit";
  const std::string Contact = "Please contact Tollmoor Games";
  const auto Close = [](Game& game) { game.PersonCloses(); };
  const auto GiveUp = [](Game& game) { game.PersonBeginsGame(true); };
  const struct {
    const char* Style;
    bool Paused;
    Word Actions;
    Word Code;  ///< of all six positions, as the style finds them after its roll
    std::function<void(Game&)> Command;
    std::string Told;
  } Rows[] = {
      {"Normal", false, "rp", "99", {}, "box NumDiceUp = 0\nError 529 - Bot Click - " + Contact + ".; " + Quit},
      {"Normal", false, "s", "0", {}, "box Msg 519 -- " + Contact + " Tech Support.; abort"},
      {"Moron", true, "s", "1", Close, Quit},
      {"Cautious", false, "s", "1", GiveUp, "beep; new game"},
  };
  for (const auto& Row : Rows) {
    PlayingTable table;
    table.Seat(Row.Style, 1000);
    table.Numbers.Faces = {1, 2, 3, 4, 4, 6};
    table.Screen.OnEvents = [&, Rolled = false]() mutable {
      if (table.Numbers.Draws < Dice || std::exchange(Rolled, true)) return;
      table.m.ActionSet = Row.Actions;
      table.m.DieScoreCode.fill(Row.Code);
      table.TakeLog();
      table.m.PauseComputer = Row.Paused;
      if (Row.Command) Row.Command(table.game);
    };
    table.Players.RunComputerTurn();
    EXPECT_EQ(table.Told(), Row.Told) << Row.Style;
    EXPECT_FALSE(table.t.picTray1.Enabled) << "the table stays closed";
  }
}

/// Whatever a person presses meanwhile; on one stack, which would overflow if it grew from turn to turn.
TEST(HandOver, AThousandGamesEndAsEver) {
  Luck Numbers(12345);
  PlayingTable table(&Numbers);
  table.Screen.Answer = false;
  int Games = 0, Events = 0;
  std::uint64_t Signature = 0;
  table.Screen.OnEvents = [&] {
    if (++Events % 64 == 0) table.PressDice(), table.game.PersonCloses(), table.game.PersonBeginsGame();
    table.Screen.Log.clear();
  };
  table.Others.OnCongrats = [&] {
    for (const auto Score : table.m.PlayerScore) Signature = 31 * Signature + static_cast<std::uint64_t>(Score);
    table.m.FormMessage = ++Games % 500 != 0 ? "SameGame" : "";
  };
  table.Others.OnNewGame = [&] { table.Begin({"Simple", "Normal", "Moron", "Cautious", "Fearless", "Genius"}); };
  for (const int Played : {500, 1000}) {
    table.Others.OnNewGame();
    ASSERT_EQ(Games, Played);
  }
  EXPECT_EQ(Signature, 12098494388458653240U) << "the styles or the rules play otherwise than before";
}

}  // namespace blunko::test

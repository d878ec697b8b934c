#include <gtest/gtest.h>

#include "bots/ComputerPlayers.h"
#include "tests/support/Table.h"

namespace blunko::test {

/// A player who mashes keys and buttons whenever something comes in: while handlers let events in, and, as a screen
/// reader can, in waits and behind boxes and dialogs.
class Vandal : Luck {
 public:
  explicit Vandal(std::uint32_t Seed) : Luck(Seed) {
    screen.OnEvents = screen.OnSleep = others.OnDialog = [this] { Deliver(); };
    screen.OnBox = [this] {
      if (screen.Log.back().find("contact Tollmoor") != std::string::npos) fault = "guard " + screen.Log.back();
      Deliver();
    };
    others.OnNewGame = [this] { NewGameDialog(); };
    others.OnCongrats = [this] { m.FormMessage = OneOf({"SameGame", "DifferentGame", "Quit", "", "SameGame"}); };
  }

  /// Plays until the program quits or the steps are used up. Returns what went wrong, empty if nothing did.
  std::string Play(int Steps) {
    for (stepsLeft = Steps; stepsLeft > 0 && !m.Quitting && fault.empty(); --stepsLeft) Act();
    return fault;
  }

 private:
  int Pick(int Bound) { return UtilRandom(Bound) - 1; }
  template <typename T>
  T OneOf(std::initializer_list<T> All) {
    return All.begin()[Pick(static_cast<int>(All.size()))];
  }

  void Deliver() {
    screen.Log.clear();
    if (stepsLeft <= 0) m.Quitting = true;  // the end of the test is the end of the program
    if (depth >= 3 || m.Quitting) return;
    ++depth;
    // A wait for the options panel must see it closed some time.
    for (int Events = m.PauseComputer || Pick(8) == 0 ? 1 + Pick(3) : 0; Events > 0; --Events) {
      if (game.TakesCommands()) --stepsLeft;
      Act();
    }
    --depth;
  }

  void Act() {
    screen.Answer = Pick(3) != 0;
    const int Kind = Pick(12);
    if (Kind < 3) Type(OneOf({49, 50, 51, 52, 53, 54, 97, 101, 82, 82, 82, 80, 80, 96, 110, 8, 65}), 0);
    if (Kind / 3 == 1) game.PersonClicksDie(static_cast<std::int16_t>(Pick(17) - 1), OneOf({LeftButton, RightButton}));
    if (Kind == 6) game.PersonRolls();
    if (Kind == 7) game.PersonPasses();
    if (Kind == 8 && Pick(4) == 0) Type(F2, Pick(3));
    if (Kind == 9) Pick(2) == 0 ? game.ARCmdNewGame_Click() : game.PersonClicksTray(1 + Pick(2), RightButton);
    if (Kind == 10) table.t.picGameTray.Enabled ? game.cmdOptions_Click() : game.ARCmdSaveOptions_Click();
    if (Kind == 11 && Pick(30) == 0) {
      screen.Answer = Pick(6) == 0;
      Pick(2) == 0 ? Type(Escape, 0) : static_cast<void>(game.PersonCloses());
    }
    if (fault.empty() && game.TakesCommands()) fault = game.Fault();
  }
  void Type(int Code, int Shift) { game.Form_KeyUp(static_cast<std::int16_t>(Code), static_cast<std::int16_t>(Shift)); }

  void NewGameDialog() {
    const bool Waits = std::exchange(m.FormMessage, {}).empty();
    if (m.Quitting || (Waits && Pick(4) == 0)) return;
    std::vector<const char*> Seats;
    for (int i = 1 + Pick(4); i > 0; --i) {
      Seats.push_back(OneOf({"Ann", "Bob", "Cid", "Normal", "Cautious", "Fearless", "Simple", "Random", "Genius"}));
    }
    table.Begin(Seats, 5000, OneOf({500, 1000}));
  }

  Table table{nullptr, this};
  Module1& m = table.m;
  RecordingDesktop& screen = table.Screen;
  RecordingProgram& others = table.Others;
  Game& game = table.game;
  ComputerPlayers players{game, *this};
  std::string fault;
  int depth = 0;
  int stepsLeft = 0;
};

TEST(Interruption, NoInputAtAnyMomentBreaksTheGame) {
  for (std::uint32_t Seed = 1; Seed <= 4000; ++Seed) ASSERT_EQ(Vandal(Seed).Play(400), "") << "seed " << Seed;
}

}  // namespace blunko::test

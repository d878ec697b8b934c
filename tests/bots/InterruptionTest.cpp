#include <gtest/gtest.h>

#include "bots/ComputerPlayers.h"
#include "tests/support/Table.h"

namespace blunko::test {

/// A player who mashes keys and buttons whenever something comes in: while handlers let events in, and, as a screen
/// reader can, in waits and behind boxes and dialogs.
class Vandal {
 public:
  explicit Vandal(std::uint32_t Seed) : luck(Seed) {
    screen.OnEvents = screen.OnSleep = others.OnDialog = [this] { Deliver(); };
    screen.OnBox = [this] {
      if (screen.Log.back().find("contact Tollmoor") != std::string::npos) fault = "guard " + screen.Log.back();
      Deliver();
    };
    others.OnNewGame = [this] { NewGameDialog(); };
    others.OnCongrats = [this] {
      static const char* const Words[] = {"SameGame", "DifferentGame", "Quit", "", "SameGame"};
      table.m.FormMessage = Words[Pick(5)];
    };
  }

  /// Plays until the program quits or the steps are used up. Returns what went wrong, empty if nothing did.
  std::string Play(int Steps) {
    for (stepsLeft = Steps; stepsLeft > 0 && !table.m.Quitting && fault.empty(); --stepsLeft) Act();
    return fault;
  }

 private:
  int Pick(int Bound) { return static_cast<int>(luck.Chance() % static_cast<unsigned>(Bound)); }

  void Deliver() {
    screen.Log.clear();
    if (stepsLeft <= 0) table.m.Quitting = true;  // the end of the test is the end of the program
    if (depth >= 3 || table.m.Quitting) return;
    ++depth;
    // A wait for the options panel must see it closed some time.
    for (int Events = table.m.PauseComputer ? 1 + Pick(3) : Pick(8) == 0 ? 1 + Pick(3) : 0; Events > 0; --Events) {
      if (game.TakesCommands()) --stepsLeft;
      Act();
    }
    --depth;
  }

  void Act() {
    static constexpr std::int16_t Keys[] = {49, 50, 51, 52, 53, 54, 97, 101, 82, 82, 82, 80, 80, 96, 110, 8, 65};
    screen.Answer = Pick(3) != 0;
    const bool PanelOpen = !table.t.picGameTray.Enabled;
    const int Kind = Pick(12);
    if (Kind < 3) game.Form_KeyUp(Keys[Pick(std::size(Keys))], 0);
    if (Kind >= 3 && Kind < 6)
      game.PersonClicksDie(static_cast<std::int16_t>(Pick(17) - 1), static_cast<std::int16_t>(1 + Pick(2)));
    if (Kind == 6) game.PersonRolls();
    if (Kind == 7) game.PersonPasses();
    if (Kind == 8 && Pick(4) == 0) game.Form_KeyUp(113, static_cast<std::int16_t>(Pick(3)));
    if (Kind == 9) Pick(2) == 0 ? game.ARCmdNewGame_Click() : game.PersonClicksTray(1 + Pick(2), RightButton);
    if (Kind == 10 && (PanelOpen || game.TakesCommands())) {  // the options panel opens and closes
      PanelOpen ? game.ARCmdSaveOptions_Click() : game.cmdOptions_Click();
    }
    if (Kind == 11 && Pick(30) == 0) {
      screen.Answer = Pick(6) == 0;
      Pick(2) == 0 ? game.Form_KeyUp(27, 0) : static_cast<void>(game.PersonCloses());
    }
    if (fault.empty() && game.TakesCommands()) fault = game.Fault();
  }

  void NewGameDialog() {
    if (table.m.Quitting) return;
    const bool Waits = table.m.FormMessage.empty();
    table.m.FormMessage.clear();
    if (Waits && Pick(4) == 0) {
      table.t.cmdRoll.Enabled = false;
      return;
    }
    static const char* const Names[] = {"Ann",      "Bob",    "Cid",    "Normal", "Cautious",
                                        "Fearless", "Simple", "Random", "Genius", "Moron"};
    std::vector<const char*> Seats;
    for (int i = 1 + Pick(4); i > 0; --i) Seats.push_back(Names[Pick(std::size(Names))]);
    table.Begin(Seats, 5000, Pick(2) == 0 ? 500 : 1000);
  }

  Luck luck;
  Table table{nullptr, &luck};
  RecordingDesktop& screen = table.Screen;
  RecordingProgram& others = table.Others;
  Game& game = table.game;
  ComputerPlayers players{game, luck};
  std::string fault;
  int depth = 0;
  int stepsLeft = 0;
};

TEST(Interruption, NoInputAtAnyMomentBreaksTheGame) {
  for (std::uint32_t Seed = 1; Seed <= 4000; ++Seed) ASSERT_EQ(Vandal(Seed).Play(400), "") << "seed " << Seed;
}

}  // namespace blunko::test

#include <gtest/gtest.h>
#include <sstream>

#include "engine/KeyCodes.h"
#include "tests/engine/Model.h"
#include "tests/support/Table.h"

namespace blunko::test {
namespace {

/// Dice that often show groups: they repeat a few faces, with a stray one now and then.
struct LoadedDice : NumberSource {
  std::mt19937_64& Chance;
  std::vector<int> Drawn;
  std::array<int, 6> Faces{1, 2, 3, 4, 5, 6};
  std::size_t Different = 1, Strays = 0;

  explicit LoadedDice(std::mt19937_64& Source) : Chance(Source) {}
  void Load() {
    std::shuffle(Faces.begin(), Faces.end(), Chance);
    Different = 1 + Chance() % 6, Strays = Chance() % 6;
    Drawn.clear();
  }
  std::int32_t UtilRandom(std::int32_t) override {
    const bool Stray = Chance() % 8 < Strays;
    Drawn.push_back(Faces[Stray ? Chance() % 6 : Drawn.size() % Different]);
    return Drawn.back();
  }
};

/// A person who presses anything, on the game and on the rule sheet.
class Masher {
 public:
  explicit Masher(std::uint64_t Seed) : chance(Seed) {
    table.Others.OnNewGame = [this] { Begin(); };
    table.game.PersonBeginsGame();
    table.Screen.Log.clear();
  }

  void Press() {
    dice.Load();
    const int Die = Any(6), Kind = Any(40);
    const auto At = static_cast<std::size_t>(Die);
    switch (Kind < 10 ? Kind : Kind % 3) {
      case 0: Do("clicks Roll", 0, [&] { game.PersonRolls(); }), Roll(); break;
      case 1: Do("clicks die", Die, [&] { game.PersonClicksDie(Word16(Die), LeftButton); }), sheet.Take(At); break;
      case 2: Key("types face", Die + 1, (Any(2) ? Digit1 : NumPad1) + Die), TakeFace(Die + 1); break;
      case 3:
        Do("clicks slot", Die, [&] { game.PersonClicksDie(Word16(10 + Die), LeftButton); }), sheet.Undo(At);
        break;
      case 4:
        Do("right-clicks die", Die, [&] { game.PersonClicksDie(Word16(Die + Any(2) * 10), RightButton); }), Roll();
        break;
      case 5: Do("right-clicks beside", Die, [&] { game.PersonClicksTray(1 + Die % 2, RightButton); }), Roll(); break;
      case 6: Key("types roll", 0, Any(2) ? LetterR : NumPad0), Roll(); break;
      case 7: Do("clicks Pass", 0, [&] { game.PersonPasses(); }), Pass(); break;
      case 8: Key("types pass", 0, Any(2) ? LetterP : NumPadDecimal), Pass(); break;
      default: Any(2) ? TypeBackspace() : NewGame();
    }
  }
  /// What the game shows or keeps otherwise than the rules have it; empty if nothing is.
  std::string Difference() {
    const Module1& m = table.m;
    const TableControls& t = table.t;
    const bool Plays = sheet.OnTurn != Model::Nobody;
    differences = game.Fault();
    Compare("seat on turn", sheet.OnTurn, m.CurrentPlayer);
    Compare("seat that went out", sheet.Out, m.OutPlayer);
    if (sheet.Winner != Model::Nobody) Compare("winner", sheet.Winner, m.Winner);
    for (std::size_t i = 0; i < sheet.Scores.size(); ++i) Compare("banked score", sheet.Scores[i], m.PlayerScore[i]);
    Compare("turn score", sheet.Turn, m.TurnScore);
    Compare("turn score shown", std::to_string(sheet.Turn), t.lblTurnScore.Caption);
    Compare("name shown", Plays ? sheet.Names[sheet.OnTurn] : " ", t.lblPlayer.Caption);
    Compare("status", sheet.Status, t.lblStatus.Caption);
    Compare("may roll", sheet.Allows('r'), t.CanPress(t.cmdRoll));
    Compare("may pass", sheet.Allows('p'), t.CanPress(t.cmdPassDice));
    if (!sheet.Rolled.empty()) Compare("action set", sheet.May, std::string_view(m.ActionSet));
    for (std::size_t i = 0; i < Dice; ++i) {
      const int Box = static_cast<int>(i), Base = table.Options.Colour;
      const bool Up = sheet.IsUp(i), InTray = i < sheet.Tray.size();
      Compare("die on the table", Up ? Base + sheet.Rolled[i] : 0, t.Picture1(Box));
      Compare("mark", Up && table.Options.Mark && sheet.IsScorer(sheet.Rolled[i]), t.picMarker[i]);
      Compare("die in the tray", InTray ? Base + sheet.Tray[i] : 0, t.Picture1(10 + Box));
    }
    Compare("divider", sheet.Frozen > 0, t.pctDivider.Visible);
    if (sheet.Frozen > 0) Compare("divider's place", DieBoxLeft[sheet.Frozen] - 84, t.pctDivider.Left);
    Compare("last turn shown", !sheet.Need.empty(), t.lblLastRoll.Visible);
    if (t.lblLastRoll.Visible) Compare("points needed", sheet.Need, t.lblLastRoll.Caption);
    Compare("told", Lines(sheet.Told), Lines(table.TakeLog()));
    return differences;
  }
  std::string LastCommands() const { return Lines({commands.begin(), commands.end()}); }

 private:
  static std::int16_t Word16(int Value) { return static_cast<std::int16_t>(Value); }
  int Any(int Bound) { return static_cast<int>(chance() % static_cast<unsigned>(Bound)); }

  template <typename Expected, typename Found>
  void Compare(const char* Rule, const Expected& ByTheRules, const Found& InTheGame) {
    if (ByTheRules == InTheGame) return;
    std::ostringstream Line;
    Line << "\n" << Rule << ": by the rules " << ByTheRules << ", in the game " << InTheGame;
    differences += Line.str();
  }
  /// Leaves out the waits and what a wait shows.
  static std::string Lines(const std::vector<std::string>& All) {
    std::string Text;
    for (const std::string& Line : All) {
      const bool Passing = Line.starts_with("sleep") || Line.starts_with("status") || Line.starts_with("pointer");
      if (!Passing) Text += "\n  " + Line;
    }
    return Text;
  }

  void Begin() {
    static const std::vector<const char*> Names{"Ann", "Ben", "Cleo", "Dan", "Eve", "Fay", "Gus", "Hal"};
    const std::vector<const char*> Seats(Names.begin(), Names.begin() + 2 + Any(7) * Any(2));
    const int PlayTo = std::array{1000, 3000, 32600}[static_cast<std::size_t>(Any(3))], BreakIn = 500 + 500 * Any(2);
    table.Options.Sort = Any(2) == 0, table.Options.Mark = Any(2) == 0;
    table.Begin(Seats, PlayTo, BreakIn);
    sheet.Begin({Seats.begin(), Seats.end()}, PlayTo, BreakIn, table.Options.Sort);
    if (PlayTo < 30000) return;
    for (std::size_t i = 0; i < Seats.size(); ++i)
      sheet.Scores[i] = table.m.PlayerScore[i] = static_cast<std::int16_t>(32000 * Any(2));  // near their limit
  }
  template <typename Action>
  void Do(const char* Name, int Detail, Action Run) {
    commands.push_back(std::string(Name) + ' ' + std::to_string(Detail));
    if (commands.size() > 12) commands.pop_front();
    sheet.Told.clear();
    Run();
  }
  void Key(const char* Name, int Detail, int Code) {
    Do(Name, Detail, [&] { game.Form_KeyUp(Word16(Code), 0); });
  }
  void Roll() {
    if (!sheet.Allows('r')) return;
    const auto Count = static_cast<std::ptrdiff_t>(std::min(sheet.DiceToRoll(), dice.Drawn.size()));
    sheet.Roll({dice.Drawn.end() - Count, dice.Drawn.end()});
  }
  void Pass() {
    if (sheet.Allows('p')) sheet.EndTurn(true);
  }
  void TakeFace(int Face) {
    for (std::size_t i = 0; i < 6; ++i) {
      if (sheet.IsUp(i) && sheet.Rolled[i] == Face) return sheet.Take(i);
    }
  }
  void TypeBackspace() {
    Key("types Backspace", 0, Backspace);
    for (std::size_t Slot = 0; Slot < 6; ++Slot) sheet.Undo(Slot);
  }
  void NewGame() {
    const bool Asks = sheet.OnTurn != Model::Nobody;
    table.Screen.Answer = !Asks || Any(8) == 0;
    Key("types F2", table.Screen.Answer, F2);
    if (Asks) sheet.Told = {"beep", "ask Quit?: Are you sure you want to quit the current game?"};
    if (table.Screen.Answer) sheet.Told.push_back("new game");
  }

  std::mt19937_64 chance;
  LoadedDice dice{chance};
  Table table{nullptr, &dice};
  Game& game = table.game;
  Model sheet;
  std::deque<std::string> commands;
  std::string differences;
};

TEST(Model, AgreesWithTheGameWhateverAPersonPresses) {
  for (std::uint64_t Seed = 1; Seed <= 100; ++Seed) {
    Masher Person(Seed);
    for (int i = 0; i < 1000; ++i) {
      Person.Press();
      const std::string Difference = Person.Difference();
      ASSERT_EQ("", Difference) << "seed " << Seed << ", command " << i << ", the last ones:" << Person.LastCommands();
    }
  }
}

}  // namespace
}  // namespace blunko::test

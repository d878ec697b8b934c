#include <gtest/gtest.h>
#include <sstream>

#include "engine/KeyCodes.h"
#include "tests/engine/Model.h"
#include "tests/support/Table.h"

namespace blunko::test {

/// A person who presses anything, on the game and on the rule sheet; with dice that often show groups, because they
/// repeat a few faces with a stray one now and then.
class Masher : NumberSource {
 public:
  explicit Masher(std::uint64_t Seed) : chance(Seed) {
    table.Others.OnNewGame = [this] { Begin(); };
    table.Screen.OnSleep = table.Screen.OnBox = table.Others.OnDialog = [this] {
      if (Any(16) == 0) table.PressAll();
    };
    table.Screen.OnEvents = [this] {
      if (Any(16) == 0) table.PressDice();
    };
    table.Screen.Answer = false;
  }

  void Press() {
    std::shuffle(faces.begin(), faces.end(), chance);
    different = 1 + chance() % 6, strays = Any(6);
    drawn.clear();
    sheet.Told.clear();
    const int Die = Any(6), Way = Any(4), Kind = Any(33);
    if (sheet.OnTurn == Model::Nobody) game.PersonBeginsGame(), sheet.Told = {"new game"};
    if (Kind == 0) return Click(10 + Die, LeftButton), sheet.Undo(static_cast<std::size_t>(Die));
    if (Kind == 1) return Type(Backspace), sheet.Undo(sheet.Frozen);
    if (Kind == 2) return Type(F2), static_cast<void>(sheet.Told.insert(sheet.Told.end(), {"beep", Question}));
    Kind == 3 ? Pass(Way) : Kind < 18 ? Roll(Die, Way) : Take(Die, Way);
  }
  /// What the game shows or keeps otherwise than the rules have it; empty if nothing is.
  std::string Difference() {
    const Module1& m = table.m;
    const TableControls& t = table.t;
    differences = game.Fault();
    Compare("seat on turn", sheet.OnTurn, m.CurrentPlayer);
    Compare("seat that went out", sheet.Out, m.OutPlayer);
    for (std::size_t i = 0; i < sheet.Scores.size(); ++i) Compare("banked score", sheet.Scores[i], m.PlayerScore[i]);
    Compare("turn score", std::to_string(sheet.Turn), t.lblTurnScore.Caption);
    Compare("name", sheet.OnTurn == Model::Nobody ? " " : sheet.Names[sheet.OnTurn], t.lblPlayer.Caption);
    Compare("status", sheet.Status, t.lblStatus.Caption);
    Compare("may roll", sheet.Allows('r'), t.CanPress(t.cmdRoll));
    Compare("may pass", sheet.Allows('p'), t.CanPress(t.cmdPassDice));
    if (!sheet.Rolled.empty()) Compare("action set", sheet.May, std::string_view(m.ActionSet));
    for (std::size_t i = 0; i < Dice; ++i) {
      const int Box = static_cast<int>(i), Base = table.Options.DieColour;
      const bool Up = sheet.IsUp(i), InTray = i < sheet.Tray.size();
      Compare("die on the table", Up ? Base + sheet.Rolled[i] : 0, t.Picture1(Box));
      Compare("mark", Up && table.Options.MarkScorers && sheet.IsScorer(sheet.Rolled[i]), t.picMarker[i]);
      Compare("die in the tray", InTray ? Base + sheet.Tray[i] : 0, t.Picture1(10 + Box));
    }
    Compare("divider", sheet.Frozen > 0 ? DieBoxLeft[sheet.Frozen] - 84 : 0,
            t.pctDivider.Visible ? t.pctDivider.Left : 0);
    Compare("last turn", sheet.Need, t.lblLastRoll.Visible ? t.lblLastRoll.Caption : "");
    Compare("told", Lines(sheet.Told), Lines(table.TakeLog()));
    return differences;
  }

 private:
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

  std::int16_t NearLimit() { return static_cast<std::int16_t>(32000 * Any(2)); }

  void Begin() {
    static const std::vector<const char*> Names{"A", "B", "C", "D", "E", "F", "G", "H"};
    const std::vector<const char*> Seats(Names.begin(), Names.begin() + 2 + Any(7) * Any(2));
    const int PlayTo = std::array{1000, 3000, 32600}[static_cast<std::size_t>(Any(3))], BreakIn = 500 + 500 * Any(2);
    table.Options.SortDice = Any(2) == 0, table.Options.MarkScorers = Any(2) == 0;
    table.Begin(Seats, PlayTo, BreakIn);
    sheet.Begin({Seats.begin(), Seats.end()}, PlayTo, BreakIn, table.Options.SortDice);
    if (PlayTo < 30000) return;
    for (std::size_t i = 0; i < Seats.size(); ++i) sheet.Scores[i] = table.m.PlayerScore[i] = NearLimit();
    sheet.Turn = table.m.TurnScore = NearLimit();
    table.t.lblTurnScore.Caption = std::to_string(sheet.Turn);
  }
  void Click(int Index, std::int16_t Button) { game.PersonClicksDie(static_cast<std::int16_t>(Index), Button); }
  void Type(int Code) { game.Form_KeyUp(static_cast<std::int16_t>(Code), 0); }

  void Roll(int Die, int Way) {
    if (Way == 0) game.PersonRolls();
    if (Way == 1) Click(Die + 10 * Any(2), RightButton);
    if (Way == 2) game.PersonClicksTray(1 + Die % 2, RightButton);
    if (Way == 3) Type(Die < 3 ? LetterR : NumPad0);
    if (sheet.Allows('r')) sheet.Roll({drawn.end() - std::min(sheet.DiceToRoll(), std::ssize(drawn)), drawn.end()});
  }
  void Take(int Die, int Way) {
    auto Position = static_cast<std::size_t>(Die);
    if (Way < 2) return Click(Die, LeftButton), sheet.Take(Position);
    Type((Way == 2 ? Digit1 : NumPad1) + Die);
    for (Position = 0; Position < Dice && !(sheet.IsUp(Position) && sheet.Rolled[Position] == Die + 1);) ++Position;
    sheet.Take(Position);
  }
  void Pass(int Way) {
    Way < 2 ? game.PersonPasses() : Type(Way == 2 ? LetterP : NumPadDecimal);
    if (sheet.Allows('p')) sheet.EndTurn(true);
  }

  std::int32_t UtilRandom(std::int32_t Bound) override {
    return drawn.emplace_back(Any(8) < strays ? 1 + Any(Bound) : faces[drawn.size() % different]);
  }

  std::mt19937_64 chance;
  std::array<int, 6> faces{1, 2, 3, 4, 5, 6};
  std::vector<int> drawn;
  std::size_t different = 1;
  int strays = 0;
  Table table{nullptr, this};
  Game& game = table.game;
  Model sheet;
  std::string differences;
};

TEST(Model, AgreesWithTheGameWhateverAPersonPresses) {
  for (std::uint64_t Seed = 1; Seed <= 100; ++Seed) {
    Masher Person(Seed);
    for (int i = 0; i < 1000; ++i) {
      Person.Press();
      ASSERT_EQ("", Person.Difference()) << "seed " << Seed << ", command " << i;
    }
  }
}

}  // namespace blunko::test

#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

#include "bots/ComputerPlayers.h"
#include "tests/bots/Model.h"

namespace blunko::test {
namespace {

std::string Text(const auto& Value) {
  if constexpr (requires { std::string_view(Value); }) {
    return std::string(std::string_view(Value));
  } else if constexpr (requires { std::to_string(Value); }) {
    return std::to_string(Value);
  } else {
    std::string All;
    for (const auto& Part : Value) All += Text(Part) + ' ';
    return All;
  }
}

/// The program's table, whose every event is held against the model's account of the same step.
class Witness : public Desktop, public Program, public NumberSource, public UniformSource {
 public:
  Witness(const Model& Expected, const PlainOptions& Options, std::uint32_t Seed)
      : model(Expected), fate(Seed), game(now, now, Options, *this, *this, *this) {
    game.ClearAtStart();
  }

  /// Forgets the events of the step before.
  void BeginStep() { next = 0; }
  /// Throws unless every event of the model came to pass, and both agree about the end.
  void EndStep() {
    if (next < model.Events.size()) Fail("nothing more");
    if (Compared(now) != Compared(model)) Fail("end of the step");
  }

  void Refresh() override {
    // A text that was seen gets an invisible mark: the same text without it has been set again.
    std::string& Caption = now.lblStatus.Caption;
    if (Caption.ends_with(SeenMark)) return;
    See("status " + Caption);
    Caption += SeenMark;
  }
  void Sleep(int Milliseconds) override { See("sleep " + std::to_string(Milliseconds)); }
  void PumpEvents() override { Deliver("pump"); }
  void WaitForEvents() override { Deliver("wait"); }
  void Beep() override { See("beep"); }
  void PlaySoundFile(const std::string& File, bool Always) override { See((Always ? "always " : "sound ") + File); }
  void MessageBox(const std::string& Text) override { See("box " + Text); }
  bool AskYesNo(const std::string& Text, const std::string& Title) override {
    See("ask " + Title + ": " + Text);
    return fate.Yes();
  }
  void SetMousePointer(MousePointer Pointer) override { See("pointer " + std::to_string(static_cast<int>(Pointer))); }

  void UpdateActivePlayer() override { See("pad update"); }
  void ShowScorePad() override { See("pad shown"); }
  void FocusTable() override { See("focus"); }
  void CheckHighTurn(const std::string& Name, std::int16_t Score) override {
    See("high turn " + Name + " " + std::to_string(Score));
  }
  void CheckWhoopin(const std::string& Name, std::int16_t Margin) override {
    See("whoopin " + Name + " " + std::to_string(Margin));
  }
  void ShowCongrats() override {
    See("congrats");
    now.FormMessage = fate.Word();
  }
  void ShowNewGame() override {
    See("new game");
    if (now.FormMessage != "SameGame") {
      if (now.FormMessage.empty() && fate.Cancels()) {
        now.cmdRoll.Enabled = false;
        return;
      }
      setup = fate.Setup();
    }
    now.FormMessage.clear();
    game.FreshGame(setup);
  }
  void RunComputerTurn() override { players.RunComputerTurn(); }
  void CancelOptions() override { See("cancel options"); }
  void UnloadOtherForms() override { See("unload others"); }
  void ExitProgram() override { See("exit"); }
  void Abort() override { See("abort"); }

  std::int32_t UtilRandom(std::int32_t Bound) override {
    See("draw " + std::to_string(Bound));
    return fate.Die();
  }
  double Next() override {
    See("uniform");
    return fate.Uniform();
  }

 private:
  void Deliver(const char* How) {
    const std::string Before = next == 0 ? "" : model.Events[next - 1].What;
    See(How);
    fate.Deliver(game, now, Before);
  }
  void See(const std::string& What) {
    if (next >= model.Events.size()) Fail(What);
    const Model::Event& Told = model.Events[next];
    if (Told.What != What || Compared(now) != Compared(model.Moments[Told.At])) Fail(What);
    ++next;
  }

  [[noreturn]] void Fail(const std::string& What) const {
    std::ostringstream Report;
    for (std::size_t i = next < 12 ? 0 : next - 12; i < next; ++i)
      Report << "both:    " << model.Events[i].What << '\n';
    const bool More = next < model.Events.size();
    Report << "model:   " << (More ? model.Events[next].What : "nothing more") << "\nprogram: " << What << '\n';
    std::istringstream Names(ComparedNames);
    const auto Tell = [&](const auto& Told, const auto& Is) {
      std::string Name;
      Names >> Name;
      if (Told != Is) Report << "  " << Name << ": model " << Text(Told) << ", program " << Text(Is) << '\n';
    };
    const auto Told = Compared(More ? model.Moments[model.Events[next].At] : model), Is = Compared(now);
    std::apply([&](const auto&... A) { std::apply([&](const auto&... B) { (Tell(A, B), ...); }, Is); }, Told);
    throw std::runtime_error(Report.str());
  }

  const Model& model;
  std::size_t next = 0;
  Fate fate;
  GameSetup setup;
  Moment now;

 public:
  Game game;

 private:
  ComputerPlayers players{game, *this};
};

/// A table at which a person clicks and presses keys at random, mostly what is allowed, in both accounts.
class Play {
 public:
  explicit Play(std::uint32_t Seed) : chance(~Seed), seed(Seed) {
    options.Speed = Pick(3);
    options.Sort = Pick(2) == 0;
    options.Mark = Pick(2) == 0;
    options.Silent = Pick(2) == 0;
  }

  /// Plays until the program quits or the steps are used up. Returns what went wrong, empty if nothing did.
  std::string Run(int Steps) {
    int Step = 0;
    try {
      for (; Step < Steps && !model.Quitting; ++Step) Act();
    } catch (const std::runtime_error& Difference) {
      return "seed " + std::to_string(seed) + ", step " + std::to_string(Step) + ": " + action + '\n' +
             Difference.what();
    }
    return "";
  }

 private:
  int Pick(int Bound) { return static_cast<int>(chance() % static_cast<unsigned>(Bound)); }

  /// The same in both: `Do` calls a handler of a model or of a game.
  template <typename Action>
  void Both(const std::string& Name, Action Do) {
    action = Name;
    model.Events.clear();
    model.Moments.clear();
    witness.BeginStep();
    model.PauseComputer = witness.game.m.PauseComputer = false;
    Do(model);
    Do(witness.game);
    witness.EndStep();
  }
  void Key(int Code, int Shift = 0) {
    Both("key " + std::to_string(Code) + " shift " + std::to_string(Shift),
         [=](auto& Side) { Side.Form_KeyUp(static_cast<std::int16_t>(Code), static_cast<std::int16_t>(Shift)); });
  }
  void Click(int Index, int Button = LeftButton) {
    Both("click " + std::to_string(Index) + " button " + std::to_string(Button), [=](auto& Side) {
      Side.PersonClicksDie(static_cast<std::int16_t>(Index), static_cast<std::int16_t>(Button));
    });
  }

  void Act() {
    const bool OnTurn =
        model.CurrentPlayer != 99 && model.cmdRoll.Visible && !model.PlayerIsComputer[model.CurrentPlayer];
    if (!OnTurn && Pick(3) != 0) return BeginGame();
    const int What = Pick(1000);
    if (What < 300) return Roll();
    if (What < 400) return Pass();
    if (What < 850) return TakeScorer();
    if (What < 900) return Click(10 + Pick(6));
    if (What < 940) return Click(Pick(2) == 0 ? Pick(6) : 10 + Pick(6), 1 + Pick(3));
    if (What < 970) return Key(Keys[Pick(std::size(Keys))]);
    if (What < 990) return ChangeOptions();
    if (What < 994) return BeginGame();
    if (What == 999) return Key(27);
  }
  void Roll() {
    const std::int16_t Button = Pick(3) == 0 ? LeftButton : RightButton;
    switch (Pick(6)) {
      case 0: return Both("beside the dice", [=](auto& Side) { Side.picTray1_MouseUp(Button, 0, 0, 0); });
      case 1: return Both("beside the tray", [=](auto& Side) { Side.picTray2_MouseUp(Button, 0, 0, 0); });
      case 2: return Key(Pick(2) == 0 ? 82 : 96);
      case 3: return Click(Pick(2) == 0 ? Pick(6) : 10 + Pick(6), RightButton);
      default: return Both("roll", [](auto& Side) { Side.PersonRolls(); });
    }
  }
  void Pass() {
    if (Pick(3) == 0) return Key(Pick(2) == 0 ? 80 : 110);
    Both("pass", [](auto& Side) { Side.PersonPasses(); });
  }
  void TakeScorer() {
    const int First = Pick(6);
    for (int i = First; i < First + 6; ++i) {
      if (!model.DieUp[i % 6] || model.DieScoreCode[i % 6] == "0") continue;
      return Pick(4) == 0 ? Key((Pick(2) == 0 ? 48 : 96) + model.DieFace[i % 6]) : Click(i % 6);
    }
  }
  void ChangeOptions() {
    options.Speed = Pick(3);
    options.Sort = Pick(2) == 0;
    options.Mark = Pick(2) == 0;
    options.Silent = Pick(2) == 0;
    options.Colour = 112 + 10 * Pick(3);
  }
  void BeginGame() {
    if (model.ARCmdNewGame.Visible && Pick(2) == 0) {
      return Both("new game", [](auto& Side) { Side.ARCmdNewGame_Click(); });
    }
    Key(113, Pick(4));
  }

  static constexpr int Keys[] = {49, 50, 51, 52, 53, 54, 97, 98, 99, 100, 101, 102, 82, 80, 8, 8, 8, 65, 48, 55, 103};
  std::minstd_rand chance;
  std::uint32_t seed;
  NamedSounds options;
  Model model{options, seed};
  Witness witness{model, options, seed};
  std::string action;
};

#ifdef NDEBUG
constexpr std::uint32_t UsualSeeds = 400;
#else
constexpr std::uint32_t UsualSeeds = 40;
#endif

/// A seed is about three games played to the end and some given up. By hand, for many more: MODEL_SEEDS=100000, and
/// MODEL_FIRST_SEED for others.
TEST(Model, TellsTheSameGames) {
  const auto Number = [](const char* Name, std::uint32_t Usual) {
    const char* const Text = std::getenv(Name);
    return Text == nullptr ? Usual : static_cast<std::uint32_t>(std::strtoul(Text, nullptr, 10));
  };
  const std::uint32_t First = Number("MODEL_FIRST_SEED", 1);
  const std::uint32_t Count = Number("MODEL_SEEDS", UsualSeeds);
  for (std::uint32_t Seed = First; Seed < First + Count; ++Seed) {
    const std::string Difference = Play(Seed).Run(600);
    ASSERT_TRUE(Difference.empty()) << Difference;
  }
}

}  // namespace
}  // namespace blunko::test

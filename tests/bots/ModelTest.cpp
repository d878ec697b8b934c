#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

#include "bots/ComputerPlayers.h"
#include "tests/bots/Model.h"

namespace blunko::test {
namespace {

/// Names and values of a moment, a line each.
std::vector<std::string> Describe(const Moment& At) {
  std::vector<std::string> Lines;
  const auto Add = [&Lines](const char* Name, const auto& Value) {
    std::ostringstream Line;
    Line << Name << " = " << Value;
    Lines.push_back(Line.str());
  };
  const auto AddAll = [&Lines](const char* Name, const auto& Values) {
    std::ostringstream Line;
    Line << Name << " =";
    for (const auto& Value : Values) Line << ' ' << Value;
    Lines.push_back(Line.str());
  };
  AddAll("DieFace", At.DieFace);
  AddAll("ShownFace", At.ShownFace);
  AddAll("TrayFace", At.TrayFace);
  AddAll("DieScoreCode", At.DieScoreCode);
  AddAll("DieUp", At.DieUp);
  AddAll("TrayUsed", At.TrayUsed);
  AddAll("BotTake", At.BotTake);
  AddAll("PlayerName", At.PlayerName);
  AddAll("PlayerScore", At.PlayerScore);
  AddAll("PlayerStyle", At.PlayerStyle);
  AddAll("PlayerIsComputer", At.PlayerIsComputer);
  Add("NumPlayers", At.NumPlayers);
  Add("PlayToScore", At.PlayToScore);
  Add("BreakInScore", At.BreakInScore);
  Add("CurrentPlayer", At.CurrentPlayer);
  Add("OutPlayer", At.OutPlayer);
  Add("Winner", At.Winner);
  Add("TurnScore", At.TurnScore);
  Add("SavedTurnScore", At.SavedTurnScore);
  Add("TrayCountAtRoll", At.TrayCountAtRoll);
  Add("LeaderScore", At.LeaderScore);
  Add("ActionSet", At.ActionSet);
  Add("SavedActionSet", At.SavedActionSet);
  Add("FormMessage", At.FormMessage);
  Add("RollIsBust", At.RollIsBust);
  Add("MayPass", At.MayPass);
  Add("TurnOver", At.TurnOver);
  Add("GameOver", At.GameOver);
  Add("Quitting", At.Quitting);
  Add("PauseComputer", At.PauseComputer);
  Add("ScorePadShown", At.ScorePadShown);
  Add("lblStatus", At.lblStatus);
  Add("lblLastRoll", At.lblLastRoll);
  Add("lblPlayer", At.lblPlayer);
  Add("lblTurnScore", At.lblTurnScore);
  Add("lblStatusTop", At.lblStatusTop);
  Add("pctDividerLeft", At.pctDividerLeft);
  Add("lblLastRollVisible", At.lblLastRollVisible);
  Add("pctDividerVisible", At.pctDividerVisible);
  Add("NewGameVisible", At.NewGameVisible);
  Add("RollVisible", At.RollVisible);
  Add("RollEnabled", At.RollEnabled);
  Add("PassVisible", At.PassVisible);
  Add("PassEnabled", At.PassEnabled);
  Add("picTray1Enabled", At.picTray1Enabled);
  Add("picTray2Enabled", At.picTray2Enabled);
  AddAll("Picture1", At.Picture1);
  AddAll("picMarker", At.picMarker);
  return Lines;
}

/// The program's table, whose every event is held against the model's account of the same step.
class Witness : public Desktop, public Program, public NumberSource, public UniformSource {
 public:
  Witness(const Model& Expected, const PlainOptions& Options, std::uint32_t Seed)
      : model(Expected), fate(Seed), game(m, t, Options, *this, *this, *this) {
    m.TempFolder = "";
    game.ClearAtStart();
  }

  /// Forgets the events of the step before.
  void BeginStep() { next = 0; }
  /// Throws unless every event of the model came to pass, and both agree about the end.
  void EndStep() {
    if (next < model.Events.size()) Fail("nothing more", Seen());
    if (Seen() != model) Fail("end of the step", Seen());
  }

  void Refresh() override {
    // A text that was seen gets an invisible mark: the same text without it has been set again.
    std::string& Caption = t.lblStatus.Caption;
    if (Caption.ends_with(Mark)) return;
    See("status " + Caption);
    Caption += Mark;
  }
  void Sleep(int Milliseconds) override { See("sleep " + std::to_string(Milliseconds)); }
  void PumpEvents() override { See("pump"); }
  void WaitForEvents() override { PumpEvents(); }
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
    m.FormMessage = fate.Word();
  }
  void ShowNewGame() override {
    See("new game");
    if (m.FormMessage != "SameGame") {
      if (m.FormMessage.empty() && fate.Cancels()) {
        t.cmdRoll.Enabled = false;
        return;
      }
      setup = fate.Setup();
    }
    m.FormMessage.clear();
    game.FreshGame(setup);
  }
  void RunComputerTurn() override { players.RunComputerTurn(); }
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
  static constexpr char Mark = '\1';

  void See(const std::string& What) {
    if (What == "pump" && next > 0 && model.Events[next - 1].What == What) return;
    if (next >= model.Events.size()) Fail(What, Seen());
    const Model::Event& Told = model.Events[next];
    if (Told.What != What || Seen() != model.Moments[Told.At]) Fail(What, Seen());
    ++next;
  }

  Moment Seen() const {
    Moment Now;
    const auto Copy = [](const auto& From, auto& To) { std::copy_n(From.begin(), From.size(), To.begin()); };
    Copy(m.DieFace, Now.DieFace);
    Copy(m.ShownFace, Now.ShownFace);
    Copy(m.TrayFace, Now.TrayFace);
    Copy(m.DieScoreCode, Now.DieScoreCode);
    Now.DieUp = m.DieUp;
    Now.TrayUsed = m.TrayUsed;
    Now.BotTake = m.BotTake;
    Now.PlayerName = m.PlayerName;
    Copy(m.PlayerScore, Now.PlayerScore);
    Copy(m.PlayerStyle, Now.PlayerStyle);
    Now.PlayerIsComputer = m.PlayerIsComputer;
    Now.NumPlayers = m.NumPlayers;
    Now.PlayToScore = m.PlayToScore;
    Now.BreakInScore = m.BreakInScore;
    Now.CurrentPlayer = m.CurrentPlayer;
    Now.OutPlayer = m.OutPlayer;
    Now.Winner = m.Winner;
    Now.TurnScore = m.TurnScore;
    Now.SavedTurnScore = m.SavedTurnScore;
    Now.TrayCountAtRoll = m.TrayCountAtRoll;
    Now.LeaderScore = m.LeaderScore;
    Now.ActionSet = m.ActionSet;
    Now.SavedActionSet = m.SavedActionSet;
    Now.FormMessage = m.FormMessage;
    Now.RollIsBust = m.RollIsBust;
    Now.MayPass = m.MayPass;
    Now.TurnOver = m.TurnOver;
    Now.GameOver = m.GameOver;
    Now.Quitting = m.Quitting;
    Now.PauseComputer = m.PauseComputer;
    Now.ScorePadShown = m.ScorePadShown;
    Now.lblStatus = t.lblStatus.Caption;
    if (Now.lblStatus.ends_with(Mark)) Now.lblStatus.pop_back();
    Now.lblLastRoll = t.lblLastRoll.Caption;
    Now.lblPlayer = t.lblPlayer.Caption;
    Now.lblTurnScore = t.lblTurnScore.Caption;
    Now.lblStatusTop = t.lblStatus.Top;
    Now.lblLastRollVisible = t.lblLastRoll.Visible;
    Now.pctDividerVisible = t.pctDivider.Visible;
    Now.pctDividerLeft = t.pctDivider.Left;
    Now.NewGameVisible = t.ARCmdNewGame.Visible;
    Now.RollVisible = t.cmdRoll.Visible;
    Now.RollEnabled = t.cmdRoll.Enabled;
    Now.PassVisible = t.cmdPassDice.Visible;
    Now.PassEnabled = t.cmdPassDice.Enabled;
    Now.picTray1Enabled = t.picTray1.Enabled;
    Now.picTray2Enabled = t.picTray2.Enabled;
    for (int i = 0; i < 6; ++i) Now.Picture1[i] = t.Picture1(i), Now.Picture1[10 + i] = t.Picture1(10 + i);
    Now.picMarker = t.picMarker;
    return Now;
  }

  [[noreturn]] void Fail(const std::string& What, const Moment& Now) const {
    std::ostringstream Text;
    for (std::size_t i = next < 12 ? 0 : next - 12; i < next; ++i) Text << "both:    " << model.Events[i].What << '\n';
    const bool More = next < model.Events.size();
    Text << "model:   " << (More ? model.Events[next].What : "nothing more") << "\nprogram: " << What << '\n';
    const auto Told = Describe(More ? model.Moments[model.Events[next].At] : model), Is = Describe(Now);
    for (std::size_t i = 0; i < Told.size(); ++i) {
      if (Told[i] != Is[i]) Text << "  model:   " << Told[i] << "\n  program: " << Is[i] << '\n';
    }
    throw std::runtime_error(Text.str());
  }

  const Model& model;
  std::size_t next = 0;
  Fate fate;
  GameSetup setup;
  Module1 m;
  TableControls t;

 public:
  Game game;

 private:
  ComputerPlayers players{game, *this};
};

/// A table at which a person clicks and presses keys at random, mostly what is allowed, in both accounts.
class Play {
 public:
  explicit Play(std::uint32_t Seed) : chance(Seed), seed(Seed) {
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
    const bool OnTurn = model.CurrentPlayer != 99 && model.RollVisible && !model.PlayerIsComputer[model.CurrentPlayer];
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
    switch (Pick(4)) {
      case 0: return Key(Pick(2) == 0 ? 82 : 96);
      case 1: return Click(Pick(2) == 0 ? Pick(6) : 10 + Pick(6), RightButton);
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
    if (model.NewGameVisible && Pick(2) == 0) {
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

TEST(Model, TellsTheSameGames) {
  const char* const First = std::getenv("MODEL_FIRST_SEED");
  const char* const Count = std::getenv("MODEL_SEEDS");
  const std::uint32_t From = First != nullptr ? static_cast<std::uint32_t>(std::atol(First)) : 1;
  const std::uint32_t Seeds = Count != nullptr ? static_cast<std::uint32_t>(std::atol(Count)) : 300;
  for (std::uint32_t Seed = From; Seed < From + Seeds; ++Seed) {
    const std::string Difference = Play(Seed).Run(600);
    ASSERT_TRUE(Difference.empty()) << Difference;
  }
}

}  // namespace
}  // namespace blunko::test

#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "engine/Game.h"
#include "engine/KeyCodes.h"
#include "sound/SoundEvents.h"

namespace blunko::test {

const std::string Question = "ask Quit?: Are you sure you want to quit the current game?";

/// Dice that fall as told. Beyond the script no roll scores: every turn comes to its end.
class ScriptedDice : public NumberSource {
 public:
  std::deque<int> Faces;
  int Draws = 0;

  std::int32_t UtilRandom(std::int32_t Bound) override {
    ++Draws;
    static constexpr int NoScorers[] = {2, 3, 4, 6};
    if (Faces.empty()) return NoScorers[beyond++ % 4];
    const int Face = Faces.front();
    Faces.pop_front();
    return std::min(Face, Bound);
  }

 private:
  int beyond = 0;
};

struct Luck : NumberSource {
  std::minstd_rand Chance;
  explicit Luck(std::uint32_t Seed) : Chance(Seed) {}
  std::int32_t UtilRandom(std::int32_t Bound) override {
    return 1 + static_cast<std::int32_t>(Chance() % static_cast<unsigned>(Bound));
  }
};

/// "125": the numbers 1, 2 and 5.
inline std::vector<int> Digits(std::string_view Text) {
  std::vector<int> All;
  for (const char Digit : Text) All.push_back(Digit - '0');
  return All;
}

/// Writes down what happens on the desktop, a line an event; `OnEvents` runs whenever events are delivered, `OnSleep`
/// in every wait, `OnBox` while a box is open.
class RecordingDesktop : public Desktop {
 public:
  explicit RecordingDesktop(TableControls& Controls) : t(Controls) {}

  std::vector<std::string> Log;
  bool Answer = true;
  /// All that changes on the screen, when it gets there; else what a refresh does to the status.
  bool TellsAll = false;
  std::function<void()> OnEvents, OnSleep, OnBox;

  void Refresh() override { Tell("status", t.lblStatus.Caption), Show(); }
  void Sleep(int Milliseconds) override {
    Show();
    Note("sleep " + std::to_string(Milliseconds), OnSleep);
  }
  void PumpEvents() override {
    Show();
    if (OnEvents) OnEvents();
  }
  void WaitForEvents() override { PumpEvents(); }
  void Beep() override { Log.push_back("beep"); }
  void PlaySoundFile(const std::string& File, bool Always) override {
    Log.push_back((Always ? "test sound " : "sound ") + File);
  }
  void MessageBox(const std::string& Text) override {
    Show();
    Note("box " + Text, OnBox);
  }
  bool AskYesNo(const std::string& Text, const std::string& Title, bool) override {
    Show();
    Note("ask " + Title + ": " + Text, OnBox);
    return Answer;
  }
  void SetMousePointer(MousePointer Pointer) override {
    Log.push_back("pointer " + std::to_string(static_cast<int>(Pointer)));
  }

 private:
  void Note(const std::string& Line, const std::function<void()>& Meanwhile) {
    Log.push_back(Line);
    if (Meanwhile) Meanwhile();
  }
  void Tell(const std::string& What, const std::string& Value) {
    if (std::exchange(shown[What], Value) != Value) Log.push_back(What + ' ' + Value);
  }
  void Show() {
    if (!TellsAll) return;
    std::string Dice;
    for (int Index = 0; Index < 16; ++Index) {
      if (t.Picture1(Index) != 0) Dice += static_cast<char>('0' + t.Picture1(Index) - 112);
      if (Index == 9) Dice += '/';
    }
    Tell("status", t.lblStatus.Caption);
    Tell("dice", Dice);
    Tell("score", t.lblTurnScore.Caption);
    Tell("last roll", t.lblLastRoll.Visible ? t.lblLastRoll.Caption + '^' + std::to_string(t.lblStatus.Top) : "off");
    Tell("divider", t.pctDivider.Visible ? std::to_string(t.pctDivider.Left) : "off");
    Tell("buttons", std::string(t.CanPress(t.cmdRoll) ? "roll" : "") + (t.CanPress(t.cmdPassDice) ? " pass" : ""));
  }

  TableControls& t;
  std::map<std::string, std::string> shown{{"dice", "/"}, {"score", ""}, {"last roll", "off"}, {"divider", "off"}};
};

/// Writes the calls into the log of the desktop, and that a computer's turn has begun; a dialog does what the test
/// gives it to do.
struct RecordingProgram : Program, ComputerSeats, HighRollersCheck {
  explicit RecordingProgram(std::vector<std::string>& Lines) : Log(Lines) {}

  std::vector<std::string>& Log;
  std::function<void()> OnCongrats, OnNewGame, OnDialog, OnShowOptions, OnHideOptions;
  std::function<void(bool)> OnSettleOptions;
  std::function<void(GameEvent)> OnEvent;
  int PadUpdates = 0;

  void Open(const std::string& Line, const std::function<void()>& Done = {}) {
    Log.push_back(Line);
    if (OnDialog) OnDialog();
    if (Done) Done();
  }
  void Announce(GameEvent Event) override {
    if (OnEvent) OnEvent(Event);
  }
  void UpdateActivePlayer() override { ++PadUpdates; }
  void ShowScorePad() override {}
  void FocusTable() override {}
  void RunComputerTurn() override { Log.push_back("computer turn"); }
  void CheckHighTurn(const std::string& Name, std::int16_t Score) override {
    Open("high turn " + Name + " " + std::to_string(Score));
  }
  void CheckWhoopin(const std::string& Name, std::int16_t Margin) override {
    Open("whoopin " + Name + " " + std::to_string(Margin));
  }
  void ShowCongrats() override { Open("congrats", OnCongrats); }
  void ShowNewGame() override { Open("new game", OnNewGame); }
  void ShowOptions() override { OnShowOptions ? OnShowOptions() : Log.push_back("show options"); }
  void SettleOptions(bool Save) override {
    OnSettleOptions ? OnSettleOptions(Save) : Log.push_back(Save ? "save options" : "cancel options");
  }
  void HideOptions() override { OnHideOptions ? OnHideOptions() : Log.push_back("hide options"); }
  void UnloadOtherForms() override { Log.push_back("unload others"); }
  void ExitProgram() override { Log.push_back("exit"); }
  void Abort() override { Log.push_back("abort"); }
};

/// A table with scripted dice on a recorded desktop, at the speed Ridiculous unless the test says otherwise; the name
/// of an event serves as the path of its sound.
struct Table {
  Module1 m;
  TableControls t;
  GameOptions Options{.ComputerSpeed = SpeedRidiculous};
  RecordingDesktop Screen{t};
  RecordingProgram Others{Screen.Log};
  ScriptedDice Numbers;
  Game game;

  explicit Table(const GameOptions* OtherOptions = nullptr, NumberSource* OtherDice = nullptr)
      : game{m,      t,      OtherOptions != nullptr ? *OtherOptions : Options,
             Screen, Others, OtherDice != nullptr ? *OtherDice : Numbers} {
    game.SeatComputers(Others);
    game.OfferScores(Others);
    for (const SoundEvent& Event : SoundEvents) Options.Sounds[Event.Name] = Event.Name;
  }

  /// Begins a game; a seat with a style's word as its name is a computer.
  void Begin(const std::vector<const char*>& Names, int PlayTo = 5000, int BreakIn = 500) {
    GameSetup Setup;
    Setup.NumPlayers = static_cast<std::uint8_t>(Names.size());
    Setup.PlayToScore = static_cast<std::int16_t>(PlayTo);
    Setup.BreakInScore = static_cast<std::int16_t>(BreakIn);
    for (std::size_t i = 0; i < Names.size(); ++i) {
      const auto Style = (std::ranges::find(StyleWords, Names[i]) - StyleWords.begin() + 1) % 8;
      Setup.Seats[i] = {Names[i], Style != 0, static_cast<std::uint8_t>(Style)};
    }
    game.FreshGame(Setup);
  }

  /// The next roll brings the given faces up; tumbling dice are fed as well.
  void Script(const std::vector<int>& Faces) {
    static constexpr std::size_t Cycles[] = {0, 20, 15, 10, 8, 7, 5};
    const bool Tumbles = !(m.PlayerIsComputer[m.CurrentPlayer] && Options.ComputerSpeed >= SpeedRidiculous);
    if (Tumbles) Numbers.Faces.assign(Faces.size() * Cycles[Faces.size()], 6);
    Numbers.Faces.insert(Numbers.Faces.end(), Faces.begin(), Faces.end());
  }
  /// Moves of the seat on turn: "134466 @0 @10 pass" rolls six dice, clicks the first, then its slot in the tray, and
  /// passes the dice.
  void Play(std::string_view Moves) {
    while (!Moves.empty()) {
      const std::string_view Move = Moves.substr(0, Moves.find(' '));
      Moves.remove_prefix(std::min(Move.size() + 1, Moves.size()));
      if (Move == "pass") {
        game.Command([this] { game.cmdPassDice_Click(); });
      } else if (Move.front() == '@') {
        const auto Index = static_cast<std::int16_t>(std::stoi(std::string(Move.substr(1))));
        game.Command([=, this] { game.Picture1_MouseUp(Index, LeftButton, 0, 0, 0); });
      } else {
        Script(Digits(Move));
        game.Command([this] { game.cmdRoll_Click(); });
      }
    }
  }
  /// Whatever touches the dice or may stand beside it: all keys but those of the window, all buttons.
  void PressDice() {
    for (std::int16_t Key = 0; Key < 128; ++Key) {
      if (Key != Escape && Key != F2) game.Form_KeyUp(Key, 0);
    }
    for (const std::int16_t Button : {LeftButton, RightButton}) {
      for (std::int16_t Index = -1; Index <= 16; ++Index) game.PersonClicksDie(Index, Button);
      for (const int Row : {1, 2}) game.PersonClicksTray(Row, Button);
    }
    game.PersonRolls();
    game.PersonPasses();
  }
  void PressAll() {
    PressDice();
    for (const std::int16_t Shift : {0, 1}) game.Form_KeyUp(F2, Shift);
    game.Form_KeyUp(Escape, 0);
    game.ARCmdNewGame_Click();
    game.Command([this] { Screen.Log.push_back("a command of the window"); });
    if (game.PersonCloses()) Screen.Log.push_back("closed");
  }
  /// Ends the turn of the seat on turn with so many points banked.
  void Bank(int Points) {
    m.TurnScore = static_cast<std::int16_t>(Points);
    m.RollIsBust = false;
    game.cmdPassDice_Click();
  }

  /// The table in a line: seat and turn score, the faces on the table and in the tray, status and action set, and what
  /// is wrong with it, if anything is.
  std::string Look() const {
    std::string All = t.lblPlayer.Caption + ' ' + t.lblTurnScore.Caption + ": ";
    for (const int Face : m.ShownFace) All += std::to_string(Face);
    for (const int Face : m.TrayFace) All += std::to_string(Face);
    return All + ", " + t.lblStatus.Caption + " (" + std::string(std::string_view(m.ActionSet)) + ')' + game.Fault();
  }
  /// Takes the lines of the log that begin with `Kind`, and forgets the log.
  std::vector<std::string> TakeLog(const std::string& Kind = "") {
    std::vector<std::string> Lines = std::exchange(Screen.Log, {});
    std::erase_if(Lines, [&](const std::string& Line) { return !Line.starts_with(Kind); });
    return Lines;
  }
  /// The same in one text: "beep; sleep 10 x30".
  std::string Told(const std::string& Kind = "") {
    std::string All;
    const auto Lines = TakeLog(Kind);
    for (auto Line = Lines.begin(); Line != Lines.end();) {
      const auto Same = std::find_if(Line, Lines.end(), [&](const std::string& Other) { return Other != *Line; });
      All += (All.empty() ? "" : "; ") + *Line + (Same - Line > 1 ? " x" + std::to_string(Same - Line) : "");
      Line = Same;
    }
    return All;
  }
};

}  // namespace blunko::test

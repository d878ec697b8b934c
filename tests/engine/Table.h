#pragma once

#include <deque>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "engine/Game.h"

namespace blunko::test {

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
    return Face <= Bound ? Face : Bound;
  }

 private:
  int beyond = 0;
};

struct RandomDice : NumberSource {
  std::minstd_rand& Chance;
  explicit RandomDice(std::minstd_rand& Source) : Chance(Source) {}
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
/// in every wait.
class RecordingDesktop : public Desktop {
 public:
  explicit RecordingDesktop(TableControls& Controls) : t(Controls) {}

  std::vector<std::string> Log;
  bool Answer = true;
  std::function<void()> OnEvents, OnSleep;

  void Refresh() override {
    if (t.lblStatus.Caption == LastStatus) return;
    LastStatus = t.lblStatus.Caption;
    Log.push_back("status " + LastStatus);
  }
  void Sleep(int Milliseconds) override {
    Log.push_back("sleep " + std::to_string(Milliseconds));
    if (OnSleep) OnSleep();
  }
  void PumpEvents() override {
    if (OnEvents) OnEvents();
  }
  void WaitForEvents() override { PumpEvents(); }
  void Beep() override { Log.push_back("beep"); }
  void PlaySoundFile(const std::string& File, bool) override { Log.push_back("sound " + File); }
  void MessageBox(const std::string& Text) override { Log.push_back("box " + Text); }
  bool AskYesNo(const std::string& Text, const std::string& Title) override {
    Log.push_back("ask " + Title + ": " + Text);
    return Answer;
  }
  void SetMousePointer(MousePointer Pointer) override {
    Log.push_back("pointer " + std::to_string(static_cast<int>(Pointer)));
  }

 private:
  TableControls& t;
  std::string LastStatus;
};

/// Writes the calls into the log of the desktop; a dialog does what the test gives it to do.
class RecordingProgram : public QuietProgram {
 public:
  explicit RecordingProgram(std::vector<std::string>& Log) : log(Log) {}

  std::function<void()> OnCongrats, OnNewGame;

  void CheckHighTurn(const std::string& Name, std::int16_t Score) override {
    log.push_back("high turn " + Name + " " + std::to_string(Score));
  }
  void CheckWhoopin(const std::string& Name, std::int16_t Margin) override {
    log.push_back("whoopin " + Name + " " + std::to_string(Margin));
  }
  void ShowCongrats() override {
    log.push_back("congrats");
    if (OnCongrats) OnCongrats();
  }
  void ShowNewGame() override {
    log.push_back("new game");
    if (OnNewGame) OnNewGame();
  }
  void UnloadOtherForms() override { log.push_back("unload others"); }
  void ExitProgram() override { log.push_back("exit"); }
  void Abort() override { log.push_back("abort"); }

 private:
  std::vector<std::string>& log;
};

/// Notes in the log of the desktop that a computer's turn has begun.
struct RecordingSeats : ComputerSeats {
  std::vector<std::string>& Log;
  explicit RecordingSeats(std::vector<std::string>& Lines) : Log(Lines) {}
  void RunComputerTurn() override { Log.push_back("computer turn"); }
};

/// The name of the event serves as the path of its sound.
struct NamedSounds : PlainOptions {
  mutable std::string Name;
  const std::string& GetSound(std::string_view Event) const override {
    Name = Event;
    return Name;
  }
};

/// A table with scripted dice on a recorded desktop, at the speed Ridiculous unless the test says otherwise.
struct Table {
  Module1 m;
  TableControls t;
  NamedSounds Options;
  RecordingDesktop Screen{t};
  RecordingProgram Others{Screen.Log};
  RecordingSeats Seats{Screen.Log};
  ScriptedDice Numbers;
  Game game;

  explicit Table(const GameOptions* Instead = nullptr)
      : game{m, t, Instead != nullptr ? *Instead : Options, Screen, Others, Numbers} {
    game.SeatComputers(Seats);
  }

  /// Begins a game; a seat with a style's word as its name is a computer.
  void Begin(const std::vector<const char*>& Names, int PlayTo = 5000, int BreakIn = 500) {
    GameSetup Setup;
    Setup.NumPlayers = static_cast<std::uint8_t>(Names.size());
    Setup.PlayToScore = static_cast<std::int16_t>(PlayTo);
    Setup.BreakInScore = static_cast<std::int16_t>(BreakIn);
    int i = 0;
    for (const char* Name : Names) {
      GameSetup::Seat& Seat = Setup.Seats[static_cast<std::size_t>(i++)];
      Seat.Name = Name;
      Seat.Style = StyleOfWord(Name);
      Seat.IsComputer = Seat.Style != 0;
    }
    game.FreshGame(Setup);
  }

  /// The next roll brings the given faces up; a person's tumbling dice are fed as well.
  void Script(const std::vector<int>& Faces) {
    static constexpr std::size_t Cycles[] = {0, 20, 15, 10, 8, 7, 5};
    const bool Tumbles = !(m.PlayerIsComputer[m.CurrentPlayer] && Options.Speed >= SpeedRidiculous);
    if (Tumbles) Numbers.Faces.assign(Faces.size() * Cycles[Faces.size()], 6);
    Numbers.Faces.insert(Numbers.Faces.end(), Faces.begin(), Faces.end());
  }
  void Roll(const std::vector<int>& Faces) {
    Script(Faces);
    game.cmdRoll_Click();
  }

  void Click(int Index, int Button = LeftButton) {
    game.Picture1_MouseUp(static_cast<std::int16_t>(Index), static_cast<std::int16_t>(Button), 0, 0, 0);
  }

  std::string Codes() const {
    std::string All;
    for (const Word& Code : m.DieScoreCode) {
      if (!All.empty()) All += ' ';
      All += std::string_view(Code);
    }
    return All;
  }
  std::vector<int> Tray() const {
    std::vector<int> Faces;
    for (const int Face : m.TrayFace) {
      if (Face != 0) Faces.push_back(Face);
    }
    return Faces;
  }
  /// Takes the lines of the log that begin with `Kind`, and forgets the log.
  std::vector<std::string> TakeLog(const std::string& Kind = "") {
    std::vector<std::string> Lines;
    for (const std::string& Line : Screen.Log) {
      if (Line.starts_with(Kind)) Lines.push_back(Line);
    }
    Screen.Log.clear();
    return Lines;
  }
};

}  // namespace blunko::test

#pragma once

#include <algorithm>
#include <array>
#include <random>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "tests/engine/Table.h"

namespace blunko::test {

/// Everything of a game that can be seen or that the rules remember, at one moment.
struct Moment : Module1, TableControls {};

/// Ends a status text that the screen has shown: the same text without it has been set again.
inline constexpr char SeenMark = '\1';

/// All that is compared of a moment; without NumDiceUp, a computer player's note that is counted more often than used.
inline auto Compared(const Moment& m) {
  const std::string_view Status = m.lblStatus.Caption;
  std::array<int, 12> Pictures;
  for (int i = 0; i < 6; ++i) Pictures[i] = m.Picture1(i), Pictures[6 + i] = m.Picture1(10 + i);
  return std::tuple_cat(
      std::tuple(Status.substr(0, Status.find(SeenMark)), Pictures),
      std::tie(m.DieFace, m.ShownFace, m.TrayFace, m.DieScoreCode, m.DieUp, m.TrayUsed, m.BotTake, m.PlayerName,
               m.PlayerScore, m.PlayerStyle, m.PlayerIsComputer, m.NumPlayers, m.PlayToScore, m.BreakInScore,
               m.CurrentPlayer, m.OutPlayer, m.Winner, m.TurnScore, m.SavedTurnScore, m.TrayCountAtRoll, m.LeaderScore,
               m.ActionSet, m.SavedActionSet, m.FormMessage, m.RollIsBust, m.MayPass, m.TurnOver, m.GameOver,
               m.Quitting, m.PauseComputer, m.ScorePadShown, m.lblStatus.Top, m.lblLastRoll.Caption,
               m.lblLastRoll.Visible, m.lblPlayer.Caption, m.lblTurnScore.Caption, m.ARCmdNewGame.Visible,
               m.cmdRoll.Visible, m.cmdRoll.Enabled, m.cmdPassDice.Visible, m.cmdPassDice.Enabled, m.picTray1.Enabled,
               m.picTray2.Enabled, m.picMarker, m.pctDivider.Visible, m.pctDivider.Left));
}
inline constexpr const char* ComparedNames =
    "lblStatus.Caption Picture1 DieFace ShownFace TrayFace DieScoreCode DieUp TrayUsed BotTake PlayerName PlayerScore "
    "PlayerStyle PlayerIsComputer NumPlayers PlayToScore BreakInScore CurrentPlayer OutPlayer Winner TurnScore "
    "SavedTurnScore TrayCountAtRoll LeaderScore ActionSet SavedActionSet FormMessage RollIsBust MayPass TurnOver "
    "GameOver Quitting PauseComputer ScorePadShown lblStatus.Top lblLastRoll.Caption lblLastRoll.Visible "
    "lblPlayer.Caption lblTurnScore.Caption ARCmdNewGame.Visible cmdRoll.Visible cmdRoll.Enabled cmdPassDice.Visible "
    "cmdPassDice.Enabled picTray1.Enabled picTray2.Enabled picMarker pctDivider.Visible pctDivider.Left";

/// What comes from outside, the same for everybody who is given the same seed: the dice and the answers to dialogs.
class Fate {
 public:
  explicit Fate(std::uint32_t Seed) : dice(Seed), styles(Seed + 1), answers(Seed + 2), events(Seed + 3) {
    static constexpr unsigned Chances[] = {0, 0, 0, 0, 0, 40, 75, 95};
    repeats = Chances[Seed % 8];
  }

  /// A face. In some games the dice like to fall alike: groups of four to six, and scores at their limit.
  int Die() {
    if (dice() % 100 >= repeats || last == 0) last = 1 + static_cast<int>(dice() % 6);
    return last;
  }
  double Uniform() { return static_cast<double>(styles() % 3000) / 3000; }
  /// The button of the game-over dialog; the sixth game is the last.
  std::string Word() {
    static const char* const Words[] = {"SameGame", "SameGame", "DifferentGame", "", "Quit", "SameGame"};
    return ++gamesOver > 5 ? "" : Words[answers() % 6];
  }
  bool Yes() { return answers() % 2 == 0; }
  bool Cancels() { return answers() % 6 == 0; }
  GameSetup Setup() {
    GameSetup Chosen;
    const unsigned MostSeats = answers() % 3 == 0 ? 8 : 3;
    Chosen.NumPlayers = static_cast<std::uint8_t>(1 + answers() % MostSeats);
    Chosen.PlayToScore = answers() % 3 == 0 ? 10000 : 5000;
    Chosen.BreakInScore = answers() % 2 == 0 ? 500 : 1000;
    const unsigned Computers = static_cast<unsigned>(answers() % 5);  // of four seats, that many
    for (auto& Seat : Chosen.Seats) {
      Seat.Name = "Seat" + std::to_string(answers() % 100);
      Seat.IsComputer = answers() % 4 < Computers;
      Seat.StyleWord = answers() % 60 == 0 ? "No Style" : std::string(StyleWords[answers() % 7]);
    }
    return Chosen;
  }

  /// What a person does while events are delivered: seldom anything. `Before` is the last that happened.
  template <typename Side>
  void Deliver(Side& Table, Module1& State, const std::string& Before) {
    // Not inside such a command; and a person who rolled in the middle of a fresh game's start would be ahead of it.
    if (busy || Before == "pad shown" || (!State.PauseComputer && events() % 300 != 0)) return;
    busy = true;
    if (State.PauseComputer) {
      State.PauseComputer = events() % 3 != 0;
    } else {
      static constexpr std::int16_t Keys[] = {82, 80, 8, 49, 53, 101, 96, 110, 113, 113, 113};
      const auto What = events() % 16, Detail = events() % 16;
      if (What < std::size(Keys)) Table.Form_KeyUp(Keys[What], Detail % 3 == 0);
      if (What == 11) Table.Form_KeyUp(27, 0);
      if (What == 12) State.PauseComputer = true;
      if (What > 12 && (Detail < 6 || Detail >= 10)) Table.PersonClicksDie(Detail, 1 + What % 2);
    }
    busy = false;
  }

 private:
  std::minstd_rand dice, styles, answers, events;
  bool busy = false;
  unsigned repeats;
  int last = 0;
  int gamesOver = 0;
};

/// A second account of the rules and the computer players, written apart from the first and as plainly as can be.
/// Whatever happens is written down together with the moment.
class Model : public Moment {
 public:
  struct Event {
    std::string What;
    std::size_t At;  ///< index in `Moments`
  };
  std::vector<Event> Events;
  std::vector<Moment> Moments;

  Model(const PlainOptions& Options, std::uint32_t Seed) : Settings(Options), fate(Seed) {}

  // What a person does. The table is closed to persons while a computer plays and after a game was given up.
  void PersonClicksDie(int Index, int Button) {
    if (PersonMayPlay()) Picture1_MouseUp(Index, Button);
  }
  void PersonRolls() {
    if (PersonMayPlay() && cmdRoll.Enabled) cmdRoll_Click();
  }
  void PersonPasses() {
    if (PersonMayPlay() && cmdPassDice.Enabled) cmdPassDice_Click();
  }
  void picTray1_MouseUp(int Button, int, float, float) {
    if (Button == 2) PersonRolls();
  }
  void picTray2_MouseUp(int Button, int, float, float) {
    if (Button == 2) PersonRolls();
  }
  void Form_KeyUp(int Key, int Shift) {
    if (Key == 27 && !Quitting) {
      Write("unload others");
      Form_Unload();
    } else if (Key == 113) {
      if (Shift == 1) FormMessage = "RestartGame";
      mnuNewGame_Click();
    } else if ((Key >= 49 && Key <= 54) || (Key >= 97 && Key <= 102)) {
      const int Digit = Key < 97 ? Key - 48 : Key - 96;
      for (int i = 0; i < 6; ++i) {
        if (!DieUp[i] || DieFace[i] != Digit) continue;
        PersonClicksDie(i, 1);
        break;
      }
    } else if (Key == 82 || Key == 96) {
      PersonRolls();
    } else if (Key == 80 || Key == 110) {
      PersonPasses();
    } else if (Key == 8) {
      for (int Index = 10; Index <= 15; ++Index) PersonClicksDie(Index, 1);
    }
  }
  void ARCmdNewGame_Click() {
    const auto Game = GameNumber;
    PumpEvents();
    if (!InAnother(Game)) ShowNewGame();
  }
  void mnuNewGame_Click() {
    const auto Game = GameNumber;
    PumpEvents();
    if (InAnother(Game)) return;
    if (CurrentPlayer == 99) return ShowNewGame();
    Write("beep");
    if (FormMessage != "RestartGame" && !Ask()) return;
    cmdRoll.Visible = cmdPassDice.Visible = false;
    ARCmdNewGame.Visible = true;
    lblStatus.Caption = lblPlayer.Caption = lblTurnScore.Caption = "";
    pctDivider.Visible = false;
    picMarker = {};
    ShownFace = TrayFace = {};
    Picture1 = {};
    picTray1.Enabled = picTray2.Enabled = false;
    ++GameNumber;
    TurnOver = true;
    ShowNewGame();
  }
  bool Form_Unload() {
    if (Quitting) return true;
    if (CurrentPlayer != 99) {
      Write("beep");
      if (!Ask()) return false;
    }
    Quitting = true;
    Write("exit");
    return true;
  }

 private:
  void FreshGame(const GameSetup& Setup) {
    ARCmdNewGame.Visible = false;
    cmdRoll.Visible = cmdPassDice.Visible = picTray1.Enabled = picTray2.Enabled = true;
    CurrentPlayer = 0;
    NumPlayers = Setup.NumPlayers;
    for (int i = 0; i < 8; ++i) {
      const auto& Seat = Setup.Seats[static_cast<std::size_t>(i)];
      PlayerName[i] = Seat.Name;
      PlayerIsComputer[i] = Seat.IsComputer;
      PlayerScore[i] = 0;
      for (int Number = 1; Number <= 7; ++Number) {
        static const char* const Words[] = {"Normal", "Cautious", "Fearless", "Simple", "Random", "Genius", "Moron"};
        if (Seat.StyleWord == Words[Number - 1]) PlayerStyle[i] = Number;
      }
    }
    lblPlayer.Caption = PlayerName[0];
    DieScoreCode.fill("0");
    DieUp = TrayUsed = {};
    ShownFace = TrayFace = {};
    if (NumPlayers == 1) NumPlayers = 2;
    SetStatus("Roll the dice.");
    ActionSet = "r";
    cmdRoll.Enabled = !PlayerIsComputer[0];
    TurnScore = 0;
    lblTurnScore.Caption = "0";
    cmdPassDice.Enabled = false;
    PlayToScore = Setup.PlayToScore;
    BreakInScore = Setup.BreakInScore;
    picMarker = {};
    Picture1 = {};
    OutPlayer = 99;
    lblLastRoll.Visible = false;
    lblStatus.Top = StatusTop;
    GameOver = false;
    Write("pad shown");
    ScorePadShown = TurnOver = true;
    const auto Game = ++GameNumber;
    PumpEvents();
    if (InAnother(Game)) return;
    Write("focus");
    if (PlayerIsComputer[0]) RunComputerTurn();
  }

  void cmdRoll_Click() {
    const auto Game = GameNumber;
    pctDivider.Visible = false;
    if (Settings.Mark) picMarker = {};
    SetStatus("Rolling...");
    int Count = 0;
    for (int i = 10; i < 16; ++i) Count += Picture1(i) != 0;
    if (Count >= 1 && Count <= 5) {
      pctDivider.Left = DieBoxLeft[static_cast<std::size_t>(Count)] - 84;
      pctDivider.Visible = true;
    }
    TrayCountAtRoll = Count;
    if (Count == 6) {
      Count = 0;
      for (int i = 0; i < 6; ++i) Picture1(10 + i) = 0, TrayFace[i] = 0, TrayUsed[i] = false;
    }
    const int Rolled = 6 - Count;
    for (int i = 0; i < 6; ++i) DieUp[i] = i < Rolled;
    RollDice(Rolled);
    ScoreDice(Rolled);
    for (int i = 0; i < Rolled && Settings.Mark; ++i) picMarker[i] = DieScoreCode[i] != "0";
    CheckRoll();
    if (GameNumber != Game) return;
    SavedActionSet = ActionSet;
    SavedTurnScore = TurnScore;
  }

  void RollDice(int Rolled) {
    struct Row {
      const char* Sound;
      int Cycles, Wait;
    };
    static constexpr Row Animation[] = {{"", 0, 0},           {"OneDie", 20, 20},  {"MultiDie", 15, 15},
                                        {"MultiDie", 10, 13}, {"MultiDie", 8, 13}, {"MultiDie", 7, 11},
                                        {"MultiDie", 5, 10}};
    for (int i = 0; i < 6; ++i) Picture1(i) = 0, DieFace[i] = 99;
    if (!(Computer() && Settings.Speed >= 2)) {
      Sound(Animation[Rolled].Sound);
      for (int Cycle = 0; Cycle < Animation[Rolled].Cycles; ++Cycle) {
        for (int j = 0; j < Rolled; ++j) {
          Draw(j);
          Sleep(Animation[Rolled].Wait);
        }
      }
    }
    for (int j = 0; j < Rolled; ++j) Draw(j);
    if (Settings.Sort) std::sort(DieFace.begin(), DieFace.begin() + Rolled);
    for (int i = 0; i < 6; ++i) {
      ShownFace[i] = i < Rolled ? DieFace[i] : 0;
      if (i < Rolled) Picture1(i) = DieFace[i] + Settings.Colour;
    }
  }

  void ScoreDice(int Rolled) {
    std::array<int, 7> Shown{};
    for (const int Face : DieFace) Shown[Face == 99 ? 0 : Face] += Face != 99;
    const auto All = [&](auto Holds) { return Rolled == 6 && std::all_of(Shown.begin() + 1, Shown.end(), Holds); };
    const bool Straight = All([](int n) { return n == 1; });
    const bool ThreePairs = All([](int n) { return n == 0 || n == 2; });
    for (int i = 0; i < 6; ++i) {
      const int Face = DieFace[i];
      Word& Code = DieScoreCode[i];
      if (Face == 99) {
        Code = "99";
      } else if (Straight) {
        Code = "y";
      } else if (ThreePairs) {
        Code = "z";
      } else if (Shown[Face] >= 3) {
        Code = Word(static_cast<char>('a' + 6 * (Shown[Face] - 3) + Face - 1));
      } else {
        Code = Face == 1 ? "1" : Face == 5 ? "5" : "0";
      }
    }
  }
  static int PointsOf(Word Code) {
    if (Code == "1") return 100;
    if (Code == "5") return 50;
    if (Code == "y") return 1500;
    if (Code == "z") return 500;
    const int Letter = Code.front() - 'a', Face = Letter % 6 + 1;
    return (Face == 1 ? 1000 : 100 * Face) << Letter / 6;
  }

  bool AllUpScore() const {
    bool SomeUp = false;
    for (int i = 0; i < 6; ++i) {
      if (DieUp[i] && DieScoreCode[i] == "0") return false;
      SomeUp = SomeUp || DieUp[i];
    }
    return SomeUp;
  }
  void FindMayPass() { MayPass = PlayerScore[CurrentPlayer] >= BreakInScore || TurnScore >= BreakInScore; }

  void CheckRoll() {
    RollIsBust =
        std::all_of(DieScoreCode.begin(), DieScoreCode.end(), [](Word Code) { return Code == "0" || Code == "99"; });
    FindMayPass();
    cmdRoll.Enabled = false;
    if (AllUpScore()) {
      cmdPassDice.Enabled = false;
      Offer("Select Dice.", "s");
    } else if (RollIsBust) {
      cmdPassDice.Enabled = false;
      const auto Game = GameNumber;
      ShowBust();
      if (GameNumber == Game && CurrentPlayer != 99) ActionSet = "p";
    } else if (MayPass && TrayUsed != std::array<bool, 6>{}) {
      Offer("Select Dice or Pass Dice.", "sp");
    } else {
      cmdPassDice.Enabled = false;
      Offer("Select Dice.", "s");
    }
  }

  void CheckSelection() {
    FindMayPass();
    bool ScorerUp = false, SomeUp = false;
    for (int i = 0; i < 6; ++i) {
      SomeUp = SomeUp || DieUp[i];
      ScorerUp = ScorerUp || (DieUp[i] && DieScoreCode[i] != "0");
    }
    const bool Person = !Computer();
    if (AllUpScore()) {
      cmdRoll.Enabled = cmdPassDice.Enabled = false;
      return Offer("Select Dice.", "s");
    }
    if (Person) cmdRoll.Enabled = true;
    if (!SomeUp || !MayPass) {
      cmdPassDice.Enabled = false;
    } else if (Person) {
      cmdPassDice.Enabled = true;
    }
    if (!SomeUp) return Offer("All dice score - You must roll.", "r");
    if (!ScorerUp) return MayPass ? Offer("Roll or pass the dice.", "rp") : Offer("Roll the dice.", "r");
    MayPass ? Offer("Roll, select, or pass the dice.", "rsp") : Offer("Select dice or roll.", "rs");
  }
  void Offer(const char* Text, Word Actions) {
    ActionSet = Actions;
    SetStatus(Text);
  }

  void ShowBust() {
    const bool Brief = Computer() && Settings.Speed != 0;
    const auto Pause = [&](int Time) {
      if (!Brief) Sleep(Time);
    };
    Write("pointer 11");
    Pause(250);
    Sound("Blunko");
    for (int i = 0; i < 3; ++i) {
      SetStatus("BLUNKO !!!");
      Pause(100);
      SetStatus("");
      Pause(100);
    }
    SetStatus("BLUNKO !!!");
    if (!Brief) {
      Sleep(300);
      for (const char* Text :
           {"BLUNKO - P", "BLUNKO - Pa", "BLUNKO - Pas", "BLUNKO - Pass", "BLUNKO - Passi", "BLUNKO - Passin",
            "BLUNKO - Passing", "BLUNKO - Passing t", "BLUNKO - Passing th", "BLUNKO - Passing the",
            "BLUNKO - Passing the d", "BLUNKO - Passing the di", "BLUNKO - Passing the dic"}) {
        SetStatus(Text);
        Sleep(20);
      }
    }
    SetStatus("BLUNKO - Passing the dice");
    Sleep(20);
    SetStatus("BLUNKO - Passing the dice.");
    lblTurnScore.Caption = "0";
    const bool Person = !Computer();
    if (Person) Sleep(300);
    Write("pointer 0");
    if (Person) cmdPassDice_Click();
  }

  void Picture1_MouseUp(int Index, int Button) {
    if (Button == 2) {
      if (cmdRoll.Enabled) cmdRoll_Click();
    } else if (Index < 10) {
      TakeDice(Index);
    } else {
      Undo(Index);
    }
  }
  void TakeDice(int Index) {
    const Word Code = DieScoreCode[Index];
    if (Code == "0" && DieUp[Index]) return Write("beep");
    if (!DieUp[Index]) return;
    const auto TakeOfGroup = [&](int i) {
      MoveDieToTray(i);
      DieUp[i] = false;
      if (!(Computer() && Settings.Speed >= 2)) Sleep(200);
    };
    if (Code == "1" || Code == "5") {
      MoveDieToTray(Index);
      DieUp[Index] = false;
    } else if (Code == "y" || Code == "z") {
      for (int Face = 1; Face <= 6; ++Face) {
        for (int i = 0; i < 6; ++i) {
          if (DieFace[i] == Face) TakeOfGroup(i);
        }
      }
    } else {
      for (int i = 0; i < 6; ++i) {
        if (DieScoreCode[i] == Code) TakeOfGroup(i);
      }
    }
    TurnScore = std::min(TurnScore + PointsOf(Code), 32767);
    lblTurnScore.Caption = std::to_string(TurnScore);
    if (Computer() && Settings.Speed < 2) Sleep(100);
    CheckSelection();
  }
  void MoveDieToTray(int Index) {
    if (Settings.Mark) picMarker[Index] = false;
    Sound("MoveDie");
    Picture1(Index) = ShownFace[Index] = 0;
    int Slot = 15;
    for (int k = 4; k >= 0; --k) {
      if (TrayUsed[k]) continue;
      --Slot;
      TrayUsed[k] = true;
      TrayUsed[k + 1] = false;
    }
    Picture1(Slot) = DieFace[Index] + Settings.Colour;
    TrayFace[Slot - 10] = DieFace[Index];
  }
  void Undo(int Index) {
    if (TrayCountAtRoll == 6) TrayCountAtRoll = 0;
    if (Index <= TrayCountAtRoll + 9 || !TrayUsed[Index - 10] || DieUp == std::array<bool, 6>{}) return;
    for (int t = TrayCountAtRoll + 10; t <= 15; ++t) {
      for (int i = 0; i < 6 && TrayUsed[t - 10]; ++i) {
        if (DieFace[i] != TrayFace[t - 10] || DieUp[i]) continue;
        Picture1(t) = 0;
        Picture1(i) = DieFace[i] + Settings.Colour;
        ShownFace[i] = DieFace[i];
        if (Settings.Mark) picMarker[i] = true;
        TrayUsed[t - 10] = false;
        TrayFace[t - 10] = 0;
        DieUp[i] = true;
        TurnScore = SavedTurnScore;
        lblTurnScore.Caption = std::to_string(TurnScore);
        ActionSet = SavedActionSet;
        SetStatus(ActionSet == "s"    ? "Select Dice. (Undo)"
                  : ActionSet == "sp" ? "Select Dice or Pass Dice. (Undo)"
                                      : "never seen in play");
        Sound("Undo");
        cmdRoll.Enabled = false;
        if (!ActionSet.contains('p')) cmdPassDice.Enabled = false;
      }
    }
  }

  void cmdPassDice_Click() {
    const auto Game = GameNumber;
    ActionSet = "r";
    pctDivider.Visible = false;
    if (Settings.Mark) picMarker = {};
    cmdRoll.Enabled = cmdPassDice.Enabled = false;  // cmdRoll stays off until a person may roll, at the handler's end
    Sound(RollIsBust ? "Passem2" : "Passem1");
    if (Settings.Speed < 2) Sleep(1000);
    if (!RollIsBust) {
      std::int16_t& Score = PlayerScore[CurrentPlayer];
      Score = std::min(Score + TurnScore, 32767);
      Write("pad update");
      if (!Computer()) Write("high turn " + PlayerName[CurrentPlayer] + " " + std::to_string(TurnScore));
      if (OutPlayer == 99 && Score >= PlayToScore) GoOut();
    }
    DieUp = TrayUsed = {};
    DieScoreCode.fill("0");
    ShownFace = TrayFace = {};
    Picture1 = {};
    CurrentPlayer = (CurrentPlayer + 1) % NumPlayers;
    Write("pad update");
    TurnScore = 0;
    lblTurnScore.Caption = "0";
    lblPlayer.Caption = PlayerName[CurrentPlayer];
    if (CurrentPlayer == OutPlayer) return EndGame();
    std::int16_t Top = PlayToScore;
    for (int i = 0; i < NumPlayers; ++i) {
      if (i != CurrentPlayer) Top = std::max(Top, PlayerScore[i]);
    }
    const int Need = std::min(Top - PlayerScore[CurrentPlayer] + 50, 32767);
    lblLastRoll.Caption =
        "(Last Roll - Need " + std::to_string(Need) + (NumPlayers == 2 ? " To Win)" : " To Take The Lead)");
    if (!Computer() && lblLastRoll.Visible) {
      const std::string Caption = lblLastRoll.Caption;
      lblStatus.Caption = "";
      for (int Blink = 0; Blink < 3; ++Blink) {
        if (!Settings.Silent) Write("beep");
        for (const bool Shown : {true, false}) {
          if (Blink == 2 && !Shown) break;
          lblLastRoll.Caption = Shown ? Caption : "";
          PumpEvents();
          if (InAnother(Game)) return;
          if (Blink < 2) Sleep(200);
        }
      }
    }
    cmdRoll.Enabled = !Computer();
    SetStatus("Roll the dice.");
    if (CurrentPlayer == 99 || !Computer()) return;
    if (Settings.Speed == 0) Sleep(1000);
    if (!GameOver) RunComputerTurn();
  }
  void GoOut() {
    Write("sound overtop.wav");
    OutPlayer = CurrentPlayer;
    if (std::find(PlayerIsComputer.begin(), PlayerIsComputer.begin() + NumPlayers, false) !=
        PlayerIsComputer.begin() + NumPlayers) {
      Write("box " + PlayerName[OutPlayer] + " has gone out.  Everybody else gets one more roll to try and beat " +
            std::to_string(PlayerScore[OutPlayer]) + " points.");
    }
    lblLastRoll.Visible = true;
    lblStatus.Top = StatusTop - 180;
  }

  void EndGame() {
    Winner = CurrentPlayer;
    for (int i = (CurrentPlayer + 1) % NumPlayers; i != CurrentPlayer; i = (i + 1) % NumPlayers) {
      if (PlayerScore[i] > PlayerScore[Winner]) Winner = i;
    }
    Sleep(500);
    if (!PlayerIsComputer[Winner]) {
      std::vector<int> Scores(PlayerScore.begin(), PlayerScore.begin() + NumPlayers);
      std::sort(Scores.rbegin(), Scores.rend());
      Write("whoopin " + PlayerName[Winner] + " " + std::to_string(Scores[0] - Scores[1]));
    }
    Write("congrats");
    FormMessage = fate.Word();
    cmdRoll.Enabled = cmdPassDice.Enabled = false;
    GameOver = true;
    CurrentPlayer = 99;
    SetStatus(" ");
    lblPlayer.Caption = " ";
    lblLastRoll.Visible = false;
    lblStatus.Top = StatusTop;
    Write("focus");
    if (FormMessage == "SameGame") {
      mnuNewGame_Click();
    } else if (FormMessage == "DifferentGame") {
      ARCmdNewGame.Visible = true;
      cmdRoll.Visible = cmdPassDice.Visible = false;
      FormMessage = "";
      mnuNewGame_Click();
    } else if (FormMessage == "Quit") {
      FormMessage = "";
      Form_Unload();
    }
  }

  // The computer players.
  void RunComputerTurn() {
    seatIsDue = true;
    if (running) return;  // the turn that is ending hands over
    running = true;
    while (std::exchange(seatIsDue, false) && !Quitting) {
      if (Computer() && cmdRoll.Visible) PlayStyle();
    }
    running = false;
  }
  void PlayStyle() {
    switch (PlayerStyle[CurrentPlayer]) {
      case 1: return Bot_Normal();
      case 2: return Bot_Cautious();
      case 3: return Bot_Fearless();
      case 4: return Bot_Simple();
      case 5:
        Write("uniform");
        switch (static_cast<int>(fate.Uniform() * 3) + 1) {
          case 1: return Bot_Normal();
          case 2: return Bot_Cautious();
          default: return Bot_Fearless();
        }
      case 6:
        FindLeader();
        return LeaderScore - (PlayerScore[CurrentPlayer] + TurnScore) > 1000 ? Bot_Fearless() : Bot_Normal();
      case 7: return Bot_Moron();
    }
  }
  void Bot_Cautious() { TableBot({5, {0, 250, 300, 350, 500, 700}}, false); }
  void Bot_Normal() { TableBot({4, {0, 350, 400, 450, 600, 900}}, true); }
  void Bot_Fearless() { TableBot({3, {0, 400, 450, 500, 1100, 1500}}, true); }
  void Bot_Simple() {
    Loop(true, [this] {
      if (Left()) return;
      if (ActionSet.contains('s')) {
        for (int i = 0; i < 6; ++i) {
          if (DieScoreCode[i] != "0") BotClick(i);
        }
      } else if (ActionSet == "r" || (ActionSet == "rp" && TurnScore <= 350)) {
        BotRoll();
      } else {
        BotPass();
      }
    });
  }
  void Bot_Moron() {
    Loop(true, [this] {
      if (Left()) return;
      if (ActionSet == "s") {
        for (int i = 0; i < 6; ++i) {
          if (DieScoreCode[i] == "0") continue;
          BotClick(i);
          bool DeadUp = false;
          for (int j = 0; j < 6; ++j) DeadUp = DeadUp || (DieScoreCode[j] == "0" && DieUp[j]);
          if (DeadUp) break;
        }
      } else if (ActionSet.contains('p')) {
        BotPass();
      } else {
        BotRoll();
      }
    });
  }

  struct Numbers {
    int TakeAllBelow;
    int StopAt[6];
  };
  void TableBot(const Numbers& Style, bool Waits) {
    enum { Roll, Pass, Take } Choice;
    Loop(Waits, [&, this] {
      const int Banked = PlayerScore[CurrentPlayer];
      if (ActionSet == "r") {
        Choice = Roll;
      } else if (ActionSet == "p") {
        Choice = Pass;
      } else if (ActionSet == "s" || ActionSet == "sp") {
        Choice = Take;
      } else if (ActionSet == "rs" || ActionSet == "rsp") {
        Choice = (Banked == 0 && TurnScore > 499) || CountDiceLeft() < Style.TakeAllBelow ? Take : Roll;
      } else if (OutPlayer != 99) {
        FindLeader();
        Choice = LeaderScore < Banked + TurnScore ? Pass : Roll;
      } else if (Banked == 0) {
        Choice = Pass;
      } else {
        const int n = CountDiceLeft();
        if (n < 1 || n > 5) return Write("guard 529");
        Choice = TurnScore >= Style.StopAt[n] ? Pass : Roll;
      }
      if (Choice == Take) return BotTakeDice(Style.TakeAllBelow);
      PumpEvents();
      if (Left()) return;
      if (Choice == Pass) return BotPass();
      BotTake = {};
      BotRoll();
    });
  }
  void BotTakeDice(int TakeAllBelow) {
    const auto Scores = [this](int i) { return DieScoreCode[i] != "0" && !BotTake[i]; };
    const auto MarkAndClick = [this](int i) {
      BotTake[i] = true;
      BotClick(i);
    };
    PumpEvents();
    if (Left()) return;
    CountDiceLeft();
    bool AllScore = true;
    for (int i = 0; i < 6; ++i) AllScore = AllScore && (DieScoreCode[i] != "0" || BotTake[i]);
    if (!AllScore) PumpEvents();
    if (Left()) return;
    if (AllScore || NumDiceUp < TakeAllBelow) {
      for (int i = 0; i < 6; ++i) {
        if (Scores(i) && DieScoreCode[i] != "99") MarkAndClick(i);
      }
      return;
    }
    PumpEvents();
    if (Left()) return;
    for (int i = 0; i < 6; ++i) {
      if (!Scores(i) || DieScoreCode[i].front() < 'a' || DieScoreCode[i] == "b") continue;
      for (int j = 0; j < 6; ++j) {
        if (Scores(j)) MarkAndClick(j);
      }
      return;
    }
    for (const Word Code : {Word("1"), Word("5"), Word("b")}) {
      PumpEvents();
      if (Left()) return;
      for (int i = 0; i < 6; ++i) {
        if (Scores(i) && DieScoreCode[i] == Code) return MarkAndClick(i);
      }
    }
    Write("guard 519");
  }
  int CountDiceLeft() {
    NumDiceUp = 0;
    for (int i = 0; i < 6; ++i) NumDiceUp += DieScoreCode[i] != "99" && !BotTake[i];
    return NumDiceUp;
  }
  void FindLeader() { LeaderScore = *std::max_element(PlayerScore.begin(), PlayerScore.begin() + NumPlayers); }
  void BotRoll() {
    cmdRoll_Click();
    if (Settings.Speed == 0) Sleep(1000);
  }
  void BotPass() {
    TurnOver = true;
    cmdPassDice_Click();
  }
  void BotClick(int i) {
    TakeDice(i);
    if (Settings.Speed < 2) Sleep(Settings.Speed == 0 ? 200 : 100);
  }
  /// After events: the program quits, or the turn's game was given up.
  bool Left() const { return Quitting || TurnOver; }

  template <typename Action>
  void Loop(bool Waits, Action Act) {
    const auto Game = GameNumber;
    picTray1.Enabled = false;
    TurnOver = false;
    while (!TurnOver) {
      while (Waits && PauseComputer && !Left()) Deliver("wait");
      if (TurnOver) break;
      if (Settings.Speed < 2) Sleep(100);
      Act();
      if (Quitting) return;
      if (!TurnOver) PumpEvents();  // the events after a pass come when the handlers have returned
    }
    if (!InAnother(Game)) picTray1.Enabled = true;
  }

  // The outside.
  void Write(std::string What) {
    if (Moments.empty() || Compared(Moments.back()) != Compared(*this)) Moments.push_back(*this);
    Events.push_back({std::move(What), Moments.size() - 1});
    if (Events.size() > 3'000'000) throw std::runtime_error("a game without an end");
  }
  void SetStatus(const char* Text) {
    lblStatus.Caption = Text;
    Write(std::string("status ") + Text);
  }
  void Sleep(int Time) { Write("sleep " + std::to_string(Time)); }
  void Sound(const char* Name) { Write(std::string("sound ") + Name); }
  void PumpEvents() { Deliver("pump"); }
  void Deliver(const char* How) {
    const std::string Before = Events.empty() ? "" : Events.back().What;
    Write(How);
    fate.Deliver(*this, *this, Before);
  }
  void Draw(int j) {
    Write("draw 6");
    DieFace[j] = fate.Die();
    Picture1(j) = DieFace[j] + Settings.Colour;
  }
  bool Ask() {
    Write("ask Quit?: Are you sure you want to quit the current game?");
    return fate.Yes();
  }
  void ShowNewGame() {
    Write("new game");
    if (FormMessage != "SameGame") {
      if (FormMessage.empty() && fate.Cancels()) {
        cmdRoll.Enabled = false;
        return;
      }
      setup = fate.Setup();
    }
    FormMessage = "";
    FreshGame(setup);
  }

  bool Computer() const { return CurrentPlayer != 99 && PlayerIsComputer[CurrentPlayer]; }
  /// Whether, after events, a handler of that game must leave everything alone.
  bool InAnother(std::uint32_t Game) const { return Quitting || GameNumber != Game; }
  bool PersonMayPlay() const {
    return !Quitting && picTray1.Enabled && cmdRoll.Visible && CurrentPlayer != 99 && !Computer();
  }

  const PlainOptions& Settings;
  bool seatIsDue = false, running = false;
  Fate fate;
  GameSetup setup;
};

}  // namespace blunko::test

#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace blunko::test {

/// The rules for persons told a second time, as a rule sheet would: by counting dice. It shares nothing with the game
/// that it is compared with.
struct Model {
  static constexpr int Nobody = 99, Limit = 32767;

  // The game.
  std::vector<std::string> Names;
  std::vector<int> Scores;
  int PlayTo = 0, BreakIn = 0;
  bool Sorts = false;
  std::size_t OnTurn = Nobody, Out = Nobody, Winner = Nobody;

  // The turn.
  std::vector<int> Rolled, Tray;  ///< faces
  std::vector<bool> Up;           ///< the rolled dice that still lie on the table
  std::size_t Frozen = 0;         ///< dice in the tray that earlier rolls brought there
  int Turn = 0, TurnAtRoll = 0;
  std::string May, MayAtRoll, Status = " ";  ///< letters of r(oll), s(elect), p(ass)
  std::string Need;                          ///< the line below the status on a last turn
  std::vector<std::string> Told;             ///< sounds, boxes and dialogs

  void Begin(std::vector<std::string> Seats, int Target, int FirstBank, bool SortsDice) {
    *this = Model();
    Names = Seats, Scores.assign(Seats.size(), 0);
    PlayTo = Target, BreakIn = FirstBank, Sorts = SortsDice, OnTurn = 0;
    FreshTurn();
  }

  // What dice are worth.
  auto Count(int Face) const { return std::count(Rolled.begin(), Rolled.end(), Face); }
  bool FacesCome(std::vector<std::ptrdiff_t> Times) const {
    std::vector<std::ptrdiff_t> Counts;
    for (int Face = 1; Face <= 6; ++Face) Counts.push_back(Count(Face));
    return std::is_permutation(Counts.begin(), Counts.end(), Times.begin());
  }
  bool Straight() const { return FacesCome({1, 1, 1, 1, 1, 1}); }
  bool ThreePairs() const { return FacesCome({2, 2, 2, 0, 0, 0}); }
  bool OfAKind(int Face) const { return Count(Face) >= 3; }
  bool IsScorer(int Face) const { return Straight() || ThreePairs() || OfAKind(Face) || Face == 1 || Face == 5; }
  int Worth(int Face) const {
    if (Straight()) return 1500;
    if (ThreePairs()) return 500;
    if (OfAKind(Face)) return (Face == 1 ? 1000 : 100 * Face) << (Count(Face) - 3);
    return Face == 1 ? 100 : 50;
  }

  // What the seat on turn may do.
  void Offer(const std::string& Letters) {
    static const std::map<std::string, std::string> Texts{
        {"s", "Select Dice."},          {"sp", "Select Dice or Pass Dice."},
        {"r", "Roll the dice."},        {"rp", "Roll or pass the dice."},
        {"rs", "Select dice or roll."}, {"rsp", "Roll, select, or pass the dice."}};
    May = Letters, Status = Texts.at(Letters);
  }
  bool Allows(char Letter) const { return May.find(Letter) != std::string::npos; }
  bool BrokenIn() const { return std::max(Scores[OnTurn], Turn) >= BreakIn; }
  bool IsUp(std::size_t Position) const { return Position < Up.size() && Up[Position]; }
  std::size_t UpDice(bool Scoring) const {
    std::size_t Found = 0;
    for (std::size_t i = 0; i < Up.size(); ++i) Found += Up[i] && IsScorer(Rolled[i]) == Scoring;
    return Found;
  }

  std::ptrdiff_t DiceToRoll() const { return 6 - std::ssize(Tray) % 6; }
  void Roll(const std::vector<int>& Faces) {
    Told.push_back(Faces.size() == 1 ? "sound OneDie" : "sound MultiDie");
    if (Tray.size() == 6) Tray.clear();
    Frozen = Tray.size(), TurnAtRoll = Turn;
    Rolled = Faces, Up.assign(Faces.size(), true);
    if (Sorts) std::sort(Rolled.begin(), Rolled.end());
    if (UpDice(true) == 0) return Told.push_back("sound Blunko"), EndTurn(false);
    Offer(MayAtRoll = BrokenIn() && Frozen > 0 && UpDice(false) > 0 ? "sp" : "s");
  }
  /// A group goes whole; a straight and three pairs go in the order of their faces.
  void Take(std::size_t Position) {
    if (!IsUp(Position)) return;
    const int Face = Rolled[Position];
    if (!IsScorer(Face)) return Told.push_back("beep");
    const bool Everything = Straight() || ThreePairs();
    const auto Before = static_cast<std::ptrdiff_t>(Tray.size());
    for (std::size_t i = 0; i < Rolled.size(); ++i) {
      if (i != Position && !Everything && !(OfAKind(Face) && Rolled[i] == Face)) continue;
      Up[i] = false, Tray.push_back(Rolled[i]), Told.push_back("sound MoveDie");
    }
    std::sort(Tray.begin() + Before, Tray.end());
    Turn = std::min(Turn + Worth(Face), Limit);
    const bool Scorers = UpDice(true) > 0, Others = UpDice(false) > 0;
    if (Others) return Offer(std::string("r") + (Scorers ? "s" : "") + (BrokenIn() ? "p" : ""));
    Offer(Scorers ? "s" : "r");  // no stopping on six dice that score
    if (!Scorers) Status = "All dice score - You must roll.";
  }
  /// Everything taken since the roll goes back, unless nothing is left on the table.
  void Undo(std::size_t Slot) {
    if (Slot < Frozen || Slot >= Tray.size() || UpDice(true) + UpDice(false) == 0) return;
    Told.insert(Told.end(), Tray.size() - Frozen, "sound Undo");
    Tray.resize(Frozen), Up.assign(Up.size(), true), Turn = TurnAtRoll;
    Offer(MayAtRoll);
    Status += " (Undo)";
  }

  // The end of a turn, and of the game.
  void FreshTurn() { Rolled.clear(), Up.clear(), Tray.clear(), Frozen = 0, Turn = 0, Offer("r"); }
  void EndTurn(bool Banks) {
    Told.push_back(Banks ? "sound Passem1" : "sound Passem2");
    if (Banks) Bank();
    FreshTurn();
    OnTurn = (OnTurn + 1) % Scores.size();
    if (OnTurn == Out) return EndGame();
    if (Out == Nobody) return;
    int Best = PlayTo;
    for (std::size_t i = 0; i < Scores.size(); ++i) Best = std::max(Best, i == OnTurn ? 0 : Scores[i]);
    Need = "(Last Roll - Need " + std::to_string(std::min(Best - Scores[OnTurn] + 50, Limit)) +
           (Scores.size() == 2 ? " To Win)" : " To Take The Lead)");
    Told.insert(Told.end(), 3, "beep");
  }
  void Bank() {
    const std::string Score = std::to_string(Scores[OnTurn] = std::min(Scores[OnTurn] + Turn, Limit));
    Told.push_back("high turn " + Names[OnTurn] + " " + std::to_string(Turn));
    if (Out != Nobody || Scores[OnTurn] < PlayTo) return;
    Out = OnTurn;
    const std::string Beat = " has gone out.  Everybody else gets one more roll to try and beat ";
    Told.insert(Told.end(), {"sound overtop.wav", "box " + Names[Out] + Beat + Score + " points."});
  }
  /// The seat that went out wins a tie, else the first after it.
  void EndGame() {
    Winner = Out;
    for (std::size_t Seat = Out; (Seat = (Seat + 1) % Scores.size()) != Out;) {
      if (Scores[Seat] > Scores[Winner]) Winner = Seat;
    }
    std::vector<int> Ranked = Scores;
    std::sort(Ranked.rbegin(), Ranked.rend());
    Told.insert(Told.end(), {"whoopin " + Names[Winner] + " " + std::to_string(Ranked[0] - Ranked[1]), "congrats"});
    OnTurn = Nobody, May = Need = "", Status = " ";
  }
};

}  // namespace blunko::test

// Plays games between computer seats through the handlers of the table, without a screen:
//   games --seats Normal,Genius --games N --seed S [--play-to 10000] [--break-in 1000]
// Prints win rates with their standard error, turns and points per turn, games per second, and a signature of the
// results, which is the same for the same seed on every run.

#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bots/ComputerPlayers.h"
#include "util/UtilRandom.h"

namespace {

using namespace blunko;

struct Request {
  std::vector<std::string> Seats{"Normal", "Normal"};
  long Games = 10000;
  std::uint64_t Seed = 1;
  int PlayTo = 5000;
  int BreakIn = 500;
};

[[noreturn]] void Usage() {
  std::fprintf(
      stderr,
      "usage: games --seats STYLE,STYLE[,...] --games N --seed S [--play-to 5000|10000] [--break-in 500|1000]\n"
      "styles: Normal Cautious Fearless Simple Random Genius Moron; two to eight seats\n");
  std::exit(2);
}

long NumberOf(const char* Text, long Least, long Most) {
  char* End = nullptr;
  const long Value = std::strtol(Text, &End, 10);
  if (*Text == '\0' || *End != '\0' || Value < Least || Value > Most) Usage();
  return Value;
}

Request Parse(int Count, char** Arguments) {
  Request Asked;
  for (int i = 1; i < Count; i += 2) {
    const std::string Name = Arguments[i];
    if (i + 1 >= Count) Usage();
    const char* Value = Arguments[i + 1];
    if (Name == "--games") {
      Asked.Games = NumberOf(Value, 1, 1'000'000'000);
    } else if (Name == "--seed") {
      Asked.Seed = static_cast<std::uint64_t>(NumberOf(Value, 0, INT64_MAX));
    } else if (Name == "--play-to") {
      Asked.PlayTo = static_cast<int>(NumberOf(Value, 50, 30000));
    } else if (Name == "--break-in") {
      Asked.BreakIn = static_cast<int>(NumberOf(Value, 0, 30000));
    } else if (Name == "--seats") {
      Asked.Seats.clear();
      for (const char* Rest = Value; *Rest != '\0';) {
        const std::string Word(Rest, std::string(Rest).find(',') == std::string::npos ? std::string(Rest).size()
                                                                                      : std::string(Rest).find(','));
        bool Known = false;
        for (const std::string_view Style : StyleWords) Known = Known || Style == Word;
        if (!Known) Usage();
        Asked.Seats.push_back(Word);
        Rest += Word.size();
        if (*Rest == ',') ++Rest;
      }
    } else {
      Usage();
    }
  }
  if (Asked.Seats.size() < 2 || Asked.Seats.size() > MaxSeats) Usage();
  return Asked;
}

/// Plays the games one after the other and counts.
class Match : public QuietProgram {
 public:
  explicit Match(const Request& Asked) : request(Asked), numbers(Asked.Seed), uniform(Asked.Seed + 1) {
    setup.NumPlayers = static_cast<std::uint8_t>(Asked.Seats.size());
    setup.PlayToScore = static_cast<std::int16_t>(Asked.PlayTo);
    setup.BreakInScore = static_cast<std::int16_t>(Asked.BreakIn);
    for (std::size_t i = 0; i < Asked.Seats.size(); ++i) setup.Seats[i] = {Asked.Seats[i], true, Asked.Seats[i]};
  }

  void Play() {
    const auto Begin = std::chrono::steady_clock::now();
    for (games = 0; games < request.Games;) table.FreshGame(setup);
    seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Begin).count();
  }

  void Print() const {
    const double N = static_cast<double>(games);
    for (std::size_t i = 0; i < request.Seats.size(); ++i) {
      const double Rate = static_cast<double>(wins[i]) / N;
      std::printf("seat %zu %-9s wins %6.2f %% +- %.2f   points a turn %7.1f\n", i, request.Seats[i].c_str(),
                  100 * Rate, 100 * std::sqrt(Rate * (1 - Rate) / N),
                  static_cast<double>(points[i]) / static_cast<double>(turns[i]));
    }
    long All = 0;
    for (const long Turns : turns) All += Turns;
    std::printf("turns a game %.2f\n", static_cast<double>(All) / N);
    std::printf("games a second %.0f (%.2f microseconds a game)\n", N / seconds, 1e6 * seconds / N);
    std::printf("signature %016llx\n", static_cast<unsigned long long>(signature));
  }

  // The score pad is told twice a turn: before the dice move on, and afterwards, when another seat is on turn.
  void UpdateActivePlayer() override {
    if (state.CurrentPlayer == lastSeat) return;
    ++turns[lastSeat];
    lastSeat = state.CurrentPlayer;
  }
  void ShowScorePad() override { lastSeat = 0; }
  void RunComputerTurn() override { players.RunComputerTurn(); }
  void ShowCongrats() override {
    ++games;
    ++wins[state.Winner];
    Sign(state.Winner);
    for (std::size_t i = 0; i < setup.NumPlayers; ++i) {
      points[i] += state.PlayerScore[i];
      Sign(static_cast<std::uint64_t>(state.PlayerScore[i]));
    }
  }

 private:
  void Sign(std::uint64_t Value) { signature = (signature ^ Value) * 0x100000001B3ULL; }

  const Request& request;
  FairDice numbers;
  UniformGenerator uniform;
  Module1 state;
  TableControls controls;
  PlainOptions options;
  QuietDesktop screen;
  Game table{state, controls, options, screen, *this, numbers};
  ComputerPlayers players{table, uniform};
  GameSetup setup;
  long games = 0;
  double seconds = 0;
  std::uint8_t lastSeat = 0;
  std::array<long, MaxSeats> wins{}, turns{}, points{};
  std::uint64_t signature = 0xCBF29CE484222325ULL;
};

}  // namespace

int main(int Count, char** Arguments) {
  const Request Asked = Parse(Count, Arguments);
  Match Games(Asked);
  Games.Play();
  Games.Print();
}

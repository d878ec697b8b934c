// Plays games between computer seats through the handlers of the table, without a screen:
//   games --seats Normal,Genius --games N --seed S [--jobs CORES] [--play-to 10000] [--break-in 1000]
// Prints for each seat the win rate with its standard error, points per turn and turns lost to a blunko; turns per
// game; what the dice showed; games per second, and a signature of the results, which is the same for the same seed on
// every run, whatever the number of cores.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include "bench/Quiet.h"
#include "bots/ComputerPlayers.h"
#include "util/UtilRandom.h"

namespace {

using namespace blunko;

constexpr int Faces = 6;
constexpr int LongestStreak = 8;
/// Games that draw one after the other from the same generators; each block of so many has its own.
constexpr long GamesPerBlock = 100'000;

struct Request {
  std::vector<std::string> Seats{"Normal", "Normal"};
  long Games = 10000;
  std::uint64_t Seed = 1;
  long Jobs = 1;
  int PlayTo = 5000;
  int BreakIn = 500;
};

[[noreturn]] void Usage() {
  std::fprintf(stderr,
               "usage: games --seats STYLE,STYLE[,...] --games N --seed S [--jobs CORES] [--play-to 5000|10000] "
               "[--break-in 500|1000]\n"
               "styles: Normal Cautious Fearless Simple Random Genius Moron; two to eight seats\n"
               "jobs: each takes %ld games at a time, so that fewer games keep one core busy\n",
               GamesPerBlock);
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
    } else if (Name == "--jobs") {
      Asked.Jobs = NumberOf(Value, 1, 1024);
    } else if (Name == "--play-to") {
      Asked.PlayTo = static_cast<int>(NumberOf(Value, 50, 30000));
    } else if (Name == "--break-in") {
      Asked.BreakIn = static_cast<int>(NumberOf(Value, 0, 30000));
    } else if (Name == "--seats") {
      Asked.Seats.clear();
      for (const char* Rest = Value; *Rest != '\0';) {
        const std::string Word(Rest, std::string(Rest).find(',') == std::string::npos ? std::string(Rest).size()
                                                                                      : std::string(Rest).find(','));
        if (std::ranges::find(StyleWords, Word) == StyleWords.end()) Usage();
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

/// What is counted.
struct Counts {
  long Games = 0;
  std::array<long, MaxSeats> Wins{}, Turns{}, Points{}, Blunkos{};
  std::array<std::array<long, Faces + 1>, Faces + 1> Pairs{};  ///< a die and the next one; row 0: the first dice
  std::array<long, LongestStreak + 1> Streaks{};               ///< runs of one face that reached this length
  std::uint64_t Signature = 0xCBF29CE484222325ULL;

  void Sign(std::uint64_t Value) { Signature = (Signature ^ Value) * 0x100000001B3ULL; }

  void Add(const Counts& More) {
    const auto Sum = [](auto& To, const auto& From) {
      std::transform(To.begin(), To.end(), From.begin(), To.begin(), std::plus<>());
    };
    Games += More.Games;
    Sum(Wins, More.Wins);
    Sum(Turns, More.Turns);
    Sum(Points, More.Points);
    Sum(Blunkos, More.Blunkos);
    for (std::size_t Face = 0; Face < Pairs.size(); ++Face) Sum(Pairs[Face], More.Pairs[Face]);
    Sum(Streaks, More.Streaks);
    Sign(More.Signature);
  }
};

/// The dice of the game, looked at as they fall.
class CountedDice : public FairDice {
 public:
  CountedDice(std::uint64_t Seed, Counts& Into) : FairDice(Seed), counts(Into) {}

  std::int32_t UtilRandom(std::int32_t Bound) override {
    const std::int32_t Face = FairDice::UtilRandom(Bound);
    ++counts.Pairs[last][Face];
    streak = Face == last ? std::min(streak + 1, LongestStreak + 1) : 1;
    if (streak <= LongestStreak) ++counts.Streaks[streak];
    last = Face;
    return Face;
  }

 private:
  Counts& counts;
  std::int32_t last = 0;
  int streak = 0;
};

/// Block 0 goes on from the seed itself, the others from numbers far away from it and from one another.
std::uint64_t SeedOf(std::uint64_t Seed, long Block) {
  if (Block == 0) return Seed;
  std::uint64_t Mixed = Seed + static_cast<std::uint64_t>(Block) * 0x9E3779B97F4A7C15ULL;
  Mixed = (Mixed ^ (Mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
  Mixed = (Mixed ^ (Mixed >> 27)) * 0x94D049BB133111EBULL;
  return Mixed ^ (Mixed >> 31);
}

/// Plays the games of a block one after the other.
class Match : public QuietProgram {
 public:
  Match(const Request& Asked, std::uint64_t Seed) : numbers(Seed, counts), uniform(Seed + 1) {
    setup.NumPlayers = static_cast<std::uint8_t>(Asked.Seats.size());
    setup.PlayToScore = static_cast<std::int16_t>(Asked.PlayTo);
    setup.BreakInScore = static_cast<std::int16_t>(Asked.BreakIn);
    for (std::size_t i = 0; i < Asked.Seats.size(); ++i) {
      const auto Style = std::ranges::find(StyleWords, Asked.Seats[i]) - StyleWords.begin() + 1;
      setup.Seats[i] = {Asked.Seats[i], true, static_cast<std::uint8_t>(Style)};
    }
  }

  const Counts& Play(long Games) {
    while (counts.Games < Games) table.FreshGame(setup);
    return counts;
  }

  // The score pad is told twice a turn: before the dice move on, and afterwards, when another seat is on turn.
  void UpdateActivePlayer() override {
    if (state.CurrentPlayer == lastSeat) return;
    ++counts.Turns[lastSeat];
    counts.Blunkos[lastSeat] += state.PlayerScore[lastSeat] == banked[lastSeat];
    banked[lastSeat] = state.PlayerScore[lastSeat];
    lastSeat = state.CurrentPlayer;
  }
  void ShowScorePad() override {
    lastSeat = 0;
    banked.fill(0);
  }
  void ShowCongrats() override {
    ++counts.Games;
    ++counts.Wins[state.Winner];
    counts.Sign(state.Winner);
    for (std::size_t i = 0; i < setup.NumPlayers; ++i) {
      counts.Points[i] += state.PlayerScore[i];
      counts.Sign(static_cast<std::uint64_t>(state.PlayerScore[i]));
    }
  }

 private:
  Counts counts;
  CountedDice numbers;
  UniformGenerator uniform;
  Module1 state;
  TableControls controls;
  GameOptions options{.ComputerSpeed = SpeedRidiculous};
  QuietDesktop screen;
  Game table{state, controls, options, screen, *this, numbers};
  ComputerPlayers players{table, uniform};
  GameSetup setup;
  std::uint8_t lastSeat = 0;
  std::array<std::int16_t, MaxSeats> banked{};
};

/// Plays all games, on as many cores as asked for.
Counts PlayAll(const Request& Asked) {
  const long BlockCount = (Asked.Games + GamesPerBlock - 1) / GamesPerBlock;
  std::vector<Counts> Blocks(static_cast<std::size_t>(BlockCount));
  std::atomic<long> Next{0};
  const auto Work = [&] {
    for (long Block = Next++; Block < BlockCount; Block = Next++) {
      const long Games = std::min(GamesPerBlock, Asked.Games - Block * GamesPerBlock);
      Blocks[static_cast<std::size_t>(Block)] = Match(Asked, SeedOf(Asked.Seed, Block)).Play(Games);
    }
  };
  {
    std::vector<std::jthread> Workers;
    for (long Job = 1; Job < std::min(Asked.Jobs, BlockCount); ++Job) Workers.emplace_back(Work);
    Work();
  }
  for (std::size_t Block = 1; Block < Blocks.size(); ++Block) Blocks[0].Add(Blocks[Block]);
  return Blocks[0];
}

void PrintSeats(const Request& Asked, const Counts& All) {
  const double N = static_cast<double>(All.Games);
  for (std::size_t i = 0; i < Asked.Seats.size(); ++i) {
    const double Rate = static_cast<double>(All.Wins[i]) / N;
    const double Turns = static_cast<double>(All.Turns[i]);
    std::printf("seat %zu %-9s wins %6.2f %% +- %.2f   points a turn %7.1f   blunkos %5.2f %%\n", i,
                Asked.Seats[i].c_str(), 100 * Rate, 100 * std::sqrt(Rate * (1 - Rate) / N),
                static_cast<double>(All.Points[i]) / Turns, 100 * static_cast<double>(All.Blunkos[i]) / Turns);
  }
  std::printf("turns a game %.2f\n", static_cast<double>(std::accumulate(All.Turns.begin(), All.Turns.end(), 0L)) / N);
}

void PrintDice(const Counts& All) {
  std::array<long, Faces + 1> Shown{};
  for (const auto& Row : All.Pairs) std::transform(Row.begin(), Row.end(), Shown.begin(), Shown.begin(), std::plus<>());
  std::printf("dice %ld\n", std::accumulate(Shown.begin(), Shown.end(), 0L));
  for (int Face = 1; Face <= Faces; ++Face) {
    std::printf("face %d %11ld   followed by 1 to 6:", Face, Shown[Face]);
    for (int Next = 1; Next <= Faces; ++Next) std::printf(" %10ld", All.Pairs[Face][Next]);
    std::printf("\n");
  }
  for (int Length = 2; Length <= LongestStreak; ++Length) {
    std::printf("%d or more alike in a row %10ld\n", Length, All.Streaks[Length]);
  }
}

}  // namespace

int main(int Count, char** Arguments) {
  const Request Asked = Parse(Count, Arguments);
  const auto Begin = std::chrono::steady_clock::now();
  const Counts All = PlayAll(Asked);
  const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Begin).count();
  const double N = static_cast<double>(All.Games);
  PrintSeats(Asked, All);
  PrintDice(All);
  std::printf("games a second %.0f (%.2f microseconds a game)\n", N / Seconds, 1e6 * Seconds / N);
  std::printf("signature %016llx\n", static_cast<unsigned long long>(All.Signature));
}

// Classification of all 46,656 rolls of six dice.

#include <benchmark/benchmark.h>

#include "bench/Quiet.h"
#include "engine/Game.h"
#include "engine/ScoreDice.h"

namespace {

using namespace blunko;

struct NoNumbers : NumberSource {
  std::int32_t UtilRandom(std::int32_t) override { return 1; }
};

void ClassifyAllRolls(benchmark::State& Run) {
  Module1 State;
  TableControls Controls;
  GameOptions Options;
  QuietDesktop Screen;
  QuietProgram Others;
  NoNumbers Numbers;
  Game Table(State, Controls, Options, Screen, Others, Numbers);
  for (auto _ : Run) {
    int Scorers = 0;
    for (int Roll = 0; Roll < 46656; ++Roll) {
      for (int i = 0, Rest = Roll; i < Dice; ++i, Rest /= 6) State.DieFace[i] = static_cast<std::int16_t>(1 + Rest % 6);
      Table.ScoreDice(Dice);
      for (const Word& Code : State.DieScoreCode) Scorers += IsScorer(Code);
    }
    benchmark::DoNotOptimize(Scorers);
  }
  Run.SetItemsProcessed(Run.iterations() * 46656);
}
BENCHMARK(ClassifyAllRolls)->Unit(benchmark::kMicrosecond);

}  // namespace

#pragma once

#include <algorithm>
#include <cstdint>
#include <random>

#include "engine/RandomSources.h"

namespace blunko {

/// The number source of the dice: uniform and independent draws, unbiased by rejection.
class FairDice : public NumberSource {
 public:
  /// Seeded from the system's entropy.
  FairDice();
  /// The same draws for the same seed, on every machine.
  explicit FairDice(std::uint64_t Seed) : engine(Seed) {}

  /// 1 to `Bound`; a bound below 1 counts as 1.
  std::int32_t UtilRandom(std::int32_t Bound) override {
    const auto Range = static_cast<std::uint32_t>(std::max(Bound, 1));
    // The high half of draw * range is the result; the draws whose low half falls short would favour some faces.
    const std::uint32_t Reject = -Range % Range;
    std::uint64_t Product = 0;
    do Product = std::uint64_t{NextWord()} * Range;
    while (static_cast<std::uint32_t>(Product) < Reject);
    return static_cast<std::int32_t>(Product >> 32) + 1;
  }

 private:
  std::uint32_t NextWord() { return static_cast<std::uint32_t>(engine() >> 32); }

  std::mt19937_64 engine;
};

/// The uniform generator that draws the style of a seat of style Random.
class UniformGenerator : public UniformSource {
 public:
  explicit UniformGenerator(std::uint64_t Seed) : engine(Seed) {}
  double Next() override { return static_cast<double>(engine() >> 11) * 0x1p-53; }

 private:
  std::mt19937_64 engine;
};

}  // namespace blunko

#include "util/UtilRandom.h"

#include <array>

namespace blunko {

FairDice::FairDice() {
  std::random_device Entropy;
  std::array<std::uint32_t, 16> Words{};
  for (std::uint32_t& Word : Words) Word = Entropy();
  std::seed_seq Seed(Words.begin(), Words.end());
  engine.seed(Seed);
}

}  // namespace blunko

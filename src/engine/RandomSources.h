#pragma once

#include <cstdint>

namespace blunko {

/// The number source of the dice. A test scripts it, a benchmark seeds it.
class NumberSource {
 public:
  virtual ~NumberSource() = default;
  /// A uniform integer from 1 to `Bound`.
  virtual std::int32_t UtilRandom(std::int32_t Bound) = 0;
};

/// The second, uniform generator, which only draws the style of a seat of style Random.
class UniformSource {
 public:
  virtual ~UniformSource() = default;
  /// From 0 up to, but not including, 1.
  virtual double Next() = 0;
};

}  // namespace blunko

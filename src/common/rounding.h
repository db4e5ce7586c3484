#pragma once

#include <cmath>
#include <concepts>
#include <limits>

namespace tarnwick::common {

// Answers the nearest whole number; an exact half goes to the even neighbour (2.5 gives 2).
[[nodiscard]] inline double roundHalfEven(double value) {
  return std::nearbyint(value);
}

// Answers the value rounded half to even and clamped to the range of the whole-number type;
// a value that is not a number gives 0.
template <std::integral Whole>
requires(sizeof(Whole) <= 4) [[nodiscard]] Whole toWhole(double value) {
  using Limits = std::numeric_limits<Whole>;
  if (std::isnan(value)) return 0;
  const double rounded = roundHalfEven(value);
  if (rounded <= static_cast<double>(Limits::min())) return Limits::min();
  if (rounded >= static_cast<double>(Limits::max())) return Limits::max();
  return static_cast<Whole>(rounded);
}

}  // namespace tarnwick::common

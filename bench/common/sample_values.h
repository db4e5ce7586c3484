#pragma once

#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

namespace tarnwick::bench {

// Values as the windows show them: frequencies, periods and errors between 0.001 and 1,000,000,
// each decade as likely as the next, from a fixed seed. A power of two of them, so that a benchmark
// can run round and round.
inline std::vector<double> sampleValues(std::size_t count = 4096) {
  std::mt19937_64 random(20260101);
  std::uniform_real_distribution<double> decade(-3, 6);
  std::vector<double> values(count);
  for (double& value : values) value = std::pow(10, decade(random));
  return values;
}

}  // namespace tarnwick::bench

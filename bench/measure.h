#pragma once

#include <algorithm>
#include <vector>

namespace tarnwick::bench {

// Answers the middle one of the values, of which there is one at least.
[[nodiscard]] inline double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

// Answers the resident memory of this process in KiB.
[[nodiscard]] long residentKiB();

// Writes one line to standard output when that many windows have been painted, and ends the
// program: the monotonic clock in nanoseconds and the resident memory in KiB. Call it once the
// application object exists.
void reportWhenPainted(int windows);

}  // namespace tarnwick::bench

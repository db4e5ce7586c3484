#include "calc/ser2_mode.h"

#include <cmath>

namespace tarnwick::calc {

std::optional<double> Ser2Mode(double baud, const Ser2Options& options) {
  if (!std::isfinite(baud)) return std::nullopt;
  double mode = std::floor(1000000 / baud - 20);
  if (options.open) mode += 32768;
  if (options.inverted) mode += 16384;
  if (options.parity) mode += 8192;
  if (mode <= 0 || mode >= 65535) return std::nullopt;
  return mode;
}

}  // namespace tarnwick::calc

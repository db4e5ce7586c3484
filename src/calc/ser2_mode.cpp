#include "calc/ser2_mode.h"

#include "calc/baud_rate.h"
#include "common/number_text.h"

#include <cmath>

namespace tarnwick::calc {

std::optional<double> Ser2Mode(const Ser2Inputs& inputs) {
  const double baud = goalBaud(inputs.rate, inputs.kBaud);
  if (!std::isfinite(baud)) return std::nullopt;
  double mode = std::floor(1000000 / baud - 20);
  if (inputs.open) mode += 32768;
  if (inputs.inverted) mode += 16384;
  if (inputs.parity != Ser2Parity::None) mode += 8192;
  if (mode <= 0 || mode >= 65535) return std::nullopt;
  return mode;
}

Ser2Shown next(Ser2Shown shown, const Ser2Inputs& inputs) {
  const auto mode = Ser2Mode(inputs);
  if (mode) shown.offersOdd = inputs.parity == Ser2Parity::Odd;
  shown.mode = mode ? common::numberText(*mode) : "";
  return shown;
}

}  // namespace tarnwick::calc

#include "calc/timer.h"

#include "common/number_text.h"
#include "common/rounding.h"

#include <string_view>

namespace tarnwick::calc {
namespace {

using common::formatWithUnit;

constexpr std::string_view timePattern = "###0.0###";
constexpr std::string_view frequencyPattern = "####.0##";

std::string periodText(double us) {
  return us < 1000 ? formatWithUnit(us, timePattern, " uSec")
                   : formatWithUnit(us / 1000, timePattern, " mSec");
}

std::string frequencyText(double kHz) {
  return kHz <= 1 ? formatWithUnit(kHz * 1000, frequencyPattern, " Hz")
                  : formatWithUnit(kHz, frequencyPattern, " KHz");
}

}  // namespace

TimerResult timerResult(const TimerInputs& inputs) {
  const double max = inputs.is8Bit ? 256 : 65536;
  TimerResult result;
  result.Fcy = inputs.foscMHz / 4;
  result.Tcy = 1 / result.Fcy;
  const double reload = result.Tcy * inputs.reloadCycles;
  result.Period = result.Tcy * inputs.prescale * (max - inputs.preload) + reload;
  result.FreqKHz = (1 / result.Period) * 1000;
  return result;
}

TimerShown showTimer(const TimerInputs& inputs) {
  const TimerResult result = timerResult(inputs);
  return {.instructionClock = formatWithUnit(result.Fcy, timePattern, " MHz"),
          .instructionCycle = formatWithUnit(result.Tcy, timePattern, " uSec"),
          .period = periodText(result.Period),
          .frequency = frequencyText(result.FreqKHz)};
}

PreloadSlider preloadSlider(bool is8Bit) {
  if (is8Bit) return {.minimum = 0, .maximum = 255, .preloadAtZero = 0};
  return {.minimum = -32768, .maximum = 32767, .preloadAtZero = 32768};
}

int preloadPosition(double preload, bool is8Bit) {
  return common::toWhole<std::int32_t>(preload - preloadSlider(is8Bit).preloadAtZero);
}

std::string preloadText(int position, bool is8Bit) {
  return common::numberText(position + preloadSlider(is8Bit).preloadAtZero);
}

}  // namespace tarnwick::calc

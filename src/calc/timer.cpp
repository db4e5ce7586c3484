#include "calc/timer.h"

namespace tarnwick::calc {

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

}  // namespace tarnwick::calc

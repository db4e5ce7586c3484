#include "calc/timer.h"

#include "calc/joined.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarnwick::calc {
namespace {

TEST(Timer, ShowsClockPeriodAndFrequency) {
  using Case = std::pair<TimerInputs, const char*>;
  for (const auto& [inputs, texts] :
       {Case{{4, true, 256, 0, 1}, "1.0 MHz|1.0 uSec|65.537 mSec|15.259 Hz|"},
        Case{{20, false, 8, 3036, 1}, "5.0 MHz|0.2 uSec|100.0002 mSec|10.0 Hz|"},
        Case{{4, true, 4, 8, 8}, "1.0 MHz|1.0 uSec|1.0 mSec|1000.0 Hz|"},
        Case{{4, true, 4, 8, 7}, "1.0 MHz|1.0 uSec|999.0 uSec|1.001 KHz|"},
        Case{{4, true, 1, 263, 7}, "1.0 MHz|1.0 uSec|0.0 uSec||"},
        Case{{0, true, 1, 0, 7}, "0.0 MHz|||.0 Hz|"}}) {
    const TimerShown shown = showTimer(inputs);
    EXPECT_EQ(joined(shown.instructionClock, shown.instructionCycle, shown.period, shown.frequency),
              texts);
  }
}

}  // namespace
}  // namespace tarnwick::calc

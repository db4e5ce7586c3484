#include "calc/timer.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnwick::calc {
namespace {

TEST(TimerResult, FollowsTheDataSheetFormulas) {
  const TimerResult slow = timerResult(
      {.foscMHz = 20, .is8Bit = false, .prescale = 8, .preload = 3036, .reloadCycles = 1});
  EXPECT_DOUBLE_EQ(slow.Fcy, 5);
  EXPECT_DOUBLE_EQ(slow.Tcy, 0.2);
  EXPECT_DOUBLE_EQ(slow.Period, 100000.2);
  EXPECT_DOUBLE_EQ(slow.FreqKHz, 1000 / 100000.2);

  const TimerResult longest = timerResult({.foscMHz = 4, .prescale = 256, .reloadCycles = 1});
  EXPECT_DOUBLE_EQ(longest.Period, 65537);
}

TEST(TimerResult, IsNotFiniteWithoutAnOscillatorOrAPeriod) {
  EXPECT_FALSE(std::isfinite(timerResult({.foscMHz = 0, .reloadCycles = 7}).Period));
  EXPECT_FALSE(
      std::isfinite(timerResult({.foscMHz = 4, .preload = 263, .reloadCycles = 7}).FreqKHz));
}

}  // namespace
}  // namespace tarnwick::calc

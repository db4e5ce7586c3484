#include "calc/timer_search.h"

#include "calc/timer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <tuple>

namespace tarnwick::calc {
namespace {

constexpr auto uSec = DelayUnit::uSec;
constexpr auto mSec = DelayUnit::mSec;
constexpr auto Hz = DelayUnit::Hz;
constexpr auto KHz = DelayUnit::KHz;

TimerMatches search(int Max, double foscMHz, double reload, double value, DelayUnit unit) {
  return searchTimer(Max, timerGoal(foscMHz, reload, shownDelay(value, unit)));
}

TEST(SearchTimer, FindsPreloadsAndTheBest) {
  using Case = std::tuple<int, double, double, double, DelayUnit, std::string, std::string>;
  for (const auto& [Max, foscMHz, reload, value, unit, preloads, best] :
       {Case{256, 4, 7, 1, mSec, "7\r\n131\r\n193\r\n224\r\n240\r\n248\r\n252\r\n", "7 4 0.299"},
        // A preload of 0 is an empty line, and the best of equals.
        Case{256, 4, 1, 256.5, uSec, "\r\n128\r\n192\r\n224\r\n240\r\n248\r\n252\r\n254\r\n255\r\n",
             "0 1 0.195"},
        Case{256, 4, 7, 7, uSec, "", "  "},  // no more than the reload takes
        Case{256, 20, 1, 50, Hz, "", "  "},
        Case{65536, 20, 1, 50, Hz,
             "15536\r\n40536\r\n53036\r\n59286\r\n62411\r\n63973\r\n64754\r\n65145\r\n",
             "15536 2 0.001"},
        Case{256, 4, 1, 100, KHz, "247\r\n", "247 1 0.0"}}) {
    const auto texts = timerMatchTexts(search(Max, foscMHz, reload, value, unit), unit);
    EXPECT_EQ(texts.preload, preloads);
    EXPECT_EQ(texts.bestPreload + " " + texts.bestPrescaler + " " + texts.bestError, best);
  }
}

TEST(TimerMatchTexts, ListPeriodsAndErrorsToThreeDigits) {
  // An instruction cycle of 4/3 us.
  const auto texts = timerMatchTexts(search(256, 3, 1, 10, uSec), uSec);
  EXPECT_EQ(texts.prescaler, "1:1\r\n1:2\r\n1:4\r\n1:8\r\n");
  EXPECT_EQ(texts.calc, "10.667 uSec\r\n12.0 uSec\r\n12.0 uSec\r\n12.0 uSec\r\n");
  EXPECT_EQ(texts.error, "6.25 %\r\n16.667 %\r\n16.667 %\r\n16.667 %\r\n");
}

TEST(SearchTimer, LeavesOutTheBounds) {
  // 256 counts are one more than a prescaler of 1 has.
  EXPECT_EQ(search(256, 4, 1, 257, uSec).list().front().Prescaler, 2);
  // At 4 MHz with a reload of 7 a prescaler of 8 gives 15 us at the least: 5 us above the first.
  EXPECT_EQ(search(256, 4, 7, 10, uSec).MatchCount, 3);
  EXPECT_EQ(search(256, 4, 7, 10.001, uSec).MatchCount, 4);
  // 1 us of reload and 4 us of timer are 200 kHz, 2 kHz below what is wanted.
  EXPECT_EQ(search(256, 4, 1, 202, KHz).MatchCount, 0);
  EXPECT_EQ(search(256, 4, 1, 201.99, KHz).MatchCount, 3);
}

TEST(SearchTimer, MatchesNothingOutsideTheNumbers) {
  for (const DelayUnit unit : {uSec, mSec, Hz, KHz})
    for (const double fosc : {0.0, -4.0, 1e308})
      for (const double value : {0.0, 1e308})
        EXPECT_EQ(search(65536, fosc, 7, value, unit).MatchCount, 0) << fosc << ' ' << value;
  EXPECT_EQ(search(256, 1e-307, 0, 1e-300, Hz).MatchCount, 3);  // 1:8 would take 3.2E+308 us
}

TEST(ShownDelay, MovesBetweenHzAndKHz) {
  using Case = std::tuple<double, DelayUnit, double, DelayUnit, const char*>;
  for (const auto& [value, unit, shown, shownUnit, text] :
       {Case{1500, Hz, 1.5, KHz, "1.5"}, Case{0.5, KHz, 500, Hz, "500"},
        Case{1000, Hz, 1, KHz, "1"}, Case{999.999, Hz, 999.999, Hz, ""}, Case{1, KHz, 1, KHz, ""},
        Case{0.9999999999999999, KHz, 1, KHz, "1"},
        Case{1234567.89012345678, Hz, 1234.56789012346, KHz, "1234.56789012346"},
        Case{1e18, Hz, 1e15, KHz, "1E+15"}, Case{1e-8, KHz, 1e-5, Hz, "1E-05"},
        Case{0, KHz, 0, Hz, "0"}, Case{5000, uSec, 5000, uSec, ""},
        Case{0.5, mSec, 0.5, mSec, ""}}) {
    const Delay delay = shownDelay(value, unit);
    EXPECT_EQ(std::pair(delay.value, delay.unit), std::pair(shown, shownUnit)) << value;
    EXPECT_EQ(delay.text.value_or(""), text) << value;
  }
}

double inUnit(double period, DelayUnit unit) {
  return unit == uSec ? period : unit == mSec ? period / 1e3 : (unit == Hz ? 1e6 : 1e3) / period;
}

// Any oscillator, unit and reload, and delays of about the reach of both widths. What is missing is
// looked for with more digits and by counts instead of preloads; counts within a hair of a whole
// number and values within a hair of the tolerance are left undecided.
TEST(SearchTimer, AgreesWithTheTimerCalculationAndMissesNothing) {
  std::mt19937_64 random(2);
  std::uniform_real_distribution<double> oscillator(std::log(0.03), std::log(64));
  std::uniform_real_distribution<double> period(std::log(0.5), std::log(2e7));
  std::uniform_int_distribution<int> units(0, 3), cycles(0, 15), wide(0, 1);
  int found = 0, decided = 0;
  for (int n = 0; n < 100000; ++n) {
    const double fosc = std::exp(oscillator(random)), wanted = std::exp(period(random));
    const double reload = cycles(random);
    const int Max = wide(random) == 0 ? 256 : 65536;
    const auto unit = static_cast<DelayUnit>(units(random));
    const Delay delay = shownDelay(inUnit(wanted, unit), unit);
    const TimerMatches matches = searchTimer(Max, timerGoal(fosc, reload, delay));
    const double tolerance = delay.unit == Hz || delay.unit == KHz ? 2 : 5;
    auto next = matches.list().begin();
    for (const std::uint16_t P : timerPrescalers) {
      const long double Tcy = 4.0L / fosc;
      const long double counts = (wanted - reload * Tcy) / Tcy / P;
      const double shown =
          inUnit(static_cast<double>(std::ceil(counts) * P * Tcy + reload * Tcy), delay.unit);
      const double distance = std::fabs(shown - delay.value);
      const bool fits = counts > 0 && counts < Max && distance < tolerance;
      const bool near = std::fabs(counts - std::round(counts)) < 1e-6L ||
                        std::fabs(distance - tolerance) < 1e-9 * (shown + tolerance);
      const bool listed = next != matches.list().end() && next->Prescaler == P;
      ASSERT_TRUE(near || listed == fits) << fosc << ' ' << delay.value << ' ' << P;
      decided += near ? 0 : 1;
      if (!listed) continue;
      const TimerMatch match = *next++;
      ASSERT_TRUE(match.Preload >= 0 && match.Preload < Max);
      ASSERT_LT(std::fabs(match.Calc - delay.value), tolerance);
      const double achieved = timerResult({fosc, Max == 256, P, match.Preload, reload}).Period;
      ASSERT_NEAR(match.Calc, inUnit(achieved, delay.unit), 1e-15 * match.Calc);
      ASSERT_NEAR(match.Error, std::fabs(achieved - wanted) / achieved * 100, 1e-9);
      const bool before = match.Prescaler < matches.best->Prescaler;
      ASSERT_TRUE(before ? matches.best->Error < match.Error : matches.best->Error <= match.Error);
    }
    ASSERT_TRUE(next == matches.list().end());
    found += matches.MatchCount;
  }
  EXPECT_TRUE(found > 100000 && decided > 800000) << found << ' ' << decided;
}

}  // namespace
}  // namespace tarnwick::calc

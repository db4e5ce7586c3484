#include "calc/timer_search.h"

#include "calc/timer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace tarnwick::calc {
namespace {

constexpr auto uSec = DelayUnit::uSec;
constexpr auto mSec = DelayUnit::mSec;
constexpr auto Hz = DelayUnit::Hz;
constexpr auto KHz = DelayUnit::KHz;

TimerMatches search(int Max, double foscMHz, double reload, double value, DelayUnit unit) {
  return searchTimer(Max, timerGoal(foscMHz, reload, shownDelay(value, unit)));
}

std::string withLf(std::string text) {
  std::erase(text, '\r');
  return text;
}

TEST(SearchTimer, ListsMatchesAndTheBestOne) {
  struct Case {
    int Max;
    double foscMHz, reload, value;
    DelayUnit unit;
    std::string preload, prescaler, calc, error;  // line ends without CR
    const char *bestPreload, *bestPrescaler, *bestError;
  };
  std::string calc257, error257;
  for (int i = 0; i < 9; ++i) {
    calc257 += "257.0 uSec\n";
    error257 += "0.195 %\n";
  }
  for (const Case& c :
       {Case{256, 4, 7, 10, uSec, "253\n254\n255\n", "1:1\n1:2\n1:4\n",
             "10.0 uSec\n11.0 uSec\n11.0 uSec\n", "0.0 %\n9.091 %\n9.091 %\n", "253", "1", "0.0"},
        Case{65536, 4, 7, 10, uSec, "65533\n65534\n65535\n", "1:1\n1:2\n1:4\n",
             "10.0 uSec\n11.0 uSec\n11.0 uSec\n", "0.0 %\n9.091 %\n9.091 %\n", "65533", "1", "0.0"},
        Case{256, 4, 7, 1, mSec, "7\n131\n193\n224\n240\n248\n252\n",
             "1:4\n1:8\n1:16\n1:32\n1:64\n1:128\n1:256\n",
             "1.003 mSec\n1.007 mSec\n1.015 mSec\n1.031 mSec\n1.031 mSec\n1.031 mSec\n1.031 mSec\n",
             "0.299 %\n0.695 %\n1.478 %\n3.007 %\n3.007 %\n3.007 %\n3.007 %\n", "7", "4", "0.299"},
        // The longest period that a prescaler of 1 reaches: preload 0, an empty line and the best
        // of equals. The case after it wants no more than the reload takes.
        Case{256, 4, 1, 256.5, uSec, "\n128\n192\n224\n240\n248\n252\n254\n255\n",
             "1:1\n1:2\n1:4\n1:8\n1:16\n1:32\n1:64\n1:128\n1:256\n", calc257, error257, "0", "1",
             "0.195"},
        Case{256, 4, 7, 7, uSec, "", "", "", "", "", "", ""},
        Case{256, 20, 1, 50, Hz, "", "", "", "", "", "", ""},
        Case{256, 4, 1, 100, KHz, "247\n", "1:1\n", "100.0 KHz\n", "0.0 %\n", "247", "1", "0.0"}}) {
    const TimerMatchTexts texts =
        timerMatchTexts(search(c.Max, c.foscMHz, c.reload, c.value, c.unit), c.unit);
    SCOPED_TRACE(c.value);
    EXPECT_EQ(withLf(texts.preload), c.preload);
    EXPECT_EQ(withLf(texts.prescaler), c.prescaler);
    EXPECT_EQ(withLf(texts.calc), c.calc);
    EXPECT_EQ(withLf(texts.error), c.error);
    EXPECT_EQ(texts.bestPreload, c.bestPreload);
    EXPECT_EQ(texts.bestPrescaler, c.bestPrescaler);
    EXPECT_EQ(texts.bestError, c.bestError);
  }
}

TEST(SearchTimer, FindsSlowInterruptsWithTheWideTimerOnly) {
  const TimerMatches wide = search(65536, 20, 1, 50, Hz);
  ASSERT_EQ(wide.MatchCount, 8);
  EXPECT_EQ(wide.best->Prescaler, 2);
  EXPECT_EQ(wide.best->Preload, 15536);
  const TimerMatches precise = search(65536, 4, 7, 1, mSec);
  EXPECT_EQ(precise.best->Prescaler, 1);
  EXPECT_EQ(precise.best->Preload, 64543);
}

TEST(SearchTimer, EndsLinesWithCrLf) {
  const TimerMatchTexts texts = timerMatchTexts(search(256, 4, 1, 256.5, uSec), uSec);
  EXPECT_TRUE(texts.preload.starts_with("\r\n128\r\n"));
  EXPECT_TRUE(texts.calc.ends_with(" uSec\r\n"));
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
    for (const int Max : {256, 65536})
      for (const double fosc : {0.0, -4.0, 1e308})
        for (const double value : {0.0, 1e308}) {
          const TimerMatches matches = search(Max, fosc, 7, value, unit);
          EXPECT_EQ(matches.MatchCount, 0) << fosc << ' ' << value;
          EXPECT_FALSE(matches.best);
        }
}

TEST(ShownDelay, MovesBetweenHzAndKHz) {
  struct Case {
    double value;
    DelayUnit unit;
    double shown;
    DelayUnit shownUnit;
    std::optional<std::string> text;
  };
  for (const Case& c : {Case{1500, Hz, 1.5, KHz, "1.5"}, Case{0.5, KHz, 500, Hz, "500"},
                        Case{1000, Hz, 1, KHz, "1"}, Case{999.999, Hz, 999.999, Hz, {}},
                        Case{1, KHz, 1, KHz, {}}, Case{0.9999999999999999, KHz, 1, KHz, "1"},
                        Case{1234567.89012345678, Hz, 1234.56789012346, KHz, "1234.56789012346"},
                        Case{1e18, Hz, 1e15, KHz, "1E+15"}, Case{1e-8, KHz, 1e-5, Hz, "1E-05"},
                        Case{0, KHz, 0, Hz, "0"}, Case{5000, uSec, 5000, uSec, {}},
                        Case{0.5, mSec, 0.5, mSec, {}}}) {
    const Delay delay = shownDelay(c.value, c.unit);
    EXPECT_EQ(delay.value, c.shown) << c.value;
    EXPECT_EQ(delay.unit, c.shownUnit) << c.value;
    EXPECT_EQ(delay.text, c.text) << c.value;
  }
}

double shownIn(DelayUnit unit, const TimerResult& result) {
  switch (unit) {
    case uSec:
      return result.Period;
    case mSec:
      return result.Period / 1000;
    case Hz:
      return result.FreqKHz * 1000;
    default:
      return result.FreqKHz;
  }
}

// Any oscillator, unit and reload, and delays of about the reach of both widths. What is missing is
// looked for with more digits and by counts instead of preloads; counts within a hair of a whole
// number and values within a hair of the tolerance are left undecided.
TEST(SearchTimer, AgreesWithTheTimerCalculationAndMissesNothing) {
  std::mt19937_64 random(2);
  std::uniform_real_distribution<double> oscillator(std::log(0.03), std::log(64));
  std::uniform_real_distribution<double> period(std::log(0.5), std::log(2e7));
  std::uniform_int_distribution<int> four(0, 3), cycles(0, 15), wide(0, 1);
  int found = 0;
  int decided = 0;
  for (int n = 0; n < 100000; ++n) {
    const double fosc = std::exp(oscillator(random));
    const double wantedPeriod = std::exp(period(random));
    const int reload = cycles(random);
    const int Max = wide(random) == 0 ? 256 : 65536;
    const auto unit = static_cast<DelayUnit>(four(random));
    const double perUnit[] = {wantedPeriod, wantedPeriod / 1e3, 1e6 / wantedPeriod,
                              1e3 / wantedPeriod};
    const Delay delay = shownDelay(perUnit[static_cast<int>(unit)], unit);
    const TimerMatches matches = searchTimer(Max, timerGoal(fosc, reload, delay));
    const double tolerance = delay.unit == Hz || delay.unit == KHz ? 2 : 5;
    std::size_t next = 0;
    const auto list = matches.list();
    for (const std::uint16_t P : timerPrescalers) {
      const long double Tcy = 4.0L / fosc;
      const long double exact = (wantedPeriod - reload * Tcy) / Tcy / P;
      const long double achieved = std::ceil(exact) * P * Tcy + reload * Tcy;
      const double shown = static_cast<double>(delay.unit == uSec   ? achieved
                                               : delay.unit == mSec ? achieved / 1000
                                               : delay.unit == Hz   ? 1e6L / achieved
                                                                    : 1e3L / achieved);
      const double distance = std::fabs(shown - delay.value);
      const bool fits = exact > 0 && exact < Max && distance < tolerance;
      const bool near = std::fabs(exact - std::round(exact)) < 1e-6L ||
                        std::fabs(distance - tolerance) < 1e-9 * (shown + tolerance);
      const bool listed = next < list.size() && list[next].Prescaler == P;
      ASSERT_TRUE(near || listed == fits) << fosc << ' ' << delay.value << ' ' << P;
      decided += near ? 0 : 1;
      if (!listed) continue;
      const TimerMatch& match = list[next++];
      ASSERT_TRUE(match.Preload >= 0 && match.Preload < Max);
      ASSERT_LT(std::fabs(match.Calc - delay.value), tolerance);
      const TimerResult result = timerResult({.foscMHz = fosc,
                                              .is8Bit = Max == 256,
                                              .prescale = P,
                                              .preload = match.Preload,
                                              .reloadCycles = static_cast<double>(reload)});
      const double ulps = delay.unit == uSec || delay.unit == mSec ? 0 : 1e-15 * match.Calc;
      ASSERT_NEAR(match.Calc, shownIn(delay.unit, result), ulps);
      ASSERT_NEAR(match.Error, std::fabs(result.Period - wantedPeriod) / result.Period * 100, 1e-9);
      const bool before = match.Prescaler < matches.best->Prescaler;
      ASSERT_TRUE(before ? matches.best->Error < match.Error : matches.best->Error <= match.Error);
    }
    ASSERT_EQ(next, list.size());
    found += matches.MatchCount;
  }
  EXPECT_GT(found, 100000);
  EXPECT_GT(decided, 800000);
}

}  // namespace
}  // namespace tarnwick::calc

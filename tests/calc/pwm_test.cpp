#include "calc/pwm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <tuple>

namespace tarnwick::calc {
namespace {

TEST(PwmRange, ShowsWhatTheOscillatorReaches) {
  using Case = std::tuple<double, const char*, const char*>;
  for (const auto& [Fosc, min, max] :
       {Case{4e6, "244.141 Hz", "500.0 KHz"}, Case{8e6, "488.281 Hz", "1.0 MHz"},
        Case{16.384e6, "1.0 KHz", "2.048 MHz"}, Case{0, "0.0 Hz", "0.0 KHz"}}) {
    const PwmLimitTexts texts = pwmLimitTexts(PwmRange(Fosc));
    EXPECT_EQ(texts.min + texts.max, std::string(min) + max);
  }
}

TEST(PwmSearch, TestsThePeriodRegisterBeforeItIsRounded) {
  // At 4 MHz with prescaler 1 the register value is 1 MHz / F - 1.
  using Case = std::tuple<double, std::optional<double>, bool>;
  for (const auto& [F, PR2, aboveRange] :
       {Case{1e6 / 256.2, {}, false}, Case{1e6 / 255.6, 255, false}, Case{1e6 / 24, 23, false},
        Case{1e6, 0, true}, Case{1e6 / 0.9, {}, true}, Case{1e6 / 3.5, 2, true}}) {
    const PwmMatches matches = PwmSearch(4e6, F);
    const auto& match = matches.bySlot[0];
    EXPECT_EQ(match ? std::optional(match->PR2) : std::nullopt, PR2) << F;
    EXPECT_EQ(matches.aboveRange, aboveRange) << F;
  }
  EXPECT_FALSE(PwmSearch(4e6, 1e6 / 16).aboveRange);  // a register value of 0 with prescaler 16
}

TEST(PwmSearch, MatchesNothingOutsideTheNumbers) {
  for (const double Fosc : {0.0, -4e6, HUGE_VAL, 4e6})
    for (const double F : {0.0, HUGE_VAL, 1e-320, 1.0})
      EXPECT_EQ(PwmSearch(Fosc, F).MatchCount, 0) << Fosc << ' ' << F;
}

TEST(PwmResolution, FollowsItsTable) {
  int bits = 1;
  for (const int most : {1, 2, 4, 8, 16, 32, 64, 256, 512, 1024}) {  // 128 is no bound
    EXPECT_EQ(PwmResolution(most), bits);
    EXPECT_EQ(PwmResolution(most + 1), std::min(++bits, 10));
  }
  EXPECT_EQ(PwmResolution(128) + PwmResolution(129), 16);
}

TEST(PwmDuty, ShowsWhatItCan) {
  PwmMatches matches;  // registers that large have no PWM module behind them
  matches.bySlot = {PwmMatch{.FreqKHz = 1, .MaxDutyVal = 1999},
                    PwmMatch{.FreqKHz = 1, .MaxDutyVal = 2500}};
  EXPECT_EQ(pwmDutyTexts(matches, 100, 4e6)->dutyRegister, "1999\r\n2.5\r\n");
  EXPECT_EQ(pwmDutyTexts(matches, 0, HUGE_VAL)->dutyRegister, "\r\n\r\n");
  EXPECT_FALSE(pwmDutyTexts(matches, 50, 0));
}

// Any oscillator, and frequencies on both sides of what it reaches. The period in oscillator
// clocks is computed here in one step and in more digits, so only values within a hair of a bound
// are left undecided.
TEST(PwmSearch, FindsExactlyThePrescalersThatFit) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> oscillator(std::log(0.03e6), std::log(64e6));
  std::uniform_real_distribution<double> clocks(std::log(2), std::log(32768));
  std::uniform_real_distribution<double> percent(0, 110);
  constexpr long double half = 0.5L + 1e-9L;
  int found = 0;
  for (int n = 0; n < 100000; ++n) {
    const double Fosc = std::exp(oscillator(random));
    const double F = Fosc / std::exp(clocks(random));
    const double D = percent(random);
    const PwmMatches matches = PwmSearch(Fosc, F);
    int count = 0;
    for (std::size_t i = 0; i < pwmPrescalers.size(); ++i) {
      const auto& match = matches.bySlot[i];
      const long double P = pwmPrescalers[i];
      const long double exact = static_cast<long double>(Fosc) / F / 4 / P - 1;
      const bool near = std::fabs(exact) < 1e-9L || std::fabs(exact - 255) < 1e-9L;
      ASSERT_TRUE(near || match.has_value() == (exact > 0 && exact < 255)) << Fosc << ' ' << F;
      if (!match) continue;
      ++count;
      ASSERT_EQ(match->Prescaler, pwmPrescalers[i]);
      ASSERT_TRUE(match->PR2 >= 0 && match->PR2 <= 255 && match->PR2 == std::floor(match->PR2));
      ASSERT_LE(std::fabs(match->PR2 - exact), half);
      const long double kHz = Fosc / (4 * P * (match->PR2 + 1)) / 1000;
      ASSERT_NEAR(match->FreqKHz, static_cast<double>(kHz), 1e-12 * match->FreqKHz);
      ASSERT_LE(std::fabs(match->MaxDutyVal - 4 * (exact + 1)), half);
      const PwmDutyValue duty = PwmDuty(*match, D, Fosc);
      ASSERT_TRUE(duty.Register >= 0 && duty.Register <= match->MaxDutyVal) << D;
      const long double period = 4 * (match->PR2 + 1);
      ASSERT_LE(std::fabs(duty.Register - std::fmin(D / 100 * period, match->MaxDutyVal)), half);
      ASSERT_NEAR(duty.Duty, static_cast<double>(duty.Register / period * 100), 1e-9);
    }
    ASSERT_EQ(matches.MatchCount, count);
    found += count;
  }
  EXPECT_GT(found, 100000);
}

}  // namespace
}  // namespace tarnwick::calc

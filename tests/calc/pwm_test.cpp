#include "calc/pwm.h"

#include "calc/joined.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace tarnwick::calc {
namespace {

std::string texts(const PwmShown& shown) {
  return joined(shown.minFreq, shown.maxFreq, shown.calcFreq, shown.prescaler, shown.resolution,
                shown.maxDutyVal, shown.dutyStep, shown.PR2, shown.dutyRegister, shown.calcDuty);
}

TEST(Pwm, ListsThePrescalersThatFitAndTheirDuty) {
  using Case = std::pair<PwmInputs, const char*>;
  for (const auto& [inputs, wanted] :
       {Case{{4, 1, true, 100},
             "244.141 Hz|500.0 KHz| 1.0 KHz/ 0.992 KHz/|1:4/1:16/|10 Bit/8 Bit/|1000/250/|"
             "0.1 %/0.4 %/|  249/  62/|1000/250/|100.0 %/99.21 %/|"},
        Case{{4, 1000, false, 0},
             "244.141 Hz|500.0 KHz| 1000.0 Hz/ 992.063 Hz/|1:4/1:16/|10 Bit/8 Bit/|1000/250/|"
             "0.1 %/0.4 %/|  249/  62/|0/0/|.0 %/.0 %/|"},
        // Two of 64 counts are 3.125 %; with the larger prescalers 3 % are less than half a count.
        Case{{4, 62.5, true, 3},
             "244.141 Hz|500.0 KHz| 62.5 KHz/ 62.5 KHz/ 62.5 KHz/|1:1/1:4/1:16/|7 Bit/5 Bit/3 Bit/|"
             "64/16/4/|1.563 %/6.25 %/25.0 %/|  15/  3/  0/|2/0/0/|3.13 %/.0 %/.0 %/|"},
        Case{{16.384, 3, true, 50},
             "1.0 KHz|2.048 MHz| 3.012 KHz/|1:16/|9 Bit/|341/|0.293 %/|  84/|170/|50.0 %/|"},
        Case{{20, 1, true, 50}, "1.221 KHz|2.5 MHz|||||||||"},
        Case{{4, 1, false, 50}, "244.141 Hz|500.0 KHz|||||||||"},
        Case{{4, 1001, true, 50}, "244.141 Hz|500.0 KHz|||||||||"},
        Case{{0, 1, true, 50}, "0.0 Hz|0.0 KHz|||||||||"},
        Case{{-4, 1, true, 50}, "-244.141 Hz|-500.0 KHz|||||||||"}})
    EXPECT_EQ(texts(showPwm(inputs)), wanted);
}

TEST(Pwm, TestsThePeriodRegisterBeforeItIsRounded) {
  // At 4 MHz with prescaler 1 the register value is 1 MHz / F - 1.
  using Case = std::pair<double, const char*>;
  for (const auto& [counts, PR2] :
       {Case{256.2, "  63/  15/"}, Case{255.6, "  255/  63/  15/"}, Case{256, "  255/  63/  15/"},
        Case{3.5, "  2/"}, Case{0.9, ""}, Case{4096, "  255/"}, Case{4096.1, ""}})
    EXPECT_EQ(joined(showPwm({4, 1e6 / counts, false, 50}).PR2), joined(PR2)) << counts;
  EXPECT_TRUE(PwmSearch(4e6, 1e6).aboveRange);
  EXPECT_FALSE(PwmSearch(4e6, 1e6 / 16).aboveRange);
}

TEST(Pwm, FollowsTheDutyOfTheMatchesFoundLast) {
  const PwmShown before = showPwm({4, 1, true, 50});
  const PwmShown after = next(before, {4, 77, false, 25});
  EXPECT_EQ(joined(after.PR2, after.dutyRegister, after.calcDuty),
            "  249/  62/|250/63/|25.0 %/25.0 %/|");
  EXPECT_EQ(texts(next(before, {0, 1, true, 25})), texts(before));
}

TEST(Pwm, CountsTheBitsByATableWithoutABoundAt128) {
  int bits = 1;
  for (const int most : {1, 2, 4, 8, 16, 32, 64, 256, 512, 1024}) {
    EXPECT_EQ(PwmResolution(most), bits);
    EXPECT_EQ(PwmResolution(most + 1), std::min(++bits, 10));
  }
}

}  // namespace
}  // namespace tarnwick::calc

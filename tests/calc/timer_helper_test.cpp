#include "calc/timer_helper.h"

#include "calc/joined.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tarnwick::calc {
namespace {

using enum DelayUnit;

TEST(TimerHelper, ListsTheMatchesOfEachWidthAndTheBest) {
  using Case = std::tuple<TimerHelperInputs, const char*, const char*>;
  for (const auto& [inputs, texts8, best16] :
       {Case{{4, {1, mSec}, 7},
             "7/131/193/224/240/248/252/|1:4/1:8/1:16/1:32/1:64/1:128/1:256/|1.003 mSec/1.007 "
             "mSec/1.015 mSec/1.031 mSec/1.031 mSec/1.031 mSec/1.031 mSec/|0.299 %/0.695 %/1.478 "
             "%/3.007 %/3.007 %/3.007 %/3.007 %/|7|4|0.299|",
             "64543|1|0.0|"},
        Case{{20, {50, Hz}, 1}, "|||||||", "15536|2|0.001|"},
        // An instruction cycle of 4/3 us.
        Case{{3, {10, uSec}, 1},
             "249/252/254/255/|1:1/1:2/1:4/1:8/|10.667 uSec/12.0 uSec/12.0 uSec/12.0 uSec/|"
             "6.25 %/16.667 %/16.667 %/16.667 %/|249|1|6.25|",
             "65529|1|6.25|"},
        // The smallest prescaler of equal errors; 15 us are just within 5 us.
        Case{{4, {10.001, uSec}, 7},
             "252/254/255/255/|1:1/1:2/1:4/1:8/|11.0 uSec/11.0 uSec/11.0 uSec/15.0 uSec/|"
             "9.082 %/9.082 %/9.082 %/33.327 %/|252|1|9.082|",
             "65532|1|9.082|"},
        // 256 counts of 1:256 from a preload of 0, which is an empty line, and one count more.
        Case{{4, {65.5, mSec}, 1}, "/|1:256/|65.537 mSec/|0.056 %/|0|256|0.056|", "37|1|0.0|"},
        Case{{4, {65.537, mSec}, 1}, "|||||||", "32768|2|0.0|"},
        // 17 ms and 200 KHz lie too far off.
        Case{{0.004, {10, mSec}, 1},
             "247/251/253/|1:1/1:2/1:4/|10.0 mSec/11.0 mSec/13.0 mSec/|0.0 %/9.091 %/23.077 %/|"
             "247|1|0.0|",
             "65527|1|0.0|"},
        Case{{4, {202, KHz}, 1}, "|||||||", "|||"},
        Case{{4, {201.99, KHz}, 1},
             "252/254/255/|1:1/1:2/1:4/|200.0 KHz/200.0 KHz/200.0 KHz/|0.985 %/0.985 %/0.985 %/|"
             "252|1|0.985|",
             "65532|1|0.985|"},
        // No more than the reload takes; without an oscillator; beyond the range of a double.
        Case{{4, {7, uSec}, 7}, "|||||||", "|||"}, Case{{0, {10, mSec}, 7}, "|||||||", "|||"},
        Case{{1e-307, {1e-300, Hz}, 0},
             "255/255/255/|1:1/1:2/1:4/|0.0 Hz/0.0 Hz/0.0 Hz/|97.5 %/98.75 %/99.375 %/|255|1|97.5|",
             "65535|1|97.5|"}}) {
    const auto& [delayText, unit, width8, width16] = showTimerHelper(inputs);
    EXPECT_EQ(joined(width8.preload, width8.prescaler, width8.calc, width8.error,
                     width8.bestPreload, width8.bestPrescaler, width8.bestError),
              texts8);
    EXPECT_EQ(joined(width16.bestPreload, width16.bestPrescaler, width16.bestError), best16);
    EXPECT_FALSE(delayText);
  }
}

TEST(TimerHelper, TellsTheBestLineOrTheLimitThatIsExceeded) {
  using enum TimerLimit;
  using Case = std::tuple<TimerHelperInputs, TimerLimit, TimerLimit>;
  for (const auto& [inputs, limit8, limit16] :
       {Case{{4, {10, uSec}, 7}, None, None}, Case{{4, {7, uSec}, 7}, ReloadTime, ReloadTime},
        Case{{20, {50, Hz}, 1}, Counts, None}, Case{{4, {65.537, mSec}, 1}, Counts, None},
        Case{{4, {202, KHz}, 1}, Tolerance, Tolerance}}) {
    const TimerHelperShown shown = showTimerHelper(inputs);
    EXPECT_EQ(shown.width8.exceeded, limit8) << inputs.delay.value;
    EXPECT_EQ(shown.width8.bestLine.has_value(), limit8 == None);
    EXPECT_EQ(shown.width16.exceeded, limit16) << inputs.delay.value;
  }
}

TEST(TimerHelper, MovesFrequenciesBetweenHzAndKHz) {
  using Case = std::tuple<Delay, const char*, DelayUnit>;
  for (const auto& [delay, text, unit] :
       {Case{{1500, Hz}, "1.5", KHz}, Case{{0.5, KHz}, "500", Hz}, Case{{1000, Hz}, "1", KHz},
        Case{{999.9, Hz}, "", Hz}, Case{{1, KHz}, "", KHz}, Case{{1e18, Hz}, "1E+15", KHz},
        Case{{0.9999999999999999, KHz}, "1", KHz}, Case{{1e-8, KHz}, "1E-05", Hz},
        Case{{0, KHz}, "0", Hz}, Case{{5000, uSec}, "", uSec}, Case{{0.5, mSec}, "", mSec}}) {
    const TimerHelperShown shown = showTimerHelper({4, delay, 7});
    EXPECT_EQ(shown.delayText.value_or(""), text);
    EXPECT_EQ(shown.unit, unit) << text;
  }
  EXPECT_EQ(showTimerHelper({4, {20000, Hz}, 7}).width8.calc.substr(0, 8), "20.0 KHz");
}

}  // namespace
}  // namespace tarnwick::calc

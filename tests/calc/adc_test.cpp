#include "calc/adc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <utility>

namespace tarnwick::calc {
namespace {

using std::int64_t;
constexpr int randomInputs = 100'000;
constexpr std::array<int64_t, 14> settings{2, 4, 6, 8, 12, 16, 20, 24, 28, 32, 36, 40, 48, 64};

TEST(AcquisitionTime, RoundsUpToWholeMicroseconds) {
  using Case = std::pair<double, double>;
  for (const auto& [ohms, time] : {Case{1, 2}, Case{24000, 22}, Case{24000.001, 23}, Case{1e6, 842},
                                   Case{-1e6, -838}, Case{1e308, HUGE_VAL}})
    EXPECT_EQ(AcquisitionTime(ohms), time) << ohms;
}

TEST(AcquisitionTime, IsTheSmallestWholeTimeThatSuffices) {
  std::mt19937_64 random(71);
  for (int i = 0; i < randomInputs; ++i) {
    const auto ohms = static_cast<int64_t>(random() >> (random() % 36 + 28));
    const int64_t picoseconds = (ohms + 1000) * 840 + 1'000'000;
    ASSERT_EQ(AcquisitionTime(static_cast<double>(ohms)),
              static_cast<double>((picoseconds + 999'999) / 1'000'000));
  }
}

TEST(ClockChoice, TakesTheRowOfTheRoundedDivisor) {
  double above = -1e300;
  using Case = std::pair<double, std::string>;
  for (const auto& [upTo, row] :
       {Case{1.5625, "0 Fosc/2 (ADCS=000)"}, Case{2.8125, "4 Fosc/4 (ADCS=100)"},
        Case{5.3125, "1 Fosc/8 (ADCS=001)"}, Case{10.3125, "5 Fosc/16 (ADCS=101)"},
        Case{20.3125, "2 Fosc/32 (ADCS=010)"}, Case{40.3125, "6 Fosc/64 (ADCS=110)"},
        Case{1e308, "7 Frc (ADCS=111)"}}) {
    for (const double Fosc : {above, upTo}) {
      const AdcClock clock = ClockChoice(Fosc);
      EXPECT_EQ(std::string(clock.code) + " " + adcClockText(clock), row) << Fosc;
      EXPECT_EQ(clock.label, clock.divisor ? "Fosc/" + std::to_string(*clock.divisor) : "Frc");
    }
    above = upTo + 1e-12;
  }
}

TEST(AcquisitionTad, KeepsToItsSettingsAtTheirEdges) {
  for (std::size_t i = 0; i < settings.size(); ++i) {  // 2 MHz / 2: one Tad lasts exactly 1 us
    const auto edge = static_cast<double>(settings[i]);
    EXPECT_EQ(AcquisitionTad(edge, 2, 2), i == 0 ? 0 : settings[i]);
    EXPECT_EQ(AcquisitionTad(edge * (1 + 1e-15), 2, 2), settings[std::min<std::size_t>(i + 1, 13)]);
  }
  EXPECT_EQ(AcquisitionTad(HUGE_VAL, 20, 32), 64);
  EXPECT_EQ(AcquisitionTad(HUGE_VAL, 0, 2), 0);
  EXPECT_EQ(AcquisitionTad(-838, 20, 32), 0);
  EXPECT_EQ(AcquisitionTad(11, 41, std::nullopt), 0);
}

// In whole numbers: one Tad lasts 1000 * divisor / kHz us. Where the time is exactly a setting, the
// last binary digit of the quotient decides; such inputs are left out.
TEST(AcquisitionTad, IsTheSmallestSettingThatSuffices) {
  std::mt19937 random(72);
  for (int tried = 0; tried < randomInputs;) {
    const int64_t kHz = std::uniform_int_distribution(1, 40312)(random);
    const int64_t time = std::uniform_int_distribution(1, 300)(random);
    const double Fosc = static_cast<double>(kHz) / 1000;
    const int divisor = ClockChoice(Fosc).divisor.value();
    const auto slack = [&](int64_t setting) { return setting * 1000 * divisor - time * kHz; };
    const auto* found = std::ranges::find_if(settings, [&](auto s) { return slack(s) >= 0; });
    const int64_t smallest = found == settings.end() ? 64 : *found;
    if (slack(smallest) == 0) continue;
    ASSERT_EQ(AcquisitionTad(static_cast<double>(time), Fosc, divisor),
              smallest == 2 ? 0 : smallest)
        << kHz << " kHz, " << time << " us";
    ++tried;
  }
}

TEST(AdcDefineText, BuildsTheThreeLines) {
  EXPECT_EQ(AdcDefineText(842, ClockChoice(41), AdcResolution::Bits8),
            "DEFINE ADC_BITS  8      ' ADCIN resolution  (Bits)\r\n"
            "DEFINE ADC_CLOCK 7      ' ADC clock source  (Frc)\r\n"
            "DEFINE ADC_SAMPLEUS 842 ' ADC sampling time (uSec)");
}

TEST(AdcDefineText, AlignsItsCommentMarks) {
  for (int time = 0; time <= 10000; ++time) {
    for (const double Fosc : {1, 2, 4, 8, 16, 32, 64}) {
      std::istringstream text(AdcDefineText(time, ClockChoice(Fosc), AdcResolution::Bits8));
      for (std::string line; std::getline(text, line);)  // the padding is at its widest above 9999
        ASSERT_EQ(line.find('\''), 21 + std::to_string(time).size() -
                                       (time > 9999 && !line.starts_with("DEFINE ADC_SAMPLE")));
    }
  }
}

}  // namespace
}  // namespace tarnwick::calc

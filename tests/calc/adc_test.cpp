#include "calc/adc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace tarnwick::calc {
namespace {

constexpr int randomInputs = 100'000;
constexpr double infinite = std::numeric_limits<double>::infinity();

TEST(AcquisitionTime, RoundsUpToWholeMicroseconds) {
  struct Case {
    double ohms;
    double time;
  };
  for (const Case& c :
       {Case{1, 2}, Case{1000, 3}, Case{2500, 4}, Case{10000, 11}, Case{1e6, 842}, Case{24000, 22},
        Case{24000.001, 23}, Case{-1000, 1}, Case{-1e6, -838}, Case{1e308, infinite}})
    EXPECT_EQ(AcquisitionTime(c.ohms), c.time) << c.ohms;
}

TEST(AcquisitionTime, IsTheSmallestWholeTimeThatSuffices) {
  std::mt19937_64 random(71);
  for (int i = 0; i < randomInputs; ++i) {
    const auto ohms = static_cast<std::int64_t>(random() >> (random() % 36 + 28));
    const std::int64_t picoseconds = (ohms + 1000) * 840 + 1'000'000;
    ASSERT_EQ(AcquisitionTime(static_cast<double>(ohms)),
              static_cast<double>((picoseconds + 999'999) / 1'000'000))
        << ohms;
  }
}

TEST(ClockChoice, TakesTheRowOfTheRoundedDivisor) {
  struct Case {
    double above;  // MHz: frequencies from just above this
    double upTo;   // to this take the row
    const char* code;
    const char* text;
    std::optional<int> divisor;
  };
  for (const Case& c : {Case{-infinite, 1.5625, "0", "Fosc/2 (ADCS=000)", 2},
                        Case{1.5625, 2.8125, "4", "Fosc/4 (ADCS=100)", 4},
                        Case{2.8125, 5.3125, "1", "Fosc/8 (ADCS=001)", 8},
                        Case{5.3125, 10.3125, "5", "Fosc/16 (ADCS=101)", 16},
                        Case{10.3125, 20.3125, "2", "Fosc/32 (ADCS=010)", 32},
                        Case{20.3125, 40.3125, "6", "Fosc/64 (ADCS=110)", 64},
                        Case{40.3125, infinite, "7", "Frc (ADCS=111)", std::nullopt}}) {
    for (const double Fosc : {std::max(c.above + 1e-12, -1e300), c.upTo}) {
      const AdcClock clock = ClockChoice(Fosc);
      EXPECT_EQ(clock.code, c.code) << Fosc;
      EXPECT_EQ(clock.divisor, c.divisor) << Fosc;
      EXPECT_EQ(adcClockText(clock), c.text) << Fosc;
    }
  }
}

TEST(ClockChoice, TakesEveryFrequency) {
  for (const double Fosc : {0.0, -0.0, 1e-320, 1.3}) EXPECT_EQ(ClockChoice(Fosc).label, "Fosc/2");
  for (const double Fosc : {41.0, 160.0, 161.0, 1e308}) EXPECT_EQ(ClockChoice(Fosc).label, "Frc");
}

TEST(AcquisitionTad, KeepsToTheTableAtItsEdges) {
  // With 2 MHz and a divisor of 2, one Tad lasts exactly 1 us.
  constexpr double justAbove = 1 + 1e-15;
  struct Case {
    double upTo;
    int shown;
    int aboveShown;
  };
  for (const Case& c :
       {Case{2, 0, 4}, Case{4, 4, 6}, Case{6, 6, 8}, Case{8, 8, 12}, Case{12, 12, 16},
        Case{16, 16, 20}, Case{20, 20, 24}, Case{24, 24, 28}, Case{28, 28, 32}, Case{32, 32, 36},
        Case{36, 36, 40}, Case{40, 40, 48}, Case{48, 48, 64}, Case{64, 64, 64}}) {
    EXPECT_EQ(AcquisitionTad(c.upTo, 2, 2), c.shown) << c.upTo;
    EXPECT_EQ(AcquisitionTad(c.upTo * justAbove, 2, 2), c.aboveShown) << c.upTo;
  }
  EXPECT_EQ(AcquisitionTad(11, 4, 8), 6);
  EXPECT_EQ(AcquisitionTad(11, 20, 32), 8);
  EXPECT_EQ(AcquisitionTad(11, 41, std::nullopt), 0);
}

TEST(AcquisitionTad, TakesEveryTimeAndFrequency) {
  EXPECT_EQ(AcquisitionTad(infinite, 20, 32), 64);
  EXPECT_EQ(AcquisitionTad(infinite, 0, 2), 0);
  EXPECT_EQ(AcquisitionTad(11, 0, 2), 0);
  EXPECT_EQ(AcquisitionTad(-838, 20, 32), 0);
  EXPECT_EQ(AcquisitionTad(11, -5, 2), 0);
}

// In whole numbers: one Tad lasts 1000 * divisor / kHz us. Where the time is exactly a setting, the
// last binary digit of the quotient decides; such inputs are left out.
TEST(AcquisitionTad, IsTheSmallestSettingThatSuffices) {
  const std::vector<std::int64_t> settings{2, 4, 6, 8, 12, 16, 20, 24, 28, 32, 36, 40, 48, 64};
  std::mt19937 random(72);
  for (int tried = 0; tried < randomInputs;) {
    const std::int64_t kHz = std::uniform_int_distribution(1, 40312)(random);
    const std::int64_t time = std::uniform_int_distribution(1, 300)(random);
    const double Fosc = static_cast<double>(kHz) / 1000;
    const std::optional<int> divisor = ClockChoice(Fosc).divisor;
    ASSERT_TRUE(divisor);
    const auto slack = [&](std::int64_t setting) { return setting * 1000 * *divisor - time * kHz; };
    const auto found = std::ranges::find_if(settings, [&](auto s) { return slack(s) >= 0; });
    const std::int64_t smallest = found == settings.end() ? 64 : *found;
    if (slack(smallest) == 0) continue;
    ASSERT_EQ(AcquisitionTad(static_cast<double>(time), Fosc, divisor),
              smallest == 2 ? 0 : smallest)
        << kHz << " kHz, " << time << " us";
    ++tried;
  }
}

TEST(AdcDefineText, BuildsTheThreeLines) {
  EXPECT_EQ(AdcDefineText(11, ClockChoice(20), AdcResolution::Bits10),
            "DEFINE ADC_BITS 10     ' ADCIN resolution  (Bits)\r\n"
            "DEFINE ADC_CLOCK 2     ' ADC clock source  (Fosc/32)\r\n"
            "DEFINE ADC_SAMPLEUS 11 ' ADC sampling time (uSec)");
  EXPECT_EQ(AdcDefineText(842, ClockChoice(41), AdcResolution::Bits8),
            "DEFINE ADC_BITS  8      ' ADCIN resolution  (Bits)\r\n"
            "DEFINE ADC_CLOCK 7      ' ADC clock source  (Frc)\r\n"
            "DEFINE ADC_SAMPLEUS 842 ' ADC sampling time (uSec)");
}

std::vector<std::size_t> commentColumns(const std::string& text) {
  std::vector<std::size_t> columns;
  std::size_t line = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\n') line = at + 1;
    if (text[at] == '\'') columns.push_back(at - line);
  }
  return columns;
}

TEST(AdcDefineText, AlignsItsCommentMarks) {
  for (int time = 0; time <= 9999; ++time) {
    const std::vector<std::size_t> expected(3, 21 + std::to_string(time).size());
    for (const double Fosc : {1, 2, 4, 8, 16, 32, 64})
      for (const auto resolution : {AdcResolution::Bits8, AdcResolution::Bits10})
        ASSERT_EQ(commentColumns(AdcDefineText(time, ClockChoice(Fosc), resolution)), expected);
  }
}

TEST(AdcDefineText, KeepsItsWidestPaddingBeyondFourDigits) {
  for (const double time : {10000.0, 1e15, infinite})
    EXPECT_EQ(commentColumns(AdcDefineText(time, ClockChoice(20), AdcResolution::Bits10)).front(),
              25)
        << time;
  EXPECT_EQ(commentColumns(AdcDefineText(-838, ClockChoice(20), AdcResolution::Bits10)).front(),
            22);
}

}  // namespace
}  // namespace tarnwick::calc

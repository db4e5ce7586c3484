#include "calc/adc.h"

#include "calc/joined.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace tarnwick::calc {
namespace {

TEST(Adc, ShowsClockAndAcquisition) {
  using Case = std::pair<AdcInputs, const char*>;
  for (const auto& [inputs, texts] :
       {Case{{4, 10, true}, "Fosc/8 (ADCS=001)|6 Tad|11 uSec|"},
        Case{{1, 1, true}, "Fosc/2 (ADCS=000)|0 Tad|3 uSec|"},
        Case{{41, 2.5, true}, "Frc (ADCS=111)|0 Tad|4 uSec|"},
        Case{{20, 1000, true}, "Fosc/32 (ADCS=010)|64 Tad|842 uSec|"},
        Case{{20, 24000, false}, "Fosc/32 (ADCS=010)|16 Tad|22 uSec|"},
        Case{{20, 24000.001, false}, "Fosc/32 (ADCS=010)|16 Tad|23 uSec|"},
        Case{{20, -5, true}, "Fosc/32 (ADCS=010)|0 Tad|-2 uSec|"},
        Case{{20, 1e308, true}, "Fosc/32 (ADCS=010)|64 Tad||"},
        Case{{0, 1e308, true}, "Fosc/2 (ADCS=000)|0 Tad||"},
        Case{{-1e308, 10000, false}, "Fosc/2 (ADCS=000)|0 Tad|11 uSec|"}}) {
    const AdcShown shown = showAdc(inputs);
    EXPECT_EQ(joined(shown.clock, shown.acquisitionTad, shown.acquisitionTime), texts);
  }
}

TEST(Adc, TakesTheClockOfTheRoundedDivisor) {
  double above = 0;
  using Case = std::pair<double, std::string>;
  for (const auto& [upTo, clock] :
       {Case{1.5625, "0 Fosc/2 (ADCS=000)"}, Case{2.8125, "4 Fosc/4 (ADCS=100)"},
        Case{5.3125, "1 Fosc/8 (ADCS=001)"}, Case{10.3125, "5 Fosc/16 (ADCS=101)"},
        Case{20.3125, "2 Fosc/32 (ADCS=010)"}, Case{40.3125, "6 Fosc/64 (ADCS=110)"},
        Case{1e308, "7 Frc (ADCS=111)"}}) {
    for (const double Fosc : {above, upTo}) {
      const AdcShown shown = showAdc({Fosc, 10, true});
      EXPECT_EQ(std::string(shown.Clock.code) + " " + shown.clock, clock) << Fosc;
      EXPECT_EQ(shown.clock.find(shown.Clock.label), 0);
    }
    above = upTo + 1e-12;
  }
}

TEST(Adc, TakesTheFirstSettingThatCoversTheTime) {
  int setting = 0;  // 2 MHz / 2: one Tad lasts exactly 1 us
  for (const int nextSetting : {4, 6, 8, 12, 16, 20, 24, 28, 32, 36, 40, 48, 64, 64}) {
    const double edge = setting == 0 ? 2 : setting;
    EXPECT_EQ(AcquisitionTad(edge, 2, 2), setting);
    EXPECT_EQ(AcquisitionTad(edge * (1 + 1e-15), 2, 2), nextSetting);
    setting = nextSetting;
  }
}

TEST(Adc, CopiesThreeLinesWithTheirCommentsInOneColumn) {
  EXPECT_EQ(AdcDefineText(842, ClockChoice(41), AdcResolution::Bits8),
            "DEFINE ADC_BITS  8      ' ADCIN resolution  (Bits)\r\n"
            "DEFINE ADC_CLOCK 7      ' ADC clock source  (Frc)\r\n"
            "DEFINE ADC_SAMPLEUS 842 ' ADC sampling time (uSec)");
}

}  // namespace
}  // namespace tarnwick::calc

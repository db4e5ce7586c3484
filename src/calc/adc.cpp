#include "calc/adc.h"

#include "common/number_text.h"
#include "common/rounding.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace tarnwick::calc {
namespace {

constexpr AdcClock rcClock{"7", "ADCS=111", std::nullopt, "Frc"};

// The clocks derived from the oscillator, fastest first.
constexpr std::array<AdcClock, 6> oscillatorClocks{{
    {"0", "ADCS=000", 2, "Fosc/2"},
    {"4", "ADCS=100", 4, "Fosc/4"},
    {"1", "ADCS=001", 8, "Fosc/8"},
    {"5", "ADCS=101", 16, "Fosc/16"},
    {"2", "ADCS=010", 32, "Fosc/32"},
    {"6", "ADCS=110", 64, "Fosc/64"},
}};

// The automatic acquisition settings above 2 Tad.
constexpr std::array<int, 13> acquisitionSettings{4, 6, 8, 12, 16, 20, 24, 28, 32, 36, 40, 48, 64};

// The blanks that bring a comment mark below the one of the line that ends in the time's digits.
std::string_view padding(double Taq) {
  constexpr std::string_view longest = "       ";
  if (Taq >= 1000) return longest;
  if (Taq >= 100) return longest.substr(1);
  if (Taq >= 10) return longest.substr(2);
  return longest.substr(3);
}

}  // namespace

double AcquisitionTime(double Rs) {
  const double time = ((Rs + 1000) * 840) / 1000000 + 1;
  return std::ceil(time);
}

AdcClock ClockChoice(double Fosc) {
  const auto needed = common::toWhole<std::uint8_t>(64 / (40 / Fosc));
  for (const AdcClock& clock : oscillatorClocks)
    if (needed <= *clock.divisor) return clock;
  return rcClock;
}

int AcquisitionTad(double Taq, double Fosc, std::optional<int> divisor) {
  if (!divisor) return 0;
  const double Tad = (1 / Fosc) * *divisor;
  const double periods = Taq / Tad;
  if (!(periods > 2)) return 0;
  for (const int setting : acquisitionSettings)
    if (periods <= setting) return setting;
  return acquisitionSettings.back();
}

std::string adcClockText(const AdcClock& clock) {
  std::string text(clock.label);
  text.append(" (").append(clock.adcs).append(")");
  return text;
}

std::string AdcDefineText(double Taq, const AdcClock& clock, AdcResolution resolution) {
  const std::string_view pad = padding(Taq);
  std::string text;
  text.reserve(160);
  text.append(resolution == AdcResolution::Bits8 ? "DEFINE ADC_BITS  8" : "DEFINE ADC_BITS 10");
  text.append(pad).append("' ADCIN resolution  (Bits)").append(common::lineEnd);
  text.append("DEFINE ADC_CLOCK ").append(clock.code).append(pad);
  text.append("' ADC clock source  (").append(clock.label).append(")").append(common::lineEnd);
  text.append("DEFINE ADC_SAMPLEUS ").append(common::numberText(Taq));
  text.append(" ' ADC sampling time (uSec)");
  return text;
}

}  // namespace tarnwick::calc
